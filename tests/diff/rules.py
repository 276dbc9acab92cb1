#!/usr/bin/env python3
# Every rule of opxml diff by a pair of small roots: the change falls under that rule and
# no other, the same backwards is its mirror, and a root does not differ from itself.
# docs/diff.md shows the table of rules as the tool has it.
#   rules.py [--update] OPXML PAGE
import os
import subprocess
import sys
import tempfile

import roots

OPERATION = '<DeviceOperation><Operation id="Save" {}>{}</Operation></DeviceOperation>'
PARAMETER = OPERATION.format("", '<Parameter id="To" {}>{}</Parameter>')
OPTION = PARAMETER.format("", '<Option id="Disk" {}/>')
BACKUP = '<DeviceOperation><Operation id="Backup"><Parameter id="ContentType">{}</Parameter></Operation></DeviceOperation>'
OTHER = '<OtherOperation id="SAM" isSupported="{}">{}</OtherOperation>'
CHECK = '<CheckOperations><Operation id="PreCheck">{}</Operation></CheckOperations>'
ITEM = '<Parameter id="Cpu" {}/>'
CUSTOM = '<CustomOperations><Operation id="Plan" {}>{}</Operation></CustomOperations>'
PATCH = '<PatchStateConfiguration><Patch type="HotPatch">{}</Patch></PatchStateConfiguration>'
MENU = '<DeviceViewPopupMenu>{}</DeviceViewPopupMenu>'
TASK = '<TaskType id="SoftwareUpgrade" {}><Operation>{}</Operation>{}</TaskType>'
FEATURE = '<TaskFeatureConfiguration><Configuration id="Timed" isSupported="{}"/></TaskFeatureConfiguration>'
STEP = '<TaskConfigOper id="Load" {}/>'
TWO_STEPS = '<TaskConfigOper id="Load"/>', '<TaskConfigOper id="Check"/>'
SAVE = OPERATION.format("", "")
ENTITY = '<!DOCTYPE C [<!ENTITY e "{}">]><C>' + PARAMETER.format('value="&e;"', "") + '</C>'
BROKEN = "<!-- never closed"
TELNET_CHECK = '<C><DeviceType name="T0"><TaskType id="{}"><PreCheck><Parameter id="Cpu"/></PreCheck></TaskType></DeviceType></C>'
CAPACITY = ("INSERT INTO device_type (name, version, type_id, version_id, config_file_type, sys_oid, support_upgrade,"
            " support_capacity, capacity_per_version) VALUES ('Q', 'V', 9, 1, 1, '1.2', 1, 1, 1);")
SERVICE = ("INSERT INTO version_in_service (device_type, device_type_version, soft_version) VALUES ('Q', 'V', '{0}');"
           "INSERT INTO capacity (device_type, device_type_version, soft_version) VALUES ('Q', 'V', '{0}');")
MODULE = '<C><DeviceType name="m"/><support><dev name="T0"/></support>' + SAVE


def side(*bodies, sql="", **files):
    return {"bodies": bodies, "sql": sql, "files": {roots.MODULE if name == "module" else roots.CONFIG + name + ".xml": text
                                                    for name, text in files.items()}}


# A capacity type with these versions in service, some of which deny the operation.
def capacity(*versions, denied=()):
    deny = '<Operation id="Save" isSupported="0"/>'
    documents = {f"Q_{version}_ServerConfiguration": f'<C><upgradecapacity sysoid="1.2">{deny * (version in denied)}</upgradecapacity></C>'
                 for version in versions}
    return side(sql=CAPACITY + "".join(SERVICE.format(version) for version in versions),
                Common_ServerConfiguration=f"<C>{SAVE}</C>", **documents)


