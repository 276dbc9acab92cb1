// Ids and attributes without which an entry is useless, and blanks around what is
// compared to the letter.
#include "common/XmlText.h"
#include "lint/Nearness.h"
#include "lint/ReadEntries.h"
#include "records/WordTables.h"

#include <algorithm>
#include <set>

using namespace xercesc;

namespace lint
{
namespace
{
// What tells an entry from its siblings, under the names that the sections have for it.
constexpr const char16_t* IDENTITIES[] = {u"id", u"name", u"sysoid"};

std::string withoutBlanks(const std::string& strText)
{
    constexpr const char* BLANKS = " \t\r\n";
    const std::size_t     nBegin = strText.find_first_not_of(BLANKS);
    return nBegin == std::string::npos ? std::string()
                                       : strText.substr(nBegin, strText.find_last_not_of(BLANKS) - nBegin + 1);
}

class CEntryCheck
{
public:
    CEntryCheck(const StReadDocument& stRead, CFileReport& oReport, StLostNames& stLost)
        : m_stRead(stRead), m_oReport(oReport), m_stLost(stLost), m_lstEntry(readEntries(stRead))
    {
        for (const StReadEntry& stEntry : m_lstEntry)
        {
            const StAskedAttribute* pValue = optionValue(stEntry);
            if (pValue != nullptr && pValue->pAttr != nullptr)
                m_setNumbered.insert(stEntry.pOwner);
        }
    }

    void run()
    {
        for (const StReadEntry& stEntry : m_lstEntry)
        {
            for (const char16_t* pszName : IDENTITIES)
            {
                if (const StAskedAttribute* pAsked = findAsked(m_stRead, *stEntry.pElement, pszName))
                    checkIdentity(stEntry, *pAsked);
            }
            if (const StAskedAttribute* pAsked = findAsked(m_stRead, *stEntry.pElement, u"dependsOn"))
                checkBlank(stEntry, *pAsked);
            if (!stEntry.bInside && !stEntry.bSpoilt)
                checkNeeded(stEntry);
        }
    }

private:
    // The number of an option, if the entry is one.
    const StAskedAttribute* optionValue(const StReadEntry& stEntry) const
    {
        const StAskedAttribute* pValue = findAsked(m_stRead, *stEntry.pElement, u"value");
        return pValue != nullptr && pValue->enReadAs == EnReadAs::Number ? pValue : nullptr;
    }

    bool isReference(const DOMElement& oElement) const
    {
        const StAskedAttribute* pType = findAsked(m_stRead, oElement, u"type");
        return pType != nullptr && isWordOf(*pType, TYPE_REF_WORDS[0].strWord);
    }

    void checkIdentity(const StReadEntry& stEntry, const StAskedAttribute& stAsked)
    {
        // A check file says the type's name for people only.
        const bool bForPeople = stEntry.pOwner == nullptr && (m_stRead.enKind == EnFileKind::TelnetCheck ||
                                                              m_stRead.enKind == EnFileKind::FixedCheck);
        const bool bWord      = stAsked.enReadAs == EnReadAs::Word;
        if (bForPeople && !bWord)
            return;
        if (stAsked.pAttr != nullptr && (bWord || *stAsked.pAttr->getValue() != 0))
            return checkBlank(stEntry, stAsked);
        if (stEntry.bInside || stEntry.bSpoilt)
            return;
        const std::string strName = inQuotes(toLocal(stAsked.pszName));
        m_oReport.add("missing-id", spotOf(stEntry, stAsked),
                      tagOf(*stEntry.pElement) + " has no " + strName +
                          (isReference(*stEntry.pElement) ? ": it refers to nothing" : ": nobody will find it"),
                      subjectOf(*stEntry.pElement) + "@" + toLocal(stAsked.pszName));
    }

    void checkBlank(const StReadEntry& stEntry, const StAskedAttribute& stAsked)
    {
        const std::string strValue = valueOf(&stAsked);
        const std::string strText  = withoutBlanks(strValue);
        if (stAsked.enReadAs != EnReadAs::Text || strText.size() == strValue.size())
            return;
        m_stLost.setText.insert(strValue);
        m_stLost.setText.insert(strText);
        m_oReport.add("outer-blank", spotOf(stEntry, stAsked),
                      inQuotes(strValue) + " is another " + inQuotes(toLocal(stAsked.pszName)) + " than " +
                          inQuotes(strText) + ": the blank counts",
                      subjectOf(*stEntry.pElement) + "@" + toLocal(stAsked.pszName), {"write " + inQuotes(strText)});
    }

    void checkNeeded(const StReadEntry& stEntry)
    {
        const DOMElement& oElement = *stEntry.pElement;
        const bool        bEntry   = m_stRead.enKind == EnFileKind::Capacity;
        if (isReference(oElement))
            need(stEntry, u"type", "no client knows which kind of operation is meant",
                 "DeviceOperation, TaskOperation, PatchOperation, CheckOperation, CustomOperation or OtherOperation");
        need(stEntry, u"isSupported", bEntry ? "it takes the operation away" : "it is not supported",
             "\"1\" for yes, \"0\" for no");
        if (bEntry)
            need(stEntry, u"isRequired", "it takes the parameter away", "\"1\" to keep it, \"0\" to take it away");
        need(stEntry, u"filename", "the operation has no resource file", nullptr);
        if (optionValue(stEntry) != nullptr && m_setNumbered.count(stEntry.pOwner) != 0)
            need(stEntry, u"value", "its number is 0, while other options have theirs", nullptr);
    }

    void need(const StReadEntry& stEntry, const char16_t* pszName, const char* pszSo, const char* pszWrite)
    {
        const StAskedAttribute* pAsked = findAsked(m_stRead, *stEntry.pElement, pszName);
        if (pAsked == nullptr || pAsked->pAttr != nullptr)
            return;
        const std::string strName = toLocal(pszName);
        m_oReport.add("missing-attribute", spotOf(stEntry, *pAsked),
                      tagOf(*stEntry.pElement) + " has no " + inQuotes(strName) + ": " + pszSo,
                      subjectOf(*stEntry.pElement) + "@" + strName,
                      pszWrite == nullptr ? std::vector<std::string>() : std::vector{"write " + std::string(pszWrite)});
    }

    // The attribute's value, or the element where it has none.
    StSpot spotOf(const StReadEntry& stEntry, const StAskedAttribute& stAsked) const
    {
        return m_stRead.oPlaces.valueSpot(*stEntry.pElement, stAsked.pszName);
    }

    const StReadDocument&       m_stRead;
    CFileReport&                m_oReport;
    StLostNames&                m_stLost;
    std::vector<StReadEntry>    m_lstEntry;
    std::set<const DOMElement*> m_setNumbered; // parameters of which an option has its number
};
} // namespace

void checkEntries(const StReadDocument& stRead, CFileReport& oReport, StLostNames& stLost)
{
    CEntryCheck(stRead, oReport, stLost).run();
}
} // namespace lint
