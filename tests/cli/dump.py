#!/usr/bin/env python3
# Checks opxml dump on the example server: whole configurations against a second
# reading of their files, every record against the field tables of the manual, and
# that the output is the same JSON each time.
#   dump.py OPXML SOURCE-FOLDER
import json
import os
import re
import subprocess
import sys
import tempfile
import unittest

from configuration import expected_record

OPXML, SOURCE = sys.argv[1:3]
SERVER = os.path.join(SOURCE, "examples/server")
CONFIGURATIONS = os.path.join(SERVER, "common/dc/conf/dc/devtype_xmlconf")
MODULES = os.path.join(SERVER, "etc/oss_cfg/dc/ne_script/importscript")
CLOCK = os.path.join(MODULES, "clock_sync/ServerConfiguration.xml")
FIELD = os.path.join(MODULES, "field/backup/ServerConfiguration.XML")
OPTICS = os.path.join(MODULES, "access/optics/diagnostics/OpticalDiagnostics_ServerConfiguration.xml")
TELNET_CHECKS = os.path.join(SERVER, "common/dc/conf/dc/check/LX_2400_S_telnet_check.xml")
FIXED_CHECKS = os.path.join(SERVER, "xml/access_snmp/fixedcheck/OLT-880.xml")

# Key, version, file, check file, modules in the order of their names. The LX 2400/S
# is the large one: every section and attribute.
TYPES = (
    ("LX 2400/S", "V3.8", "LX_2400_S_ServerConfiguration.xml", None, (CLOCK, FIELD)),
    ("LX 2400/S_telnet", "V3.7_telnet", "LX_2400_S_telnet_ServerConfiguration.xml", TELNET_CHECKS, (CLOCK, FIELD)),
    ("RX 7600+", "R12", "RX_7600__ServerConfiguration.xml", None, (CLOCK,)),
    ("Borealis 12/24", "B12.0", "Borealis_12_24_ServerConfiguration.xml", None, (OPTICS,)),
    ("Borealis 9", "B9.2", "Borealis_9_telnet_ServerConfiguration.xml", None, ()),
    ("Fjord-DC 32", "F2.1", "Fjord-DC_32_ServerConfiguration.xml", None, (CLOCK,)),
    ("MW-Relay 30+", "M3", "MW-Relay_30__ServerConfiguration.xml", None, (FIELD,)),
    ("NetEdge 5", "N1", "Common_ServerConfiguration.xml", None, (FIELD,)),
    ("OLT-880", "A2.4", "OLT-880_ServerConfiguration.xml", FIXED_CHECKS, ()),
    ("Nubo Gauge 3", "Nubo Gauge 3", "Nubo_Gauge_3_ServerConfiguration.xml", None, ()),
)

# No file can set these: they are set by other components, or kept for the client.
NEVER_SET = {
    ("StAsnOperation", "bExtFlag"), ("StAsnOperation", "bIsSupported"), ("StAsnCheckType", "strExtInfo"),
    ("StAsnDCErrorCodeInfo", "ulErrorCode"), ("StAsnDCErrorCodeInfo", "strErrorInfo"),
    ("StAsnTaskConfigOperation", "strSelected"),
}


def dump(*names):
    return subprocess.run([OPXML, "--root", SERVER, "dump", *names], check=True, capture_output=True).stdout


def field_tables():
    """The fields of each record by the manual: name to (field, kind) in order."""
    tables = {}
    with open(os.path.join(SOURCE, "docs/opxml.md"), encoding="utf-8") as manual:
        for line in manual:
            if heading := re.match(r"#### `(StAsn\w+)`", line):
                fields = tables.setdefault(heading.group(1), [])
            elif tables and (row := re.match(r"\| `(\w+)` \| ([^|]+) \|", line)):
                fields.append((row.group(1), row.group(2).strip().replace("`", "")))
            elif line.startswith("## ") and tables:
                break
    return tables


class Dump(unittest.TestCase):
    maxDiff = 4000

    def test_configurations_hold_what_their_files_say(self):
        for key, version, file, check_file, modules in TYPES:
            with self.subTest(key):
                expected = expected_record(key, version, os.path.join(CONFIGURATIONS, file), check_file, modules)
                self.assertEqual(json.loads(dump(key))[key], [expected])

    def check_record(self, record, name, tables, seen):
        self.assertEqual(list(record), [field for field, _ in tables[name]], name)
        for field, kind in tables[name]:
            value = record[field]
            if value:
                seen.add((name, field))
            if kind.startswith("list of "):
                for element in value:
                    self.check_record(element, kind.removeprefix("list of "), tables, seen)
            elif kind in tables:
                self.check_record(value, kind, tables, seen)
            else:
                self.assertIs(type(value), {"text": str, "number": int, "flag": bool}[kind], f"{name}.{field}")

    def test_every_record_has_the_fields_of_the_manual(self):
        tables, seen = field_tables(), set()
        for records in json.loads(dump()).values():
            for record in records:
                self.check_record(record, "StAsnDevTypeVerXMLInfo", tables, seen)
        # The example server sets whatever can be set, so a reader that stopped reading a field shows here.
        self.assertEqual({(name, field) for name in tables for field, _ in tables[name]} - seen, NEVER_SET)

    def test_the_same_store_gives_the_same_bytes(self):
        first = dump()
        self.assertEqual(first, dump())
        self.assertEqual(list(json.loads(first)), sorted(json.loads(first), key=str.encode))

    def test_names_select(self):
        self.assertEqual(list(json.loads(dump("SW-100", "LX 2400/S"))), ["LX 2400/S", "LX 2400/S_telnet", "SW-100"])

    def test_texts_come_out_as_they_went_in(self):
        texts = ["\U0001F50C \U00020BB7", "\"quoted\" 'twice' \\ <&>", "a\nb\tc\r", "\x01\x1b[31m\x7f\x85",
                 "x" * (1 << 20) + "\u00f6", "abc\u6f22"]
        with tempfile.TemporaryDirectory() as root:
            with open(os.path.join(root, "server.sql"), "w", encoding="utf-8") as inventory:
                inventory.write("INSERT INTO device_type (name, version) VALUES ('A', 'V');"
                                "INSERT INTO config_file VALUES ('A', 'A.xml');")
            with open(os.path.join(root, "A.xml"), "w", encoding="utf-8") as file:
                operations = ("<Operation id='" + "".join(c if c.isalnum() else f"&#{ord(c)};" for c in text) + "'/>"
                              for text in texts)
                file.write(f"<?xml version='1.1'?><C><DeviceOperation>{''.join(operations)}</DeviceOperation></C>")
            done = subprocess.run([OPXML, "--root", root, "dump"], check=True, capture_output=True)
        found = json.loads(done.stdout)["A"][0]["stOperationConfig"]["lstDevOperation"]
        self.assertEqual([operation["strId"] for operation in found], texts)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
