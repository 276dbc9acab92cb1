// Capacity documents: whether an entry is chosen at all, and whether what it lists is
// there to be kept or taken away.
#include "lint/Nearness.h"
#include "lint/Phrases.h"
#include "lint/SenseRules.h"
#include "records/Vocabulary.h"

#include <algorithm>
#include <map>
#include <utility>

using namespace catalog;

namespace lint
{
namespace
{
bool isYes(const StEntry& stEntry, const char* pszField)
{
    const StField* pField = stEntry.field(pszField);
    return pField != nullptr && pField->strValue != "0";
}

std::string numberOf(const StEntry& stOption)
{
    const StField* pValue = stOption.field("ulValue");
    return pValue == nullptr ? std::string() : pValue->strValue;
}

StPlace placeOfId(const StEntry& stEntry)
{
    const StField* pId = stEntry.field("strId");
    return pId == nullptr || pId->stPlace.ulLine == 0 ? stEntry.stPlace : pId->stPlace;
}

// What the configurations of a type have, pruned or not, by the names along the way.
struct StKnownNames
{
    std::map<std::string, StKnownNames> mapChild;
    std::set<std::string>               setNumber; // of options
};

void addNames(const std::vector<StEntry>& lstEntry, StKnownNames& stNames)
{
    for (const StEntry& stEntry : lstEntry)
    {
        StKnownNames& stName = stNames.mapChild[stEntry.strId];
        if (stEntry.field("ulValue") != nullptr)
            stName.setNumber.insert(numberOf(stEntry));
        addNames(stEntry.lstChild, stName);
    }
}

// References, at any depth: a menu entry or a step may be taken away by itself.
void addReferences(const std::vector<StEntry>& lstEntry, StKnownNames& stNames)
{
    for (const StEntry& stEntry : lstEntry)
    {
        if (stEntry.field("enType") != nullptr || stEntry.enFate == EnEntryFate::Pruned)
            stNames.mapChild[stEntry.strId];
        addReferences(stEntry.lstChild, stNames);
    }
}

class CCapacityCheck
{
public:
    CCapacityCheck(const StTypeCatalog& stType, const std::set<std::string>& setSysOid, const StLostNames& stLost,
                   CTypeFindings& oFindings)
        : m_stType(stType), m_setSysOid(setSysOid), m_stLost(stLost), m_oFindings(oFindings)
    {
        for (const StConfiguration& stConfiguration : m_stType.lstConfiguration)
        {
            for (const StSection& stSection : stConfiguration.lstSection)
            {
                addNames(stSection.lstEntry, m_stKnown);
                addReferences(stSection.lstEntry, m_stKnown);
            }
        }
        m_stKnown.mapChild[std::string(Vocabulary::UPGRADE_CHECK)]; // decides about all checks
    }

    void check(const StCapacityDocument& stDocument)
    {
        const StCapacityEntry* pMeant = nullptr;
        if (std::none_of(stDocument.lstEntry.begin(), stDocument.lstEntry.end(),
                         [](const StCapacityEntry& stEntry) { return stEntry.bIsRead; }))
            pMeant = reportNoEntry(stDocument);
        for (const StCapacityEntry& stEntry : stDocument.lstEntry)
        {
            if (isUnknown(stEntry) && &stEntry != pMeant)
                reportSysOid(stEntry);
            if (stEntry.bIsRead && !m_stType.lstConfiguration.empty())
                checkOperations(stEntry);
        }
    }

private:
    bool isUnknown(const StCapacityEntry& stEntry) const
    {
        return !stEntry.strSysOid.empty() && m_setSysOid.count(stEntry.strSysOid) == 0 && !isLost(stEntry.strSysOid);
    }

    bool isLost(const std::string& strText) const { return m_stLost.setText.count(strText) != 0; }

    // Answers the entry that may have been meant.
    const StCapacityEntry* reportNoEntry(const StCapacityDocument& stDocument)
    {
        if (stDocument.lstEntry.empty() || isLost(m_stType.strDevSysOid))
            return nullptr; // told about the document
        std::vector<std::string> lstUnknown;
        for (const StCapacityEntry& stEntry : stDocument.lstEntry)
        {
            if (isUnknown(stEntry))
                lstUnknown.push_back(stEntry.strSysOid);
        }
        const std::string strNear = nearestName(m_stType.strDevSysOid, lstUnknown);
        const auto        itMeant = std::find_if(stDocument.lstEntry.begin(), stDocument.lstEntry.end(),
                                                 [&strNear](const StCapacityEntry& stEntry)
                                                 { return !strNear.empty() && stEntry.strSysOid == strNear; });
        const bool        bMeant  = itMeant != stDocument.lstEntry.end();
        add("capacity-no-entry", bMeant ? itMeant->stPlace : stDocument.lstEntry.front().stPlace,
            "no entry has the sysoid " + inQuotes(m_stType.strDevSysOid) + " of " + inQuotes(m_stType.strDevType),
            ": nothing is taken away", "sysoid " + m_stType.strDevSysOid,
            {bMeant ? "did you mean " + inQuotes(m_stType.strDevSysOid) + "?"
                    : "sysoids compare to the letter; write an entry for this one"});
        return bMeant ? &*itMeant : nullptr;
    }

