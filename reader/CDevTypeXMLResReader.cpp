// Finding and parsing one device type's files, and filling one record from them.
// The capacity mode stands in CapacityRead.cpp.
#include "reader/CDevTypeXMLResReader.h"

#include "common/LogLine.h"
#include "database/CXMLConfigDatabase.h"
#include "platform/Paths.h"
#include "reader/SectionChain.h"
#include "records/Vocabulary.h"
#include "sections/CCheckOpXMLConfig.h"

#include <algorithm>
#include <utility>

namespace
{
constexpr const char* DC_SOURCE = "CDevTypeXMLResReader";

std::uint32_t logMissingFile(const LocationInfo& stWhere, const std::string& strPath)
{
    // The code a missing file is logged under, not the one that is returned for it.
    return logFail(stWhere, DC_RESULT_INVALID_PARA, "Server config File :" + strPath + " not exist.");
}
} // namespace

CDevTypeXMLResReader::CDevTypeXMLResReader(const std::string& strDevType, const std::string& strDevTypeVer,
                                           bool bCapacityMode)
    : m_strDevType(strDevType), m_strDevTypeVer(strDevTypeVer), m_bCapacityMode(bCapacityMode)
{
}

CDevTypeXMLResReader::~CDevTypeXMLResReader() = default;

std::uint32_t CDevTypeXMLResReader::readDevTypeVerXMLFile(std::list<StAsnDevTypeVerXMLInfo*>& lstInfo)
{
    const _TraceFunction oTrace(DC_HERE);
    if (!lstInfo.empty())
        return logFail(DC_HERE, DC_RESULT_INVALID_PARA, "Invalid para.");
    if (m_bCapacityMode)
        return parseCapacityXML(lstInfo);
    StAsnDevTypeVerXMLInfo* pAsnDevTypeVerXMLInfo = nullptr;
    const std::uint32_t     ulResult              = parseNormalXML(pAsnDevTypeVerXMLInfo);
    if (ulResult != DC_RESULT_OK)
        return logCall(DC_HERE, ulResult, "parseNormalXML(pAsnDevTypeVerXMLInfo)");
    lstInfo.push_back(pAsnDevTypeVerXMLInfo);
    return DC_RESULT_OK;
}

std::uint32_t CDevTypeXMLResReader::initialize(const std::string& strSoftVersion, const std::string& strPatchVersion,
                                               bool bUseCommon)
{
    const _TraceFunction oTrace(DC_HERE);
    if (m_pXmlParser == nullptr)
        m_pXmlParser = CXmlParser::create();
    m_stOrigin = {};
    StDeviceType  oStDeviceType;
    std::uint32_t ulResult = searchOwnDeviceType(DC_HERE, oStDeviceType);
    if (ulResult == DC_RESULT_OK)
        ulResult = chooseConfigFile(DC_HERE, oStDeviceType, strSoftVersion, strPatchVersion, bUseCommon);
    if (ulResult != DC_RESULT_OK)
        return ulResult;
    if (!NS_UTIL::IsExists(m_stOrigin.strFile))
    {
        logMissingFile(DC_HERE, m_stOrigin.strFile);
        ulResult = useTelnetTwin(DC_HERE);
        if (ulResult != DC_RESULT_OK)
            return ulResult;
    }
    if (m_pXmlParser == nullptr)
        return logFail(DC_HERE, DC_RESULT_PARSER_NULL,
                       "m_pXmlParser == NULL, Server config File :" + m_stOrigin.strFile);
    parseConfigFile();
    return DC_RESULT_OK;
}

std::uint32_t CDevTypeXMLResReader::searchOwnDeviceType(const LocationInfo& stWhere, StDeviceType& oStDeviceType)
{
    const std::uint32_t ulResult =
        CDeviceAdapterInterface::getInstance()->searchDeviceType(m_strDevType, m_strDevTypeVer, oStDeviceType);
    if (ulResult == DC_RESULT_OK)
        return DC_RESULT_OK;
    return logCall(stWhere, ulResult,
                   "CDeviceAdapterInterface::getInstance()->searchDeviceType(m_strDevType, m_strDevTypeVer, "
                   "oStDeviceType)");
}

std::uint32_t CDevTypeXMLResReader::chooseConfigFile(const LocationInfo& stWhere, const StDeviceType& oStDeviceType,
                                                     const std::string& strSoftVersion,
                                                     const std::string& strPatchVersion, bool bUseCommon)
{
    if (bUseCommon && oStDeviceType.enConfigFileType == EnConfigFileCommon)
    {
        m_stOrigin = {EnConfigSource::CommonFile, CXMLConfigDatabase::getCommonDevTypeXMLFileName(true), ""};
        return DC_RESULT_OK;
    }
    if (!strSoftVersion.empty() || !strPatchVersion.empty())
    {
        m_stOrigin = {
            EnConfigSource::OwnFile,
            CXMLConfigDatabase::getDevTypeXMLFileName(m_strDevType, strSoftVersion, strPatchVersion, true, ""), ""};
        return DC_RESULT_OK;
    }
    std::string         strFilePath;
    const std::uint32_t ulResult =
        CDeviceAdapterInterface::getInstance()->getServerConfigFile(m_strDevType, strFilePath);
    if (ulResult != DC_RESULT_OK)
        return logCall(stWhere, ulResult,
                       "CDeviceAdapterInterface::getInstance()->getServerConfigFile(m_strDevType, strFilePath)");
    m_stOrigin = {EnConfigSource::OwnFile, std::move(strFilePath), ""};
    return DC_RESULT_OK;
}