# Rule, old, new, and the mirror's rule where it is another one.
ROWS = (
    ("type-lost", side(SAVE, SAVE), side(SAVE), "type-gained"),
    ("cannot-be-read", SAVE, BROKEN, "can-be-read"),
    ("cannot-be-read", side(SAVE, module=MODULE + "</C>"), side(SAVE, module=MODULE), "can-be-read"),
    ("version-lost", capacity("1", "2"), capacity("2"), "version-gained"),
    ("operation-lost", SAVE, "", "operation-gained"),
    ("operation-lost", capacity("1", "2"), capacity("1", "2", denied="2"), "operation-gained"),
    ("operation-lost", capacity("2", "1", denied="1"), capacity("1", "2", denied="1"), "operation-gained"), # the first version answers
    ("operation-lost", CUSTOM.format("", ""), "", "operation-gained"),
    ("parameter-lost", PARAMETER.format("", ""), SAVE, "parameter-gained"),
    ("required-parameter-gained", SAVE, PARAMETER.format('isRequired="1"', ""), "parameter-lost"),
    ("option-lost", OPTION.format('value="1"'), PARAMETER.format("", ""), "option-gained"),
    ("check-item-lost", CHECK.format(ITEM.format("")), CHECK.format(""), "check-item-gained"),
    ("step-lost", TASK.format("", STEP.format(""), ""), TASK.format("", "", ""), "step-gained"),
    ("feature-lost", TASK.format("", "", FEATURE.format(1)), TASK.format("", "", ""), "feature-gained"),
    ("offer-lost", MENU.format('<Item id="Save"/>'), "", "offer-gained"),
    ("offer-lost", PATCH.format('<State name="Idle"><Item id="Load"/></State>'), PATCH.format('<State name="Idle"/>'), "offer-gained"),
    ("patch-state-lost", PATCH.format('<State name="Idle"/>'), PATCH.format(""), "patch-state-gained"),
    ("task-type-lost", TASK.format("", "", ""), "", "task-type-gained"),
    ("twin-lost", MENU.format('<Item id="a"/><Item id="b"/><Item id="a"/>'), MENU.format('<Item id="a"/><Item id="b"/>'), "twin-gained"),
    ("unsupported-entry", OTHER.format(0, ""), "", None),
    ("unsupported-entry", OTHER.format(1, '<Parameter id="p" isRequired="0"/>'), OTHER.format(1, ""), None),
    ("cancel-lost", OPERATION.format('isCancelable="1"', ""), SAVE, "cancel-gained"),
    ("level-narrowed", OPERATION.format('operationLevel="Both"', ""), SAVE, "level-widened"),
    ("level-narrowed", OPERATION.format('operationLevel="BoardLevel"', ""), SAVE, None),
    ("support-lost", OTHER.format(1, ""), OTHER.format(0, ""), "support-gained"),
    ("support-lost", OTHER.format(1, '<Parameter id="p" isRequired="1"/>'), OTHER.format(1, '<Parameter id="p"/>'), "support-gained"),
    ("parameter-required", PARAMETER.format('isRequired="0"', ""), PARAMETER.format('isRequired="1"', ""), "parameter-optional"),
    ("value-changed", PARAMETER.format('value="1"', ""), PARAMETER.format('value="2"', ""), None),
    ("value-changed", ENTITY.format(1), ENTITY.format(2), None), # the section is written alike
    ("number-changed", OPTION.format('value="1"'), OPTION.format('value="2"'), None),
    ("number-reread", PARAMETER.format("", '<Option id="a" value="1"/><Option id="b" value="1"/>'),
     PARAMETER.format("", '<Option id="b" value="1"/><Option id="a" value="1"/>'), None),
    ("target-changed", OPTION.format('value="1" target="/a"'), OPTION.format('value="1" target="/b"'), None),
    ("command-changed", CHECK.format(ITEM.format('cmdKey="a"')), CHECK.format(ITEM.format('cmdKey="b"')), None),
    ("kind-changed", MENU.format('<Item id="Save" type="DeviceOperation"/>'), MENU.format('<Item id="Save" type="TaskOperation"/>'), None),
    ("task-of-check-changed", side("", sql=f"INSERT INTO check_file VALUES ('T0', '{roots.CONFIG}check.xml', 0);", check=TELNET_CHECK.format("PatchUpdate")),
     side("", sql=f"INSERT INTO check_file VALUES ('T0', '{roots.CONFIG}check.xml', 0);", check=TELNET_CHECK.format("SoftwareUpgrade")), None),
    ("comparison-changed", CHECK.format(ITEM.format('compareType="1"')), CHECK.format(ITEM.format('compareType="2"')), None),
    ("selection-changed", PARAMETER.format('selected="a"', ""), PARAMETER.format('selected="b"', ""), None),
    ("step-changed", TASK.format("", STEP.format('dependsOn="a"'), ""), TASK.format("", STEP.format('dependsOn="b"'), ""), None),
    ("availability-changed", CUSTOM.format('AvailableIn="Tab"', ""), CUSTOM.format("", ""), None),
    ("resource-changed", CUSTOM.format("", '<ResouceClass filename="a"/>'), CUSTOM.format("", '<ResouceClass filename="b"/>'), None),
    ("text-changed", CHECK.format(ITEM.format('description="a"')), CHECK.format(ITEM.format('description="b"')), None),
    ("look-changed", CUSTOM.format('shortcutkey="a"', ""), CUSTOM.format('shortcutkey="b"', ""), None),
    ("steps-moved", TASK.format("", "".join(TWO_STEPS), ""), TASK.format("", "".join(reversed(TWO_STEPS)), ""), None),
    ("options-moved", BACKUP.format('<Option id="a" value="1"/><Option id="b" value="2"/>'),
     BACKUP.format('<Option id="b" value="2"/><Option id="a" value="1"/>'), None),
    ("check-items-moved", CHECK.format('<Parameter id="a"/><Parameter id="b"/>'), CHECK.format('<Parameter id="b"/><Parameter id="a"/>'), None),
    ("shadowed-entry", SAVE + OPERATION.format('isCancelable="1"', ""), SAVE, None),
    # No change: another order where it is no answer, another file of the same meaning.
    (None, MENU.format('<Item id="a"/><Item id="b"/>'), MENU.format('<Item id="b"/><Item id="a"/>'), None),
    (None, SAVE, "<!-- moved -->\n\n" + OPERATION.format('isCancelable="0"', ""), None),
    (None, side(SAVE, module=MODULE + "</C>", sql="INSERT INTO setting VALUES ('x', '1');"), side(SAVE, module=MODULE + "<x/></C>"), None),
)
WITHOUT_ROW = {"field-changed"} # for fields that no rule names, and there are none today


