# Pictures of the page about the example server, to be looked at. Those that begin with
# "report-" stand in the documentation: after a change of the page's look they are made
# small by pngquant and copied to docs.
import os

from roots import earlier_root

SHOTS = {
    "matrix": ("", (1440, 900)),
    "detail": ("#row=LX+2400%2FS+V3.8", (1440, 900)),
    "side-by-side": ("#row=LX+2400%2FS+V3.8&with=RX+7600%2B+R12", (1600, 900)),
    "health": ("#view=health", (1440, 900)),
    "comparison": ("#view=comparison", (1440, 900)),
    "changes": ("#changed=1", (1440, 900)),
}
DOCUMENTED = {
    "report-matrix": ("", (1360, 760), False),
    "report-detail": ("#row=LX+2400%2FS+V3.8&column=device%3ABackup&with=RX+7600%2B+R12", (1360, 760), True),
}

# The same on every machine and day.
ORIGIN = "document.getElementById('origin').textContent = '/srv/example · 2031-05-09 07:30:00 UTC · opxml'"


def take_screenshots(browser, tool, server, folder):
    os.makedirs(folder, exist_ok=True)
    page = tool.page(server, "--title", "Example server", "--compare", earlier_root(server, tool.folder))

    def shot(name, view, size, dark=False):
        browser.look(*size, dark)
        browser.open(page, view)
        browser.run(ORIGIN)
        browser.shot(os.path.join(folder, f"{name}.png"))

    for name, (view, size) in SHOTS.items():
        shot(f"{name}-light", view, size)
        shot(f"{name}-dark", view, size, True)
        shot(f"{name}-narrow", view, (390, 844))
    page = tool.page(server, "--title", "Example server")
    for name, (view, size, dark) in DOCUMENTED.items():
        shot(name, view, size, dark)