    void reportSysOid(const StCapacityEntry& stEntry)
    {
        add("capacity-unknown-sysoid", stEntry.stPlace, "no device type has the sysoid " + inQuotes(stEntry.strSysOid),
            ": the entry is never read", "sysoid " + shortened(stEntry.strSysOid), {});
    }

    void checkOperations(const StCapacityEntry& stEntry)
    {
        for (const StEntry& stOperation : stEntry.lstOperation)
        {
            const StKnownNames* pOperation = find(m_stKnown, stOperation, "operation", "");
            if (pOperation == nullptr || !isYes(stOperation, "bIsSupported"))
                continue;
            for (const StEntry& stParam : stOperation.lstChild)
            {
                const std::string   strOf  = " of " + inQuotes(stOperation.strId);
                const StKnownNames* pParam = find(*pOperation, stParam, "parameter", strOf);
                if (pParam != nullptr && isYes(stParam, "bIsRequired"))
                    checkOptions(*pParam, stParam, " of " + inQuotes(stParam.strId) + strOf);
            }
        }
    }

    void checkOptions(const StKnownNames& stKnown, const StEntry& stParam, const std::string& strOf)
    {
        for (const StEntry& stOption : stParam.lstChild)
        {
            const StKnownNames* pOption = find(stKnown, stOption, "option", strOf);
            const std::string   strHas  = numberOf(stOption);
            if (pOption == nullptr || isLost(stOption.strId) || pOption->setNumber.empty() ||
                pOption->setNumber.count(strHas) != 0)
                continue;
            const StField* pValue = stOption.field("ulValue");
            add("capacity-unknown-id", pValue->stPlace.ulLine == 0 ? stOption.stPlace : pValue->stPlace,
                "the option " + inQuotes(stOption.strId) + strOf + " has not the number " + strHas,
                ": it is taken away like one that is not listed", strOf + "/" + shortened(stOption.strId) + "=",
                {"its number is " + *pOption->setNumber.begin()});
        }
    }

    // What an entry of the document names, or null: told, unless it is told already.
    const StKnownNames* find(const StKnownNames& stBelow, const StEntry& stEntry, const char* pszWhat,
                             const std::string& strOf)
    {
        const auto itKnown = stBelow.mapChild.find(stEntry.strId);
        if (itKnown != stBelow.mapChild.end())
            return &itKnown->second;
        if (stEntry.strId.empty() || isLost(stEntry.strId))
            return nullptr;
        add("capacity-unknown-id", placeOfId(stEntry),
            std::string("the configuration has no ") + pszWhat + " " + inQuotes(stEntry.strId) + strOf,
            ": the line changes nothing", strOf + "/" + shortened(stEntry.strId),
            m_oHints.didYouMean(stEntry.strId, stBelow.mapChild));
        return nullptr;
    }

    void add(const char* pszRule, const StPlace& stPlace, std::string strWhat, std::string strSo,
             const std::string& strSubject, std::vector<std::string> lstHelp)
    {
        m_oFindings.add(m_stType,
                        {pszRule, stPlace, std::move(strWhat), std::move(strSo), strSubject, std::move(lstHelp), {}});
    }

    const StTypeCatalog&         m_stType;
    const std::set<std::string>& m_setSysOid;
    const StLostNames&           m_stLost;
    CTypeFindings&               m_oFindings;
    StKnownNames                 m_stKnown;
    CHints                       m_oHints;
};
} // namespace

void checkCapacity(const StTypeCatalog& stType, const std::set<std::string>& setSysOid, const StLostNames& stLost,
                   CTypeFindings& oFindings)
{
    if (stType.lstCapacityDocument.empty())
        return;
    CCapacityCheck oCheck(stType, setSysOid, stLost, oFindings);
    for (const StCapacityDocument& stDocument : stType.lstCapacityDocument)
        oCheck.check(stDocument);
}

void checkVersions(const StTypeCatalog& stType, CFileReport& oInventory)
{
    for (const StVersionPlan& stVersion : stType.stPlan.lstVersion)
    {
        if (stVersion.bHasRecord)
            continue;
        const StAsnDevVersion& stName = stVersion.stVersion;
        const std::string      strName =
            stName.strSoftVersion + (stName.strPatchVersion.empty() ? "" : " ") + stName.strPatchVersion;
        oInventory.add("capacity-no-record", {},
                       "version " + inQuotes(strName) + " of " + inQuotes(stType.strDevType) +
                           " is in service and has no capacity record: its devices have no configuration",
                       stType.strKey + "/" + strName);
    }
}
} // namespace lint