std::uint32_t CDevTypeXMLResReader::useTelnetTwin(const LocationInfo& stWhere)
{
    const std::string   strDevTypeTemp = m_strDevType + std::string(Vocabulary::TELNET_SUFFIX);
    std::string         strFilePath;
    const std::uint32_t ulResult =
        CDeviceAdapterInterface::getInstance()->getServerConfigFile(strDevTypeTemp, strFilePath);
    if (ulResult == DC_RESULT_OK && NS_UTIL::IsExists(strFilePath))
    {
        m_stOrigin = {EnConfigSource::TelnetTwin, std::move(strFilePath), ""};
        return DC_RESULT_OK;
    }
    m_stOrigin.enSource   = EnConfigSource::None;
    m_stOrigin.strProblem = "the file is not there";
    if (ulResult != DC_RESULT_OK)
        return logCall(stWhere, ulResult,
                       "CDeviceAdapterInterface::getInstance()->getServerConfigFile(strDevTypeTemp, strFilePath)");
    logMissingFile(stWhere, strFilePath);
    return DC_RESULT_FILE_NOT_EXIST;
}

void CDevTypeXMLResReader::parseConfigFile()
{
    // A document that cannot be parsed is no document; the sections report it.
    m_pXmlParser->parseFile(m_stOrigin.strFile);
    m_stOrigin.strProblem = problemText(m_pXmlParser->problem());
}

void CDevTypeXMLResReader::parseCheckFile(std::unique_ptr<CXmlParser>& pParser, const std::string& strFilePath)
{
    if (pParser == nullptr)
        pParser = CXmlParser::create();
    if (pParser == nullptr)
        return; // the check sections report a missing parser
    pParser->parseFile(strFilePath);
    if (pParser->problem().isSet())
        m_stOrigin.strProblem = problemWithFile(pParser->problem());
}

std::uint32_t CDevTypeXMLResReader::setDevXMLConfig(xercesc::XercesDOMParser* pDOMParser, StAsnDevTypeVerXMLInfo* pInfo)
{
    const _TraceFunction oTrace(DC_HERE);
    if (pInfo == nullptr)
        return logFail(DC_HERE, DC_RESULT_INVALID_PARA, "NULL pointer");
    const StSectionLists stLists = {pInfo->stOperationConfig, pInfo->stViewConfig, pInfo->lstTaskConfigInfoOperation,
                                    true};
    return runSectionChain(pDOMParser, stLists,
                           [&](std::list<StAsnCheckOperationDef>& lstCheckOperation)
                           {
                               if (m_pCheckXmlParser == nullptr)
                                   return SetCheckOpConfiguration(pDOMParser, pInfo);
                               return CCheckOpXMLConfig().setCheckOpConfigurationTelnet(
                                   m_pCheckXmlParser.get(), &lstCheckOperation, m_enReportType);
                           });
}

std::uint32_t CDevTypeXMLResReader::SetCheckOpConfiguration(xercesc::XercesDOMParser* pDOMParser,
                                                            StAsnDevTypeVerXMLInfo*   pInfo)
{
    const _TraceFunction oTrace(DC_HERE);
    if (pInfo == nullptr)
        return logFail(DC_HERE, DC_RESULT_INVALID_PARA, "NULL pointer");
    std::list<StAsnCheckOperationDef>& lstCheckOperation = pInfo->stOperationConfig.lstCheckOperation;
    const std::string                  strFixedCheckFile = CDeviceAdapterInterface::getInstance()->initXMLPath() +
                                          "/access_snmp/fixedcheck/" + pInfo->strDevType +
                                          std::string(Vocabulary::XML_SUFFIX);
    if (isFixedCheckEnabled() && NS_UTIL::IsExists(strFixedCheckFile))
    {
        parseCheckFile(m_pFixedCheckXmlParser, strFixedCheckFile);
        return CCheckOpXMLConfig().setFixedCheckOpConfiguration(m_pFixedCheckXmlParser.get(), &lstCheckOperation);
    }
    return CCheckOpXMLConfig().setCheckOpConfiguration(pDOMParser, &lstCheckOperation);
}

