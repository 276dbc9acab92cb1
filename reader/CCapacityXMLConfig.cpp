// Reading one capacity entry; pruning stands in CapacityPrune.cpp.
#include "reader/CCapacityXMLConfig.h"

#include "platform/Paths.h"
#include "reader/CDevTypeXMLResReader.h"
#include "sections/ItemRead.h"
#include "sections/SectionRead.h"

using namespace xercesc;

namespace
{
constexpr const char* DC_SOURCE = "CCapacityXMLConfig";

// The entry of a system object identifier, compared byte for byte, or null.
const DOMElement* findEntry(const XercesDOMParser& oDOMParser, const std::string& strDevSysOid)
{
    for (const DOMElement* pEntry : documentElements(oDOMParser, u"upgradecapacity"))
    {
        if (attrText(*pEntry, u"sysoid") == strDevSysOid)
            return pEntry;
    }
    return nullptr;
}

// The version that a record was made for.
std::string versionText(const StAsnDevTypeVerXMLInfo& stInfo)
{
    if (stInfo.lstDevVersion.empty())
        return ", without a version";
    const StAsnDevVersion& stVersion = stInfo.lstDevVersion.front();
    return ", SoftVersion:" + stVersion.strSoftVersion + ", PatchVersion:" + stVersion.strPatchVersion;
}
} // namespace

std::uint32_t CCapacityXMLConfig::parseCapacityXML(const std::string& strDevSysOid, XercesDOMParser* pDOMParser,
                                                   StAsnDevTypeVerXMLInfo*& pInfo)
{
    const _TraceFunction oTrace(DC_HERE);
    if (pDOMParser == nullptr)
        return logFail(DC_HERE, DC_RESULT_XML_ERROR, "DOMElement::setDevOperXMLConfig(): pDOMParser pointer is NULL:");
    if (pInfo == nullptr)
        return logFail(DC_HERE, DC_RESULT_INVALID_PARA, "Pointer is  NULL");
    if (documentOf(pDOMParser) == nullptr)
        return logFail(DC_HERE, DC_RESULT_XML_ERROR, "XercesDOMParser::getDocument failed :");

    std::list<StAsnOperation> lstCapacity;
    if (const DOMElement* pEntry = findEntry(*pDOMParser, strDevSysOid))
        fillOperInfo(pEntry, lstCapacity); // what an entry does not say stays unpruned
    else
        logFail(DC_HERE, DC_RESULT_XML_ERROR,
                "No capacity entry for sysoid :" + strDevSysOid + ", DeviceType:" + pInfo->strDevType +
                    versionText(*pInfo));
    const std::uint32_t ulResult = parseCommonXML(pInfo);
    if (ulResult == DC_RESULT_OK)
        combineXMLInfo(pInfo, lstCapacity);
    return ulResult;
}

std::uint32_t CCapacityXMLConfig::parseCapacityXML(const std::string& strDevSysOid, const std::string& strFilePath)
{
    const _TraceFunction oTrace(DC_HERE);
    if (!NS_UTIL::IsExists(strFilePath))
    {
        logFail(DC_HERE, DC_RESULT_INVALID_PARA, "Server config File :" + strFilePath + " not exist.");
        return DC_RESULT_FILE_NOT_EXIST; // missing files are logged under another code everywhere
    }
    const std::unique_ptr<CXmlParser> pParser = CXmlParser::create();
    if (pParser != nullptr)
        pParser->parseFile(strFilePath);
    if (documentOf(pParser.get()) == nullptr)
        return logFail(DC_HERE, DC_RESULT_XML_ERROR, "XercesDOMParser::getDocument failed :");
    return findEntry(*pParser, strDevSysOid) == nullptr ? DC_RESULT_XML_ERROR : DC_RESULT_OK;
}

std::uint32_t CCapacityXMLConfig::parseCommonXML(StAsnDevTypeVerXMLInfo*& pInfo)
{
    const _TraceFunction oTrace(DC_HERE);
    if (pInfo == nullptr)
        return logFail(DC_HERE, DC_RESULT_INVALID_PARA, "Pointer is  NULL");
    CDevTypeXMLResReader oReader(pInfo->strDevType, pInfo->strDevTypeVer, false);
    oReader.initializeCheck(); // a separate check file holds for every version
    return oReader.parseCommonXML(pInfo);
}

std::uint32_t CCapacityXMLConfig::fillOperInfo(const DOMElement* pEntry, std::list<StAsnOperation>& lstOut)
{
    return readRecords(DC_HERE, CElements(pEntry, u"Operation"), "DOMElement::getElementsByTagName failed :", &lstOut,
                       [this](const CAttributes& oOperation, StAsnOperation& stOperation)
                       {
                           stOperation.strId        = attrText(oOperation, u"id");
                           stOperation.bIsSupported = attrFlag(oOperation, u"isSupported");
                           fillOperParaInfo(oOperation.element(), stOperation.lstParam);
                       });
}

std::uint32_t CCapacityXMLConfig::fillOperParaInfo(const DOMElement* pOperation, std::list<StAsnOperParamDef>& lstOut)
{
    return readRecords(DC_HERE, CElements(pOperation, u"Parameter"),
                       "DOMElement::getElementsByTagName failed :", &lstOut,
                       [this](const CAttributes& oParameter, StAsnOperParamDef& stParam)
                       {
                           stParam.strId       = attrText(oParameter, u"id");
                           stParam.strValue    = attrText(oParameter, u"value");
                           stParam.bIsRequired = attrFlag(oParameter, u"isRequired");
                           fillOperOptionInfo(oParameter.element(), stParam.lstOption);
                       });
}

std::uint32_t CCapacityXMLConfig::fillOperOptionInfo(const DOMElement* pParameter, std::list<StAsnOptionInfo>& lstOut)
{
    return readRecords(DC_HERE, optionElements(pParameter), "DOMElement::getElementsByTagName failed :", &lstOut,
                       [](const CAttributes& oOption, StAsnOptionInfo& stOption)
                       {
                           readOption(oOption, stOption);
                           stOption.strTarget = attrText(oOption, u"target");
                       });
}
