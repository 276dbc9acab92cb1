// One document as it was read: its elements in document order as plain values, each
// with what the readers asked for there and whose reader came to it. Made in one walk
// after the read; all rules of one document run on it. The document and the marks must
// outlive it, and it stays where it was made. One thread.
#ifndef OPERATIONXML_LINT_READTREE_H
#define OPERATIONXML_LINT_READTREE_H

#include "catalog/PlacedParser.h"
#include "lint/ReadMarks.h"

#include <memory>
#include <memory_resource>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace lint
{
struct StWrittenAttribute
{
    std::string_view        strName;
    std::string_view        strValue;
    const StAskedAttribute* pAsked; // null: no reader asked for it

    bool isRead() const { return pAsked != nullptr; }
};

// Some of the attributes of a tree.
struct StAttributes
{
    const StWrittenAttribute* pBegin = nullptr;
    const StWrittenAttribute* pEnd   = nullptr;

    const StWrittenAttribute* begin() const { return pBegin; }
    const StWrittenAttribute* end() const { return pEnd; }
};

struct StReadElement
{
    const xercesc::DOMElement* pElement = nullptr; // for its place
    std::string_view           strName;
    StAttributes               lstAttribute;
    const StQuestions*         pAsked = nullptr;
    StMark                     stMark;
    bool                       bHoldsMet = false;   // some reader came to it, or to an element in it
    const StReadElement*       pParent   = nullptr; // null: the root
    const StReadElement*       pEnd      = nullptr; // the element behind all that stand in it

    // Of those that a reader came to:
    const StReadElement* pOwner  = nullptr; // whose reader looked for it; null: looked for in the whole document
    const StReadElement* pAround = nullptr; // takes what stands in it as its own, too; null: as it should be
    bool                 bInside = false;   // it, or one around it, stands in such an element
    bool                 bSpoilt = false;   // has an attribute that nobody reads

    // What is written, whether somebody reads it or not; empty when it is not there.
    std::string_view value(std::string_view strAttribute) const;

    // The attribute if the readers asked for it, or null; whether it is there as well,
    // and its value, empty when it is not there or nobody asked.
    const StAskedAttribute* asked(std::string_view strAttribute) const { return pAsked->find(strAttribute); }
    bool                    isRead(std::string_view strAttribute) const;
    std::string_view        read(std::string_view strAttribute) const;

    // The one that was asked for, as it is written; null when it is not there.
    const StWrittenAttribute* written(const StAskedAttribute& stAsked) const;

    // The names of the elements down to it, each with its id: how it is told in a
    // finding that must stay when lines move.
    std::string subject() const;
};

// What is found out once for all elements whose readers asked the same.
template <typename Value>
class CByQuestions
{
public:
    // fnMake(questions) finds it out.
    template <typename Make>
    Value& of(const StReadElement& stElement, const Make& fnMake)
    {
        if (m_lstValue.size() <= stElement.stMark.nAsked)
            m_lstValue.resize(stElement.stMark.nAsked + 1);
        std::unique_ptr<Value>& pValue = m_lstValue[stElement.stMark.nAsked];
        if (pValue == nullptr)
            pValue = std::make_unique<Value>(fnMake(*stElement.pAsked));
        return *pValue;
    }

private:
    std::vector<std::unique_ptr<Value>> m_lstValue;
};

class CReadTree
{
public:
    CReadTree(const xercesc::DOMDocument& oDocument, const catalog::CDocumentPlaces& oPlaces, const CReadMarks& oMarks);
    CReadTree(const CReadTree&)            = delete;
    CReadTree& operator=(const CReadTree&) = delete;

    const std::vector<StReadElement>& elements() const { return m_lstElement; }
    const StReadElement&              root() const { return m_lstElement.front(); }
    const StQuestions&                askedOfDocument() const { return m_stOfDocument; }

private:
    // The name of an attribute that was asked for, as the document keeps it: once.
    struct StKnownName
    {
        const XMLCh*            pszPooled;
        const StAskedAttribute* pAsked;
    };

    void               fill(StReadElement& stElement, const xercesc::DOMElement& oElement);
    StWrittenAttribute attribute(const StReadElement& stElement, const xercesc::DOMAttr& oAttr);
    static void        link(StReadElement& stElement, const std::vector<StReadElement*>& lstOpen);
    std::string_view   nameOf(const XMLCh* pszPooled);
    std::string_view   textOf(std::u16string_view strText);

    const CReadMarks&                             m_oMarks;
    const StQuestions&                            m_stOfDocument;
    std::pmr::monotonic_buffer_resource           m_oTextPool;
    std::vector<StWrittenAttribute>               m_lstAttribute; // of all elements, in their order
    std::vector<StReadElement>                    m_lstElement;
    CByQuestions<std::vector<StKnownName>>        m_oKnown;
    std::unordered_map<const XMLCh*, std::string> m_mapName;
};
} // namespace lint

#endif
