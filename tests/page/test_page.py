#!/usr/bin/env python3
# The page of opxml report in a browser: what it shows against what opxml answers, and
# what people do with it. scripts/test-page runs it.
#   test_page.py OPXML EXAMPLE-SERVER [--screenshots DIR | --figures PAGE]
import argparse
import json
import os
import re
import sys
import tempfile
import unittest

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path[:0] = [HERE, os.path.join(HERE, "../cli")]

from agreement import offered, said, show_lines
from browser import Browser
from figures import print_figures
from roots import HOSTILE_DEVICE, HOSTILE_OPERATION, HOSTILE_TYPE, Tool, earlier_root, hostile_root
from screenshots import take_screenshots
from selenium.webdriver.common.keys import Keys

# The whole matrix as it stands in the page: for each row the label of each cell.
READ_MATRIX = """
const grid = document.getElementById("grid");
const kinds = new Map([...document.querySelectorAll("#kinds label")].map((label) => [label.textContent.trim(), label.firstChild.value]));
const kindOf = new Map();
for (const heading of grid.querySelectorAll("thead th.kind"))
  for (let at = 0; at < heading.colSpan; at++) kindOf.set(Number(heading.getAttribute("aria-colindex")) + at, kinds.get(heading.textContent));
const columns = [...grid.tHead.rows[1].cells].slice(1).map((heading) => [kindOf.get(Number(heading.getAttribute("aria-colindex"))), heading.textContent]);
const rows = [...grid.tBodies[0].rows].map((row) => ({
  type: row.cells[0].querySelector(".type").textContent,
  version: row.cells[0].querySelector(".version > span").textContent,
  tags: [...row.cells[0].querySelectorAll(".tag")].map((tag) => tag.textContent),
  labels: [...row.cells].slice(1).map((cell) => cell.getAttribute("aria-label")),
}));
return {columns, rows};
"""

READ_LINES = """
return [...document.querySelectorAll("#detail .line:not(.cut, .dropped)")].map((line) =>
  [...line.childNodes].filter((node) => node.nodeName === "B" || (node.nodeName === "SPAN" && node.className === "")).map((node) => node.textContent).join(""));
"""


