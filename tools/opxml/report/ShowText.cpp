// See ShowText.h. The page's test holds every line against opxml show.
#include "tools/opxml/report/ShowText.h"

#include <fmt/format.h>

#include <string_view>

namespace
{
// The fields of one entry, as parts of a line.
class CWords
{
public:
    explicit CWords(const catalog::StEntry& stEntry) : m_stEntry(stEntry) {}

    std::string_view value(const char* pszField) const
    {
        const catalog::StField* pField = m_stEntry.field(pszField);
        return pField == nullptr ? std::string_view() : std::string_view(pField->strValue);
    }

    // ", name: value", or nothing for an empty value.
    std::string detail(std::string_view strName, const char* pszField) const
    {
        const std::string_view strValue = value(pszField);
        std::string            strText;
        if (!strValue.empty())
            strText.append(", ").append(strName).append(": ").append(strValue);
        return strText;
    }

    const char* flag(const char* pszField, const char* pszWord) const { return value(pszField) == "1" ? pszWord : ""; }

    std::string_view kind() const { return value("enType").empty() ? "unknown kind" : value("enType"); }

private:
    const catalog::StEntry& m_stEntry;
};

std::string paramText(const CWords& oWords)
{
    return oWords.detail("value", "strValue") + oWords.flag("bIsRequired", ", required") +
           oWords.detail("selected", "strSelected");
}

std::string checkItemText(const CWords& oWords)
{
    const bool bCompares = oWords.value("nCompareType") != "0" || !oWords.value("strCompareParam").empty();
    return oWords.detail("description", "strDescription") + oWords.detail("command", "strCmdKey") +
           oWords.detail("sub items from", "strSubItemFrom") + oWords.flag("bSelected", ", selected") +
           oWords.flag("bIsCompare", ", compared") +
           (bCompares ? fmt::format(", compare type {}{}", oWords.value("nCompareType"),
                                    oWords.detail("with", "strCompareParam"))
                      : "");
}

std::string levelText(const CWords& oWords, const std::string& strMore)
{
    return fmt::format(" ({}{})", oWords.value("enOperationLevel"), strMore);
}

std::string stepText(const CWords& oWords)
{
    return fmt::format(" ({}{}{}{}{})", oWords.kind(), oWords.detail("depends on", "strDependsOn"),
                       oWords.detail("description", "strOperDescription"), oWords.detail("selected", "strIsSelect"),
                       oWords.detail("pause before", "strIsPauseBeforeOP"));
}

std::string customText(const CWords& oWords)
{
    return levelText(oWords, fmt::format(", in {}{}{}", oWords.value("enAvailableIn"),
                                         oWords.detail("resource", "strResourceClass"),
                                         oWords.detail("shortcut", "strShortcutKey")));
}

std::string checkText(const CWords& oWords)
{
    const std::string_view strTask = oWords.value("nTaskType");
    return levelText(oWords, std::string(oWords.flag("bIsCancelable", ", cancelable")) +
                                 (strTask.empty() ? "" : fmt::format(", for {}", strTask)));
}

std::string supportText(const CWords& oWords)
{
    return oWords.value("bIsSupported") == "1" ? " (supported)" : " (not supported)";
}

// Behind an id that stands first.
std::string plainText(std::string_view strRecord, const CWords& oWords)
{
    if (strRecord == "StAsnOptionInfo")
        return fmt::format(" = {}{}", oWords.value("ulValue"), oWords.detail("target", "strTarget"));
    if (strRecord == "StAsnOperation")
        return levelText(oWords, oWords.flag("bIsCancelable", ", cancelable"));
    if (strRecord == "StAsnCheckOperationDef")
        return checkText(oWords);
    if (strRecord == "StAsnCustomOperationDef")
        return customText(oWords);
    if (strRecord == "StAsnUpgradeOperationDef" || strRecord == "StAsnUpgradeSubOperationDef")
        return levelText(oWords, "");
    if (strRecord == "StAsnPatchItem" || strRecord == "StAsnMenuOpDef")
        return fmt::format(" ({})", oWords.kind());
    if (strRecord == "StAsnTaskConfigInfoOperation")
        return oWords.detail("template", "strGUITemplete");
    return ""; // patch types
}

StShowText contentText(const catalog::StEntry& stEntry, const CWords& oWords)
{
    if (stEntry.strId.empty())
        return {"steps and features", ""};
    return {"parameter " + stEntry.strId, paramText(oWords)};
}
} // namespace

StShowText showText(const catalog::StEntry& stEntry, const catalog::StEntry* pParent)
{
    const std::string_view strRecord = stEntry.pszRecord;
    const std::string&     strId     = stEntry.strId;
    const CWords           oWords(stEntry);
    const bool             bIsThere = !stEntry.lstField.empty(); // what was taken out has its id alone
    if (strRecord == "StAsnOperParamDef")
        return {"parameter " + strId, paramText(oWords)};
    if (strRecord == "StAsnTaskOperationDef")
        return {"step " + strId, bIsThere ? stepText(oWords) : ""};
    if (strRecord == "StAsnPatchStateDef")
        return {"state " + strId, ""};
    if (strRecord == "StAsnTaskConfigOperation")
        return contentText(stEntry, oWords);
    if (strRecord == "StAsnOtherOperationDef")
        return {(pParent == nullptr ? "" : "feature ") + strId, bIsThere ? supportText(oWords) : ""};
    if (!bIsThere)
        return {strId, ""};
    if (strRecord == "StAsnCheckType")
        return {std::string(oWords.value("ulIndex")) + ". " + strId, checkItemText(oWords)};
    return {strId, plainText(strRecord, oWords)};
}
