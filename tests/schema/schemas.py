#!/usr/bin/env python3
# Holds the schemas against the files that they describe: the example server is valid
# but for its deliberate mistakes, and one edit more in it is refused where it was made,
# or allowed. Validates with xmllint.
#   schemas.py XMLLINT SOURCE-FOLDER
import glob
import os
import re
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree

from model import XS

XMLLINT, SOURCE = sys.argv[1:3]
SCHEMAS = os.path.join(SOURCE, "schema")
SERVER = os.path.join(SOURCE, "examples/server")
CONFIGURATIONS = os.path.join(SERVER, "common/dc/conf/dc/devtype_xmlconf")

# Kind of file, which is the name of its schema, to the example files of that kind.
FILES = {
    "server-configuration": [file for file in glob.glob(f"{CONFIGURATIONS}/*.xml") if "Quill_C4" not in file],
    "capacity": glob.glob(f"{CONFIGURATIONS}/Quill_C4*.xml"),
    "module": glob.glob(f"{SERVER}/etc/**/*ServerConfiguration.[xX][mM][lL]", recursive=True),
    "telnet-check": glob.glob(f"{SERVER}/common/dc/conf/dc/check/*.xml"),
    "fixed-check": glob.glob(f"{SERVER}/xml/access_snmp/fixedcheck/*.xml"),
    "alarm-explanations": glob.glob(f"{SERVER}/pub/i18n/*/kivo/fm/dc_tbl_alm_exp_info.xml"),
    "transfer-registrations": glob.glob(f"{SERVER}/pub/i18n/*/kivo/fm/dc_tbl_RegInfo.xml"),
    "file-check": [f"{SERVER}/file_check.xml"],
}

# The deliberate mistakes that a schema can see: end of the path, line, a part of what is said.
DELIBERATE = (
    ("/RX_300_ServerConfiguration.xml", 80, "AttValue: ' expected"),
    ("/LX_2400_S_telnet_ServerConfiguration.xml", 15, "Element 'option': This element is not expected"),
    ("/Nubo_Gauge_3_ServerConfiguration.xml", 53, "The value 'MeterReading' is not an element of the set"),
    ("/legacy/loader/ServerConfiguration.xml", 11, "tag mismatch"),
)