class PageTest(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.example = cls.tool.page(cls.server, "--title", "Example")

    def setUp(self):
        self.browser.look()

    # Whatever was done: no line in the console, and nothing was asked for.
    def tearDown(self):
        self.assertEqual([], self.browser.console())
        self.assertEqual([], self.browser.requests())

    def open(self, view="", page=None):
        self.browser.open(page or self.example, view)

    def hash(self):
        return self.browser.run("return decodeURIComponent(location.hash)")

    def rows(self):
        return self.browser.texts("#grid tbody th .type")

    def count(self):
        return self.browser.text("#count")


class AgreementTest(PageTest):
    # The configurations of a row, by the versions that they serve.
    def records(self, rows):
        keys = sorted({(row["type"], row["version"]) for row in rows})
        answers = self.tool.ask(self.server, [["getDevTypeXMLConfig", *key] for key in keys])
        return {key: answer or [] for key, answer in zip(keys, answers)}

    def test_every_cell_says_what_query_answers(self):
        self.open()
        matrix = self.browser.run(READ_MATRIX)
        records = self.records(matrix["rows"])
        columns = [tuple(column) for column in matrix["columns"]]
        met = {}
        for row in matrix["rows"]:
            key = (row["type"], row["version"])
            configurations = records[key]
            nth = met[key] = met.get(key, -1) + 1
            expected = offered(configurations[nth]) if nth < len(configurations) else {}
            self.assertLessEqual(set(expected), set(columns), row)
            for column, label in zip(columns, row["labels"]):
                if column in expected:
                    self.assertEqual(expected[column], said(label), (row["type"], column))
                else:
                    self.assertIn(label, ("not offered", "cut by capacity"), (row["type"], column))
        self.assertEqual(len(records), len(met))
        self.assertGreater(sum(map(len, records.values())), 15)

    def test_yes_and_no_are_those_of_the_server(self):
        self.open()
        matrix = self.browser.run(READ_MATRIX)
        questions, labels = [], []
        answered = set()
        for row in matrix["rows"]:
            if (row["type"], row["version"]) in answered:
                continue  # a further configuration answers no question of this kind
            answered.add((row["type"], row["version"]))
            for (kind, name), label in zip(matrix["columns"], row["labels"]):
                operation = {"device": "isDeviceOpSupported", "other": "isOtherOpSupported"}.get(kind)
                if operation:
                    questions.append([operation, row["type"], row["version"], name])
                    labels.append(label)
        for question, label, answer in zip(questions, labels, self.tool.ask(self.server, questions)):
            self.assertEqual(answer, label.startswith("offered"), question)

    def test_a_tree_has_the_lines_of_show(self):
        self.open()
        matrix = self.browser.run(READ_MATRIX)
        met = {}
        for at, row in enumerate(matrix["rows"]):
            if "failed" in row["tags"]:
                continue
            self.browser.run("document.querySelectorAll('#grid tbody th')[arguments[0]].click()", at)
            self.browser.settle()
            self.browser.run("document.querySelector('#detail header button').click()")
            key = (row["type"], row["version"])
            nth = met[key] = met.get(key, -1) + 1
            replaced = next((tag.split(" ")[-1] for tag in row["tags"] if tag.startswith("replaced")), row["version"])
            shown = show_lines(self.tool.run(self.server, "show", row["type"], replaced).stdout)[nth]
            sections = [line for line in shown if re.fullmatch(r"[A-Z][a-z]+ .*\(\d+\)", line) or line.startswith("Task types (")]
            self.assertEqual([line for line in shown if line not in sections], self.browser.run(READ_LINES), row)

    def test_health_counts_what_lint_finds(self):
        findings = json.loads(self.tool.run(self.server, "lint", "--format", "json").stdout)
        findings = findings["findings"] if isinstance(findings, dict) else findings
        self.open("#view=health")
        cards = dict(reversed(card.split("\n")) for card in self.browser.run(
            "return [...document.querySelectorAll('.card')].map((card) => card.innerText)"))
        for severity in ("error", "warning", "note"):
            number = sum(finding["severity"] == severity for finding in findings)
            self.assertEqual(str(number), cards.get(severity if number == 1 else severity + "s"))
        self.assertEqual(len(findings), len(self.browser.texts("#finding-list tbody tr")))
        failed = json.loads(self.tool.run(self.server, "load", "--json").stdout)["summary"]["failed"]
        self.assertEqual(str(failed), cards["failed"])


class FilterTest(PageTest):
    def test_types_are_found_by_name_version_and_device(self):
        self.open()
        for text, found in (("lx v3.8", {"LX 2400/S"}), ("QUILL", {"Quill C4", "Quill C8"}), ("rx-münchen", {"RX 7600+"}),
                            ("192.0.2.17", {"NetEdge 5"}), ("V4.2", {"Quill C4"})):
            self.browser.type("[name=types]", text)
            self.assertEqual(found, set(self.rows()), text)
        self.browser.type("[name=types]", "no such type")
        self.assertTrue(self.browser.find("#nothing").is_displayed())
        self.browser.click("#reset")
        self.assertEqual(21, len(self.rows()))

    def test_columns_are_narrowed_by_name_and_kind(self):
        self.open()
        self.browser.type("[name=operations]", "patch")
        self.assertTrue(all("patch" in name.lower() for name in self.browser.texts("thead .operation")))
        self.browser.type("[name=operations]", "")
        self.browser.click("[name=kind][value=menu]")
        self.assertEqual(["Menu entries"], self.browser.texts("thead .kind"))
        self.browser.click("[name=kind][value=device]")
        self.assertEqual(["Device operations", "Menu entries"], self.browser.texts("thead .kind"))

    def test_only_what_lacks_an_operation(self):
        self.open()
        self.browser.type("[name=lacks]", "device:Save")
        matrix = self.browser.run(READ_MATRIX)
        at = matrix["columns"].index(["device", "Save"])
        self.assertGreater(len(matrix["rows"]), 3)
        self.assertFalse([row for row in matrix["rows"] if row["labels"][at].startswith("offered")])
        self.browser.type("[name=lacks]", "no such operation")
        self.assertIn("no operation is called", self.count())

    def test_only_failed(self):
        self.open()
        self.browser.click("[name=failed]")
        self.assertEqual(["MW-Relay 60", "RX 300"], self.rows())

    def test_only_differences(self):
        self.open()
        self.browser.type("[name=types]", "LX 2400/S V3.7")
        before = self.browser.run(READ_MATRIX)
        self.browser.click("[name=differences]")
        after = self.browser.run(READ_MATRIX)
        different = [column for at, column in enumerate(before["columns"]) if len({row["labels"][at] for row in before["rows"]}) > 1]
        self.assertEqual(different, after["columns"])

    def test_sorts_as_one_likes(self):
        self.open()
        self.browser.type("[name=sort]", "failed")
        self.assertEqual(["MW-Relay 60", "RX 300"], self.rows()[:2])
        self.browser.run("[...document.querySelectorAll('thead th[scope=col]')].find((th) => th.textContent === 'ClockTrace').click()")
        self.browser.settle()
        matrix = self.browser.run(READ_MATRIX)
        at = matrix["columns"].index(["device", "ClockTrace"])
        labels = [row["labels"][at] != "not offered" for row in matrix["rows"]]
        self.assertEqual(sorted(labels, reverse=True), labels)
        self.assertEqual("ascending", self.browser.run("return document.querySelector('[aria-sort=ascending]')?.ariaSort"))


class NavigationTest(PageTest):
    def test_a_link_shows_the_same(self):
        self.open()
        self.browser.type("[name=types]", "rx")
        self.browser.click("[name=kind][value=patch]")
        self.browser.run("document.querySelector('#grid tbody th').click()")
        self.browser.settle()
        seen = self.browser.run(READ_MATRIX), self.browser.text("#detail-heading")
        self.open(self.browser.run("return location.hash"))
        self.assertEqual(seen, (self.browser.run(READ_MATRIX), self.browser.text("#detail-heading")))
        self.assertEqual("rx", self.browser.run("return document.querySelector('[name=types]').value"))

    def test_back_leads_back(self):
        self.open()
        self.browser.click("[data-view=health]")
        self.assertFalse(self.browser.find("#matrix").is_displayed())
        self.browser.run("history.back()")
        self.browser.settle()
        self.assertTrue(self.browser.find("#matrix").is_displayed())

    def test_keys_reach_everything(self):
        self.open()
        self.browser.run("document.querySelector('#grid [tabindex=\"0\"]').focus()")
        focused = "const cell = document.activeElement; return cell.dataset.at"
        self.browser.press(Keys.ARROW_DOWN, Keys.ARROW_RIGHT, Keys.ARROW_RIGHT)
        self.assertEqual("1 1", self.browser.run(focused))
        self.browser.press(Keys.END)
        self.assertEqual("1 165", self.browser.run(focused))
        self.assertTrue(self.browser.run("const place = document.activeElement.getBoundingClientRect(); return place.right < innerWidth + 1"))
        self.browser.press(Keys.CONTROL + Keys.HOME)
        self.assertEqual("0 -1", self.browser.run(focused))
        self.browser.press(Keys.ENTER)
        self.assertEqual("detail-heading", self.browser.run("return document.activeElement.id"))
        self.browser.press(Keys.ESCAPE)
        self.assertFalse(self.browser.find("#detail").is_displayed())
        self.assertEqual("0 -1", self.browser.run(focused))
        self.browser.press(Keys.ARROW_RIGHT, Keys.ARROW_UP, Keys.ENTER)
        self.assertIn("sort=device:Backup", self.hash())

    def test_a_cell_opens_its_operation(self):
        self.open()
        self.browser.run("document.querySelector('[data-at=\"4 3\"]').click()")
        self.browser.settle()
        self.assertIn("column=", self.hash())
        self.open("#row=LX+2400%2FS+V3.8&column=device%3ARestart")
        self.assertTrue(self.browser.text("#detail .wanted b") == "Restart")

    def test_two_types_side_by_side(self):
        self.open("#row=LX+2400%2FS+V3.8")
        self.browser.type("#detail input[list=rows]", "RX 7600+ R12")
        self.assertIn("only on the left: ", self.browser.texts("#detail .pair .unseen"))
        self.browser.type("#detail input[list=rows]", "LX 2400/S V3.7")
        self.assertEqual([], self.browser.texts("#detail .tree .pair"))
        self.assertIn("Both say the same.", self.browser.text("#detail"))

    def test_a_capacity_type_says_who_is_served(self):
        self.open("#row=Quill+C4+V4+for+V5.0%2C+V5.0+P01%2C+V5.1")
        facts = self.browser.text("#detail .facts")
        self.assertIn("quill-b", facts)
        self.assertNotIn("quill-a", facts)


class HostileTest(PageTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.hostile = cls.tool.page(hostile_root(cls.server, cls.tool.folder), "--title", HOSTILE_TYPE)

    def test_names_are_names(self):
        self.open(page=self.hostile)
        self.assertIn(HOSTILE_TYPE, self.rows())
        self.assertIn("__proto__", self.rows())
        self.assertIn(HOSTILE_OPERATION, self.browser.texts("thead .operation"))
        self.assertEqual(HOSTILE_TYPE, self.browser.text("h1"))
        self.assertEqual(HOSTILE_TYPE, self.browser.driver.title)
        for view in ("#row=__proto__+N1", "#view=health", "#view=%3Cscript%3E&row=%00&kinds=__proto__&sort=__proto__", "#view=__proto__"):
            self.open(view, self.hostile)
            self.assertEqual([0, 0], self.browser.run(
                "return [document.querySelectorAll('img, svg').length, document.querySelectorAll('script:not([type])').length - 1]"))
        self.open("#row=__proto__+N1", self.hostile)
        self.assertIn(HOSTILE_DEVICE, self.browser.text("#detail .facts"))

    # What a script that got in all the same would meet.
    def test_nothing_else_runs_or_loads(self):
        self.open()
        ran = self.browser.run("""const script = document.createElement("script"); script.textContent = "window.ran = true";
                                  document.body.append(script);
                                  const image = new Image(); image.src = "https://example.org/x.png"; document.body.append(image);
                                  return window.ran ?? false;""")
        self.assertFalse(ran)
        self.browser.settle()
        self.assertTrue(all("Content Security Policy" in line for line in self.browser.console()))
        self.browser.requests()  # that of the image, which was refused


class ComparisonTest(PageTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.earlier = earlier_root(cls.server, cls.tool.folder)
        cls.compared = cls.tool.page(cls.server, "--compare", cls.earlier)

    def test_gains_and_losses_stand_in_the_matrix(self):
        self.open("#changed=1", self.compared)
        matrix = self.browser.run(READ_MATRIX)
        marks = {(row["type"], row["version"], *column): label.split(", ")[-1] for row in matrix["rows"]
                 for column, label in zip(matrix["columns"], row["labels"]) if label.split(", ")[-1] in ("gain", "loss", "change")}
        expected = {("OLT-880", "A2.4", "device", "Save"): "gain", ("OLT-880", "A2.4", "menu", "Dispense"): "gain",
                    ("OLT-880", "A2.4", "isolation-menu", "Dispense"): "gain"}
        for version in ("V3.7", "V3.8"):
            expected |= {("LX 2400/S", version, "device", "Diagnose"): "loss", ("LX 2400/S", version, "device", "Recover"): "change"}
        self.assertEqual(expected, marks)
        tags = {row["type"]: row["tags"] for row in matrix["rows"]}
        self.assertEqual((["gone"], ["new"]), (tags["RX 900-E"], tags["RX 900\\E"]))

    def test_the_list_is_that_of_diff(self):
        diff = json.loads(self.tool.run(self.server, "diff", self.earlier, self.server, "--format", "json").stdout)
        self.open("#view=comparison", self.compared)
        breaking = self.browser.run("return [...document.querySelectorAll('[aria-label=\"Breaking changes\"] tbody tr')].map((row) => row.innerText)")
        wanted = [change for change in diff["changes"] if change["impact"] == "breaking"]
        self.assertEqual(len(wanted), len(breaking))
        for change, line in zip(wanted, breaking):
            self.assertIn(change.get("path") or "device type", line)
        devices = self.browser.texts('[aria-label="Devices that lose something"] tbody td:nth-child(2)')
        self.assertEqual([str(device["id"]) for device in diff["devices"]], devices)
        self.browser.click('[aria-label="Breaking changes"] a')
        self.assertEqual("LX 2400/S V3.7", self.browser.text("#detail-heading"))

    def test_everybody_can_read_it(self):
        for width, dark in ((1440, True), (360, False)):
            self.browser.look(width, 900, dark)
            for view in ("#view=comparison", "#changed=1"):
                self.open(view, self.compared)
                self.assertEqual([], self.browser.violations(), view)
                self.assertLessEqual(self.browser.run("return document.documentElement.scrollWidth"), width)

    # Two roots without a difference: nothing is marked, and the page says so.
    def test_nothing_changed(self):
        page = self.tool.page(self.server, "--compare", self.server)
        self.open("#view=comparison", page)
        self.assertEqual(4, self.browser.text("#comparison").count("None."))


class ForEverybodyTest(PageTest):
    VIEWS = ("", "#row=LX+2400%2FS+V3.8", "#row=LX+2400%2FS+V3.8&with=RX+7600%2B+R12", "#view=health")

    def test_no_violations_of_accessibility(self):
        for width, dark in ((1440, False), (390, True)):
            self.browser.look(width, 900, dark)
            for view in self.VIEWS:
                self.open(view)
                self.assertEqual([], self.browser.violations(), (view, width, dark))

    def test_fits_every_width(self):
        for width in (360, 640, 1000, 2560):
            self.browser.look(width, 800)
            for view in self.VIEWS:
                self.open(view)
                self.assertLessEqual(self.browser.run("return document.documentElement.scrollWidth"), width, view)
                if width > 640:  # there the parts scroll, and the page stays
                    self.assertLessEqual(self.browser.run("return document.documentElement.scrollHeight"), 800, view)

    def test_prints_what_is_chosen(self):
        self.open("#types=rx")
        self.browser.run("dispatchEvent(new Event('beforeprint'))")
        columns = self.browser.texts("#paper thead .operation")
        self.assertEqual(self.browser.texts("#grid thead .operation"), columns)
        self.assertEqual(4, len(set(self.browser.texts("#paper tbody th"))))
        self.browser.run("dispatchEvent(new Event('afterprint'))")
        self.assertGreater(len(self.browser.print()), 10000)

    # A root with nothing in it, alone and beside one that has something.
    def test_shows_nothing_as_nothing(self):
        bare = os.path.join(self.tool.folder, "bare")
        os.makedirs(bare)
        with open(os.path.join(bare, "server.sql"), "w", encoding="utf-8") as file:
            file.write("\n")
        for page in (self.tool.page(bare), self.tool.page(bare, "--compare", self.server), self.tool.page(self.server, "--compare", bare)):
            for view in ("", "#view=health", "#view=comparison", "#changed=1&differences=1"):
                self.open(view, page)
                self.assertEqual([], self.browser.violations(), view)

    def test_says_what_was_left_out(self):
        page = self.tool.page(self.server, "--no-details", "--no-lint")
        self.open("#row=SW-100+S4", page)
        self.assertIn("without the trees", self.browser.text("#detail"))
        self.open("#view=health", page)
        self.assertIn("without lint", self.browser.text("#health"))


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("opxml", type=os.path.abspath)
    parser.add_argument("server", type=os.path.abspath)
    parser.add_argument("--screenshots", type=os.path.abspath)
    parser.add_argument("--figures", type=os.path.abspath)
    arguments = parser.parse_args()
    with tempfile.TemporaryDirectory() as folder:
        PageTest.tool = Tool(arguments.opxml, folder)
        PageTest.server = arguments.server
        PageTest.browser = Browser()
        try:
            if arguments.screenshots:
                take_screenshots(PageTest.browser, PageTest.tool, PageTest.server, arguments.screenshots)
                return 0
            if arguments.figures:
                print_figures(PageTest.browser, arguments.figures)
                return 0
            result = unittest.main(argv=sys.argv[:1], exit=False, verbosity=1).result
            return 0 if result.wasSuccessful() else 1
        finally:
            PageTest.browser.close()


if __name__ == "__main__":
    sys.exit(main())
