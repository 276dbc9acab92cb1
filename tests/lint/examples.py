#!/usr/bin/env python3
# Runs the examples of every lint rule: what is wrong is told as wrong.txt says and by
# that rule, what is right in silence. Every rule has its folder, and no folder is
# without a rule. docs/lint.md shows the same texts.
#   examples.py [--update] OPXML FOLDER PAGE
# A folder holds wrong.xml and right.xml, or wrong/ and right/ where a rule needs a
# whole server root. --update writes what comes out today: read the difference.
import difflib
import json
import os
import subprocess
import sys

MARK = "<!-- The rules, written by tests/lint/examples.py --update -->\n"


def run(opxml, folder, *arguments):
    environment = {name: value for name, value in os.environ.items() if name not in ("OPXML_ROOT", "NO_COLOR")}
    done = subprocess.run([opxml, *arguments], cwd=folder, env=environment, capture_output=True, timeout=60)
    return done.returncode, done.stdout.decode(), done.stderr.decode()


def lint(opxml, folder, side, *options):
    if os.path.isdir(os.path.join(folder, side)):
        return run(opxml, folder, "--root", side, "lint", "--fail-on", "note", *options)
    return run(opxml, folder, "lint", "--fail-on", "note", *options, side + ".xml")


def rules_of(opxml):
    code, text, _ = run(opxml, ".", "lint", "--rules")
    assert code == 0
    return [line.split()[1] for line in text.splitlines()[1:]]


def page(opxml, rules):
    text = ""
    for rule in rules:
        code, explanation, _ = run(opxml, ".", "lint", "--explain", rule)
        assert code == 0
        heading, *lines = explanation.splitlines()
        text += f"\n### {rule}\n\n```text\n" + "\n".join([heading, *lines]) + "\n```\n"
    return text


def compare(what, expected, actual):
    if expected == actual:
        return True
    sys.stdout.writelines(difflib.unified_diff(expected.splitlines(True), actual.splitlines(True), what, "now"))
    return False


def main(arguments):
    update = arguments[:1] == ["--update"]
    opxml, folder, page_path = arguments[1 if update else 0:]
    opxml, good = os.path.abspath(opxml), True
    rules = rules_of(opxml)
    folders = sorted(name for name in os.listdir(folder) if os.path.isdir(os.path.join(folder, name)))
    if folders != sorted(rules):
        print("without a folder:", sorted(set(rules) - set(folders)), "without a rule:", sorted(set(folders) - set(rules)))
        good = False
    for rule in [rule for rule in rules if rule in folders]:
        place = os.path.join(folder, rule)
        code, text, problem = lint(opxml, place, "wrong")
        expected_path = os.path.join(place, "wrong.txt")
        if update:
            with open(expected_path, "w", encoding="utf-8") as file:
                file.write(text)
        with open(expected_path, encoding="utf-8") as file:
            good = compare(expected_path, file.read(), text) and good
        _, listed, _ = lint(opxml, place, "wrong", "--format", "json")
        found = {finding["rule"] for finding in json.loads(listed)["findings"]}
        if code != 1 or found != {rule}:
            print(f"{rule}: wrong ends with {code} and is told by {sorted(found)} {problem}")
            good = False
        code, text, problem = lint(opxml, place, "right")
        if code != 0 or text:
            print(f"{rule}: right ends with {code}: {text}{problem}")
            good = False
    with open(page_path, encoding="utf-8") as file:
        before, mark, shown = file.read().partition(MARK)
    if update:
        with open(page_path, "w", encoding="utf-8") as file:
            file.write(before + MARK + page(opxml, rules))
    else:
        good = compare(page_path, shown, page(opxml, rules)) and bool(mark) and good
    return 0 if good else 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