# Edits of an example file: kind, end of the path, what is replaced where it stands first,
# by what, and a part of what is said; None where the edited file is as valid.
CONFIG = ("server-configuration", "/LX_2400_S_ServerConfiguration.xml")
MODULE = ("module", "clock_sync/ServerConfiguration.xml")
CAPACITY = ("capacity", "_V4.2_ServerConfiguration.xml")
TELNET, FIXED, RULES = ("telnet-check", ".xml"), ("fixed-check", ".xml"), ("file-check", ".xml")
ALARMS = ("alarm-explanations", "en_US/kivo/fm/dc_tbl_alm_exp_info.xml")
TRANSFER = ("transfer-registrations", "en_US/kivo/fm/dc_tbl_RegInfo.xml")
UNEXPECTED, NOT_ALLOWED, MISSING = "This element is not expected", "is not allowed", "is required but missing"
EDITS = (
    # Names of elements.
    (*CONFIG, "<DeviceViewTab>", "<DeviceViewTabs/><DeviceViewTab>", UNEXPECTED),
    (*CONFIG, '<Parameter id="PatchFile"', '<Paramter id="PatchFile"', UNEXPECTED),
    (*CONFIG, "<ResouceClass", "<ResourceClass", UNEXPECTED),
    (*CONFIG, '<Option id="LOG"', '<option id="LOG"', UNEXPECTED),
    (*CONFIG, '<Item type="CustomOperation"', '<item type="CustomOperation"', UNEXPECTED),
    (*CONFIG, '<Configuration id="TimedActivation"', '<Feature id="TimedActivation"', UNEXPECTED),
    (*MODULE, '<DeviceType name="ClockSync"/>', '<Devicetype name="ClockSync"/>', UNEXPECTED),
    (*MODULE, "<dev ", "<device ", UNEXPECTED),
    (*CAPACITY, '<Operation id="LoadData"', '<operation id="LoadData"', UNEXPECTED),
    (*TELNET, "<SubItem", "<Subitem", UNEXPECTED),
    (*RULES, "<max_size", "<maxsize", UNEXPECTED),
    # Elements in the wrong place.
    (*CONFIG, "<TaskOperation>", "<TaskOperation><DeviceOperation/>", UNEXPECTED),
    (*CONFIG, '<Operation id="Commit" operationLevel="DeviceLevel" isCancelable="0"/>', '<Operation id="Commit"><Option id="Now" value="1"/></Operation>', UNEXPECTED),
    (*CONFIG, '<Option id="HotPatch" value="0"/>', "<TaskFeatureConfiguration/>", UNEXPECTED),
    (*CONFIG, "<TaskFeatureConfiguration>", '<Parameter id="Late"/><TaskFeatureConfiguration>', UNEXPECTED),
    (*CONFIG, "<ServerConfiguration>", '<ServerConfiguration><DeviceType name="X"/>', UNEXPECTED),
    (*MODULE, "<support>", '<DeviceType name="Second"/><support>', UNEXPECTED),
    (*MODULE, '<DeviceType name="ClockSync"/>', "", "Missing child element"),
    (*FIXED, ' selected="1"/>', '><SubItem id="Part"/></Parameter>', "content type is empty"),
    (*RULES, '<max_size value="4GB"/>', '<max_size value="4GB"/><max_size value="5GB"/>', UNEXPECTED),
    (*CONFIG, "<DeviceOperation>", "<DeviceOperation>Backup", "Character content"),
    # Names of attributes.
    (*CONFIG, 'isCancelable="1"', 'isCanceleable="1"', NOT_ALLOWED),
    (*CONFIG, 'AvailableIn="Tab"', 'availableIn="Tab"', NOT_ALLOWED),
    (*CONFIG, 'GUITemplete="upgrade', 'GUITemplate="upgrade', NOT_ALLOWED),
    (*CONFIG, 'integated="1"', 'integrated="1"', NOT_ALLOWED),
    (*CONFIG, '<Operation id="LoadPatch"', '<Operation isCancelable="1" id="LoadPatch"', NOT_ALLOWED),
    (*CONFIG, '<OtherOperation id="TrapBackupPolicy" isSupported="1"/>', '<OtherOperation id="T"><Parameter id="P" selected="S"/></OtherOperation>', NOT_ALLOWED),
    (*CAPACITY, 'isRequired="1"', 'isRequired="1" required="1"', NOT_ALLOWED),
    (*FIXED, 'selected="1"', 'checked="true"', NOT_ALLOWED),
    (*RULES, '<max_count value="500"/>', '<max_count value="500" unit="1"/>', NOT_ALLOWED),
    # What an entry is useless without, or does harm without.
    (*CONFIG, '<Operation id="Restart" ', "<Operation ", MISSING),
    (*CONFIG, 'Item type="PatchOperation" id="LoadPatch"', 'Item id="LoadPatch"', MISSING),
    (*CONFIG, '<Option id="LOG" value="2"', '<Option id="LOG"', MISSING),
    (*CAPACITY, '<Operation id="LoadData" isSupported="0"/>', '<Operation id="LoadData"/>', MISSING),
    (*CAPACITY, 'sysoid="1.3.6.1.4.1.32473.4.6"', "", MISSING),
    (*TRANSFER, ' name="DevType"', "", MISSING),
    (*RULES, '<file_suffix value=".zip"/>', "<file_suffix/>", MISSING),
    (*RULES, '<file_suffix value=".zip"/>', '<file_suffix value=""/>', "minLength"),
    (*RULES, '<uncompressed_type value="script">', '<uncompressed_type value="">', "pattern"),
    (*CONFIG, '<Operation id="Restart"', '<Operation id=""', "pattern"),
    (*CONFIG, '<Operation id="Restart"', '<Operation id="Restart "', "pattern"),
    # Words.
    (*CONFIG, 'operationLevel="Both"', 'operationLevel="both"', "enumeration"),
    (*CONFIG, 'operationLevel="Both"', 'operationLevel="Both "', "enumeration"),
    (*CONFIG, 'AvailableIn="Tab"', 'AvailableIn="tab"', "enumeration"),
    (*CONFIG, '<Patch type="ColdPatch"', '<Patch type="Coldpatch"', "enumeration"),
    (*CONFIG, 'TaskConfigOper type="CheckOperation"', 'TaskConfigOper type="CheckOperations"', "enumeration"),
    (*CONFIG, 'TaskConfigOper type="CheckOperation"', 'TaskConfigOper type="BoardOperation"', "enumeration"),
    (*CONFIG, 'Item type="BoardOperation"', 'Item type="BoardOperations"', "union"),
    (*MODULE, '<Item type="', '<Item type="Board', "enumeration"),
    (*CONFIG, 'TaskType id="PatchUpdate"', 'TaskType id="PatchUpgrade"', "enumeration"),
    (*TELNET, 'TaskType id="PatchUpdate"', 'TaskType id="patchUpdate"', "enumeration"),
    (*TELNET, 'checked="false"', 'checked="0"', "enumeration"),
    (*TELNET, 'GUI="false"', 'GUI="no"', "enumeration"),
    (*CONFIG, 'integated="0"', 'integated="false"', "enumeration"),
    (*ALARMS, 'name="Explain"', 'name="Explanation"', "enumeration"),
    (*TRANSFER, 'name="FaultIDList"', 'name="FaultIdList"', "enumeration"),
    # Flags and numbers.
    (*CONFIG, 'isCancelable="1"', 'isCancelable="true"', "union"),
    (*CONFIG, 'isCancelable="1"', 'isCancelable=""', "union"),
    (*CONFIG, 'isRequired="1"', 'isRequired="1;"', "union"),
    (*CONFIG, 'isCancelable="1"', 'isCancelable="4294967296"', "union"),
    (*CAPACITY, 'isSupported="1"', 'isSupported="yes"', "union"),
    (*CONFIG, 'id="LOG" value="2"', 'id="LOG" value="2x"', "'number'"),
    (*CONFIG, 'id="LOG" value="2"', 'id="LOG" value="0x2"', "'number'"),
    (*CONFIG, 'id="LOG" value="2"', 'id="LOG" value="4294967296"', "'number'"),
    (*CONFIG, 'id="LOG" value="2"', 'id="LOG" value="-2"', "'number'"),
    (*CONFIG, 'compareType="3"', 'compareType="3.5"', "'signedNumber'"),
    (*CONFIG, 'compareType="3"', 'compareType="2147483648"', "'signedNumber'"),
    # What looks odd and is right.
    (*CONFIG, 'isCancelable="1"', 'isCancelable="7"', None),
    (*CONFIG, 'id="LOG" value="2"', 'id="LOG" value="4294967295"', None),
    (*CONFIG, 'compareType="3"', 'compareType="-1"', None),
    (*CONFIG, 'selected="SFTP"', 'selected=""', None),
    (*CONFIG, 'isSelect="true"', 'isSelect="perhaps"', None),
    (*CONFIG, '<Option id="HotPatch" value="0"/>', '<TaskConfigOper type="PatchOperation" id="LoadPatch"/>', None),
    (*CONFIG, "<TaskConfiguration>", '<DeviceOperation/><TaskType id="NuboMeterUpgrade"/><TaskConfiguration>', None),
    (*CONFIG, '<TaskType id="SoftwareUpgrade" GUITemplete="upgrade_wizard.xml">', '<TaskType id="SoftwareUpgrade"><TaskFeatureConfiguration/><Operation/>', None),
    (*MODULE, '<DeviceType name="ClockSync"/>', '<DeviceOperation/><support/><DeviceType name="ClockSync"/>', None),
    (*TELNET, "<PreCheck ", "<PostCheck/><PreCheck ", None),
    (*RULES, '<max_size value="4GB"/>', "", None),
)


