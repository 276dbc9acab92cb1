// See RecordTree.h. One describe() a record: a line, and lines below it.
#include "tools/opxml/output/RecordTree.h"

#include "records/WordTables.h"

#include <fmt/format.h>

#include <functional>
#include <set>
#include <string>
#include <string_view>

namespace
{
// The word of a number; numbers without a word are shown as they are.
template <typename Value, std::size_t nWords>
std::string wordOf(const AsnEnum<Value>& enValue, const StWord<Value> (&arWords)[nWords])
{
    for (const StWord<Value>& stWord : arWords)
    {
        if (stWord.value == enValue)
            return std::string(stWord.strWord);
    }
    return fmt::format("kind {}", enValue.number());
}

std::string kindOf(const AsnEnum<DCAsn1ClientToServer::AsnTypeRefEnum>& enType)
{
    if (enType == DCAsn1ClientToServer::BoardOperation)
        return wordOf(enType, ISOLATION_TYPE_REF_WORDS);
    return enType == DCAsn1ClientToServer::UnknownOperation ? "unknown kind" : wordOf(enType, TYPE_REF_WORDS);
}

std::string taskTypeOf(std::int32_t nTaskType, DCAsn1ClientToServer::AsnTaskTypeEnum StTaskTypeWord::*pColumn)
{
    for (const StTaskTypeWord& stWord : TASK_TYPE_WORDS)
    {
        if (stWord.*pColumn == nTaskType)
            return std::string(stWord.strWord);
    }
    return fmt::format("task type {}", nTaskType);
}

// ", name: value", or nothing for an empty value.
std::string detail(std::string_view strName, const std::string& strValue)
{
    return strValue.empty() ? "" : fmt::format(", {}: {}", strName, strValue);
}

const char* flag(bool bSet, const char* pszWord)
{
    return bSet ? pszWord : "";
}

template <typename Record>
void addAll(StTree& stTree, const std::list<Record>& lstRecord);

StTree describe(const StAsnOptionInfo& stOption)
{
    return {fmt::format("{} = {}{}", stOption.strId, stOption.ulValue, detail("target", stOption.strTarget)), {}};
}

template <typename Param>
StTree describeParam(const Param& stParam)
{
    StTree stTree = {fmt::format("parameter {}{}{}{}", stParam.strId, detail("value", stParam.strValue),
                                 flag(stParam.bIsRequired, ", required"), detail("selected", stParam.strSelected)),
                     {}};
    addAll(stTree, stParam.lstOption);
    return stTree;
}

StTree describe(const StAsnOperParamDef& stParam)
{
    return describeParam(stParam);
}

StTree describe(const StAsnOperation& stOper)
{
    StTree stTree = {fmt::format("{} ({}{})", stOper.strId, wordOf(stOper.enOperationLevel, OPERATION_LEVEL_WORDS),
                                 flag(stOper.bIsCancelable, ", cancelable")),
                     {}};
    addAll(stTree, stOper.lstParam);
    return stTree;
}

StTree describe(const StAsnPatchItem& stItem)
{
    return {fmt::format("{} ({})", stItem.strId, kindOf(stItem.enType)), {}};
}

StTree describe(const StAsnMenuOpDef& stItem)
{
    return {fmt::format("{} ({})", stItem.strId, kindOf(stItem.enType)), {}};
}

StTree describe(const StAsnPatchStateDef& stState)
{
    StTree stTree = {"state " + stState.strName, {}};
    addAll(stTree, stState.lstPatchItem);
    return stTree;
}

StTree describe(const StAsnPatchDef& stPatch)
{
    StTree stTree = {wordOf(stPatch.enPatchType, PATCH_TYPE_WORDS), {}};
    addAll(stTree, stPatch.lstPatchState);
    return stTree;
}

StTree describe(const StAsnPatchTypeMenuDef& stMenu)
{
    StTree stTree = {wordOf(stMenu.enPatchType, PATCH_TYPE_WORDS), {}};
    addAll(stTree, stMenu.lstMenuOp);
    return stTree;
}

StTree describe(const StAsnCheckType& stCheck)
{
    StTree stTree = {fmt::format("{}. {}{}{}{}{}{}{}", stCheck.ulIndex, stCheck.strId,
                                 detail("description", stCheck.strDescription), detail("command", stCheck.strCmdKey),
                                 detail("sub items from", stCheck.strSubItemFrom),
                                 flag(stCheck.bSelected, ", selected"), flag(stCheck.bIsCompare, ", compared"),
                                 stCheck.nCompareType == 0 && stCheck.strCompareParam.empty()
                                     ? ""
                                     : fmt::format(", compare type {}{}", stCheck.nCompareType,
                                                   detail("with", stCheck.strCompareParam))),
                     {}};
    addAll(stTree, stCheck.lstSubItem);
    return stTree;
}

StTree describe(const StAsnCheckOperationDef& stOper)
{
    const std::string strTask =
        stOper.nTaskType < 0 ? "" : ", for " + taskTypeOf(stOper.nTaskType, &StTaskTypeWord::enTaskType);
    StTree stTree = {fmt::format("{} ({}{}{})", stOper.strId, wordOf(stOper.enOperationLevel, OPERATION_LEVEL_WORDS),
                                 flag(stOper.bIsCancelable, ", cancelable"), strTask),
                     {}};
    addAll(stTree, stOper.lstCheckType);
    return stTree;
}

StTree describe(const StAsnCustomOperationDef& stOper)
{
    return {fmt::format("{} ({}, in {}{}{})", stOper.strId, wordOf(stOper.enOperationLevel, OPERATION_LEVEL_WORDS),
                        wordOf(stOper.enAvailableIn, AVAILABILITY_WORDS), detail("resource", stOper.strResourceClass),
                        detail("shortcut", stOper.strShortcutKey)),
            {}};
}

StTree describe(const StAsnOtherOperationDef& stOper)
{
    StTree stTree = {fmt::format("{} ({})", stOper.strId, stOper.bIsSupported ? "supported" : "not supported"), {}};
    addAll(stTree, stOper.lstParam);
    return stTree;
}

StTree describe(const StAsnUpgradeSubOperationDef& stOper)
{
    StTree stTree = {fmt::format("{} ({})", stOper.strId, wordOf(stOper.enOperationLevel, OPERATION_LEVEL_WORDS)), {}};
    addAll(stTree, stOper.lstParameter);
    return stTree;
}

StTree describe(const StAsnUpgradeOperationDef& stOper)
{
    StTree stTree = {fmt::format("{} ({})", stOper.strId, wordOf(stOper.enOperationLevel, OPERATION_LEVEL_WORDS)), {}};
    addAll(stTree, stOper.lstSubOperation);
    return stTree;
}

StTree describe(const StAsnTaskOperationDef& stStep)
{
    return {fmt::format("step {} ({}{}{}{}{})", stStep.strId, kindOf(stStep.enType),
                        detail("depends on", stStep.strDependsOn), detail("description", stStep.strOperDescription),
                        detail("selected", stStep.strIsSelect), detail("pause before", stStep.strIsPauseBeforeOP)),
            {}};
}

StTree describe(const StAsnTaskConfigOperation& stContent)
{
    StTree stTree = stContent.strId.empty() ? StTree{"steps and features", {}} : describeParam(stContent);
    addAll(stTree, stContent.lstTaskOperationDef);
    for (const StAsnOtherOperationDef& stFeature : stContent.lstOtherOperationDef)
        stTree.add("feature " + describe(stFeature).strText);
    return stTree;
}

StTree describe(const StAsnTaskConfigInfoOperation& stTask)
{
    StTree stTree = {taskTypeOf(stTask.enTaskType.number(), &StTaskTypeWord::enConfigType) +
                         detail("template", stTask.strGUITemplete),
                     {}};
    addAll(stTree, stTask.lstTaskConfigOperation);
    return stTree;
}

template <typename Record>
void addAll(StTree& stTree, const std::list<Record>& lstRecord)
{
    for (const Record& stRecord : lstRecord)
        stTree.lstChild.push_back(describe(stRecord));
}

// What makes two records of a section the same thing for a lookup, as a text.
std::string identityText(const std::string& strId)
{
    return strId;
}
template <typename Enum>
std::string identityText(const AsnEnum<Enum>& enType)
{
    return std::to_string(enType.number());
}

// The sections of one record; the tail of each list is what modules appended.
class CSectionTrees
{
public:
    CSectionTrees(StTree& stTree, const std::vector<StContribution>& lstContribution)
        : m_stTree(stTree), m_lstContribution(lstContribution)
    {
    }

