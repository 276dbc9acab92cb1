// See CDevTypeXMLConfig.h.
#include "reader/CDevTypeXMLConfig.h"

#include "common/LogLine.h"
#include "common/XmlRead.h"

using namespace xercesc;

namespace
{
constexpr const char* DC_SOURCE = "CDevTypeXMLConfig";

// 0 when the parser holds a document.
std::uint32_t requireDocument(const LocationInfo& stWhere, const XercesDOMParser* pDOMParser)
{
    if (pDOMParser == nullptr)
        return logFail(stWhere, DC_RESULT_XML_ERROR, "DOMElement::setDevOperXMLConfig(): pDOMParser pointer is NULL: ");
    if (documentOf(pDOMParser) == nullptr)
        return logFail(stWhere, DC_RESULT_XML_ERROR, "XercesDOMParser::getDocument failed :");
    return DC_RESULT_OK;
}
} // namespace

std::uint32_t CDevTypeXMLConfig::setModuleXMLConfig(XercesDOMParser* pDOMParser, std::string& strName)
{
    const _TraceFunction oTrace(DC_HERE);
    const std::uint32_t  ulResult = requireDocument(DC_HERE, pDOMParser);
    if (ulResult != DC_RESULT_OK)
        return ulResult;
    const ElementList lstDeviceType = documentElements(*pDOMParser, u"DeviceType");
    if (lstDeviceType.empty())
        return logFail(DC_HERE, DC_RESULT_XML_ERROR, "pElm is null.");
    strName = attrText(*lstDeviceType.front(), u"name");
    return DC_RESULT_OK;
}

std::uint32_t CDevTypeXMLConfig::setDevTypeXMLConfig(XercesDOMParser* pDOMParser, StAsnModuleInfoVerXMLInfo& stModule)
{
    const _TraceFunction oTrace(DC_HERE);
    const std::uint32_t  ulResult = requireDocument(DC_HERE, pDOMParser);
    if (ulResult != DC_RESULT_OK)
        return ulResult;
    for (const DOMElement* pSupport : documentElements(*pDOMParser, u"support"))
        fillDevTypeInfo(pSupport, &stModule.lstSupportDevType);
    return DC_RESULT_OK;
}

std::uint32_t CDevTypeXMLConfig::fillDevTypeInfo(const DOMElement* pElm, std::list<std::string>* pDevTypeLst)
{
    if (pElm == nullptr)
        return logFail(DC_HERE, DC_RESULT_XML_ERROR, "pElm is null.");
    if (pDevTypeLst == nullptr)
        return logFail(DC_HERE, DC_RESULT_XML_ERROR, "DOMElement::getElementsByTagName failed or pDevTypeLst is NULL:");
    const CElements oDevices(pElm, u"dev");
    if (oDevices.isMissing())
        return logFail(DC_HERE, DC_RESULT_XML_ERROR, "DOMElement::getElementsByTagName failed");
    for (const DOMElement& oDevice : oDevices)
        pDevTypeLst->push_back(attrText(oDevice, u"name"));
    return DC_RESULT_OK;
}
