# What opxml dump must print for a server configuration file, worked out from the
# XML by the rules of docs/file-format.md and docs/check-files.md and without the library: a second opinion.
# The settings are those of the example server (program files and in-service upgrade
# are on).
import re
import xml.etree.ElementTree as ElementTree

LEVELS = ("DeviceLevel", "BoardLevel", "Both")
PLACES = ("PopupMenu", "Tab", "createTaskDialog", "modifyTaskDialog", "viewTaskDialog")
PATCHES = ("HotPatch", "ColdPatch")
KINDS = {"DeviceOperation": 0, "TaskOperation": 1, "PatchOperation": 2, "CheckOperation": 3, "CustomOperation": 4,
         "OtherOperation": 5}
ISOLATION_KINDS = {"DeviceOperation": 0, "TaskOperation": 1, "BoardOperation": 7}
UNKNOWN_KIND = 6
TASK_TYPES = {"SoftwareUpgrade": 0, "SoftwareDowngrade": 1, "PatchUpdate": 2, "SimulationPackageUpgrade": 3,
              "PackageUpgrade": 4, "PackageDowngrade": 13, "PackageDiffusion": 5, "PackageDiffusionDowngrade": 12,
              "OLTAgentUpgrade": 7, "OpticalModuleUpgrade": 15, "NuboMeterUpgrade": 16, "ConfTransferUpgradeTask": 17}
CHECK_TASK_TYPES = {**TASK_TYPES, "PackageDowngrade": 9, "PackageDiffusionDowngrade": 8, "OpticalModuleUpgrade": 14}


def text(element, name):
    return element.get(name, "")


def number(element, name):
    digits = re.match(r"\s*([+-]?\d+)", text(element, name))
    return int(digits.group(1)) & 0xFFFFFFFF if digits else 0


def flag(element, name):
    return number(element, name) != 0


def signed(value):
    return value - (1 << 32) if value >> 31 else value


def word(element, name, words):
    return words.index(text(element, name)) if text(element, name) in words else 0


def below(element, name):
    return [found for found in element.iter(name) if found is not element]


def options(parameter, target=True):
    return [{"strId": text(option, "id"), "ulValue": number(option, "value"),
             "strTarget": text(option, "target") if target else ""}
            for option in below(parameter, "Option") or below(parameter, "option")]


def parameters(operation, value=True, selected=True, target=True):
    return [{"strId": text(parameter, "id"), "strValue": text(parameter, "value") if value else "",
             "bIsRequired": flag(parameter, "isRequired"),
             "strSelected": text(parameter, "selected") if selected else "",
             "lstOption": options(parameter, target)}
            for parameter in below(operation, "Parameter")]


def operations(root, section, cancelable=True):
    return [{"strId": text(operation, "id"), "bIsCancelable": cancelable and flag(operation, "isCancelable"),
             "enOperationLevel": word(operation, "operationLevel", LEVELS), "lstParam": parameters(operation),
             "bExtFlag": False, "bIsSupported": False}
            for part in root.iter(section) for operation in below(part, "Operation")]


def patch_states(root):
    return [{"enPatchType": word(patch, "type", PATCHES),
             "lstPatchState": [{"strName": text(state, "name"),
                                "lstPatchItem": [{"strId": text(item, "id"),
                                                  "enType": KINDS.get(text(item, "type"), UNKNOWN_KIND)}
                                                 for item in below(state, "Item")]}
                               for state in below(patch, "State")]}
            for part in root.iter("PatchStateConfiguration") for patch in below(part, "Patch")]


def selected(item, telnet):
    if telnet and text(item, "checked") in ("true", "false"):
        return text(item, "checked") == "true"
    return flag(item, "selected")


def check_items(element, name, telnet=False):
    return [{"strId": text(item, "id"), "strDescription": text(item, "description"),
             "strCmdKey": text(item, "cmdKey"), "strSubItemFrom": text(item, "subItemFrom"),
             "nCompareType": signed(number(item, "compareType")), "strCompareParam": text(item, "compareParam"),
             "bSelected": selected(item, telnet), "bIsCompare": flag(item, "isCompare"), "ulIndex": index,
             "lstSubItem": check_items(item, "SubItem", telnet), "strExtInfo": ""}
            for index, item in enumerate(below(element, name))
            if text(item, "integated") in ("", "1") and not (telnet and text(item, "GUI") == "false")]


def check_operation(operation, name, task_type=-1, telnet=False):
    return {"strId": name, "enOperationLevel": word(operation, "operationLevel", LEVELS), "nTaskType": task_type,
            "lstCheckType": check_items(operation, "Parameter", telnet),
            "bIsCancelable": flag(operation, "isCancelable")}


def check_operations(root):
    return [check_operation(operation, text(operation, "id"))
            for part in root.iter("CheckOperations") for operation in below(part, "Operation")]


def check_file(root):
    """The operations of a telnet check file, or of a fixed one, whose items have no attribute to tell it by."""
    found = []
    for part in root.iter("DeviceType"):
        for task in below(part, "TaskType"):
            task_type = CHECK_TASK_TYPES.get(text(task, "id"), -1)
            found += [check_operation(check, name, task_type, telnet=True)
                      for name in ("PreCheck", "PostCheck") for check in below(task, name)]
            found += [check_operation(check, text(check, "id"), task_type) for check in below(task, "Operation")]
    return found


