// The section entry of SectionRead.h.
#include "sections/SectionRead.h"

using namespace xercesc;

std::uint32_t readSections(const LocationInfo& stWhere, const StSection& stSection, const XercesDOMParser* pDOMParser,
                           const void* pLstOut, const std::function<void(const DOMElement&)>& fnFill)
{
    const _TraceFunction oTrace(stWhere);
    if (pDOMParser == nullptr && stSection.pszNoParser != nullptr)
        return logFail(stWhere, stSection.ulNoArgument, stSection.pszNoParser);
    if (pLstOut == nullptr && stSection.pszNoList != nullptr)
        return logFail(stWhere, stSection.ulNoArgument, stSection.pszNoList);
    if (pDOMParser == nullptr || documentOf(pDOMParser) == nullptr)
        return logFail(stWhere, DC_RESULT_XML_ERROR, stSection.pszNoDocument);
    for (const DOMElement* pSection : documentElements(*pDOMParser, stSection.pszElement))
        fnFill(*pSection);
    return DC_RESULT_OK;
}
