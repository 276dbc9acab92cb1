// The device types of a module file, and the name of its module.
#include "reader/CDevTypeXMLConfig.h"

#include "sections/SectionRead.h"

using namespace xercesc;

namespace
{
constexpr const char* DC_SOURCE = "CDevTypeXMLConfig";

EnFate fillSupportedType(const CAttributes& oDevice, std::string& strDevType)
{
    strDevType = attrText(oDevice, u"name");
    return EnFate::Kept;
}

constexpr StRecordReader<std::string> SUPPORTED_TYPES = {
    {{DC_SOURCE, "fillDevTypeInfo", __LINE__},
     "pElm is null.",
     "DOMElement::getElementsByTagName failed or pDevTypeLst is NULL:",
     "DOMElement::getElementsByTagName failed"},
    u"dev",
    fillSupportedType,
};

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
try
{
    const _TraceFunction oTrace(DC_HERE);
    const std::uint32_t  ulResult = requireDocument(DC_HERE, pDOMParser);
    if (ulResult != DC_RESULT_OK)
        return ulResult;
    const ElementList lstDeviceType = documentElements(*pDOMParser, u"DeviceType");
    if (lstDeviceType.empty())
        return logFail(DC_HERE, DC_RESULT_XML_ERROR, "pElm is null.");
    strName = attrText(CAttributes(*lstDeviceType.front()), u"name");
    return DC_RESULT_OK;
}
catch (...)
{
    return logThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

std::uint32_t CDevTypeXMLConfig::setDevTypeXMLConfig(XercesDOMParser* pDOMParser, StAsnModuleInfoVerXMLInfo& stModule)
try
{
    const _TraceFunction oTrace(DC_HERE);
    const std::uint32_t  ulResult = requireDocument(DC_HERE, pDOMParser);
    if (ulResult != DC_RESULT_OK)
        return ulResult;
    for (const DOMElement* pSupport : documentElements(*pDOMParser, u"support"))
        readRecords(SUPPORTED_TYPES, pSupport, &stModule.lstSupportDevType);
    return DC_RESULT_OK;
}
catch (...)
{
    return logThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

std::uint32_t CDevTypeXMLConfig::fillDevTypeInfo(const DOMElement* pSupport, std::list<std::string>* pLstOut)
{
    return guarded(SUPPORTED_TYPES, [&] { return readRecords(SUPPORTED_TYPES, pSupport, pLstOut); });
}
