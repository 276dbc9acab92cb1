// Reading one capacity entry; pruning stands in CapacityPrune.cpp.
#include "reader/CCapacityXMLConfig.h"

#include "common/Guarded.h"
#include "platform/Paths.h"
#include "reader/CDevTypeXMLResReader.h"
#include "sections/ItemRead.h"

#include <memory>
#include <utility>

using namespace xercesc;

namespace
{
constexpr const char* DC_SOURCE = "CCapacityXMLConfig";

constexpr StOptionReader OPTIONS = {
    lookupReader({DC_SOURCE, "fillOperOptionInfo", __LINE__}, "DOMElement::getElementsByTagName failed :"),
    true,
};
constexpr StParameterReader PARAMETERS = {
    lookupReader({DC_SOURCE, "fillOperParaInfo", __LINE__}, "DOMElement::getElementsByTagName failed :"),
    true,
    false,
    OPTIONS,
};

EnFate fillOperation(const CAttributes& oOperation, StAsnOperation& stOperation)
{
    stOperation.strId        = attrText(oOperation, u"id");
    stOperation.bIsSupported = attrFlag(oOperation, u"isSupported");
    readParameters(PARAMETERS, oOperation.element(), stOperation.lstParam);
    return EnFate::Kept;
}

constexpr StRecordReader<StAsnOperation> OPERATIONS = {
    lookupReader({DC_SOURCE, "fillOperInfo", __LINE__}, "DOMElement::getElementsByTagName failed :"),
    u"Operation",
    fillOperation,
};

// The entry of a system object identifier, compared byte for byte, or null.
const DOMElement* findEntry(const XercesDOMParser& oDOMParser, const std::string& strDevSysOid)
{
    for (const DOMElement* pEntry : documentElements(oDOMParser, u"upgradecapacity"))
    {
        if (attrText(CAttributes(*pEntry), u"sysoid") == strDevSysOid)
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
try
{
    StCommonRead stRead = {CDocumentSource::plain(), false, {}};
    return parseCapacityXML(strDevSysOid, pDOMParser, pInfo, stRead);
}
catch (...)
{
    return logThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

std::uint32_t CCapacityXMLConfig::parseCapacityXML(const std::string& strDevSysOid, XercesDOMParser* pDOMParser,
                                                   StAsnDevTypeVerXMLInfo*& pInfo, StCommonRead& stRead)
{
    const _TraceFunction oTrace(DC_HERE);
    if (pDOMParser == nullptr)
        return logFail(DC_HERE, DC_RESULT_XML_ERROR, "DOMElement::setDevOperXMLConfig(): pDOMParser pointer is NULL:");
    if (pInfo == nullptr)
        return logFail(DC_HERE, DC_RESULT_INVALID_PARA, "Pointer is  NULL");
    if (documentOf(pDOMParser) == nullptr)
        return logFail(DC_HERE, DC_RESULT_XML_ERROR, "XercesDOMParser::getDocument failed :");

    std::list<StAsnOperation> lstCapacity;
    const DOMElement*         pEntry = findEntry(*pDOMParser, strDevSysOid);
    stRead.bHasEntry                 = pEntry != nullptr;
    if (pEntry != nullptr)
        readRecords(OPERATIONS, pEntry, &lstCapacity); // what an entry does not say stays unpruned
    else
        logFail(DC_HERE, DC_RESULT_XML_ERROR,
                "No capacity entry for sysoid :" + strDevSysOid + ", DeviceType:" + pInfo->strDevType +
                    versionText(*pInfo));
    if (CReadObserver* pObserver = ReadObserver::get())
        pObserver->capacityRead(*pDOMParser, pEntry, lstCapacity);
    const std::uint32_t ulResult = parseCommonXML(pInfo, stRead);
    if (ulResult != DC_RESULT_OK)
        return ulResult;
    // A record that is narrowed half-way must not be taken for whole.
    std::unique_ptr<StAsnDevTypeVerXMLInfo> pRecord(std::exchange(pInfo, nullptr));
    combineXMLInfo(pRecord.get(), lstCapacity);
    pInfo = pRecord.release();
    return DC_RESULT_OK;
}

std::uint32_t CCapacityXMLConfig::parseCapacityXML(const std::string& strDevSysOid, const std::string& strFilePath)
try
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
catch (...)
{
    return logThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

std::uint32_t CCapacityXMLConfig::parseCommonXML(StAsnDevTypeVerXMLInfo*& pInfo)
try
{
    StCommonRead stRead = {CDocumentSource::plain(), false, {}};
    return parseCommonXML(pInfo, stRead);
}
catch (...)
{
    return logThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

std::uint32_t CCapacityXMLConfig::parseCommonXML(StAsnDevTypeVerXMLInfo*& pInfo, StCommonRead& stRead)
{
    const _TraceFunction oTrace(DC_HERE);
    if (pInfo == nullptr)
        return logFail(DC_HERE, DC_RESULT_INVALID_PARA, "Pointer is  NULL");
    CDevTypeXMLResReader oReader(pInfo->strDevType, pInfo->strDevTypeVer, false);
    oReader.readFrom(stRead.oSource);
    oReader.initializeCheck(); // a separate check file holds for every version
    const std::uint32_t ulResult = oReader.parseCommonXML(pInfo);
    stRead.stProblem             = oReader.problem();
    return ulResult;
}

std::uint32_t CCapacityXMLConfig::fillOperInfo(const DOMElement* pEntry, std::list<StAsnOperation>& lstOut)
{
    return guarded(OPERATIONS, [&] { return readRecords(OPERATIONS, pEntry, &lstOut); });
}

std::uint32_t CCapacityXMLConfig::fillOperParaInfo(const DOMElement* pOperation, std::list<StAsnOperParamDef>& lstOut)
{
    return guarded(PARAMETERS, [&] { return readParameters(PARAMETERS, pOperation, lstOut); });
}

std::uint32_t CCapacityXMLConfig::fillOperOptionInfo(const DOMElement* pParameter, std::list<StAsnOptionInfo>& lstOut)
{
    return guarded(OPTIONS, [&] { return readOptions(OPTIONS, pParameter, lstOut); });
}
