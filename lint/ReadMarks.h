// What the readers asked a document for: the marks by which everything that stands
// in a file and nobody reads is found. Fills itself while it is the observer of a
// read (common/ReadObserver.h). One thread; the document must outlive the marks, and
// the marks whoever holds what they answer.
#ifndef OPERATIONXML_LINT_READMARKS_H
#define OPERATIONXML_LINT_READMARKS_H

#include "common/ReadObserver.h"

#include <tsl/robin_map.h>

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace lint
{
// One attribute that was asked for, whether the element has it or not. Readers that
// ask for it by different words add up.
struct StAskedAttribute
{
    std::string                   strName;
    EnReadAs                      enReadAs;
    std::vector<std::string_view> lstWord;

    bool isWord(std::string_view strWord) const;
};

// What the readers of an element asked for: each name once, in the order in which it
// was asked for first.
struct StQuestions
{
    std::vector<StAskedAttribute> lstAttribute;
    std::vector<std::string>      lstElement; // looked for below it

    const StAskedAttribute* find(std::string_view strAttribute) const; // null: nobody asked

    // The number by which an option is told, whatever its element is called; null: it is none.
    const StAskedAttribute* optionNumber() const;

    bool looksFor(std::string_view strElement) const;
};

struct StMark
{
    std::size_t nAsked    = 0;     // the number of its questions
    bool        bMet      = false; // a reader came to it
    bool        bTextRead = false;
    bool        bGivenUp  = false; // by its reader, before it looked into it
};

class CReadMarks : public CReadObserver
{
public:
    void lookup(const xercesc::DOMNode& oBelow, const char16_t* pszName) override;
    void elementMet(const xercesc::DOMElement& oElement) override { mark(oElement).bMet = true; }
    void attributeRead(const StAttributeRead& stRead) override;
    void textRead(const xercesc::DOMElement& oElement) override { mark(oElement).bTextRead = true; }
    void recordBegun(const xercesc::DOMElement& /*oElement*/, const void* /*pRecord*/, const void* /*pList*/) override
    {
    }
    void recordEnded(const xercesc::DOMElement& oElement, const void* pRecord, EnFate enFate) override;
    void recordCopied(const void* /*pFrom*/, const void* /*pTo*/) override {}
    void recordPruned(const void* /*pRecord*/, const std::string& /*strId*/, const void* /*pCapacity*/) override {}

    // Of an element, or of the document.
    const StMark&      of(const xercesc::DOMNode& oNode) const;
    const StQuestions& questions(const StMark& stMark) const { return m_lstShared[stMark.nAsked].stQuestions; }

private:
    // One question more, and the number of the questions that it leads to.
    struct StNext
    {
        const char16_t* pszName;
        CWordTable      oWords; // of an attribute that is a word
        std::size_t     nAsked;
    };
    // Elements of one kind are asked the same in the same order, and share it.
    struct StShared
    {
        StQuestions         stQuestions;
        std::vector<StNext> lstNextAttribute;
        std::vector<StNext> lstNextElement;
    };

    StMark&     mark(const xercesc::DOMNode& oNode);
    std::size_t take(std::size_t nAsked, const StAttributeRead& stRead);
    std::size_t take(std::size_t nAsked, const char16_t* pszElement);
    std::size_t share(StQuestions stQuestions);

    std::deque<StShared>                                 m_lstShared{1}; // the first one asks nothing
    tsl::robin_map<const xercesc::DOMNode*, std::size_t> m_mapNumber;    // of the nodes that have marks
    std::vector<StMark>                                  m_lstMark;
    const xercesc::DOMNode*                              m_pLast = nullptr; // a reader stays at one for a while
    std::size_t                                          m_nLast = 0;       // the number of its mark
};
} // namespace lint

#endif
