// See ReadTree.h.
#include "lint/ReadTree.h"

#include "common/XmlRead.h"
#include "lint/Nearness.h"
#include "lint/Phrases.h"

#include <algorithm>

using namespace xercesc;

namespace lint
{
namespace
{
const StWrittenAttribute* findWritten(const StReadElement& stElement, std::string_view strAttribute)
{
    for (const StWrittenAttribute& stWritten : stElement.lstAttribute)
    {
        if (stWritten.strName == strAttribute)
            return &stWritten;
    }
    return nullptr;
}

// Two elements whose readers look for the same names, one inside the other without
// being looked for by it: what stands in the inner one belongs to both.
bool shares(const StReadElement& stOuter, const StReadElement& stInner)
{
    const std::vector<std::string>& lstName = stInner.pAsked->lstElement;
    return !lstName.empty() && !stOuter.pAsked->looksFor(stInner.strName) &&
           std::any_of(lstName.begin(), lstName.end(),
                       [&](const std::string& strName) { return stOuter.pAsked->looksFor(strName); });
}

bool isSpoilt(const StReadElement& stElement)
{
    std::vector<std::string> lstMissing;
    for (const StAskedAttribute& stAsked : stElement.pAsked->lstAttribute)
    {
        if (!stElement.isRead(stAsked.strName))
            lstMissing.push_back(stAsked.strName);
    }
    // What was not asked for where the reader gave up may be right.
    return std::any_of(stElement.lstAttribute.begin(), stElement.lstAttribute.end(),
                       [&](const StWrittenAttribute& stWritten) {
                           return !stWritten.isRead() &&
                                  (!stElement.stMark.bGivenUp || !nearestName(stWritten.strName, lstMissing).empty());
                       });
}

bool hasUnread(const StReadElement& stElement)
{
    return std::any_of(stElement.lstAttribute.begin(), stElement.lstAttribute.end(),
                       [](const StWrittenAttribute& stWritten) { return !stWritten.isRead(); });
}

std::size_t attributeCount(const catalog::CDocumentPlaces& oPlaces)
{
    std::size_t nAttributes = 0;
    for (const catalog::StElementPlace& stPlace : oPlaces.elements())
        nAttributes += stPlace.pElement->getAttributes()->getLength();
    return nAttributes;
}
} // namespace

std::string_view StReadElement::value(std::string_view strAttribute) const
{
    const StWrittenAttribute* pWritten = findWritten(*this, strAttribute);
    return pWritten == nullptr ? std::string_view() : pWritten->strValue;
}

bool StReadElement::isRead(std::string_view strAttribute) const
{
    const StWrittenAttribute* pWritten = findWritten(*this, strAttribute);
    return pWritten != nullptr && pWritten->isRead();
}

std::string_view StReadElement::read(std::string_view strAttribute) const
{
    const StWrittenAttribute* pWritten = findWritten(*this, strAttribute);
    return pWritten == nullptr || !pWritten->isRead() ? std::string_view() : pWritten->strValue;
}

const StWrittenAttribute* StReadElement::written(const StAskedAttribute& stAsked) const
{
    const auto* pWritten =
        std::find_if(lstAttribute.begin(), lstAttribute.end(),
                     [&stAsked](const StWrittenAttribute& stWritten) { return stWritten.pAsked == &stAsked; });
    return pWritten == lstAttribute.end() ? nullptr : pWritten;
}

std::string StReadElement::subject() const
{
    std::string strStep = shortened(strName);
    if (const std::string_view strId = value("id"); !strId.empty())
        strStep += "[" + shortened(strId) + "]";
    return pParent == nullptr ? strStep : pParent->subject() + "/" + strStep;
}

CReadTree::CReadTree(const DOMDocument& oDocument, const catalog::CDocumentPlaces& oPlaces, const CReadMarks& oMarks)
    : m_oMarks(oMarks), m_stOfDocument(oMarks.questions(oMarks.of(oDocument))),
      m_oTextPool(oPlaces.text()->bytes().size()), m_lstElement(oPlaces.elements().size())
{
    m_lstAttribute.reserve(attributeCount(oPlaces)); // elements point into it
    std::vector<StReadElement*> lstOpen;
    for (std::size_t nAt = 0; nAt < m_lstElement.size(); ++nAt)
    {
        const catalog::StElementPlace& stPlace   = oPlaces.elements()[nAt];
        StReadElement&                 stElement = m_lstElement[nAt];
        while (!lstOpen.empty() && lstOpen.back()->pEnd == &stElement)
            lstOpen.pop_back();
        stElement.pParent = lstOpen.empty() ? nullptr : lstOpen.back();
        stElement.pEnd    = m_lstElement.data() + stPlace.nEnd;
        fill(stElement, *stPlace.pElement);
        if (stElement.stMark.bMet)
            link(stElement, lstOpen);
        lstOpen.push_back(&stElement);
    }
}

void CReadTree::fill(StReadElement& stElement, const DOMElement& oElement)
{
    stElement.pElement             = &oElement;
    stElement.strName              = nameOf(oElement.getNodeName());
    stElement.stMark               = m_oMarks.of(oElement);
    stElement.pAsked               = &m_oMarks.questions(stElement.stMark);
    const DOMNamedNodeMap& oMap    = *oElement.getAttributes();
    const XMLSize_t        nLength = oMap.getLength();
    const std::size_t      nFirst  = m_lstAttribute.size();
    for (XMLSize_t nAt = 0; nAt < nLength; ++nAt)
        m_lstAttribute.push_back(attribute(stElement, static_cast<const DOMAttr&>(*oMap.item(nAt))));
    stElement.lstAttribute = {m_lstAttribute.data() + nFirst, m_lstAttribute.data() + m_lstAttribute.size()};
}

StWrittenAttribute CReadTree::attribute(const StReadElement& stElement, const DOMAttr& oAttr)
{
    const XMLCh* const     pszPooled = oAttr.getName();
    const std::string_view strValue  = textOf(valueOf(oAttr));
    auto& lstKnown = m_oKnown.of(stElement, [](const StQuestions&) { return std::vector<StKnownName>(); });
    for (const StKnownName& stKnown : lstKnown)
    {
        if (stKnown.pszPooled == pszPooled)
            return {stKnown.pAsked->strName, strValue, stKnown.pAsked};
    }
    const std::string_view        strName = nameOf(pszPooled);
    const StAskedAttribute* const pAsked  = stElement.pAsked->find(strName);
    if (pAsked != nullptr) // of all others a document may have any number
        lstKnown.push_back({pszPooled, pAsked});
    return {strName, strValue, pAsked};
}

// Finds whose an element is that a reader came to.
void CReadTree::link(StReadElement& stElement, const std::vector<StReadElement*>& lstOpen)
{
    stElement.bHoldsMet = true;
    for (auto itOpen = lstOpen.rbegin(); itOpen != lstOpen.rend(); ++itOpen)
    {
        StReadElement& stOpen = **itOpen;
        stOpen.bHoldsMet      = true;
        if (!stOpen.stMark.bMet)
            continue;
        stElement.bInside = stElement.bInside || stOpen.bInside;
        if (stElement.pOwner == nullptr && stOpen.pAsked->looksFor(stElement.strName))
            stElement.pOwner = &stOpen;
        if (stElement.pAround == nullptr && shares(stOpen, stElement))
            stElement.pAround = &stOpen;
    }
    stElement.bInside = stElement.bInside || stElement.pAround != nullptr;
    stElement.bSpoilt = hasUnread(stElement) && isSpoilt(stElement);
}

std::string_view CReadTree::nameOf(const XMLCh* pszPooled)
{
    const auto [itName, bNew] = m_mapName.try_emplace(pszPooled);
    if (bNew)
        itName->second = toLocal(pszPooled);
    return itName->second;
}

std::string_view CReadTree::textOf(std::u16string_view strText)
{
    if (strText.empty())
        return {};
    auto* pText = static_cast<char*>(m_oTextPool.allocate(strText.size(), 1));
    if (toAscii(strText, pText))
        return {pText, strText.size()};
    const std::string strLocal = toLocal(strText.data(), strText.size());
    pText                      = static_cast<char*>(m_oTextPool.allocate(strLocal.size(), 1));
    std::copy(strLocal.begin(), strLocal.end(), pText);
    return {pText, strLocal.size()};
}
} // namespace lint
