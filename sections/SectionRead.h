// The two shapes that all parsers share: the entry that walks the sections of a
// document, and the reader that makes one record of each element. Rows of data
// tell one from another; what fills a record is a function.
// Called by the parsers of sections, check files, capacity documents and modules.
// Stateless; works on the caller's lists.
#ifndef OPERATIONXML_SECTIONS_SECTIONREAD_H
#define OPERATIONXML_SECTIONS_SECTIONREAD_H

#include "common/Guarded.h"
#include "common/LogLine.h"
#include "common/RecordRead.h"

#include <functional>
#include <list>

// What tells one section entry from another. The checks run in this order.
struct StSection
{
    LocationInfo    stWhere; // the public operation, in whose name everything is logged
    const char16_t* pszElement;
    const char*     pszNoParser; // null: a missing parser is a missing document
    const char*     pszNoList;   // null: the reader of one section answers for its list
    const char*     pszNoDocument;
    std::uint32_t   ulNoArgument = DC_RESULT_XML_ERROR; // code of the first two
};

// The whole of a public section operation: calls fnRead for every element of the
// section's name, in document order; what one of them could not read is logged by
// its reader and stops nothing. 0 also when the document has none. Traces the
// call; whatever is thrown below it ends here.
std::uint32_t readSections(const StSection& stSection, const xercesc::XercesDOMParser* pDOMParser, const void* pLstOut,
                           const std::function<void(const xercesc::DOMElement&)>& fnRead);

// What a reader says when it cannot read. The checks run in this order.
struct StReader
{
    LocationInfo  stWhere; // the public operation of that name
    const char*   pszNoElement;
    const char*   pszNoList;
    const char*   pszNoLookup;
    std::uint32_t ulNoLookup = DC_RESULT_XML_ERROR; // what a failed lookup answers
};

// The same with one text for all three.
constexpr StReader lookupReader(const LocationInfo& stWhere, const char* pszFailed,
                                std::uint32_t ulNoLookup = DC_RESULT_XML_ERROR)
{
    return {stWhere, pszFailed, pszFailed, pszFailed, ulNoLookup};
}

// What tells one reader from another: it makes a record of every element of the
// name below the one it is given.
template <typename Record>
struct StRecordReader : StReader
{
    const char16_t* pszName;
    EnFate (*pfnFill)(const CAttributes&, Record&);
};

// Whether the records of a lookup below pElement can be read; else it is logged,
// and ulResult is what the reader answers.
bool canRead(const StReader& stReader, const xercesc::DOMElement* pElement, const CElements& oElements,
             const void* pLstOut, std::uint32_t& ulResult);

// Makes a record of every element of a lookup below pElement, as readRecord() does.
// Also fails, with everything else read, when one needed a lookup that failed.
template <typename Record, typename Fill>
std::uint32_t readRecords(const StReader& stReader, const xercesc::DOMElement* pElement, const CElements& oElements,
                          std::list<Record>* pLstOut, const Fill& fnFill)
{
    std::uint32_t ulResult = DC_RESULT_OK;
    if (!canRead(stReader, pElement, oElements, pLstOut, ulResult))
        return ulResult;
    for (const xercesc::DOMElement& oElement : oElements)
    {
        if (readRecord(oElement, *pLstOut, fnFill) == EnFate::LookupFailed)
            ulResult = DC_RESULT_XML_ERROR;
    }
    return ulResult;
}

// The same by the reader's row.
template <typename Record>
std::uint32_t readRecords(const StRecordReader<Record>& stRecords, const xercesc::DOMElement* pElement,
                          std::list<Record>* pLstOut)
{
    return readRecords(stRecords, pElement, CElements(pElement, stRecords.pszName), pLstOut, stRecords.pfnFill);
}

// The whole of a public section operation whose sections hold records of one kind.
template <typename Record>
std::uint32_t readSections(const StSection& stSection, const StRecordReader<Record>& stRecords,
                           const xercesc::XercesDOMParser* pDOMParser, std::list<Record>* pLstOut)
{
    return readSections(stSection, pDOMParser, pLstOut,
                        [&](const xercesc::DOMElement& oSection) { readRecords(stRecords, &oSection, pLstOut); });
}

// The whole of a public operation that reads one level: whatever is thrown below
// it ends here. Readers call each other without it: their results are passed over
// by rule, so memory that runs out in one must end the outermost call.
template <typename Body>
std::uint32_t guarded(const StReader& stReader, const Body& fnBody)
{
    try
    {
        return fnBody();
    }
    catch (...)
    {
        return logThrown(stReader.stWhere, DC_RESULT_XML_ERROR);
    }
}

#endif
