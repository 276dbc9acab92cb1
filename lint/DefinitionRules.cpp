// What a document says twice, or inside something else: definitions that hide each
// other, options that share a number, operations in operations, steps that wait for
// nobody.
#include "common/XmlRead.h"
#include "database/ContentQuestions.h"
#include "lint/DocumentRules.h"
#include "lint/Nearness.h"
#include "lint/Phrases.h"
#include "reader/SectionTable.h"

#include <algorithm>
#include <array>
#include <functional>
#include <memory_resource>
#include <set>
#include <string>
#include <string_view>
#include <type_traits>
#include <unordered_map>
#include <utility>

namespace lint
{
namespace
{
// Which entries of a section are asked for by the first one of an id: its
// operations, and their parameters.
struct StAskedSection
{
    bool bOperations = false;
    bool bParameters = false;
};

template <typename Record, typename Owner>
constexpr StAskedSection askedIn(std::list<Record> Owner::* /*pList*/)
{
    constexpr bool bParameters =
        std::is_same_v<Record, StAsnOperation> || std::is_same_v<Record, StAsnOtherOperationDef>;
    constexpr bool bOthers = std::is_same_v<Record, StAsnCheckOperationDef> ||
                             std::is_same_v<Record, StAsnCustomOperationDef> ||
                             std::is_same_v<Record, StAsnUpgradeOperationDef>;
    return {bParameters || bOthers, bParameters};
}

StAskedSection askedSection(std::string_view strSection)
{
    StAskedSection stAsked;
    forEachSection(
        [&](const auto& stSection)
        {
            if (toLocal(stSection.pszElement) == strSection)
                stAsked = askedIn(stSection.pList);
        });
    return stAsked;
}

template <typename Record, typename OtherRecord, typename Owner, typename OtherOwner>
bool isSameList(std::list<Record> Owner::*pList, std::list<OtherRecord> OtherOwner::*pOther)
{
    if constexpr (std::is_same_v<decltype(pList), decltype(pOther)>)
        return pList == pOther;
    else
        return false;
}

// The parameter that some question looks for in every operation of the id, not in
// the first one alone; empty when there is no such question.
std::string_view askedEverywhere(std::string_view strSection, std::string_view strOperation)
{
    std::string_view strParameter;
    const auto       fnVisit = [&](const auto& stQuestion)
    {
        forEachSection(
            [&](const auto& stSection)
            {
                if (stQuestion.strOperation == strOperation && isSameList(stSection.pList, stQuestion.pList) &&
                    toLocal(stSection.pszElement) == strSection)
                    strParameter = stQuestion.strParameter;
            });
    };
    std::apply([&fnVisit](const auto&... stQuestion) { (fnVisit(stQuestion), ...); }, CONTENT_QUESTIONS);
    return strParameter;
}

constexpr std::size_t LISTED_STEPS = 12;

// What makes two elements the same to whoever asks: what they are, where they stand,
// and some texts.
struct StSameness
{
    std::string_view                strWhat;
    const StReadElement*            pBelow;
    std::array<std::string_view, 4> arText;

    bool operator==(const StSameness& stOther) const
    {
        return strWhat == stOther.strWhat && pBelow == stOther.pBelow && arText == stOther.arText;
    }
};

struct StSamenessHash
{
    std::size_t operator()(const StSameness& stSameness) const
    {
        std::size_t nHash = std::hash<const void*>()(stSameness.pBelow);
        for (const std::string_view strText : stSameness.arText)
        {
            if (!strText.empty())
                nHash = nHash * 31 + std::hash<std::string_view>()(strText);
        }
        return nHash;
    }
};

// What all entries have in common whose readers asked the same.
struct StDefinitionKind
{
    bool bStep     = false;
    bool bOption   = false;
    bool bBySysOid = false;
    bool bIdIsWord = false;
    bool bHasLevel = false;
};

StDefinitionKind definitionKind(const StQuestions& stAsked)
{
    const StAskedAttribute* pId = stAsked.find("id");
    StDefinitionKind        stKind;
    stKind.bStep     = stAsked.find("dependsOn") != nullptr;
    stKind.bOption   = stAsked.optionNumber() != nullptr;
    stKind.bBySysOid = stAsked.find("sysoid") != nullptr;
    stKind.bIdIsWord = pId != nullptr && pId->enReadAs == EnReadAs::Word;
    stKind.bHasLevel = stAsked.find("operationLevel") != nullptr;
    return stKind;
}

class CDefinitionCheck
{
public:
    CDefinitionCheck(const StReadDocument& stRead, CFileReport& oReport, const StLostNames& stLost)
        : m_stRead(stRead), m_oReport(oReport), m_stLost(stLost)
    {
        m_mapFirst.reserve(m_stRead.oTree.elements().size());
        for (const StReadElement& stEntry : m_stRead.oTree.elements())
        {
            if (stEntry.stMark.bMet && kindOf(stEntry).bStep)
                m_mapStep[taskOf(stEntry)].emplace(idOf(stEntry));
        }
    }