def xmllint(schema, files, **environment):
    """What is wrong with the files: (path, line, text) for each mistake; the first one of what is no XML."""
    done = subprocess.run([XMLLINT, "--noout", "--schema", schema, *files], capture_output=True, text=True,
                          env={**os.environ, **environment}, check=False)
    if done.returncode not in (0, 1, 3):  # valid, no XML, not valid
        raise AssertionError(done.stderr)  # the schema cannot be used
    found, broken = [], set()
    for line in done.stderr.splitlines():
        if (match := re.match(r"(.+?):(\d+): (.*)", line)) and match[1] not in broken:
            found.append((match[1], int(match[2]), match[3]))
            if "parser error" in line:
                broken.add(match[1])
    return found


def example(kind, ending):
    return next(file for file in FILES[kind] if file.endswith(ending))


class Schemas(unittest.TestCase):
    maxDiff = None

    def test_the_example_server_is_valid_but_for_its_deliberate_mistakes(self):
        found = []
        for kind, files in FILES.items():
            self.assertTrue(files, kind)
            found += xmllint(f"{SCHEMAS}/{kind}.xsd", files)
        for path, line, text in found:
            with self.subTest(path, line=line, text=text):
                self.assertTrue(any(path.endswith(end) and line == at and part in text for end, at, part in DELIBERATE))
        self.assertEqual(len(found), len(DELIBERATE))

    def test_a_file_of_another_kind_is_refused(self):
        for kind, files in FILES.items():
            for other in FILES:
                if other != kind:
                    with self.subTest(kind, other=other):
                        refused = {path for path, _, _ in xmllint(f"{SCHEMAS}/{other}.xsd", files)}
                        self.assertEqual(refused, set(files))

    def test_an_edit_is_refused_where_it_was_made(self):
        with tempfile.TemporaryDirectory() as folder:
            edited = {}  # file: row and line of the edit
            for number, row in enumerate(EDITS):
                kind, ending, old, new, _ = row
                with open(example(kind, ending), encoding="utf-8") as file:
                    before, found, after = file.read().partition(old)
                self.assertTrue(found, row)
                path = os.path.join(folder, f"{number:03}.xml")
                with open(path, "w", encoding="utf-8") as file:
                    file.write(before + new + after)
                edited.setdefault(kind, {})[path] = (row, before.count("\n") + 1)
            for kind, files in edited.items():
                said = {path: [] for path in files}
                for path, line, text in xmllint(f"{SCHEMAS}/{kind}.xsd", files):
                    said[path].append((line, text))
                for path, (row, line) in files.items():
                    with self.subTest(row):
                        self.check(row[-1], line, said[path])

    def check(self, expected, line, said):
        if expected is None:
            return self.assertEqual(said, [])
        self.assertTrue(said, "nothing is said")
        return self.assertTrue(abs(said[0][0] - line) <= 1 and any(expected in text for _, text in said), (line, said))

    def test_every_name_and_word_has_a_note(self):
        for path in glob.glob(f"{SCHEMAS}/*.xsd"):
            for node in ElementTree.parse(path).iter():
                if node.tag in (XS + "element", XS + "attribute", XS + "enumeration"):
                    with self.subTest(os.path.basename(path), name=node.get("name") or node.get("value")):
                        note = node.find(f"{XS}annotation/{XS}documentation")
                        self.assertRegex("" if note is None else note.text, r"(?s)^\S.*\.$")

    def test_a_schema_is_found_by_its_name_in_the_catalog(self):
        for kind, files in FILES.items():
            with self.subTest(kind):
                catalog = f"{SCHEMAS}/catalog.xml"
                self.assertEqual(xmllint(f"urn:operationXml:schema:{kind}", files, XML_CATALOG_FILES=catalog),
                                 xmllint(f"{SCHEMAS}/{kind}.xsd", files))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
