# Pictures of the page about the example server, to be looked at; two of them, made
# small, stand in the documentation.
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


def take_screenshots(browser, tool, server, folder):
    os.makedirs(folder, exist_ok=True)
    page = tool.page(server, "--title", "Example server", "--compare", earlier_root(server, tool.folder))
    for name, (view, size) in SHOTS.items():
        for scheme, dark in (("light", False), ("dark", True)):
            browser.look(*size, dark)
            browser.open(page, view)
            browser.shot(os.path.join(folder, f"{name}-{scheme}.png"))
        browser.look(390, 844)
        browser.open(page, view)
        browser.shot(os.path.join(folder, f"{name}-narrow.png"))
