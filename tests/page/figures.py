# How long people wait for a page, measured in the browser: from a key or a click until
# the page is painted. Figures to read, not a test: a busy machine is slow.
import statistics
import time

PAINTED = """
const painted = () => new Promise((done) => requestAnimationFrame(() => {
  const channel = new MessageChannel();
  channel.port1.onmessage = done;
  channel.port2.postMessage(0);
}));
"""

KEYSTROKE = PAINTED + """
const [name, text, done] = arguments;
const field = document.querySelector(`[name=${name}]`);
(async () => {
  const begin = performance.now();
  field.value = text;
  field.dispatchEvent(new Event("input", {bubbles: true}));
  await painted();
  done(performance.now() - begin);
})();
"""

# Until the tree of the type stands in the panel.
CLICK = PAINTED + """
const [at, done] = arguments;
const begin = performance.now();
const observer = new MutationObserver(async () => {
  observer.disconnect();
  await painted();
  done(performance.now() - begin);
});
observer.observe(document.getElementById("detail"), {childList: true});
document.querySelectorAll("#grid tbody th")[at].click();
"""

SCROLL = PAINTED + """
const done = arguments[0];
const scroll = document.getElementById("scroll");
(async () => {
  const waits = [];
  for (let step = 0; step < 20; step++) {
    const begin = performance.now();
    scroll.scrollBy(120, 400);
    await painted();
    waits.push(performance.now() - begin);
  }
  done(waits);
})();
"""

KEYSTROKES = [("types", "1"), ("types", "12"), ("types", "bo"), ("types", ""), ("operations", "a"), ("operations", "ba"),
              ("operations", ""), ("lacks", "device:Restart"), ("lacks", "")]


def print_figures(browser, page):
    begin = time.monotonic()
    browser.open(page)
    print(f"{browser.text('#count')}; opened in {time.monotonic() - begin:.2f} s")
    run = browser.driver.execute_async_script
    show("keystroke", [run(KEYSTROKE, *key) for _ in range(3) for key in KEYSTROKES])
    show("click on a type", [run(CLICK, at) for at in range(10)])
    show("step of a scroll", run(SCROLL))


def show(what, waits):
    print(f"{what + ':':18} median {statistics.median(waits):4.0f} ms, longest {max(waits):4.0f} ms of {len(waits)}")
