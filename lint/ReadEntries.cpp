// See ReadEntries.h.
#include "lint/ReadEntries.h"

#include "common/XmlRead.h"
#include "lint/Nearness.h"

#include <algorithm>
#include <set>

using namespace xercesc;

namespace lint
{
namespace
{
bool looksFor(const StReadDocument& stRead, const DOMNode& oNode, const char16_t* pszName)
{
    const std::vector<const char16_t*>& lstName = stRead.oMarks.lookups(oNode);
    return std::any_of(lstName.begin(), lstName.end(),
                       [pszName](const char16_t* pszLookup) { return XMLString::equals(pszLookup, pszName); });
}

// Two elements whose readers look for the same names, one inside the other without
// being looked for by it: what stands in the inner one belongs to both.
bool shares(const StReadDocument& stRead, const DOMElement& oOuter, const DOMElement& oInner)
{
    const std::vector<const char16_t*>& lstName = stRead.oMarks.lookups(oInner);
    return !looksFor(stRead, oOuter, oInner.getTagName()) &&
           std::any_of(lstName.begin(), lstName.end(),
                       [&](const char16_t* pszName) { return looksFor(stRead, oOuter, pszName); });
}

class CEntryWalk
{
public:
    explicit CEntryWalk(const StReadDocument& stRead) : m_stRead(stRead) {}

    void walk(const DOMElement& oElement, bool bInside)
    {
        const bool bMet = m_stRead.oMarks.isMet(oElement);
        if (bMet)
        {
            const StReadEntry stEntry = entryOf(oElement, bInside);
            bInside                   = stEntry.bInside;
            lstEntry.push_back(stEntry);
            m_lstOpen.push_back(&oElement);
        }
        for (const DOMElement* pChild = oElement.getFirstElementChild(); pChild != nullptr;
             pChild                   = pChild->getNextElementSibling())
            walk(*pChild, bInside);
        if (bMet)
            m_lstOpen.pop_back();
    }

    std::vector<StReadEntry> lstEntry;

private:
    StReadEntry entryOf(const DOMElement& oElement, bool bInside) const
    {
        StReadEntry stEntry;
        stEntry.pElement = &oElement;
        for (auto itOpen = m_lstOpen.rbegin(); itOpen != m_lstOpen.rend(); ++itOpen)
        {
            if (stEntry.pOwner == nullptr && looksFor(m_stRead, **itOpen, oElement.getTagName()))
                stEntry.pOwner = *itOpen;
            if (stEntry.pAround == nullptr && shares(m_stRead, **itOpen, oElement))
                stEntry.pAround = *itOpen;
        }
        stEntry.bInside = bInside || stEntry.pAround != nullptr;
        stEntry.bSpoilt = isSpoilt(oElement);
        return stEntry;
    }

    bool isSpoilt(const DOMElement& oElement) const
    {
        std::vector<std::string> lstMissing;
        std::set<std::string>    setRead;
        for (const StAskedAttribute& stAsked : m_stRead.oMarks.attributes(oElement))
        {
            if (stAsked.pAttr == nullptr)
                lstMissing.push_back(toLocal(stAsked.pszName));
            else
                setRead.insert(toLocal(stAsked.pszName));
        }
        // What was not asked for where the reader gave up may be right.
        const bool             bGivenUp = m_stRead.oMarks.isGivenUp(oElement);
        const DOMNamedNodeMap& oMap     = *oElement.getAttributes();
        for (XMLSize_t nAt = 0; nAt < oMap.getLength(); ++nAt)
        {
            const std::string strName = toLocal(oMap.item(nAt)->getNodeName());
            if (setRead.count(strName) == 0 && (!bGivenUp || !nearestName(strName, lstMissing).empty()))
                return true;
        }
        return false;
    }

    const StReadDocument&          m_stRead;
    std::vector<const DOMElement*> m_lstOpen; // those around the current one that were read
};
} // namespace

std::vector<StReadEntry> readEntries(const StReadDocument& stRead)
{
    CEntryWalk oWalk(stRead);
    oWalk.walk(*stRead.oDocument.getDocumentElement(), false);
    return std::move(oWalk.lstEntry);
}

const StAskedAttribute* findAsked(const StReadDocument& stRead, const DOMElement& oElement, const char16_t* pszName)
{
    for (const StAskedAttribute& stAsked : stRead.oMarks.attributes(oElement))
    {
        if (XMLString::equals(stAsked.pszName, pszName))
            return &stAsked;
    }
    return nullptr;
}

bool isWordOf(const StAskedAttribute& stAsked, std::string_view strWord)
{
    return std::find(stAsked.lstWord.begin(), stAsked.lstWord.end(), strWord) != stAsked.lstWord.end();
}

std::string valueOf(const StAskedAttribute* pAsked)
{
    return pAsked == nullptr || pAsked->pAttr == nullptr ? std::string() : toLocal(pAsked->pAttr->getValue());
}

std::string tagOf(const DOMElement& oElement)
{
    return "<" + toLocal(oElement.getTagName()) + ">";
}

std::string inQuotes(std::string_view strText)
{
    return "\"" + std::string(strText) + "\"";
}
} // namespace lint
