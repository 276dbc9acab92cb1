// Filling one record from one device type's files. How the files are found stands
// in ConfigSearch.cpp, the capacity mode in CapacityRead.cpp.
#include "reader/CDevTypeXMLResReader.h"

#include "common/Guarded.h"
#include "common/LogLine.h"
#include "reader/ConfigSearch.h"
#include "reader/SectionChain.h"
#include "sections/CCheckOpXMLConfig.h"

#include <utility>

namespace
{
constexpr const char* DC_SOURCE = "CDevTypeXMLResReader";
} // namespace

CDevTypeXMLResReader::CDevTypeXMLResReader(const std::string& strDevType, const std::string& strDevTypeVer,
                                           bool bCapacityMode)
    : m_strDevType(strDevType), m_strDevTypeVer(strDevTypeVer), m_bCapacityMode(bCapacityMode)
{
}

CDevTypeXMLResReader::~CDevTypeXMLResReader() = default;

std::uint32_t CDevTypeXMLResReader::readDevTypeVerXMLFile(std::list<StAsnDevTypeVerXMLInfo*>& lstInfo)
try
{
    const _TraceFunction oTrace(DC_HERE);
    if (!lstInfo.empty())
        return logFail(DC_HERE, DC_RESULT_INVALID_PARA, "Invalid para.");
    if (m_bCapacityMode)
        return parseCapacityXML(lstInfo);
    std::list<StAsnDevTypeVerXMLInfo*> lstRead(1); // its node first: a record without one would have no owner
    const std::uint32_t                ulResult = parseNormalXML(lstRead.front());
    if (ulResult != DC_RESULT_OK)
        return logCall(DC_HERE, ulResult, "parseNormalXML(pAsnDevTypeVerXMLInfo)");
    lstInfo.splice(lstInfo.end(), lstRead);
    return DC_RESULT_OK;
}
catch (...)
{
    return logThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

std::uint32_t CDevTypeXMLResReader::initialize(const std::string& strSoftVersion, const std::string& strPatchVersion,
                                               bool bUseCommon)
try
{
    const _TraceFunction oTrace(DC_HERE);
    const LocationInfo   stWhere = DC_HERE;
    m_stConfig                   = {};
    m_stConfig = configSearch::findConfig(&stWhere, m_strDevType, m_strDevTypeVer, {strSoftVersion, strPatchVersion},
                                          bUseCommon);
    return m_stConfig.isFound() ? parseConfig(stWhere) : m_stConfig.ulResult;
}
catch (...)
{
    return logThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

std::uint32_t CDevTypeXMLResReader::parseConfig(const LocationInfo& stWhere)
{
    m_stFixedCheck = {};
    m_pSource->parse(m_stConfig.strFile, m_stConfig.enSource, m_pXmlParser);
    if (m_pXmlParser == nullptr)
        return logFail(stWhere, DC_RESULT_PARSER_NULL,
                       "m_pXmlParser == NULL, Server config File :" + m_stConfig.strFile);
    m_stConfig.stProblem = m_pXmlParser->problem(); // without a document the sections report it
    return DC_RESULT_OK;
}

std::uint32_t CDevTypeXMLResReader::setDevXMLConfig(xercesc::XercesDOMParser* pDOMParser, StAsnDevTypeVerXMLInfo* pInfo)
try
{
    const _TraceFunction oTrace(DC_HERE);
    if (pInfo == nullptr)
        return logFail(DC_HERE, DC_RESULT_INVALID_PARA, "NULL pointer");
    if (m_bCheckUnknown)
        return DC_RESULT_XML_ERROR; // logged then: what checks a type has must not depend on a call that threw
    return runSectionChain(pDOMParser, *pInfo,
                           [&](std::list<StAsnCheckOperationDef>& lstCheckOperation)
                           {
                               if (m_pCheckXmlParser == nullptr)
                                   return SetCheckOpConfiguration(pDOMParser, pInfo);
                               return CCheckOpXMLConfig().setCheckOpConfigurationTelnet(
                                   m_pCheckXmlParser.get(), &lstCheckOperation, m_enReportType);
                           });
}
catch (...)
{
    return logThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

std::uint32_t CDevTypeXMLResReader::SetCheckOpConfiguration(xercesc::XercesDOMParser* pDOMParser,
                                                            StAsnDevTypeVerXMLInfo*   pInfo)
try
{
    const _TraceFunction oTrace(DC_HERE);
    if (pInfo == nullptr)
        return logFail(DC_HERE, DC_RESULT_INVALID_PARA, "NULL pointer");
    std::list<StAsnCheckOperationDef>& lstCheckOperation = pInfo->stOperationConfig.lstCheckOperation;
    m_stFixedCheck                                       = configSearch::findFixedCheckFile(pInfo->strDevType);
    if (!m_stFixedCheck.isFound())
        return CCheckOpXMLConfig().setCheckOpConfiguration(pDOMParser, &lstCheckOperation);
    m_pSource->parse(m_stFixedCheck.strFile, m_stFixedCheck.enSource, m_pFixedCheckXmlParser);
    if (m_pFixedCheckXmlParser != nullptr) // the check sections report a missing parser
        m_stFixedCheck.stProblem = m_pFixedCheckXmlParser->problem();
    return CCheckOpXMLConfig().setFixedCheckOpConfiguration(m_pFixedCheckXmlParser.get(), &lstCheckOperation);
}
catch (...)
{
    return logThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

std::uint32_t CDevTypeXMLResReader::initializeCheck()
try
{
    const _TraceFunction oTrace(DC_HERE);
    const LocationInfo   stWhere = DC_HERE;
    m_stCheck                    = configSearch::findCheckFile(&stWhere, m_strDevType, m_enReportType);
    if (m_stCheck.isFound())
    {
        m_pSource->parse(m_stCheck.strFile, m_stCheck.enSource, m_pCheckXmlParser);
        if (m_pCheckXmlParser != nullptr)
            m_stCheck.stProblem = m_pCheckXmlParser->problem();
    }
    m_bCheckUnknown = false;
    return m_stCheck.isFound() ? m_stCheck.ulResult : DC_RESULT_FILE_NOT_EXIST;
}
catch (...)
{
    m_bCheckUnknown = true;
    return logThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

std::uint32_t CDevTypeXMLResReader::getCheckOperFromXml(std::list<StAsnCheckOperationDef>* pLstOut)
try
{
    const _TraceFunction oTrace(DC_HERE);
    const std::uint32_t  ulResult = initialize("", "", true);
    if (ulResult != DC_RESULT_OK)
        return logFail(DC_HERE, ulResult, "CDevTypeXMLResReader::initialize failed");
    if (initializeCheck() == DC_RESULT_FILE_NOT_EXIST)
        return CCheckOpXMLConfig().setCheckOpConfiguration(m_pXmlParser.get(), pLstOut);
    if (m_bCheckUnknown)
        return DC_RESULT_XML_ERROR;
    return CCheckOpXMLConfig().setCheckOpConfigurationTelnet(m_pCheckXmlParser.get(), pLstOut, m_enReportType);
}
catch (...)
{
    return logThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

std::uint32_t CDevTypeXMLResReader::initializeXMLInfo(const StAsnDevVersion& stVersion, StAsnDevTypeVerXMLInfo*& pInfo)
try
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
catch (...)
{
    return logThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

std::uint32_t CDevTypeXMLResReader::parseNormalXML(StAsnDevTypeVerXMLInfo*& pInfo)
try
{
    const _TraceFunction oTrace(DC_HERE);
    const std::uint32_t  ulResult = initialize("", "", true);
    if (ulResult != DC_RESULT_OK)
        return logCall(DC_HERE, ulResult, "initialize(\"\", \"\", true)");
    return fillRecord(pInfo);
}
catch (...)
{
    return logThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

std::uint32_t CDevTypeXMLResReader::parseCommonXML(StAsnDevTypeVerXMLInfo*& pInfo)
try
{
    const _TraceFunction oTrace(DC_HERE);
    const LocationInfo   stWhere = DC_HERE;
    m_stConfig                   = configSearch::findCommonFile(&stWhere);
    const std::uint32_t ulResult = m_stConfig.isFound() ? parseConfig(stWhere) : m_stConfig.ulResult;
    return ulResult == DC_RESULT_OK ? fillRecord(pInfo) : ulResult;
}
catch (...)
{
    return logThrown(DC_HERE, DC_RESULT_XML_ERROR);
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

StReadProblem CDevTypeXMLResReader::problem() const
{
    // In the order in which the files cost the read its result.
    for (const StPlannedFile* pFile : {&m_stConfig, &m_stCheck, &m_stFixedCheck})
    {
        if (pFile->stProblem.isSet())
            return pFile->stProblem;
    }
    return {};
}

StConfigOrigin CDevTypeXMLResReader::origin() const
{
    return m_bCapacityMode ? m_stCapacity : StConfigOrigin{m_stConfig.enSource, m_stConfig.strFile, problem(), {}};
}
