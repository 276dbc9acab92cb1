// What a document says twice, or inside something else: definitions that hide each
// other, options that share a number, operations in operations, steps that wait for
// nobody.
#include "common/XmlRead.h"
#include "database/ContentQuestions.h"
#include "lint/Nearness.h"
#include "lint/ReadEntries.h"
#include "reader/SectionTable.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>

using namespace xercesc;

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

StAskedSection askedSection(const DOMElement& oSection)
{
    StAskedSection stAsked;
    forEachSection(
        [&](const auto& stSection)
        {
            if (XMLString::equals(stSection.pszElement, oSection.getTagName()))
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
std::string_view askedEverywhere(const DOMElement& oSection, const std::string& strOperation)
{
    std::string_view strParameter;
    const auto       fnVisit = [&](const auto& stQuestion)
    {
        forEachSection(
            [&](const auto& stSection)
            {
                if (stQuestion.strOperation == strOperation && isSameList(stSection.pList, stQuestion.pList) &&
                    XMLString::equals(stSection.pszElement, oSection.getTagName()))
                    strParameter = stQuestion.strParameter;
            });
    };
    std::apply([&fnVisit](const auto&... stQuestion) { (fnVisit(stQuestion), ...); }, CONTENT_QUESTIONS);
    return strParameter;
}

constexpr std::size_t LISTED_STEPS = 12;

class CDefinitionCheck
{
public:
    CDefinitionCheck(const StReadDocument& stRead, CFileReport& oReport, const StLostNames& stLost)
        : m_stRead(stRead), m_oReport(oReport), m_stLost(stLost), m_lstEntry(readEntries(stRead))
    {
        for (const StReadEntry& stEntry : m_lstEntry)
        {
            m_mapEntry[stEntry.pElement] = &stEntry;
            m_setIdBelow.emplace(stEntry.pOwner, idOf(*stEntry.pElement));
            if (findAsked(m_stRead, *stEntry.pElement, u"dependsOn") != nullptr)
                m_mapStep[taskOf(stEntry)].insert(idOf(*stEntry.pElement));
        }
    }

    void run()
    {
        for (const StReadEntry& stEntry : m_lstEntry)
        {
            if (stEntry.pAround != nullptr)
                reportNested(stEntry);
            if (stEntry.bInside)
                continue;
            checkStep(stEntry);
            const StAskedAttribute* pValue = findAsked(m_stRead, *stEntry.pElement, u"value");
            if (pValue != nullptr && pValue->enReadAs == EnReadAs::Number)
                checkOption(stEntry, *pValue);
            else if (m_stRead.enKind == EnFileKind::Capacity)
                checkCapacityEntry(stEntry);
            else
                checkDefinition(stEntry);
        }
    }

private:
    std::string idOf(const DOMElement& oElement) const { return valueOf(findAsked(m_stRead, oElement, u"id")); }

    // An element as messages name it: <Parameter> "ContentType".
    std::string named(const DOMElement& oElement) const
    {
        const std::string strId = idOf(oElement);
        return tagOf(oElement) + (strId.empty() ? "" : " " + inQuotes(strId));
    }

    StSpot idSpot(const DOMElement& oElement) const { return m_stRead.oPlaces.valueSpot(oElement, u"id"); }

    void add(const char* pszRule, const StSpot& stSpot, const DOMElement& oElement, std::string strMessage,
             std::vector<std::string> lstHelp = {})
    {
        m_oReport.add(pszRule, stSpot, std::move(strMessage), subjectOf(oElement), std::move(lstHelp));
    }

    std::string firstIn(const DOMElement& oFirst) const
    {
        return "the first one stands in line " + std::to_string(m_stRead.oPlaces.nameSpot(oFirst).ulLine);
    }

    void reportNested(const StReadEntry& stEntry)
    {
        const DOMElement& oElement = *stEntry.pElement;
        add("nested-operation", m_stRead.oPlaces.nameSpot(oElement), oElement,
            tagOf(oElement) + " stands inside " + named(*stEntry.pAround) + ": what stands in it belongs to both",
            {"end " + tagOf(*stEntry.pAround) + " before it"});
    }

    // The first of several elements that are the same to whoever asks, or null for
    // the first one itself.
    const DOMElement* firstOf(const char* pszWhat, const DOMElement* pBelow, const std::string& strKey,
                              const DOMElement& oElement)
    {
        const auto [itFirst, bNew] = m_mapFirst.emplace(std::tuple(pszWhat, pBelow, strKey), &oElement);
        return bNew ? nullptr : itFirst->second;
    }

    // A number that another rule complains about is no number to compare.
    static bool isPlainNumber(const std::string& strValue)
    {
        return !strValue.empty() && std::all_of(strValue.begin(), strValue.end(),
                                                [](char cDigit) { return cDigit >= '0' && cDigit <= '9'; });
    }

    void checkOption(const StReadEntry& stEntry, const StAskedAttribute& stValue)
    {
        const DOMElement& oOption = *stEntry.pElement;
        const std::string strId   = idOf(oOption);
        if (strId.empty() || stEntry.pOwner == nullptr)
            return;
        if (m_stRead.enKind == EnFileKind::Capacity) // lists options by id and number
            return checkShown(stEntry, strId + " " + valueOf(&stValue));
        const std::string strOf  = " of " + named(*stEntry.pOwner);
        const DOMElement* pFirst = firstOf("option", stEntry.pOwner, strId, oOption);
        if (pFirst != nullptr)
            return add("duplicate-option", idSpot(oOption), oOption,
                       "a second option" + strOf + " is called " + inQuotes(strId) +
                           ": whoever asks for its number gets that of the first",
                       {firstIn(*pFirst)});
        const std::string strValue = valueOf(&stValue);
        if (!isPlainNumber(strValue))
            return;
        pFirst = firstOf("number", stEntry.pOwner, std::to_string(toNumber(strValue)), oOption);
        if (pFirst != nullptr)
            add("duplicate-option", m_stRead.oPlaces.valueSpot(oOption, u"value"), oOption,
                "a second option" + strOf + " has the number " + strValue + ": it reads as " + inQuotes(idOf(*pFirst)),
                {firstIn(*pFirst)});
    }

    // An operation may be decided twice on purpose: steps and custom operations go by
    // the last entry, all else by the first.
    void checkCapacityEntry(const StReadEntry& stEntry)
    {
        const DOMElement&       oElement   = *stEntry.pElement;
        const StAskedAttribute* pSysOid    = findAsked(m_stRead, oElement, u"sysoid");
        const StAskedAttribute* pKey       = pSysOid != nullptr ? pSysOid : findAsked(m_stRead, oElement, u"id");
        const StAskedAttribute* pSupported = findAsked(m_stRead, oElement, u"isSupported");
        const std::string       strKey     = valueOf(pKey);
        const char*             pszDecides = toNumber(valueOf(pSupported)) != 0 ? "kept" : "decided";
        const DOMElement* pFirst = strKey.empty() ? nullptr : firstOf(pszDecides, stEntry.pOwner, strKey, oElement);
        if (pFirst != nullptr)
            add("shadowed-definition", m_stRead.oPlaces.valueSpot(oElement, pKey->pszName), oElement,
                "an earlier " + tagOf(oElement) + " " + inQuotes(strKey) +
                    " decides the same: this one changes nothing",
                {firstIn(*pFirst)});
    }

    void checkDefinition(const StReadEntry& stEntry)
    {
        const DOMElement&       oElement = *stEntry.pElement;
        const StAskedAttribute* pId      = findAsked(m_stRead, oElement, u"id");
        const std::string       strId    = valueOf(pId);
        if (strId.empty())
            return;
        if (pId->enReadAs == EnReadAs::Word)
            return checkTaskType(stEntry, strId);
        const DOMElement*    pOperation = operationOf(stEntry);
        const StAskedSection stAsked = pOperation == nullptr ? StAskedSection() : askedSection(sectionOf(*pOperation));
        if (pOperation == &oElement ? stAsked.bOperations : stAsked.bParameters)
            checkAsked(*pOperation, oElement, strId);
        else
            checkShown(stEntry, strId);
    }

    // An operation, or one of its parameters.
    void checkAsked(const DOMElement& oOperation, const DOMElement& oElement, const std::string& strId)
    {
        const bool        bOperation = &oOperation == &oElement;
        const std::string strSection = toLocal(sectionOf(oOperation).getTagName());
        const DOMElement* pFirst     = bOperation ? firstOf("operation", nullptr, strSection + " " + strId, oElement)
                                                  : firstOf("parameter", &oOperation, strId, oElement);
        if (pFirst == nullptr || isReached(oOperation, oElement))
            return;
        add("shadowed-definition", idSpot(oElement), oElement,
            "an earlier " + named(oElement) + (bOperation ? "" : " of " + inQuotes(idOf(oOperation))) +
                " hides this one: every question is answered from it",
            {firstIn(*pFirst)});
    }

    // What clients show as it stands: menu entries, check items, steps, features. The
    // operations behind an upgrade may well be run twice, and a step for another one.
    void checkShown(const StReadEntry& stEntry, const std::string& strId)
    {
        const DOMElement& oElement = *stEntry.pElement;
        const bool        bInUpgrade =
            m_stRead.enKind != EnFileKind::FixedCheck && findAsked(m_stRead, oElement, u"operationLevel") != nullptr;
        if (stEntry.pOwner == nullptr || bInUpgrade)
            return;
        std::string strKey = toLocal(oElement.getTagName()) + " " + strId;
        for (const char16_t* pszName : {u"type", u"dependsOn"})
            strKey += " " + valueOf(findAsked(m_stRead, oElement, pszName));
        const DOMElement* pFirst = firstOf("shown", stEntry.pOwner, strKey, oElement);
        if (pFirst != nullptr)
            add("shadowed-definition", idSpot(oElement), oElement,
                named(oElement) + " stands twice in " + named(*stEntry.pOwner) + ": clients show both",
                {firstIn(*pFirst)});
    }

    // The operation that an entry is, or whose parameter it is; else null.
    const DOMElement* operationOf(const StReadEntry& stEntry) const
    {
        const DOMElement* pOwner = stEntry.pOwner;
        if (pOwner == nullptr || m_mapEntry.at(pOwner)->pOwner == nullptr)
        {
            const bool bIsSection = pOwner != nullptr && idOf(*pOwner).empty();
            return pOwner == nullptr || bIsSection ? stEntry.pElement : pOwner;
        }
        const StReadEntry& stOwner = *m_mapEntry.at(pOwner);
        return m_mapEntry.at(stOwner.pOwner)->pOwner == nullptr &&
                       XMLString::equals(stEntry.pElement->getTagName(), u"Parameter")
                   ? pOwner
                   : nullptr;
    }

    const DOMElement& sectionOf(const DOMElement& oOperation) const
    {
        const DOMElement* pOwner = m_mapEntry.at(&oOperation)->pOwner;
        return pOwner == nullptr ? oOperation : *pOwner;
    }

    // Whether some question looks into every operation, or parameter, of the id.
    bool isReached(const DOMElement& oOperation, const DOMElement& oElement) const
    {
        const std::string strAsked(askedEverywhere(sectionOf(oOperation), idOf(oOperation)));
        if (strAsked.empty())
            return false;
        return &oOperation == &oElement ? m_setIdBelow.count({&oOperation, strAsked}) != 0 : idOf(oElement) == strAsked;
    }

    // In a check file the task types say what a check is for, as often as need be.
    void checkTaskType(const StReadEntry& stEntry, const std::string& strId)
    {
        const DOMElement& oElement = *stEntry.pElement;
        const DOMElement* pFirst = stEntry.pOwner == nullptr ? firstOf("task type", nullptr, strId, oElement) : nullptr;
        if (pFirst != nullptr)
            add("duplicate-task-type", idSpot(oElement), oElement,
                "a second task type is called " + inQuotes(strId) + ": both are kept, and clients show one of them",
                {firstIn(*pFirst)});
    }

    // The outermost element whose readers looked for an entry: the task of a step.
    const DOMElement* taskOf(const StReadEntry& stEntry) const
    {
        const DOMElement* pTask = stEntry.pOwner;
        for (auto itOwner = m_mapEntry.find(pTask); itOwner != m_mapEntry.end() && itOwner->second->pOwner != nullptr;
             itOwner      = m_mapEntry.find(pTask))
            pTask = itOwner->second->pOwner;
        return pTask;
    }

    void checkStep(const StReadEntry& stEntry)
    {
        const StAskedAttribute* pDepends = findAsked(m_stRead, *stEntry.pElement, u"dependsOn");
        const std::string       strStep  = valueOf(pDepends);
        const auto              itSteps  = m_mapStep.find(taskOf(stEntry));
        if (pDepends == nullptr || strStep.empty() || itSteps == m_mapStep.end() ||
            m_stLost.setText.count(strStep) != 0)
            return;
        const std::set<std::string>& setStep = itSteps->second;
        if (setStep.count(strStep) != 0)
            return;
        std::vector<std::string> lstHelp = m_oHints.didYouMean(strStep, setStep);
        if (lstHelp.empty() && setStep.size() <= LISTED_STEPS)
            lstHelp.push_back("its steps: " + listText({setStep.begin(), setStep.end()}));
        add("depends-on-nothing", m_stRead.oPlaces.valueSpot(*stEntry.pElement, u"dependsOn"), *stEntry.pElement,
            "the task has no step " + inQuotes(strStep) + " that " + inQuotes(idOf(*stEntry.pElement)) +
                " could wait for",
            std::move(lstHelp));
    }

    using FirstKey = std::tuple<std::string, const DOMElement*, std::string>;

    const StReadDocument&                               m_stRead;
    CFileReport&                                        m_oReport;
    const StLostNames&                                  m_stLost;
    std::vector<StReadEntry>                            m_lstEntry;
    std::map<const DOMElement*, const StReadEntry*>     m_mapEntry;
    std::map<const DOMElement*, std::set<std::string>>  m_mapStep;    // ids of the steps of each task
    std::set<std::pair<const DOMElement*, std::string>> m_setIdBelow; // ids of what each reader looked for
    CHints                                              m_oHints;
    std::map<FirstKey, const DOMElement*>               m_mapFirst;
};
} // namespace

void checkDefinitions(const StReadDocument& stRead, CFileReport& oReport, const StLostNames& stLost)
{
    CDefinitionCheck(stRead, oReport, stLost).run();
}
} // namespace lint
