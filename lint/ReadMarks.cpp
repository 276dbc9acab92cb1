// See ReadMarks.h.
#include "lint/ReadMarks.h"

#include "common/RecordRead.h"
#include "common/XmlText.h"

#include <algorithm>
#include <utility>

using namespace xercesc;

namespace lint
{
namespace
{
template <typename Names, typename Name>
bool contains(const Names& lstName, const Name& name)
{
    return std::find(lstName.begin(), lstName.end(), name) != lstName.end();
}
} // namespace

bool StAskedAttribute::isWord(std::string_view strWord) const
{
    return contains(lstWord, strWord);
}

const StAskedAttribute* StQuestions::find(std::string_view strAttribute) const
{
    const auto itAsked =
        std::find_if(lstAttribute.begin(), lstAttribute.end(),
                     [strAttribute](const StAskedAttribute& stAsked) { return stAsked.strName == strAttribute; });
    return itAsked == lstAttribute.end() ? nullptr : &*itAsked;
}

const StAskedAttribute* StQuestions::optionNumber() const
{
    const StAskedAttribute* pValue = find("value");
    return pValue != nullptr && pValue->enReadAs == EnReadAs::Number ? pValue : nullptr;
}

bool StQuestions::looksFor(std::string_view strElement) const
{
    return contains(lstElement, strElement);
}

void CReadMarks::lookup(const DOMNode& oBelow, const char16_t* pszName)
{
    StMark& stMark = mark(oBelow);
    stMark.nAsked  = take(stMark.nAsked, pszName);
}

void CReadMarks::attributeRead(const StAttributeRead& stRead)
{
    StMark& stMark = mark(stRead.oElement);
    stMark.nAsked  = take(stMark.nAsked, stRead);
}

void CReadMarks::recordEnded(const DOMElement& oElement, const void* /*pRecord*/, EnFate enFate)
{
    if (enFate == EnFate::Kept) // nearly all are, and the reader is back from what stands below
        return;
    StMark& stMark = mark(oElement);
    if (questions(stMark).lstElement.empty())
        stMark.bGivenUp = true;
}

const StMark& CReadMarks::of(const DOMNode& oNode) const
{
    static const StMark s_stNone;
    const auto          itNumber = m_mapNumber.find(&oNode);
    return itNumber == m_mapNumber.end() ? s_stNone : m_lstMark[itNumber->second];
}

StMark& CReadMarks::mark(const DOMNode& oNode)
{
    if (m_pLast == &oNode)
        return m_lstMark[m_nLast];
    m_pLast                     = &oNode;
    const auto [itNumber, bNew] = m_mapNumber.try_emplace(&oNode, m_lstMark.size());
    if (bNew)
        m_lstMark.emplace_back();
    m_nLast = itNumber->second;
    return m_lstMark[m_nLast];
}

// Whoever asks for the same once more adds nothing, and stays where it is.
std::size_t CReadMarks::take(std::size_t nAsked, const StAttributeRead& stRead)
{
    for (const StNext& stNext : m_lstShared[nAsked].lstNextAttribute)
    {
        if (stNext.pszName == stRead.pszName && stNext.oWords == stRead.oWords)
            return stNext.nAsked;
    }
    StQuestions       stQuestions = m_lstShared[nAsked].stQuestions;
    const std::size_t nKnown      = stQuestions.lstAttribute.size();
    const std::string strName     = toLocal(stRead.pszName);
    auto              itAsked     = std::find_if(stQuestions.lstAttribute.begin(), stQuestions.lstAttribute.end(),
                                                 [&](const StAskedAttribute& stAsked) { return stAsked.strName == strName; });
    if (itAsked == stQuestions.lstAttribute.end())
        itAsked = stQuestions.lstAttribute.insert(itAsked, {strName, stRead.enReadAs, {}});
    bool bMore = nKnown != stQuestions.lstAttribute.size();
    for (std::size_t nRow = 0; nRow < stRead.oWords.size(); ++nRow)
    {
        const std::string_view strWord = stRead.oWords[nRow];
        if (itAsked->isWord(strWord))
            continue;
        itAsked->lstWord.push_back(strWord);
        bMore = true;
    }
    const std::size_t nNext = bMore ? share(std::move(stQuestions)) : nAsked;
    m_lstShared[nAsked].lstNextAttribute.push_back({stRead.pszName, stRead.oWords, nNext});
    return nNext;
}

std::size_t CReadMarks::take(std::size_t nAsked, const char16_t* pszElement)
{
    for (const StNext& stNext : m_lstShared[nAsked].lstNextElement)
    {
        if (stNext.pszName == pszElement)
            return stNext.nAsked;
    }
    StQuestions       stQuestions = m_lstShared[nAsked].stQuestions;
    const std::string strName     = toLocal(pszElement);
    std::size_t       nNext       = nAsked;
    if (!stQuestions.looksFor(strName))
    {
        stQuestions.lstElement.push_back(strName);
        nNext = share(std::move(stQuestions));
    }
    m_lstShared[nAsked].lstNextElement.push_back({pszElement, {}, nNext});
    return nNext;
}

std::size_t CReadMarks::share(StQuestions stQuestions)
{
    m_lstShared.push_back({std::move(stQuestions), {}, {}});
    return m_lstShared.size() - 1;
}
} // namespace lint
