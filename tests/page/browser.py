# A headless Chromium that shows pages of opxml report, and notes what they must never
# do: speak to the console, or ask for anything outside themselves.
import base64
import json
import os

from selenium import webdriver
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.common.by import By

HERE = os.path.dirname(os.path.abspath(__file__))


class Browser:
    def __init__(self):
        options = webdriver.ChromeOptions()
        for argument in ("--headless=new", "--no-sandbox", "--hide-scrollbars", "--force-device-scale-factor=1",
                         "--disable-background-networking", "--disable-gpu"):
            options.add_argument(argument)
        options.set_capability("goog:loggingPrefs", {"browser": "ALL", "performance": "ALL"})
        options.binary_location = "/usr/bin/chromium"
        self.driver = webdriver.Chrome(service=Service("/usr/bin/chromedriver"), options=options)
        self.driver.set_script_timeout(60)
        with open(os.path.join(HERE, "node_modules/axe-core/axe.min.js"), encoding="utf-8") as file:
            self.axe = file.read()
        self.look()

    def close(self):
        self.driver.quit()

    # How the page is looked at from here on.
    def look(self, width=1440, height=900, dark=False):
        self.driver.execute_cdp_cmd("Emulation.setDeviceMetricsOverride",
                                    {"width": width, "height": height, "deviceScaleFactor": 1, "mobile": False})
        scheme = "dark" if dark else "light"
        self.driver.execute_cdp_cmd("Emulation.setEmulatedMedia",
                                    {"features": [{"name": "prefers-color-scheme", "value": scheme}]})

    def open(self, path, view=""):
        self.driver.get("about:blank")
        self.driver.get("file://" + path + view)
        self.settle()

    # Until what was asked for is unpacked and painted.
    def settle(self):
        self.driver.execute_async_script(
            "const done = arguments[0]; setTimeout(() => requestAnimationFrame(() => setTimeout(done, 60)), 60);")

    def run(self, script, *arguments):
        return self.driver.execute_script(script, *arguments)

    def find(self, selector):
        return self.driver.find_element(By.CSS_SELECTOR, selector)

    def text(self, selector):
        return self.run("return document.querySelector(arguments[0])?.textContent", selector)

    def texts(self, selector):
        return self.run("return [...document.querySelectorAll(arguments[0])].map((found) => found.textContent)", selector)

    # Into a field of the filters, or of the detail.
    def type(self, selector, text):
        self.run("""const field = document.querySelector(arguments[0]);
                    field.value = arguments[1];
                    field.dispatchEvent(new Event("input", {bubbles: true}));
                    field.dispatchEvent(new Event("change", {bubbles: true}));""", selector, text)
        self.settle()

    def click(self, selector):
        self.run("document.querySelector(arguments[0]).click()", selector)
        self.settle()

    def press(self, *keys):
        for key in keys:
            self.driver.switch_to.active_element.send_keys(key)
        self.settle()

    def shot(self, path):
        self.driver.save_screenshot(path)

    # The PDF that a printer would get.
    def print(self):
        return base64.b64decode(self.driver.execute_cdp_cmd("Page.printToPDF", {"preferCSSPageSize": True})["data"])

    # What is wrong for people who do not see or cannot use a mouse.
    def violations(self):
        result = self.driver.execute_async_script(
            self.axe + "; const done = arguments[0]; axe.run(document).then(done, (problem) => done(String(problem)));")
        return [f"{found['id']}: {node['html'][:200]}" for found in result["violations"] for node in found["nodes"]]

    # Lines of the console since the last time.
    def console(self):
        return [entry["message"] for entry in self.driver.get_log("browser")]

    # What pages asked for since the last time, themselves left out.
    def requests(self):
        events = [json.loads(entry["message"])["message"] for entry in self.driver.get_log("performance")]
        asked = [event["params"] for event in events if event["method"] == "Network.requestWillBeSent"]
        return [request["request"]["url"] for request in asked
                if request["request"]["url"] != "about:blank" and request["type"] != "Document"]
