// What an entry of a detail says, in the words of opxml show: the same line, which the
// page's test holds against it. An entry has the fields of its record by their names.

const says = (word, text) => (text ? `, ${word}: ${text}` : "");
const flag = (value, words) => (value === 1 ? words : "");
const level = (it, more = "") => ` (${it.enOperationLevel}${more})`;
const kind = (it) => it.enType || "unknown kind";

const parameter = (it) =>
  says("value", it.strValue) + flag(it.bIsRequired, ", required") + says("selected", it.strSelected);

function comparison(it) {
  if (it.nCompareType === 0 && it.strCompareParam === "") return "";
  return `, compare type ${it.nCompareType}${says("with", it.strCompareParam)}`;
}

// Behind the name; records that are not here say no more.
const REST = {
  StAsnOperation: (it) => level(it, flag(it.bIsCancelable, ", cancelable")),
  StAsnOperParamDef: parameter,
  StAsnOptionInfo: (it) => ` = ${it.ulValue}${says("target", it.strTarget)}`,
  StAsnCheckOperationDef: (it) =>
    level(it, flag(it.bIsCancelable, ", cancelable") + (it.nTaskType && `, for ${it.nTaskType}`)),
  StAsnCheckType: (it) =>
    says("description", it.strDescription) +
    says("command", it.strCmdKey) +
    says("sub items from", it.strSubItemFrom) +
    flag(it.bSelected, ", selected") +
    flag(it.bIsCompare, ", compared") +
    comparison(it),
  StAsnCustomOperationDef: (it) =>
    level(it, `, in ${it.enAvailableIn}${says("resource", it.strResourceClass)}${says("shortcut", it.strShortcutKey)}`),
  StAsnOtherOperationDef: (it) => (it.bIsSupported === 1 ? " (supported)" : " (not supported)"),
  StAsnUpgradeOperationDef: (it) => level(it),
  StAsnUpgradeSubOperationDef: (it) => level(it),
  StAsnPatchItem: (it) => ` (${kind(it)})`,
  StAsnMenuOpDef: (it) => ` (${kind(it)})`,
  StAsnTaskConfigInfoOperation: (it) => says("template", it.strGUITemplete),
  StAsnTaskConfigOperation: (it) => (it.strId === "" ? "" : parameter(it)),
  StAsnTaskOperationDef: (it) =>
    ` (${kind(it)}${says("depends on", it.strDependsOn)}${says("description", it.strOperDescription)}` +
    `${says("selected", it.strIsSelect)}${says("pause before", it.strIsPauseBeforeOP)})`,
};

// What tells an entry from its siblings, where that is not its id alone.
const NAMES = {
  StAsnOperParamDef: (id) => `parameter ${id}`,
  StAsnCheckType: (id, it) => (it.ulIndex === undefined ? id : `${it.ulIndex}. ${id}`),
  StAsnOtherOperationDef: (id, it, isInside) => (isInside ? `feature ${id}` : id),
  StAsnPatchStateDef: (id) => `state ${id}`,
  StAsnTaskConfigOperation: (id) => (id === "" ? "steps and features" : `parameter ${id}`),
  StAsnTaskOperationDef: (id) => `step ${id}`,
};

// Name and rest of the line of an entry; isInside: it stands in another one. What was
// taken out has its id alone.
export function wordsOfEntry(record, it, isInside) {
  const id = it.strId ?? it.strName ?? it.enTaskType ?? it.enPatchType;
  const isThere = Object.keys(it).length > 1;
  return {
    name: NAMES[record]?.(id, it, isInside) ?? id,
    rest: (isThere && REST[record]?.(it)) || "",
  };
}
