// See EntryRules.h.
#include "tools/opxml/diff/EntryRules.h"

#include <cstddef>
#include <iterator>

namespace
{
// The flag of a parameter that says whether it is supported; of all others, that it is required.
constexpr std::string_view FLAG_IS_SUPPORT = "lstOtherOperation";

// In the order of the kinds.
struct StKindRules
{
    EnEntryKind enKind;
    const char* pszLost;
    const char* pszGained;
};

// clang-format off
constexpr StKindRules KIND_RULES[] = {
    {EnEntryKind::DeviceOperation,  "operation-lost", "operation-gained"},
    {EnEntryKind::TaskOperation,    "operation-lost", "operation-gained"},
    {EnEntryKind::PatchOperation,   "operation-lost", "operation-gained"},
    {EnEntryKind::CheckOperation,   "operation-lost", "operation-gained"},
    {EnEntryKind::CustomOperation,  "operation-lost", "operation-gained"},
    {EnEntryKind::OtherOperation,   "operation-lost", "operation-gained"},
    {EnEntryKind::UpgradeOperation, "operation-lost", "operation-gained"},
    {EnEntryKind::UpgradeStep,      "step-lost", "step-gained"},
    {EnEntryKind::Parameter,        "parameter-lost", "parameter-gained"},
    {EnEntryKind::Option,           "option-lost", "option-gained"},
    {EnEntryKind::CheckItem,        "check-item-lost", "check-item-gained"},
    {EnEntryKind::Menu,             "offer-lost", "offer-gained"},
    {EnEntryKind::Tab,              "offer-lost", "offer-gained"},
    {EnEntryKind::PatchMenu,        "offer-lost", "offer-gained"},
    {EnEntryKind::IsolationMenu,    "offer-lost", "offer-gained"},
    {EnEntryKind::PatchType,        "patch-state-lost", "patch-state-gained"},
    {EnEntryKind::PatchState,       "patch-state-lost", "patch-state-gained"},
    {EnEntryKind::PatchStateItem,   "offer-lost", "offer-gained"},
    {EnEntryKind::TaskType,         "task-type-lost", "task-type-gained"},
    {EnEntryKind::TaskStep,         "step-lost", "step-gained"},
    {EnEntryKind::TaskFeature,      "feature-lost", "feature-gained"},
};

constexpr bool inOrder()
{
    for (std::size_t nAt = 0; nAt < std::size(KIND_RULES); ++nAt)
    {
        if (static_cast<std::size_t>(KIND_RULES[nAt].enKind) != nAt)
            return false;
    }
    return std::size(KIND_RULES) == ENTRY_KIND_COUNT;
}
static_assert(inOrder(), "a row for each kind of entry");

// A field, and the rule of its change. A flag, or a level, has one for each direction.
struct StFieldRule
{
    std::string_view strField;
    const char*      pszRule;   // "0" to "1", or any change
    const char*      pszToZero; // "1" to "0"; null: the same
};

constexpr StFieldRule FIELD_RULES[] = {
    {"bIsCancelable", "cancel-gained", "cancel-lost"},
    {"bIsSupported", "support-gained", "support-lost"},
    {"bIsRequired", "parameter-required", "parameter-optional"},
    {"strValue", "value-changed", nullptr},
    {"ulValue", "number-changed", nullptr},
    {"strTarget", "target-changed", nullptr},
    {"strCmdKey", "command-changed", nullptr},
    {"strSubItemFrom", "command-changed", nullptr},
    {"enType", "kind-changed", nullptr},
    {"nTaskType", "task-of-check-changed", nullptr},
    {"nCompareType", "comparison-changed", nullptr},
    {"strCompareParam", "comparison-changed", nullptr},
    {"bIsCompare", "comparison-changed", nullptr},
    {"strSelected", "selection-changed", nullptr},
    {"bSelected", "selection-changed", nullptr},
    {"strIsSelect", "selection-changed", nullptr},
    {"strDependsOn", "step-changed", nullptr},
    {"strIsPauseBeforeOP", "step-changed", nullptr},
    {"enAvailableIn", "availability-changed", nullptr},
    {"strResourceClass", "resource-changed", nullptr},
    {"strDescription", "text-changed", nullptr},
    {"strOperDescription", "text-changed", nullptr},
    {"strShortcutKey", "look-changed", nullptr},
    {"strGUITemplete", "look-changed", nullptr},
};
// clang-format on

bool isFlagSet(const catalog::StEntry& stEntry, const char* pszField)
{
    const catalog::StField* pField = stEntry.field(pszField);
    return pField != nullptr && pField->strValue == "1";
}

// Whether questions about it are answered with no all the same.
bool isDenied(const StEntryKind& stKind, std::string_view strSection, const catalog::StEntry& stEntry)
{
    if (stKind.enKind == EnEntryKind::OtherOperation || stKind.enKind == EnEntryKind::TaskFeature)
        return !isFlagSet(stEntry, "bIsSupported");
    return stKind.enKind == EnEntryKind::Parameter && strSection == FLAG_IS_SUPPORT &&
           !isFlagSet(stEntry, "bIsRequired");
}
} // namespace

const StDiffRule& ruleOfEntry(const StEntryKind& stKind, std::string_view strSection, const catalog::StEntry& stEntry,
                              EnChange enWhat)
{
    if (isDenied(stKind, strSection, stEntry))
        return diffRule("unsupported-entry");
    const bool bGained = enWhat == EnChange::Gained;
    if (bGained && stKind.enKind == EnEntryKind::Parameter && strSection != FLAG_IS_SUPPORT &&
        isFlagSet(stEntry, "bIsRequired"))
        return diffRule("required-parameter-gained");
    const StKindRules& stRules = KIND_RULES[static_cast<std::size_t>(stKind.enKind)];
    return diffRule(bGained ? stRules.pszGained : stRules.pszLost);
}

const StDiffRule& ruleOfField(const StEntryKind& stKind, std::string_view strSection, const catalog::StField& stOld,
                              const catalog::StField& stNew)
{
    const std::string_view strField = stOld.pszName;
    if (strField == "enOperationLevel")
        return diffRule(stNew.strValue == "Both" ? "level-widened" : "level-narrowed");
    if (strField == "bIsRequired" && stKind.enKind == EnEntryKind::Parameter && strSection == FLAG_IS_SUPPORT)
        return diffRule(stNew.strValue == "1" ? "support-gained" : "support-lost");
    for (const StFieldRule& stRule : FIELD_RULES)
    {
        if (stRule.strField == strField)
            return diffRule(stRule.pszToZero != nullptr && stNew.strValue == "0" ? stRule.pszToZero : stRule.pszRule);
    }
    return diffRule("field-changed");
}

const StDiffRule* ruleOfOrder(const StEntryKind& stKind, bool bBackupContent)
{
    static const StDiffRule& s_stSteps      = diffRule("steps-moved");
    static const StDiffRule& s_stCheckItems = diffRule("check-items-moved");
    static const StDiffRule& s_stOptions    = diffRule("options-moved");
    switch (stKind.enKind)
    {
    case EnEntryKind::TaskStep:
    case EnEntryKind::UpgradeStep:
        return &s_stSteps;
    case EnEntryKind::CheckItem:
        return &s_stCheckItems;
    case EnEntryKind::Option:
        return bBackupContent ? &s_stOptions : nullptr;
    default:
        return nullptr;
    }
}
