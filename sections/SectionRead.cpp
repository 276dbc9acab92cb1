// The section entry and the checks of SectionRead.h.
#include "sections/SectionRead.h"

using namespace xercesc;

std::uint32_t readSections(const StSection& stSection, const XercesDOMParser* pDOMParser, const void* pLstOut,
                           const std::function<void(const DOMElement&)>& fnRead)
try
{
    const _TraceFunction oTrace(stSection.stWhere);
    if (pDOMParser == nullptr && stSection.pszNoParser != nullptr)
        return logFail(stSection.stWhere, stSection.ulNoArgument, stSection.pszNoParser);
    if (pLstOut == nullptr && stSection.pszNoList != nullptr)
        return logFail(stSection.stWhere, stSection.ulNoArgument, stSection.pszNoList);
    if (pDOMParser == nullptr || documentOf(pDOMParser) == nullptr)
        return logFail(stSection.stWhere, DC_RESULT_XML_ERROR, stSection.pszNoDocument);
    for (const DOMElement* pSection : documentElements(*pDOMParser, stSection.pszElement))
        fnRead(*pSection);
    return DC_RESULT_OK;
}
catch (...)
{
    return logThrown(stSection.stWhere, DC_RESULT_XML_ERROR);
}

bool canRead(const StReader& stReader, const DOMElement* pElement, const CElements& oElements, const void* pLstOut,
             std::uint32_t& ulResult)
{
    if (pElement == nullptr)
        ulResult = logFail(stReader.stWhere, DC_RESULT_XML_ERROR, stReader.pszNoElement);
    else if (pLstOut == nullptr)
        ulResult = logFail(stReader.stWhere, DC_RESULT_XML_ERROR, stReader.pszNoList);
    else if (oElements.isMissing())
    {
        logFail(stReader.stWhere, DC_RESULT_XML_ERROR, stReader.pszNoLookup);
        ulResult = stReader.ulNoLookup;
    }
    else
        return true;
    return false;
}
