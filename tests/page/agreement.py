# What the matrix must show, from the records that opxml query answers with: a second
# way from the files to the cells, that shares nothing with the page.
import re

from configuration import TASK_TYPES  # tests/cli

LEVELS = {0: "device level", 1: "board level", 2: "device and board level"}
PATCH_TYPES = {0: "HotPatch", 1: "ColdPatch"}
TASK_TYPE_NAMES = {number: name for name, number in TASK_TYPES.items()}

OPERATIONS = {
    "device": "lstDevOperation", "task": "lstTaskOperation", "patch": "lstPatchOperation", "check": "lstCheckOperation",
    "custom": "lstCustomOperation", "other": "lstOtherOperation", "upgrade": "lstUpgradeOperation",
}
MENUS = {"menu": "lstDevViewPopupMenu", "tab": "lstDevViewTab", "isolation-menu": "lstIsolationViewPopupMenu"}


def operation_words(record):
    if record.get("bIsSupported") is False and "lstParam" in record and "enOperationLevel" not in record:
        return {"listed as not supported"}
    words = {"offered"}
    if "enOperationLevel" in record:
        words.add(LEVELS[record["enOperationLevel"]])
    if record.get("bIsCancelable"):
        words.add("cancelable")
    return words


# Kind and name of everything that a configuration offers, with what the cell says.
def offered(record):
    operations, view = record["stOperationConfig"], record["stViewConfig"]
    cells = {}
    for kind, field in OPERATIONS.items():
        for operation in operations[field]:
            cells.setdefault((kind, operation["strId"]), operation_words(operation))
    for kind, field in MENUS.items():
        for item in view[field]:
            cells.setdefault((kind, item["strId"]), {"offered"})
    for menu in view["lstPatchTypeMenu"]:
        for item in menu["lstMenuOp"]:
            cells.setdefault(("patch-menu", f"{PATCH_TYPES[menu['enPatchType']]}: {item['strId']}"), {"offered"})
    for patch in operations["lstPatchDef"]:
        for state in patch["lstPatchState"]:
            cells.setdefault(("patch-state", f"{PATCH_TYPES[patch['enPatchType']]}: {state['strName']}"), {"offered"})
    for task in record["lstTaskConfigInfoOperation"]:
        cells.setdefault(("task-type", TASK_TYPE_NAMES[task["enTaskType"]]), {"offered"})
    return cells


# What a cell says, without what the records do not tell: whose module it is, and what
# a capacity document took out.
def said(label):
    words = set(label.split(", "))
    if "offered by a module" in words:
        words = words - {"offered by a module"} | {"offered"}
    return words - {"partly cut by capacity"}


# The lines of opxml show for each configuration, without the branches.
def show_lines(output):
    configurations = []
    for line in output.splitlines():
        text = re.sub(r"^[│├└─ ]+", "", line)
        if text == line:
            configurations.append([])
        elif not re.match(r"for version ", text):
            text = re.sub(r"  \[module [^\]]*\].*", "", text)
            configurations[-1].append(text)
    return configurations
