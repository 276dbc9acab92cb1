#!/usr/bin/env python3
# Holds the schemas against the readers, both ways: an element or attribute that no schema
# knows stands at every place that one allows, and opxml lint says what the readers looked
# for there instead, which is what the schema allows. So for the words of an attribute, its
# numbers and its flags, with a value that is none.
#   reading.py OPXML SOURCE-FOLDER
import json
import os
import re
import subprocess
import sys
import tempfile
import unittest

from model import Schema

OPXML, SOURCE = sys.argv[1:3]
NONE = "zzzzzz"

# Schema to the name that lint has for the kind of file.
KINDS = {"server-configuration": "configuration", "module": "module", "capacity": "capacity",
         "telnet-check": "telnet-check", "fixed-check": "fixed-check", "alarm-explanations": "alarm-explanations",
         "transfer-registrations": "alarm-registrations", "file-check": "file-check"}

# With these an element is not dropped, or not before all of it is read.
HARMLESS = {"GUI": "true", "integated": "1"}


def document(elements, path, changed=None):
    """One element in the other, each with all its attributes; in the last one, the changed one or one more."""
    start, end = "", ""
    for depth, name in enumerate(path, 1):
        values = {key: HARMLESS.get(key, (described["words"] or ["1"])[0])
                  for key, described in elements[path[:depth]]["attributes"].items()}
        if depth == len(path):
            values[changed or NONE] = NONE
        start += "<" + name + "".join(f' {key}="{value}"' for key, value in values.items()) + ">"
        end = f"</{name}>{end}"
    return start + ("" if changed else f"<{NONE}/>") + end


def names(text):
    """'elements read here: a, b and c' as a set."""
    return set(re.split(", | and ", text.partition(": ")[2])) - {""}


class Reading(unittest.TestCase):
    def lint(self, kind, texts):
        """The findings of each text, each as (rule, the attribute that it is about, all that is said)."""
        with tempfile.TemporaryDirectory() as folder:
            for number, text in enumerate(texts):
                with open(os.path.join(folder, f"{number:04}.xml"), "w", encoding="utf-8") as file:
                    file.write(text)
            done = subprocess.run([OPXML, "lint", "--format", "json", "--kind", KINDS[kind],
                                   *sorted(os.path.join(folder, name) for name in os.listdir(folder))],
                                  capture_output=True, check=False)
        found = [[] for _ in texts]
        for finding in json.loads(done.stdout)["findings"]:
            about = finding["subject"].rpartition("@")[2].removesuffix("=")
            found[int(os.path.basename(finding["file"])[:4])].append(
                (finding["rule"], about, finding["message"], "".join(finding["help"])))
        return found

    def test_the_readers_look_for_what_the_schema_allows(self):
        for kind in KINDS:
            elements = Schema(f"{SOURCE}/schema/{kind}.xsd").elements
            paths = [path for path in elements if not elements[path]["unread"]]
            for path, found in zip(paths, self.lint(kind, [document(elements, path) for path in paths])):
                with self.subTest(kind, path="/".join(path)):
                    around = {path[0]}.union(*(elements[path[:depth]]["children"] for depth in range(1, len(path) + 1)))
                    inside = {name for name, unread in elements[path]["children"].items() if not unread}
                    read = {rule: names(said) for rule, about, _, said in found
                            if about == NONE or about.endswith("/" + NONE)}
                    self.assertEqual(read["unknown-attribute"], set(elements[path]["attributes"]))
                    self.assertEqual(inside - read["unknown-element"], set())
                    self.assertEqual(read["unknown-element"] - around, set())

    def test_the_readers_know_the_words_numbers_and_flags_of_the_schema(self):
        for kind in KINDS:
            elements = Schema(f"{SOURCE}/schema/{kind}.xsd").elements
            cases = [(path, name) for path in elements for name in elements[path]["attributes"]]
            for (path, name), found in zip(cases, self.lint(kind, [document(elements, *case) for case in cases])):
                with self.subTest(kind, path="/".join(path), attribute=name):
                    described = elements[path]["attributes"][name]
                    said = [(rule, message, help_text) for rule, about, message, help_text in found if about == name]
                    self.check(described, said)

    def check(self, described, said):
        if described["kind"] == "text":
            return self.assertEqual(said, [])
        self.assertEqual(len(said), 1)
        rule, message, help_text = said[0]
        if described["kind"] == "word":
            return self.assertEqual(names(help_text), set(described["words"]))
        self.assertEqual(rule, "number-missing")
        return self.assertIn("reads as no" if described["kind"] == "flag" else "has no digits", message)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