    void run()
    {
        for (const StReadElement& stEntry : m_stRead.oTree.elements())
        {
            if (m_oReport.isFull())
                return;
            if (stEntry.pAround != nullptr)
                reportNested(stEntry);
            if (!stEntry.stMark.bMet || stEntry.bInside)
                continue;
            const StDefinitionKind& stKind = kindOf(stEntry);
            if (stKind.bStep)
                checkStep(stEntry);
            if (stKind.bOption)
                checkOption(stEntry);
            else if (m_stRead.enKind == EnFileKind::Capacity)
                checkCapacityEntry(stEntry);
            else
                checkDefinition(stEntry);
        }
    }

private:
    const StDefinitionKind& kindOf(const StReadElement& stEntry) { return m_oKinds.of(stEntry, definitionKind); }

    static std::string_view idOf(const StReadElement& stElement) { return stElement.read("id"); }

    // An element as messages name it: <Parameter> "ContentType".
    static std::string named(const StReadElement& stElement)
    {
        const std::string_view strId = idOf(stElement);
        return tag(stElement.strName) + (strId.empty() ? "" : " " + inQuotes(strId));
    }

    StSpot nameSpot(const StReadElement& stElement) const { return m_stRead.oPlaces.nameSpot(*stElement.pElement); }

    StSpot valueSpot(const StReadElement& stElement, std::string_view strAttribute) const
    {
        return m_stRead.oPlaces.valueSpot(*stElement.pElement, strAttribute);
    }

    void add(const char* pszRule, const StSpot& stSpot, const StReadElement& stElement, std::string strMessage,
             std::vector<std::string> lstHelp = {})
    {
        m_oReport.add(pszRule, stSpot, std::move(strMessage), stElement.subject(), std::move(lstHelp));
    }

    std::string firstIn(const StReadElement& stFirst) const
    {
        return "the first one stands in line " + std::to_string(nameSpot(stFirst).ulLine);
    }

    void reportNested(const StReadElement& stEntry)
    {
        const std::string strAround = tag(stEntry.pAround->strName);
        add("nested-operation", nameSpot(stEntry), stEntry,
            tag(stEntry.strName) + " stands inside " + named(*stEntry.pAround) + ": what stands in it belongs to both",
            {"end " + strAround + " before it"});
    }

    // The first of several elements that are the same, or null for the first one itself.
    const StReadElement* firstOf(const StSameness& stSameness, const StReadElement& stElement)
    {
        const auto [itFirst, bNew] = m_mapFirst.emplace(stSameness, &stElement);
        return bNew ? nullptr : itFirst->second;
    }

    // A number that another rule complains about is no number to compare.
    static bool isPlainNumber(std::string_view strValue)
    {
        return !strValue.empty() && strValue.find_first_not_of("0123456789") == std::string_view::npos;
    }

    static std::string_view withoutZeros(std::string_view strNumber)
    {
        return strNumber.substr(std::min(strNumber.find_first_not_of('0'), strNumber.size()));
    }

