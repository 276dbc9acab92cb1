// What the readers asked a document for: the marks by which everything that stands
// in a file and nobody reads is found. Fills itself while it is the observer of a
// read (common/ReadObserver.h). One thread; the document must outlive the marks.
#ifndef OPERATIONXML_LINT_READMARKS_H
#define OPERATIONXML_LINT_READMARKS_H

#include "common/ReadObserver.h"

#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace lint
{
// One attribute that was asked for, whether the element has it or not. Readers that
// ask for it by different words add up.
struct StAskedAttribute
{
    const char16_t*               pszName;
    const xercesc::DOMAttr*       pAttr; // null: it is not there
    EnReadAs                      enReadAs;
    std::vector<std::string_view> lstWord;
};

class CReadMarks : public CReadObserver
{
public:
    void lookup(const xercesc::DOMNode& oBelow, const char16_t* pszName) override;
    void elementMet(const xercesc::DOMElement& oElement) override { m_setMet.insert(&oElement); }
    void attributeRead(const StAttributeRead& stRead) override;
    void textRead(const xercesc::DOMElement& oElement) override { m_setText.insert(&oElement); }
    void recordBegun(const xercesc::DOMElement& /*oElement*/, const void* /*pRecord*/, const void* /*pList*/) override
    {
    }
    void recordEnded(const xercesc::DOMElement& oElement, const void* pRecord, EnFate enFate) override;
    void recordCopied(const void* /*pFrom*/, const void* /*pTo*/) override {}
    void recordPruned(const void* /*pRecord*/, const void* /*pCapacity*/) override {}

    bool isMet(const xercesc::DOMElement& oElement) const { return m_setMet.count(&oElement) != 0; }
    bool isTextRead(const xercesc::DOMElement& oElement) const { return m_setText.count(&oElement) != 0; }

    // An element that its reader gave up before it looked into it.
    bool isGivenUp(const xercesc::DOMElement& oElement) const { return m_setGivenUp.count(&oElement) != 0; }

    // The attributes that were asked for at an element, and the names that elements
    // below a node were looked up by.
    const std::vector<StAskedAttribute>& attributes(const xercesc::DOMElement& oElement) const;
    const std::vector<const char16_t*>&  lookups(const xercesc::DOMNode& oNode) const;

private:
    std::unordered_set<const xercesc::DOMElement*>                                m_setMet;
    std::unordered_set<const xercesc::DOMElement*>                                m_setText;
    std::unordered_set<const xercesc::DOMElement*>                                m_setGivenUp;
    std::unordered_map<const xercesc::DOMElement*, std::vector<StAskedAttribute>> m_mapAttribute;
    std::unordered_map<const xercesc::DOMNode*, std::vector<const char16_t*>>     m_mapLookup;
};
} // namespace lint

#endif