def rules_of(answer):
    return {change["rule"] for change in answer["changes"]}


def check(opxml, rule, old, new, mirror):
    with tempfile.TemporaryDirectory() as scratch:
        paths = [os.path.join(scratch, name) for name in ("old", "new")]
        for path, content in zip(paths, (old, new)):
            roots.write_root(path, **(content if isinstance(content, dict) else side(content)))
        there, back = roots.diff(opxml, *paths), roots.diff(opxml, *reversed(paths))
        same = [roots.diff(opxml, path, path)["changes"] for path in paths]
    expected = [{name} if name else set() for name in (rule, mirror or rule)]
    problems = [f"{what}: {found}, not {wanted}" for what, found, wanted in
                (("there", rules_of(there), expected[0]), ("back", rules_of(back), expected[1])) if found != wanted]
    if roots.mirrored(roots.said(there)) != roots.said(back):
        problems.append(f"no mirror: {roots.said(there)} and {roots.said(back)}")
    return problems + ([] if same == [[], []] else ["differs from itself"])


def table(opxml, page, update):
    text = subprocess.run([opxml, "diff", "--rules", "--format", "markdown"], capture_output=True, check=True).stdout.decode()
    with open(page, encoding="utf-8") as file:
        written = file.read()
    head, mark, _ = written.partition("<!-- The rules, written by tests/diff/rules.py --update -->\n")
    if update:
        with open(page, "w", encoding="utf-8") as file:
            file.write(head + mark + "\n" + text)
    names = {line.split("`")[1] for line in text.splitlines()[2:]}
    covered = {name for row in ROWS for name in (row[0], row[3]) if name} | WITHOUT_ROW
    problems = [] if update or written == head + mark + "\n" + text else [f"{page} has another table"]
    return problems + [f"rules without a row: {names - covered}" for _ in range(names != covered)]


def main(arguments):
    update = arguments[:1] == ["--update"]
    opxml, page = arguments[1 if update else 0:]
    failed = table(os.path.abspath(opxml), page, update)
    for rule, *pair in ROWS:
        failed += [f"{rule}: {problem}" for problem in check(os.path.abspath(opxml), rule, *pair)]
    print("\n".join(failed))
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
