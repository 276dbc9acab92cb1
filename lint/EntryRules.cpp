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

class CEntryCheck
{
public:
    CEntryCheck(const StReadDocument& stRead, CFileReport& oReport, StLostNames& stLost)
        : m_stRead(stRead), m_oReport(oReport), m_stLost(stLost)
    {
        for (const StReadElement& stEntry : m_stRead.oTree.elements())
        {
            if (stEntry.stMark.bMet && stEntry.isOption() && stEntry.isRead("value"))
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
            for (const char* pszName : IDENTITIES)
            {
                if (const StAskedAttribute* pAsked = stEntry.asked(pszName))
                    checkIdentity(stEntry, *pAsked);
            }
            if (const StAskedAttribute* pAsked = stEntry.asked("dependsOn"))
                checkBlank(stEntry, *pAsked);
            if (!stEntry.bInside && !stEntry.bSpoilt)
                checkNeeded(stEntry);
        }
    }

private:
    static bool isReference(const StReadElement& stEntry)
    {
        const StAskedAttribute* pType = stEntry.asked("type");
        return pType != nullptr && pType->isWord(TYPE_REF_WORDS[0].strWord);
    }

    void checkIdentity(const StReadElement& stEntry, const StAskedAttribute& stAsked)
    {
        // A check file says the type's name for people only.
        const bool bForPeople = stEntry.pOwner == nullptr && (m_stRead.enKind == EnFileKind::TelnetCheck ||
                                                              m_stRead.enKind == EnFileKind::FixedCheck);
        const bool bWord      = stAsked.enReadAs == EnReadAs::Word;
        if (bForPeople && !bWord)
            return;
        if (stEntry.isRead(stAsked.strName) && (bWord || !stEntry.read(stAsked.strName).empty()))
            return checkBlank(stEntry, stAsked);
        if (stEntry.bInside || stEntry.bSpoilt)
            return;
        m_oReport.add("missing-id", spotOf(stEntry, stAsked),
                      tag(stEntry.strName) + " has no " + inQuotes(stAsked.strName) +
                          (isReference(stEntry) ? ": it refers to nothing" : ": nobody will find it"),
                      stEntry.subject() + "@" + stAsked.strName);
    }

    void checkBlank(const StReadElement& stEntry, const StAskedAttribute& stAsked)
    {
        const std::string strValue(stEntry.read(stAsked.strName));
        const std::string strText(trimmed(strValue));
        if (stAsked.enReadAs != EnReadAs::Text || strText.size() == strValue.size())
            return;
        m_stLost.setText.insert(strValue);
        m_stLost.setText.insert(strText);
        m_oReport.add("outer-blank", spotOf(stEntry, stAsked),
                      inQuotes(strValue) + " is another " + inQuotes(stAsked.strName) + " than " + inQuotes(strText) +
                          ": the blank counts",
                      stEntry.subject() + "@" + stAsked.strName, {"write " + inQuotes(strText)});
    }

    void checkNeeded(const StReadElement& stEntry)
    {
        const bool bEntry = m_stRead.enKind == EnFileKind::Capacity;
        if (isReference(stEntry))
            need(stEntry, "type", "no client knows which kind of operation is meant",
                 "DeviceOperation, TaskOperation, PatchOperation, CheckOperation, CustomOperation or OtherOperation");
        need(stEntry, "isSupported", bEntry ? "it takes the operation away" : "it is not supported",
             "\"1\" for yes, \"0\" for no");
        if (bEntry)
            need(stEntry, "isRequired", "it takes the parameter away", "\"1\" to keep it, \"0\" to take it away");
        need(stEntry, "filename", "the operation has no resource file", nullptr);
        if (stEntry.isOption() && m_setNumbered.count(stEntry.pOwner) != 0)
            need(stEntry, "value", "its number is 0, while other options have theirs", nullptr);
    }

    void need(const StReadElement& stEntry, const char* pszName, const char* pszSo, const char* pszWrite)
    {
        const StAskedAttribute* pAsked = stEntry.asked(pszName);
        if (pAsked == nullptr || stEntry.isRead(pszName))
            return;
        m_oReport.add("missing-attribute", spotOf(stEntry, *pAsked),
                      tag(stEntry.strName) + " has no " + inQuotes(pszName) + ": " + pszSo,
                      stEntry.subject() + "@" + pszName,
                      pszWrite == nullptr ? std::vector<std::string>() : std::vector{"write " + std::string(pszWrite)});
    }

    // The attribute's value, or the element where it has none.
    StSpot spotOf(const StReadElement& stEntry, const StAskedAttribute& stAsked) const
    {
        return m_stRead.oPlaces.valueSpot(*stEntry.pElement, stAsked.strName);
    }

    const StReadDocument&          m_stRead;
    CFileReport&                   m_oReport;
    StLostNames&                   m_stLost;
    std::set<const StReadElement*> m_setNumbered; // parameters of which an option has its number
};
} // namespace

void checkEntries(const StReadDocument& stRead, CFileReport& oReport, StLostNames& stLost)
{
    CEntryCheck(stRead, oReport, stLost).run();
}
} // namespace lint