def custom_operations(root):
    return [{"strId": text(operation, "id"),
             "strResourceClass": ([""] + [text(file, "filename") for file in below(operation, "ResouceClass")])[-1],
             "strShortcutKey": text(operation, "shortcutkey"),
             "enOperationLevel": word(operation, "operationLevel", LEVELS),
             "enAvailableIn": word(operation, "AvailableIn", PLACES)}
            for part in root.iter("CustomOperations") for operation in below(part, "Operation")]


def other_operations(root):
    return [{"strId": text(operation, "id"), "bIsSupported": flag(operation, "isSupported"),
             "lstParam": parameters(operation, selected=False, target=False)}
            for operation in root.iter("OtherOperation")]


def upgrade_operations(root):
    return [{"strId": text(operation, "id"), "enOperationLevel": word(operation, "operationLevel", LEVELS),
             "lstSubOperation": [{"strId": text(sub, "id"), "enOperationLevel": word(sub, "operationLevel", LEVELS),
                                  "lstParameter": parameters(sub, value=False, selected=False, target=False)}
                                 for sub in below(operation, "SubOperation")]}
            for part in root.iter("UpgradeOperation") for operation in below(part, "Operation")]


def menu(parts, kinds):
    return [{"enType": kinds.get(text(item, "type"), UNKNOWN_KIND), "strId": text(item, "id")}
            for part in parts for item in below(part, "Item")]


def patch_menus(root):
    return [{"enPatchType": word(patch, "type", PATCHES), "lstMenuOp": menu([patch], KINDS)}
            for part in root.iter("PatchViewPopupMenu") for patch in below(part, "Patch")]


def steps(element):
    return [{"enType": KINDS.get(text(step, "type"), UNKNOWN_KIND), "strId": text(step, "id"),
             "strDependsOn": text(step, "dependsOn"), "strOperDescription": text(step, "operDescription"),
             "strIsSelect": text(step, "isSelect"), "strIsPauseBeforeOP": text(step, "isPauseBeforeOP")}
            for step in below(element, "TaskConfigOper")]


def features(task):
    return [{"strId": text(feature, "id"), "bIsSupported": flag(feature, "isSupported"), "lstParam": []}
            for part in below(task, "TaskFeatureConfiguration") for feature in below(part, "Configuration")]


def task_contents(task):
    if below(task, "Parameter"):
        return [{"strId": text(parameter, "id"), "strValue": text(parameter, "value"),
                 "bIsRequired": flag(parameter, "isRequired"), "strSelected": "", "lstOption": options(parameter),
                 "lstTaskOperationDef": steps(parameter), "lstOtherOperationDef": []}
                for parameter in below(task, "Parameter")]
    places = below(task, "Operation") or [task]
    return [{"strId": "", "strValue": "", "bIsRequired": False, "strSelected": "", "lstOption": [],
             "lstTaskOperationDef": [step for place in places for step in steps(place)],
             "lstOtherOperationDef": features(task)}]


def tasks(root):
    return [{"enTaskType": TASK_TYPES[text(task, "id")], "strGUITemplete": text(task, "GUITemplete"),
             "lstTaskConfigOperation": task_contents(task)}
            for task in root.iter("TaskType") if text(task, "id") in TASK_TYPES]


def expected_record(key, version, path, check_path=None, module_paths=()):
    """The record of a type that is served by these files, with the modules that name it, in their order."""
    root = ElementTree.parse(path).getroot()
    checks = check_file(ElementTree.parse(check_path).getroot()) if check_path else check_operations(root)
    record = {
        "strDevType": key, "strDevTypeVer": version, "lstDevVersion": [],
        "stOperationConfig": {
            "lstDevOperation": operations(root, "DeviceOperation"),
            "lstTaskOperation": operations(root, "TaskOperation"),
            "lstPatchOperation": operations(root, "PatchOperation", cancelable=False),
            "lstPatchDef": patch_states(root), "lstCheckOperation": checks,
            "lstCustomOperation": custom_operations(root), "lstOtherOperation": other_operations(root),
            "lstUpgradeOperation": upgrade_operations(root)},
        "stViewConfig": {
            "lstDevViewPopupMenu": menu(root.iter("DeviceViewPopupMenu"), KINDS),
            "lstPatchTypeMenu": patch_menus(root), "lstDevViewTab": menu(root.iter("DeviceViewTab"), KINDS),
            "lstIsolationViewPopupMenu": menu(root.iter("DeviceViewPopupMenu"), ISOLATION_KINDS)},
        "stDCErrorCodeInfo": {"ulErrorCode": 0, "strErrorInfo": ""},
        "lstTaskConfigInfoOperation": tasks(root)}
    for module_path in module_paths:
        module = expected_record("", "", module_path)
        for name, records in record["stOperationConfig"].items():
            records += module["stOperationConfig"][name]
        record["lstTaskConfigInfoOperation"] += module["lstTaskConfigInfoOperation"]
    return record
