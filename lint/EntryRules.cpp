// Ids and attributes without which an entry is useless, and blanks around what is
// compared to the letter.
#include "lint/DocumentRules.h"
#include "lint/Phrases.h"
#include "records/WordTables.h"

#include <set>

namespace lint
{
namespace
{
// What tells an entry from its siblings, under the names that the sections have for it.
constexpr const char* IDENTITIES[] = {"id", "name", "sysoid"};

bool isReference(const StQuestions& stAsked)
{
    const StAskedAttribute* pType = stAsked.find("type");
    return pType != nullptr && pType->isWord(TYPE_REF_WORDS[0].strWord);
}

// An attribute that an entry must not leave out.
struct StNeed
{
    const StAskedAttribute* pAsked;
    const char*             pszSo;
    const char*             pszWrite; // null: whatever it is
};

// What all entries have in common whose readers asked the same.
struct StEntryKind
{
    std::vector<const StAskedAttribute*> lstIdentity;
    const StAskedAttribute*              pDependsOn = nullptr;
    const StAskedAttribute*              pNumber    = nullptr; // of an option
    bool                                 bReference = false;
    std::vector<StNeed>                  lstNeed;

    void need(const StQuestions& stAsked, const char* pszName, const char* pszSo, const char* pszWrite)
    {
        if (const StAskedAttribute* pAsked = stAsked.find(pszName))
            lstNeed.push_back({pAsked, pszSo, pszWrite});
    }
};

StEntryKind entryKind(const StQuestions& stAsked, EnFileKind enKind)
{
    StEntryKind stKind;
    for (const char* pszName : IDENTITIES)
    {
        if (const StAskedAttribute* pAsked = stAsked.find(pszName))
            stKind.lstIdentity.push_back(pAsked);
    }
    stKind.pDependsOn = stAsked.find("dependsOn");
    stKind.pNumber    = stAsked.optionNumber();
    stKind.bReference = isReference(stAsked);
    const bool bEntry = enKind == EnFileKind::Capacity;
    if (stKind.bReference)
        stKind.need(
            stAsked, "type", "no client knows which kind of operation is meant",
            "DeviceOperation, TaskOperation, PatchOperation, CheckOperation, CustomOperation or OtherOperation");
    stKind.need(stAsked, "isSupported", bEntry ? "it takes the operation away" : "it is not supported",
                "\"1\" for yes, \"0\" for no");
    if (bEntry)
        stKind.need(stAsked, "isRequired", "it takes the parameter away", "\"1\" to keep it, \"0\" to take it away");
    stKind.need(stAsked, "filename", "the operation has no resource file", nullptr);
    return stKind;
}

class CEntryCheck
{
public:
    CEntryCheck(const StReadDocument& stRead, CFileReport& oReport, StLostNames& stLost)
        : m_stRead(stRead), m_oReport(oReport), m_stLost(stLost)
    {
        for (const StReadElement& stEntry : m_stRead.oTree.elements())
        {
            const StAskedAttribute* pNumber = stEntry.stMark.bMet ? kindOf(stEntry).pNumber : nullptr;
            if (pNumber != nullptr && stEntry.written(*pNumber) != nullptr)
                m_setNumbered.insert(stEntry.pOwner);
        }
    }

    void run()
    {
        for (const StReadElement& stEntry : m_stRead.oTree.elements())
        {
            if (m_oReport.isFull())
                return;
            if (!stEntry.stMark.bMet)
                continue;
            const StEntryKind& stKind = kindOf(stEntry);
            for (const StAskedAttribute* pAsked : stKind.lstIdentity)
                checkIdentity(stEntry, stKind, *pAsked);
            if (stKind.pDependsOn != nullptr)
                checkBlank(stEntry, *stKind.pDependsOn, textOf(stEntry, *stKind.pDependsOn));
            if (!stEntry.bInside && !stEntry.bSpoilt)
                checkNeeded(stEntry, stKind);
        }
    }

private:
    const StEntryKind& kindOf(const StReadElement& stEntry)
    {
        return m_oKinds.of(stEntry, [this](const StQuestions& stAsked) { return entryKind(stAsked, m_stRead.enKind); });
    }

