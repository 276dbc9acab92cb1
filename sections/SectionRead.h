// The two shapes that the section parsers share: the entry that walks the
// sections of a document, and the reader that makes one record of each element.
// Called by the section parsers only. Stateless; works on the caller's lists.
// Log lines carry the caller's place, texts and codes.
#ifndef OPERATIONXML_SECTIONS_SECTIONREAD_H
#define OPERATIONXML_SECTIONS_SECTIONREAD_H

#include "common/LogLine.h"
#include "common/XmlRead.h"

#include <functional>
#include <list>
#include <type_traits>
#include <utility>

// What tells one section entry from another. The checks run in this order.
struct StSection
{
    const char16_t* pszElement;
    const char*     pszNoParser; // null: a missing parser is a missing document
    const char*     pszNoList;   // null: the reader of one section answers for its list
    const char*     pszNoDocument;
    std::uint32_t   ulNoArgument = DC_RESULT_XML_ERROR; // code of the first two
};

// Calls fnFill for every element of the section's name, in document order; what
// one of them could not read is logged by its reader and stops nothing. 0 also
// when the document has none. Traces the call.
std::uint32_t readSections(const LocationInfo& stWhere, const StSection& stSection,
                           const xercesc::XercesDOMParser* pDOMParser, const void* pLstOut,
                           const std::function<void(const xercesc::DOMElement&)>& fnFill);

// Appends a fresh record for every element, filled by fnRead(attributes, record).
// An fnRead that answers a bool drops the record with false. A failed lookup and
// a missing list are logged with the text and answer DC_RESULT_XML_ERROR.
template <typename Record, typename Read>
std::uint32_t readRecords(const LocationInfo& stWhere, const CElements& oElements, const char* pszFailed,
                          std::list<Record>* pLstOut, Read fnRead)
{
    if (oElements.isMissing() || pLstOut == nullptr)
        return logFail(stWhere, DC_RESULT_XML_ERROR, pszFailed);
    for (const xercesc::DOMElement& oElement : oElements)
    {
        Record&           stRecord = pLstOut->emplace_back();
        const CAttributes oAttributes(oElement);
        if constexpr (std::is_same_v<std::invoke_result_t<Read, const CAttributes&, Record&>, bool>)
        {
            if (!fnRead(oAttributes, stRecord))
                pLstOut->pop_back();
        }
        else
            fnRead(oAttributes, stRecord);
    }
    return DC_RESULT_OK;
}

#endif
