#!/usr/bin/env python3
# Holds the schemas against the readers: an attribute makes a difference in what the tool
# reads, at every place where a schema allows it, or is marked as unread. For the kinds of
# files whose content shows in opxml dump.
#   reading.py OPXML SOURCE-FOLDER
import json
import os
import subprocess
import sys
import tempfile
import unittest

from model import Schema

OPXML, SOURCE = sys.argv[1:3]

# Kind of file to where one of device type {0} lies, and its row in the inventory.
KINDS = {
    "server-configuration": ("{0}.xml", ""),
    "telnet-check": ("{0}_check.xml", "INSERT INTO check_file VALUES ('{0}', '{0}_check.xml', 1);"),
    "fixed-check": ("xml/access_snmp/fixedcheck/{0}.xml", ""),
}

# What a missing attribute reads as, so that another word is written.
DEFAULTS = ("DeviceLevel", "PopupMenu", "HotPatch", "DeviceOperation", "SoftwareUpgrade", "true")


# With these the element would be dropped, or another attribute decide.
HARMLESS = {"GUI": "true", "integated": "1", "checked": "perhaps"}

# Without one of these, a task type of a check file leaves no trace.
CHECKS = {"TaskType": "<PreCheck/><Operation/>"}


def document(elements, path, attribute, is_left_out):
    """One element in the other, each with all its attributes; the last one perhaps without one of them."""
    start, end = "", ""
    for depth, name in enumerate(path, 1):
        start += "<" + name
        for key, described in elements[path[:depth]]["attributes"].items():
            is_tried = depth == len(path) and key == attribute
            word = next((word for word in described["words"] if word not in DEFAULTS), "1")
            if not (is_tried and is_left_out):
                start += f' {key}="{word if is_tried else HARMLESS.get(key, word)}"'
        start += ">"
        end = f"</{name}>{end}"
    return start + CHECKS.get(path[-1], "") + end


def write(root, name, text):
    os.makedirs(os.path.dirname(os.path.join(root, name)), exist_ok=True)
    with open(os.path.join(root, name), "w", encoding="utf-8") as file:
        file.write(text)


class Reading(unittest.TestCase):
    def test_every_attribute_makes_a_difference_where_the_schema_has_it(self):
        rows, sql = [], "INSERT INTO config_item (section, key, value) VALUES ('DC', 'FIXED_CHECK_ITEM', 1);"
        with tempfile.TemporaryDirectory() as root:
            for kind, (place, row) in KINDS.items():
                elements = Schema(f"{SOURCE}/schema/{kind}.xsd").elements
                for path in elements:
                    for attribute, described in elements[path]["attributes"].items():
                        types = f"A{len(rows)}", f"B{len(rows)}"
                        rows.append((kind, path, attribute, described["unread"], types))
                        for device_type, is_left_out in zip(types, (False, True)):
                            write(root, f"{device_type}.xml", "<ServerConfiguration/>")
                            write(root, place.format(device_type), document(elements, path, attribute, is_left_out))
                            sql += (f"INSERT INTO device_type (name, version) VALUES ('{device_type}', 'V');"
                                    f"INSERT INTO config_file VALUES ('{device_type}', '{device_type}.xml');"
                                    + row.format(device_type))
            write(root, "server.sql", sql)
            done = subprocess.run([OPXML, "--root", root, "dump"], check=True, capture_output=True)
        records = json.loads(done.stdout)
        for kind, path, attribute, unread, types in rows:
            with self.subTest(kind, path="/".join(path), attribute=attribute):
                complete, without = ({**records[name][0], "strDevType": ""} for name in types)
                self.assertEqual(complete == without, unread)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
