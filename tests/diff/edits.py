#!/usr/bin/env python3
# A random set of edits of a generated root: opxml diff reports exactly these edits, and
# backwards their mirror.
#   edits.py OPXML [ROUNDS [SEED]]
import os
import random
import sys
import tempfile
import xml.etree.ElementTree as ET

import roots

# Element of a list: its kind, and its attributes with two values each. What is not
# named here is not edited.
LEVEL = ("operationLevel", "DeviceLevel", "BoardLevel")
OPERATION_ATTRIBUTES = (("isCancelable", "0", "1"), LEVEL)
NUMBER, REQUIRED = ("value", None, None), ("isRequired", "0", "1")
PARAMETER = ("Parameter", "parameter", (("value", "a", "b"), REQUIRED, ("selected", "a", "b")),
             (("Option", "option", (NUMBER, ("target", "/a", "/b")), ()),))
STEP_PARAMETER = ("Parameter", "parameter", (REQUIRED,), (("Option", "option", (NUMBER,), ()),)) # nobody reads more
ITEM_ATTRIBUTES = (("description", "a", "b"), ("cmdKey", "a", "b"), ("selected", "0", "1"), ("compareType", "1", "2"))
ITEM = ("Item", None, (("type", "DeviceOperation", "PatchOperation"),), ())
SECTIONS = (
    ("DeviceOperation", ("Operation", "device", OPERATION_ATTRIBUTES, (PARAMETER,))),
    ("TaskOperation", ("Operation", "task", OPERATION_ATTRIBUTES, (PARAMETER,))),
    ("PatchOperation", ("Operation", "patch", (LEVEL,), (PARAMETER,))),
    ("CheckOperations", ("Operation", "check", OPERATION_ATTRIBUTES,
                         (("Parameter", "check-item", ITEM_ATTRIBUTES, (("SubItem", "check-item", ITEM_ATTRIBUTES, ()),)),))),
    ("CustomOperations", ("Operation", "custom", (("AvailableIn", "PopupMenu", "Tab"), LEVEL), ())),
    ("UpgradeOperation", ("Operation", "upgrade", (LEVEL,), (("SubOperation", "upgrade-step", (LEVEL,), (STEP_PARAMETER,)),))),
    ("DeviceViewPopupMenu", (*ITEM[:1], "menu", *ITEM[2:])),
    ("DeviceViewTab", (*ITEM[:1], "tab", *ITEM[2:])),
)
# One type has a module, which adds nothing: it is read in another way than those without.
MODULE = {roots.MODULE: '<C><DeviceType name="m"/><support><dev name="T1"/></support></C>'}
FIELDS = {"AvailableIn": "availableIn"} # elsewhere the field bears the attribute's name


class Root:
    def __init__(self, dice):
        self.dice, self.number = dice, 0
        self.tree = ET.Element("C")
        self.entries = [] # (element, parent, shape, path)
        for name, shape in SECTIONS:
            self.fill(ET.SubElement(self.tree, name), shape, "", 3)

    def fill(self, parent, shape, path, count):
        for _ in range(self.dice.randint(1, count)):
            self.add(parent, shape, path)

    def add(self, parent, shape, path):
        tag, _, attributes, children = shape
        self.number += 1
        # Ids that are not near each other: no renames, and no two options of one number.
        element = ET.SubElement(parent, tag, {"id": f"{self.dice.getrandbits(64):016x}"})
        for name, *values in attributes:
            element.set(name, str(self.number) if values[0] is None else self.dice.choice(values))
        path = path + "/" * bool(path) + element.get("id")
        self.entries.append((element, parent, shape, path))
        for child in children:
            self.fill(element, child, path, 3)
        return path

    # One edit of each of some entries that do not stand in each other; what it is to say.
    def edit(self, count):
        said, touched = [], []
        for element, parent, shape, path in self.dice.sample(self.entries, len(self.entries)):
            if len(said) == count or any(path.startswith(other) or other.startswith(path) for other in touched):
                continue
            touched.append(path)
            said += self.dice.choice((self.lose, self.gain, self.change))(element, parent, shape, path)
        return said

    def lose(self, element, parent, shape, path):
        parent.remove(element)
        return [("lost", shape[1], path, "", self.number_of(element), "")]

    def gain(self, element, parent, shape, path):
        outer = path.rpartition("/")[0]
        added = self.add(parent, shape, outer)
        return [("gained", shape[1], added, "", "", self.number_of(parent[-1]))]

    def change(self, element, parent, shape, path):
        name, *values = self.dice.choice(shape[2])
        old = element.get(name)
        new = str(int(old) + 100000) if values[0] is None else values[1 - values.index(old)]
        element.set(name, new)
        return [("changed", shape[1], path, FIELDS.get(name, name), old, new)]

    @staticmethod
    def number_of(element):
        return element.get("value", "") if element.tag == "Option" else ""

    def body(self):
        return "".join(ET.tostring(section, encoding="unicode") for section in self.tree)


def round_of(opxml, dice):
    types = [Root(dice) for _ in range(3)]
    expected = []
    with tempfile.TemporaryDirectory() as scratch:
        old, new = (os.path.join(scratch, name) for name in ("old", "new"))
        roots.write_root(old, [type_.body() for type_ in types], MODULE)
        for number, type_ in enumerate(types):
            edits = type_.edit(dice.randint(0, 8))
            expected += [(f"T{number} {version}", "", *edit) for edit in edits for version in ("VW" if number == 0 else "V")]
        roots.write_root(new, [type_.body() for type_ in types], MODULE)
        there, back = roots.said(roots.diff(opxml, old, new)), roots.said(roots.diff(opxml, new, old))
    return there == sorted(expected) and back == roots.mirrored(there), expected, there, back


def main(opxml, rounds="30", seed="1"):
    for number in range(int(rounds)):
        good, expected, there, back = round_of(os.path.abspath(opxml), random.Random(f"{seed}/{number}"))
        if not good:
            print(f"round {number} of seed {seed}\nexpected {sorted(expected)}\nthere    {there}\nback     {back}")
            return 1
    return 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
