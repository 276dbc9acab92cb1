// See EntryKinds.h.
#include "tools/opxml/catalog/EntryKinds.h"

#include "tools/opxml/output/Sections.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string_view>

namespace
{
// clang-format off
const std::vector<StEntryKind> ENTRY_KINDS = {
    {EnEntryKind::DeviceOperation,  EnEntryRole::Operation, "device", "device operation", "device operations", "StAsnOperation", "lstDevOperation"},
    {EnEntryKind::TaskOperation,    EnEntryRole::Operation, "task", "task operation", "task operations", "StAsnOperation", "lstTaskOperation"},
    {EnEntryKind::PatchOperation,   EnEntryRole::Operation, "patch", "patch operation", "patch operations", "StAsnOperation", "lstPatchOperation"},
    {EnEntryKind::CheckOperation,   EnEntryRole::Operation, "check", "check operation", "check operations", "StAsnCheckOperationDef", "lstCheckOperation"},
    {EnEntryKind::CustomOperation,  EnEntryRole::Operation, "custom", "custom operation", "custom operations", "StAsnCustomOperationDef", "lstCustomOperation"},
    {EnEntryKind::OtherOperation,   EnEntryRole::Operation, "other", "other operation", "other operations", "StAsnOtherOperationDef", "lstOtherOperation"},
    {EnEntryKind::UpgradeOperation, EnEntryRole::Operation, "upgrade", "upgrade operation", "upgrade operations", "StAsnUpgradeOperationDef", "lstUpgradeOperation"},
    {EnEntryKind::UpgradeStep,      EnEntryRole::Part,      "upgrade-step", "step of an upgrade", "steps of upgrades", "StAsnUpgradeSubOperationDef", "lstUpgradeOperation"},
    {EnEntryKind::Parameter,        EnEntryRole::Part,      "parameter", "parameter", "parameters", "StAsnOperParamDef", nullptr},
    {EnEntryKind::Option,           EnEntryRole::Part,      "option", "option", "options", "StAsnOptionInfo", nullptr},
    {EnEntryKind::CheckItem,        EnEntryRole::Part,      "check-item", "check item", "check items", "StAsnCheckType", "lstCheckOperation"},
    {EnEntryKind::Menu,             EnEntryRole::Reference, "menu", "menu entry", "menu entries", "StAsnMenuOpDef", "lstDevViewPopupMenu"},
    {EnEntryKind::Tab,              EnEntryRole::Reference, "tab", "tab", "tabs", "StAsnMenuOpDef", "lstDevViewTab"},
    {EnEntryKind::PatchMenu,        EnEntryRole::Reference, "patch-menu", "patch menu entry", "patch menu entries", "StAsnMenuOpDef", "lstPatchTypeMenu"},
    {EnEntryKind::IsolationMenu,    EnEntryRole::Reference, "isolation-menu", "isolation menu entry", "isolation menu entries", "StAsnMenuOpDef", "lstIsolationViewPopupMenu"},
    {EnEntryKind::PatchType,        EnEntryRole::Group,     "patch-type", "patch type", "patch types", "StAsnPatchDef", "lstPatchDef"},
    {EnEntryKind::PatchState,       EnEntryRole::Group,     "patch-state", "patch state", "patch states", "StAsnPatchStateDef", "lstPatchDef"},
    {EnEntryKind::PatchStateItem,   EnEntryRole::Reference, "patch-state-item", "operation in a patch state", "operations in patch states", "StAsnPatchItem", "lstPatchDef"},
    {EnEntryKind::TaskType,         EnEntryRole::Group,     "task-type", "task type", "task types", "StAsnTaskConfigInfoOperation", "lstTaskConfigInfoOperation"},
    {EnEntryKind::TaskStep,         EnEntryRole::Reference, "task-step", "step of a task", "steps of tasks", "StAsnTaskOperationDef", "lstTaskConfigInfoOperation"},
    {EnEntryKind::TaskFeature,      EnEntryRole::Part,      "task-feature", "feature of a task", "features of tasks", "StAsnOtherOperationDef", "lstTaskConfigInfoOperation"},
};
// clang-format on

// Records that are of a kind beside the one that the table names.
struct StOtherRecord
{
    const char* pszRecord;
    EnEntryKind enKind;
};
constexpr StOtherRecord OTHER_RECORDS[] = {
    {"StAsnTaskConfigOperation", EnEntryKind::Parameter},
    {"StAsnPatchTypeMenuDef", EnEntryKind::PatchType},
};

// The kinds of each section, so that a walk looks at few.
using KindsOfRow = std::array<std::vector<const StEntryKind*>, SECTION_COUNT>;

KindsOfRow kindsOfRow()
{
    KindsOfRow arKind;
    for (std::size_t nRow = 0; nRow < SECTION_COUNT; ++nRow)
    {
        const std::string_view strSection = SECTION_TITLES[nRow].pszField;
        for (const StEntryKind& stKind : ENTRY_KINDS)
        {
            if (stKind.pszSection == nullptr || stKind.pszSection == strSection)
                arKind[nRow].push_back(&stKind);
        }
    }
    return arKind;
}
} // namespace

const std::vector<StEntryKind>& entryKinds()
{
    return ENTRY_KINDS;
}

const StEntryKind& kindOf(EnEntryKind enKind)
{
    return ENTRY_KINDS.at(static_cast<std::size_t>(enKind));
}

const StEntryKind& kindOf(std::size_t nRow, const catalog::StEntry& stEntry)
{
    static const KindsOfRow s_arKind  = kindsOfRow();
    const std::string_view  strRecord = stEntry.pszRecord;
    for (const StEntryKind* pKind : s_arKind.at(nRow))
    {
        if (pKind->strRecord == strRecord)
            return *pKind;
    }
    for (const StOtherRecord& stOther : OTHER_RECORDS)
    {
        if (stOther.pszRecord == strRecord)
            return kindOf(stOther.enKind);
    }
    throw std::logic_error("no kind of entry has the record " + std::string(strRecord));
}

const StEntryKind* findKind(const std::string& strWord)
{
    const auto itKind = std::find_if(ENTRY_KINDS.begin(), ENTRY_KINDS.end(),
                                     [&strWord](const StEntryKind& stKind) { return stKind.pszWord == strWord; });
    return itKind == ENTRY_KINDS.end() ? nullptr : &*itKind;
}

std::vector<std::string> kindWords()
{
    std::vector<std::string> lstWord;
    lstWord.reserve(ENTRY_KINDS.size());
    for (const StEntryKind& stKind : ENTRY_KINDS)
        lstWord.emplace_back(stKind.pszWord);
    return lstWord;
}
