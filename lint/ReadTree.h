// One document as it was read: its elements in document order as plain values, each
// with what the readers asked for there and whose reader came to it. Made in one walk
// after the read; all rules of one document run on it. The document and the marks must
// outlive it, and it stays where it was made. One thread.
#ifndef OPERATIONXML_LINT_READTREE_H
#define OPERATIONXML_LINT_READTREE_H

#include "catalog/PlacedParser.h"
#include "lint/ReadMarks.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace lint
{
struct StWrittenAttribute
{
    std::string_view strName;
    std::string      strValue;
    bool             bRead; // some reader asked for it
};

struct StReadElement
{
    const xercesc::DOMElement*      pElement = nullptr; // for its place
    std::string_view                strName;
    std::vector<StWrittenAttribute> lstAttribute;
    const StQuestions*              pAsked = nullptr;
    StMark                          stMark;
    bool                            bHoldsMet = false;   // some reader came to it, or to an element in it
    const StReadElement*            pParent   = nullptr; // null: the root
    const StReadElement*            pEnd      = nullptr; // the element behind all that stand in it

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

    // An option has a number, whatever its element is called.
    bool isOption() const;

    // The names of the elements down to it, each with its id: how it is told in a
    // finding that must stay when lines move.
    std::string subject() const;
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
    void             fill(StReadElement& stElement, const xercesc::DOMElement& oElement);
    static void      link(StReadElement& stElement, const std::vector<StReadElement*>& lstOpen);
    std::string_view nameOf(const XMLCh* pszPooled);

    const CReadMarks&                             m_oMarks;
    const StQuestions&                            m_stOfDocument;
    std::vector<StReadElement>                    m_lstElement;
    std::unordered_map<const XMLCh*, std::string> m_mapName; // a document keeps each name once
};
} // namespace lint

#endif