    void checkOption(const StReadElement& stOption)
    {
        const std::string_view strId    = idOf(stOption);
        const std::string_view strValue = stOption.read("value");
        if (strId.empty() || stOption.pOwner == nullptr)
            return;
        if (m_stRead.enKind == EnFileKind::Capacity) // lists options by id and number
            return checkShown(stOption, strId, strValue);
        const StReadElement* pFirst = firstOf({"option", stOption.pOwner, {strId}}, stOption);
        if (pFirst != nullptr)
            return add("duplicate-option", valueSpot(stOption, "id"), stOption,
                       "a second option of " + named(*stOption.pOwner) + " is called " + inQuotes(strId) +
                           ": whoever asks for its number gets that of the first",
                       {firstIn(*pFirst)});
        if (!isPlainNumber(strValue))
            return;
        pFirst = firstOf({"number", stOption.pOwner, {withoutZeros(strValue)}}, stOption);
        if (pFirst != nullptr)
            add("duplicate-option", valueSpot(stOption, "value"), stOption,
                "a second option of " + named(*stOption.pOwner) + " has the number " + std::string(strValue) +
                    ": it reads as " + inQuotes(idOf(*pFirst)),
                {firstIn(*pFirst)});
    }

    // An operation may be decided twice on purpose: steps and custom operations go by
    // the last entry, all else by the first.
    void checkCapacityEntry(const StReadElement& stEntry)
    {
        const char*            pszKey = kindOf(stEntry).bBySysOid ? "sysoid" : "id";
        const std::string_view strKey = stEntry.read(pszKey);
        const bool             bKept  = toNumber(std::string(stEntry.read("isSupported"))) != 0;
        const StReadElement*   pFirst =
            strKey.empty() ? nullptr : firstOf({bKept ? "kept" : "decided", stEntry.pOwner, {strKey}}, stEntry);
        if (pFirst != nullptr)
            add("shadowed-definition", valueSpot(stEntry, pszKey), stEntry,
                "an earlier " + tag(stEntry.strName) + " " + inQuotes(strKey) +
                    " decides the same: this one changes nothing",
                {firstIn(*pFirst)});
    }

    void checkDefinition(const StReadElement& stEntry)
    {
        const std::string_view strId = idOf(stEntry);
        if (strId.empty())
            return;
        if (kindOf(stEntry).bIdIsWord)
            return checkTaskType(stEntry, strId);
        const StReadElement* pOperation = operationOf(stEntry);
        const StAskedSection stAsked =
            pOperation == nullptr ? StAskedSection() : askedOf(sectionOf(*pOperation).strName);
        if (pOperation == &stEntry ? stAsked.bOperations : stAsked.bParameters)
            checkAsked(*pOperation, stEntry, strId);
        else
            checkShown(stEntry, strId, {});
    }

    const StAskedSection& askedOf(std::string_view strSection)
    {
        const auto [itAsked, bNew] = m_mapAsked.try_emplace(strSection);
        if (bNew)
            itAsked->second = askedSection(strSection);
        return itAsked->second;
    }

    // An operation, or one of its parameters.
    void checkAsked(const StReadElement& stOperation, const StReadElement& stElement, std::string_view strId)
    {
        const bool           bOperation = &stOperation == &stElement;
        const StReadElement* pFirst =
            bOperation ? firstOf({"operation", nullptr, {sectionOf(stOperation).strName, strId}}, stElement)
                       : firstOf({"parameter", &stOperation, {strId}}, stElement);
        if (pFirst == nullptr || isReached(stOperation, stElement))
            return;
        add("shadowed-definition", valueSpot(stElement, "id"), stElement,
            "an earlier " + named(stElement) + (bOperation ? "" : " of " + inQuotes(idOf(stOperation))) +
                " hides this one: every question is answered from it",
            {firstIn(*pFirst)});
    }

    // What clients show as it stands: menu entries, check items, steps, features. The
    // operations behind an upgrade may well be run twice, and a step for another one.
    void checkShown(const StReadElement& stEntry, std::string_view strId, std::string_view strNumber)
    {
        const bool bInUpgrade = m_stRead.enKind != EnFileKind::FixedCheck && kindOf(stEntry).bHasLevel;
        if (stEntry.pOwner == nullptr || bInUpgrade)
            return;
        const std::string_view strKind = strNumber.empty() ? stEntry.read("type") : strNumber;
        const StReadElement*   pFirst =
            firstOf({"shown", stEntry.pOwner, {stEntry.strName, strId, strKind, stEntry.read("dependsOn")}}, stEntry);
        if (pFirst != nullptr)
            add("shadowed-definition", valueSpot(stEntry, "id"), stEntry,
                named(stEntry) + " stands twice in " + named(*stEntry.pOwner) + ": clients show both",
                {firstIn(*pFirst)});
    }