    static std::string_view textOf(const StReadElement& stEntry, const StAskedAttribute& stAsked)
    {
        const StWrittenAttribute* pWritten = stEntry.written(stAsked);
        return pWritten == nullptr ? std::string_view() : pWritten->strValue;
    }

    void checkIdentity(const StReadElement& stEntry, const StEntryKind& stKind, const StAskedAttribute& stAsked)
    {
        // A check file says the type's name for people only.
        const bool bForPeople = stEntry.pOwner == nullptr && (m_stRead.enKind == EnFileKind::TelnetCheck ||
                                                              m_stRead.enKind == EnFileKind::FixedCheck);
        const bool bWord      = stAsked.enReadAs == EnReadAs::Word;
        if (bForPeople && !bWord)
            return;
        const std::string_view strText = textOf(stEntry, stAsked);
        if (!strText.empty() || (bWord && stEntry.written(stAsked) != nullptr))
            return checkBlank(stEntry, stAsked, strText);
        if (stEntry.bInside || stEntry.bSpoilt)
            return;
        m_oReport.add("missing-id", spotOf(stEntry, stAsked),
                      tag(stEntry.strName) + " has no " + inQuotes(stAsked.strName) +
                          (stKind.bReference ? ": it refers to nothing" : ": nobody will find it"),
                      stEntry.subject() + "@" + stAsked.strName);
    }

    void checkBlank(const StReadElement& stEntry, const StAskedAttribute& stAsked, std::string_view strValue)
    {
        const std::string_view strText = trimmed(strValue);
        if (stAsked.enReadAs != EnReadAs::Text || strText.size() == strValue.size())
            return;
        m_stLost.setText.emplace(strValue);
        m_stLost.setText.emplace(strText);
        m_oReport.add("outer-blank", spotOf(stEntry, stAsked),
                      inQuotes(strValue) + " is another " + inQuotes(stAsked.strName) + " than " + inQuotes(strText) +
                          ": the blank counts",
                      stEntry.subject() + "@" + stAsked.strName, {"write " + inQuotes(strText)});
    }

    void checkNeeded(const StReadElement& stEntry, const StEntryKind& stKind)
    {
        for (const StNeed& stNeed : stKind.lstNeed)
            need(stEntry, stNeed);
        if (stKind.pNumber != nullptr && m_setNumbered.count(stEntry.pOwner) != 0)
            need(stEntry, {stKind.pNumber, "its number is 0, while other options have theirs", nullptr});
    }

    void need(const StReadElement& stEntry, const StNeed& stNeed)
    {
        const StAskedAttribute& stAsked = *stNeed.pAsked;
        if (stEntry.written(stAsked) != nullptr)
            return;
        m_oReport.add("missing-attribute", spotOf(stEntry, stAsked),
                      tag(stEntry.strName) + " has no " + inQuotes(stAsked.strName) + ": " + stNeed.pszSo,
                      stEntry.subject() + "@" + stAsked.strName,
                      stNeed.pszWrite == nullptr ? std::vector<std::string>()
                                                 : std::vector{"write " + std::string(stNeed.pszWrite)});
    }

    // The attribute's value, or the element where it has none.
    StSpot spotOf(const StReadElement& stEntry, const StAskedAttribute& stAsked) const
    {
        return m_stRead.oPlaces.valueSpot(*stEntry.pElement, stAsked.strName);
    }

    const StReadDocument&          m_stRead;
    CFileReport&                   m_oReport;
    StLostNames&                   m_stLost;
    CByQuestions<StEntryKind>      m_oKinds;
    std::set<const StReadElement*> m_setNumbered; // parameters of which an option has its number
};
} // namespace

void checkEntries(const StReadDocument& stRead, CFileReport& oReport, StLostNames& stLost)
{
    CEntryCheck(stRead, oReport, stLost).run();
}
} // namespace lint