    template <typename Section, typename Record>
    void add(const Section& stSectionRow, const std::list<Record>& lstRecord)
    {
        const std::size_t nSection = m_nNext++;
        if (lstRecord.empty())
            return;
        StTree& stSection = m_stTree.add(fmt::format("{} ({})", stSectionRow.pszTitle, lstRecord.size()));
        const std::vector<std::string> lstOwner = ownersOf(nSection, lstRecord.size());
        std::set<std::string>          setOwn;
        auto                           itOwner = lstOwner.begin();
        for (const Record& stRecord : lstRecord)
        {
            const std::string  strId    = identityText(stRecord.*stSectionRow.pIdentity);
            StTree             stChild  = describe(stRecord);
            const std::string& strOwner = *itOwner++;
            if (strOwner.empty())
                setOwn.insert(strId);
            else
                stChild.strText += "  [module " + strOwner + "]";
            if (!strOwner.empty() && setOwn.count(strId) != 0)
                stChild.strText += " the type defines this id itself: its own definition wins";
            stSection.lstChild.push_back(std::move(stChild));
        }
    }

private:
    // The module of each record of a section, empty for the type's own.
    std::vector<std::string> ownersOf(std::size_t nSection, std::size_t nRecords) const
    {
        std::vector<std::string> lstOwner;
        for (const StContribution& stContribution : m_lstContribution)
            lstOwner.insert(lstOwner.end(), stContribution.arCount[nSection], stContribution.strModule);
        const std::size_t nOwn = nRecords - std::min(nRecords, lstOwner.size());
        lstOwner.insert(lstOwner.begin(), nOwn, "");
        return lstOwner;
    }

    StTree&                            m_stTree;
    const std::vector<StContribution>& m_lstContribution;
    std::size_t                        m_nNext = 0;
};
} // namespace

void addRecord(StTree& stTree, const StAsnDevTypeVerXMLInfo& stInfo, const std::vector<StContribution>& lstContribution)
{
    for (const StAsnDevVersion& stVersion : stInfo.lstDevVersion)
        stTree.add("for version " + stVersion.strSoftVersion + detail("patch", stVersion.strPatchVersion));
    CSectionTrees oSections(stTree, lstContribution);
    forEachSection([&](const auto& stSection) { oSections.add(stSection, listOf(stInfo, stSection.pList)); });
}