    // The operation that an entry is, or whose parameter it is; else null.
    static const StReadElement* operationOf(const StReadElement& stEntry)
    {
        const StReadElement* pOwner = stEntry.pOwner;
        if (pOwner == nullptr)
            return &stEntry;
        if (pOwner->pOwner == nullptr) // a section, unless its operations stand at the top themselves
            return idOf(*pOwner).empty() ? &stEntry : pOwner;
        return pOwner->pOwner->pOwner == nullptr && stEntry.strName == "Parameter" ? pOwner : nullptr;
    }

    static const StReadElement& sectionOf(const StReadElement& stOperation)
    {
        return stOperation.pOwner == nullptr ? stOperation : *stOperation.pOwner;
    }

    // Whether some question looks into every operation, or parameter, of the id.
    static bool isReached(const StReadElement& stOperation, const StReadElement& stElement)
    {
        const std::string_view strAsked = askedEverywhere(sectionOf(stOperation).strName, idOf(stOperation));
        if (strAsked.empty() || &stOperation != &stElement)
            return !strAsked.empty() && idOf(stElement) == strAsked;
        return std::any_of(&stOperation, stOperation.pEnd,
                           [&](const StReadElement& stInside)
                           { return stInside.pOwner == &stOperation && idOf(stInside) == strAsked; });
    }

    // In a check file the task types say what a check is for, as often as need be.
    void checkTaskType(const StReadElement& stEntry, std::string_view strId)
    {
        const StReadElement* pFirst =
            stEntry.pOwner == nullptr ? firstOf({"task type", nullptr, {strId}}, stEntry) : nullptr;
        if (pFirst != nullptr)
            add("duplicate-task-type", valueSpot(stEntry, "id"), stEntry,
                "a second task type is called " + inQuotes(strId) + ": both are kept, and clients show one of them",
                {firstIn(*pFirst)});
    }

    // The outermost element whose readers looked for an entry: the task of a step.
    static const StReadElement* taskOf(const StReadElement& stEntry)
    {
        const StReadElement* pTask = stEntry.pOwner;
        while (pTask != nullptr && pTask->pOwner != nullptr)
            pTask = pTask->pOwner;
        return pTask;
    }

    void checkStep(const StReadElement& stEntry)
    {
        const std::string strStep(stEntry.read("dependsOn"));
        if (strStep.empty() || m_stLost.setText.count(strStep) != 0)
            return;
        const std::set<std::string>& setStep = m_mapStep[taskOf(stEntry)];
        if (setStep.count(strStep) != 0)
            return;
        std::vector<std::string> lstHelp = m_oHints.didYouMean(strStep, setStep);
        if (lstHelp.empty() && setStep.size() <= LISTED_STEPS)
            lstHelp.push_back("its steps: " + listText({setStep.begin(), setStep.end()}));
        // A step that is called otherwise by mistake is told as that.
        m_oReport.addUnlessMeant(strStep, "depends-on-nothing", valueSpot(stEntry, "dependsOn"),
                                 "the task has no step " + inQuotes(strStep) + " that " + inQuotes(idOf(stEntry)) +
                                     " could wait for",
                                 stEntry.subject(), std::move(lstHelp));
    }

    using FirstMap = std::pmr::unordered_map<StSameness, const StReadElement*, StSamenessHash>;

    const StReadDocument&                                           m_stRead;
    CFileReport&                                                    m_oReport;
    const StLostNames&                                              m_stLost;
    CByQuestions<StDefinitionKind>                                  m_oKinds;
    std::unordered_map<const StReadElement*, std::set<std::string>> m_mapStep; // ids of the steps of each task
    std::unordered_map<std::string_view, StAskedSection>            m_mapAsked;
    std::pmr::monotonic_buffer_resource                             m_oFirstPool;
    FirstMap                                                        m_mapFirst{&m_oFirstPool};
    CHints                                                          m_oHints;
};
} // namespace

void checkDefinitions(const StReadDocument& stRead, CFileReport& oReport, const StLostNames& stLost)
{
    CDefinitionCheck(stRead, oReport, stLost).run();
}
} // namespace lint
