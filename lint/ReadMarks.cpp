// See ReadMarks.h.
#include "lint/ReadMarks.h"

#include "common/RecordRead.h"

#include <xercesc/util/XMLString.hpp>

#include <algorithm>

using namespace xercesc;

namespace lint
{
void CReadMarks::lookup(const DOMNode& oBelow, const char16_t* pszName)
{
    std::vector<const char16_t*>& lstName = m_mapLookup[&oBelow];
    if (std::none_of(lstName.begin(), lstName.end(),
                     [pszName](const char16_t* pszKnown) { return XMLString::equals(pszKnown, pszName); }))
        lstName.push_back(pszName);
}

void CReadMarks::attributeRead(const StAttributeRead& stRead)
{
    std::vector<StAskedAttribute>& lstAsked = m_mapAttribute[&stRead.oElement];
    for (StAskedAttribute& stAsked : lstAsked)
    {
        if (!XMLString::equals(stAsked.pszName, stRead.pszName))
            continue;
        for (const std::string_view strWord : stRead.lstWord)
        {
            if (std::find(stAsked.lstWord.begin(), stAsked.lstWord.end(), strWord) == stAsked.lstWord.end())
                stAsked.lstWord.push_back(strWord);
        }
        return;
    }
    lstAsked.push_back({stRead.pszName, stRead.pAttr, stRead.enReadAs, stRead.lstWord});
}

void CReadMarks::recordEnded(const DOMElement& oElement, const void* /*pRecord*/, EnFate enFate)
{
    if (enFate != EnFate::Kept && m_mapLookup.count(&oElement) == 0)
        m_setGivenUp.insert(&oElement);
}

const std::vector<StAskedAttribute>& CReadMarks::attributes(const DOMElement& oElement) const
{
    static const std::vector<StAskedAttribute> s_lstNone;
    const auto                                 itAsked = m_mapAttribute.find(&oElement);
    return itAsked == m_mapAttribute.end() ? s_lstNone : itAsked->second;
}

const std::vector<const char16_t*>& CReadMarks::lookups(const DOMNode& oNode) const
{
    static const std::vector<const char16_t*> s_lstNone;
    const auto                                itLookup = m_mapLookup.find(&oNode);
    return itLookup == m_mapLookup.end() ? s_lstNone : itLookup->second;
}
} // namespace lint