std::uint32_t CDevTypeXMLResReader::initializeCheck()
{
    const _TraceFunction oTrace(DC_HERE);
    std::string          strFilePath;
    const std::uint32_t  ulResult =
        CDeviceAdapterInterface::getInstance()->getCheckFileAndType(m_strDevType, strFilePath, m_enReportType);
    if (ulResult != DC_RESULT_OK)
        logCall(DC_HERE, ulResult,
                "CDeviceAdapterInterface::getInstance()->getCheckFileAndType(strDevType, strFilePath, "
                "m_enReportType): DeviceType = " +
                    m_strDevType);
    if (strFilePath.empty())
        return DC_RESULT_FILE_NOT_EXIST;
    parseCheckFile(m_pCheckXmlParser, strFilePath);
    return ulResult;
}

std::uint32_t CDevTypeXMLResReader::getCheckOperFromXml(std::list<StAsnCheckOperationDef>* pLstOut)
{
    const _TraceFunction oTrace(DC_HERE);
    const std::uint32_t  ulResult = initialize("", "", true);
    if (ulResult != DC_RESULT_OK)
        return logFail(DC_HERE, ulResult, "CDevTypeXMLResReader::initialize failed");
    if (initializeCheck() == DC_RESULT_FILE_NOT_EXIST)
        return CCheckOpXMLConfig().setCheckOpConfiguration(m_pXmlParser.get(), pLstOut);
    return CCheckOpXMLConfig().setCheckOpConfigurationTelnet(m_pCheckXmlParser.get(), pLstOut, m_enReportType);
}

std::uint32_t CDevTypeXMLResReader::initializeXMLInfo(const StAsnDevVersion& stVersion, StAsnDevTypeVerXMLInfo*& pInfo)
{
    const _TraceFunction oTrace(DC_HERE);
    if (pInfo != nullptr)
        return logFail(DC_HERE, DC_RESULT_INVALID_PARA, "Pointer must be NULL");
    auto pNew           = std::make_unique<StAsnDevTypeVerXMLInfo>();
    pNew->strDevType    = m_strDevType;
    pNew->strDevTypeVer = m_strDevTypeVer;
    pNew->lstDevVersion.push_back(stVersion);
    pInfo = pNew.release();
    return DC_RESULT_OK;
}

std::uint32_t CDevTypeXMLResReader::parseNormalXML(StAsnDevTypeVerXMLInfo*& pInfo)
{
    const _TraceFunction oTrace(DC_HERE);
    const std::uint32_t  ulResult = initialize("", "", true);
    if (ulResult != DC_RESULT_OK)
        return logCall(DC_HERE, ulResult, "initialize(\"\", \"\", true)");
    return fillRecord(pInfo);
}

std::uint32_t CDevTypeXMLResReader::parseCommonXML(StAsnDevTypeVerXMLInfo*& pInfo)
{
    const _TraceFunction oTrace(DC_HERE);
    if (m_pXmlParser == nullptr)
        m_pXmlParser = CXmlParser::create();
    m_stOrigin = {EnConfigSource::CommonFile, CXMLConfigDatabase::getCommonDevTypeXMLFileName(true), ""};
    if (!NS_UTIL::IsExists(m_stOrigin.strFile))
    {
        m_stOrigin.strProblem = "the file is not there";
        logMissingFile(DC_HERE, m_stOrigin.strFile);
        return DC_RESULT_FILE_NOT_EXIST;
    }
    if (m_pXmlParser == nullptr)
        return logFail(DC_HERE, DC_RESULT_PARSER_NULL,
                       "m_pXmlParser == NULL, Server config File :" + m_stOrigin.strFile);
    parseConfigFile();
    return fillRecord(pInfo);
}

std::uint32_t CDevTypeXMLResReader::fillRecord(StAsnDevTypeVerXMLInfo*& pInfo)
{
    // Ours until it is whole: a section that fails destroys it, the caller's
    // pointer included.
    std::unique_ptr<StAsnDevTypeVerXMLInfo> pRecord(std::exchange(pInfo, nullptr));
    if (pRecord == nullptr)
        pRecord = std::make_unique<StAsnDevTypeVerXMLInfo>();
    pRecord->strDevType          = m_strDevType;
    pRecord->strDevTypeVer       = m_strDevTypeVer;
    const std::uint32_t ulResult = setDevXMLConfig(m_pXmlParser.get(), pRecord.get());
    if (ulResult == DC_RESULT_OK)
        pInfo = pRecord.release();
    return ulResult;
}

void CDevTypeXMLResReader::compareAndAdd(std::list<StAsnDevTypeVerXMLInfo*>& lstInfo, StAsnDevTypeVerXMLInfo*& pInfo,
                                         const StAsnDevVersion& stVersion)
{
    if (pInfo == nullptr)
        return;
    const auto itEqual =
        std::find_if(lstInfo.begin(), lstInfo.end(),
                     [pInfo](const StAsnDevTypeVerXMLInfo* pOther) { return pOther != nullptr && *pOther == *pInfo; });
    if (itEqual == lstInfo.end())
    {
        lstInfo.push_back(pInfo);
        return;
    }
    (*itEqual)->lstDevVersion.push_back(stVersion);
    delete std::exchange(pInfo, nullptr);
}
