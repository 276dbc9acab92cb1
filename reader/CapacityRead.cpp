// Capacity mode of CDevTypeXMLResReader: one read for each version in service, one
// record for each distinct result. Called at the load, and by the database for a type
// whose capacities are asked for anew; every record has an owner at every moment.
#include "common/Guarded.h"
#include "common/LogLine.h"
#include "common/ReadObserver.h"
#include "platform/DeviceDatabase.h"
#include "platform/Events.h"
#include "reader/CCapacityXMLConfig.h"
#include "reader/CDevTypeXMLResReader.h"
#include "reader/ConfigSearch.h"

#include <algorithm>
#include <utility>

namespace
{
constexpr const char* DC_SOURCE = "CDevTypeXMLResReader";

// One record on its way to a list; destroyed when it does not get there.
struct StRecordOwner
{
    StRecordOwner() = default;
    ~StRecordOwner() { delete pInfo; }
    StRecordOwner(const StRecordOwner&)            = delete;
    StRecordOwner& operator=(const StRecordOwner&) = delete;

    StAsnDevTypeVerXMLInfo* pInfo = nullptr;
};

void mergeVersion(std::list<StAsnDevTypeVerXMLInfo*>& lstInfo, StAsnDevTypeVerXMLInfo*& pInfo,
                  const StAsnDevVersion& stVersion)
{
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

std::string versionText(const std::string& strDevType, const StAsnDevVersion& stVersion)
{
    return "DeviceType:" + strDevType + ", SoftVersion:" + stVersion.strSoftVersion +
           ", PatchVersion:" + stVersion.strPatchVersion;
}
} // namespace

std::uint32_t CDevTypeXMLResReader::parseCapacityXML(std::list<StAsnDevTypeVerXMLInfo*>& lstInfo)
{
    const std::size_t nBefore  = lstInfo.size();
    std::uint32_t     ulResult = DC_RESULT_XML_ERROR;
    m_stCapacity               = {};
    try
    {
        const _TraceFunction       oTrace(DC_HERE);
        std::list<StAsnDevVersion> lstVersion;
        const bool         bHasVersions = CDCDeviceInfoDB::getDevVerInfo(m_strDevType, m_strDevTypeVer, lstVersion);
        StDeviceType       oStDeviceType;
        const LocationInfo stWhere = DC_HERE;
        ulResult = configSearch::findDeviceType(&stWhere, m_strDevType, m_strDevTypeVer, oStDeviceType);
        if (ulResult == DC_RESULT_OK)
            ulResult = bHasVersions ? readVersions(stWhere, oStDeviceType, lstVersion, lstInfo)
                                    : readUnversioned(oStDeviceType, lstInfo);
    }
    catch (...)
    {
        ulResult = logThrown(DC_HERE, DC_RESULT_XML_ERROR);
    }
    for (; ulResult != DC_RESULT_OK && lstInfo.size() > nBefore; lstInfo.pop_back()) // the list as it came
        delete lstInfo.back();
    return ulResult;
}

std::uint32_t CDevTypeXMLResReader::readUnversioned(const StDeviceType&                 oStDeviceType,
                                                    std::list<StAsnDevTypeVerXMLInfo*>& lstInfo)
{
    std::list<StAsnDevTypeVerXMLInfo*> lstRead(1);
    const bool                         bCommon = oStDeviceType.enConfigFileType == EnConfigFileCommon;
    const std::uint32_t ulResult = bCommon ? parseCommonXML(lstRead.front()) : parseNormalXML(lstRead.front());
    m_stCapacity.strFile         = m_stConfig.strFile;
    m_stCapacity.stProblem       = problem();
    if (ulResult != DC_RESULT_OK)
        return ulResult;
    m_stCapacity.enSource = EnConfigSource::Capacity;
    lstInfo.splice(lstInfo.end(), lstRead);
    return DC_RESULT_OK;
}

std::uint32_t CDevTypeXMLResReader::readVersions(const LocationInfo& stWhere, const StDeviceType& oStDeviceType,
                                                 const std::list<StAsnDevVersion>&   lstVersion,
                                                 std::list<StAsnDevTypeVerXMLInfo*>& lstInfo)
{
    std::list<StCapacityInfo> lstCapacity;
    if (!CDCCapacityManagerDB::readCapacity(m_strDevType, m_strDevTypeVer, lstCapacity))
    {
        m_stCapacity.stProblem.strText = "the capacity records could not be read";
        return logFail(stWhere, DC_RESULT_FILE_NOT_EXIST, "readCapacity failed");
    }
    // A version that cannot be read does not cost the others their configuration.
    bool          bAnyRead       = false;
    bool          bCapacityGiven = true;
    std::uint32_t ulFailed       = DC_RESULT_OK;
    for (const StAsnDevVersion& stAsnDevVersion : lstVersion)
    {
        StVersionLoad& stLoad           = m_stCapacity.lstVersion.emplace_back();
        stLoad.strSoftVersion           = stAsnDevVersion.strSoftVersion;
        stLoad.strPatchVersion          = stAsnDevVersion.strPatchVersion;
        const StCapacityInfo* pCapacity = configSearch::findCapacity(lstCapacity, stAsnDevVersion);
        if (pCapacity == nullptr)
        {
            stLoad.enOutcome         = EnVersionOutcome::NoCapacityRecord;
            stLoad.stProblem.strText = "the version has no capacity record";
            bCapacityGiven           = false;
            raiseCapacityMissing(stWhere, stAsnDevVersion);
            continue;
        }
        StRecordOwner oOwner;
        stLoad.ulResult =
            readVersion(stWhere, oStDeviceType, pCapacity->bFullConfig, stAsnDevVersion, oOwner.pInfo, stLoad);
        m_stCapacity.strFile = stLoad.strFile;
        if (stLoad.ulResult != DC_RESULT_OK)
        {
            ulFailed =
                logFail(stWhere, stLoad.ulResult, "Version is left out, " + versionText(m_strDevType, stAsnDevVersion));
            m_stCapacity.stProblem = stLoad.stProblem;
            continue;
        }
        bAnyRead              = true;
        m_stCapacity.enSource = EnConfigSource::Capacity;
        mergeVersion(lstInfo, oOwner.pInfo, stAsnDevVersion);
        oOwner.pInfo = nullptr; // the list's, or merged into one of its records
    }
    if (!bCapacityGiven)
        logFail(stWhere, DC_RESULT_FILE_NOT_EXIST,
                " The capacity XML file is not exist for DeviceType:" + m_strDevType);
    // A type of which no version could be read has not been read. One whose
    // versions merely have no capacity record has: it offers nothing.
    if (bAnyRead)
        m_stCapacity.stProblem = {}; // it has a configuration; what its versions lack stands with them
    else if (ulFailed == DC_RESULT_OK)
        m_stCapacity.stProblem.strText =
            lstVersion.empty() ? "no version is in service" : "no version in service has a capacity record";
    return bAnyRead ? DC_RESULT_OK : ulFailed;
}

std::uint32_t CDevTypeXMLResReader::readVersion(const LocationInfo& stWhere, const StDeviceType& oStDeviceType,
                                                bool bFullConfig, const StAsnDevVersion& stAsnDevVersion,
                                                StAsnDevTypeVerXMLInfo*& pInfo, StVersionLoad& stLoad)
{
    if (bFullConfig)
    {
        // The checks are those of this reader: a separate check file serves them when
        // initializeCheck() was asked for it, as the start-up load does. Whoever reads
        // capacities anew does not, and gets the "CheckOperations" of the file, while
        // the narrowed versions below have the separate check file either way.
        std::uint32_t ulResult = initializeXMLInfo(stAsnDevVersion, pInfo);
        if (ulResult == DC_RESULT_OK)
            ulResult = parseNormalXML(pInfo);
        stLoad.enOutcome = ulResult == DC_RESULT_OK ? EnVersionOutcome::FullConfiguration : EnVersionOutcome::Failed;
        stLoad.strFile   = m_stConfig.strFile;
        stLoad.stProblem = problem();
        return ulResult;
    }
    std::uint32_t ulResult = initialize(stAsnDevVersion.strSoftVersion, stAsnDevVersion.strPatchVersion, false);
    stLoad.strFile         = m_stConfig.strFile;
    stLoad.stProblem       = m_stConfig.stProblem;
    if (ulResult != DC_RESULT_OK)
    {
        logCall(stWhere, ulResult,
                "initialize(stAsnDevVersion.strSoftVersion, stAsnDevVersion.strPatchVersion, false)");
        return logFail(stWhere, ulResult, "CDevTypeXMLResReader::initialize failed");
    }
    ulResult = initializeXMLInfo(stAsnDevVersion, pInfo);
    if (ulResult != DC_RESULT_OK)
        return ulResult;
    StCommonRead stCommon = {*m_pSource, false, {}};
    ulResult = CCapacityXMLConfig().parseCapacityXML(oStDeviceType.strDevSysOid, m_pXmlParser.get(), pInfo, stCommon);
    if (stCommon.stProblem.isSet())
        stLoad.stProblem = stCommon.stProblem;
    if (ulResult != DC_RESULT_OK)
    {
        logCall(stWhere, ulResult,
                "CCapacityXMLConfig::parseCapacityXML(oStDeviceType.strDevSysOid, m_pXmlParser, "
                "pAsnDevTypeVerXMLInfo)");
        return logFail(stWhere, ulResult, "CCapacityXMLConfig::parseCapacityXML failed");
    }
    stLoad.enOutcome = EnVersionOutcome::Narrowed;
    if (!stCommon.bHasEntry)
    {
        stLoad.enOutcome         = EnVersionOutcome::NotNarrowed;
        stLoad.stProblem.strFile = stLoad.strFile;
        stLoad.stProblem.strText = "no entry for sysoid \"" + oStDeviceType.strDevSysOid + "\"";
    }
    return DC_RESULT_OK;
}

void CDevTypeXMLResReader::compareAndAdd(std::list<StAsnDevTypeVerXMLInfo*>& lstInfo, StAsnDevTypeVerXMLInfo*& pInfo,
                                         const StAsnDevVersion& stVersion)
try
{
    if (pInfo != nullptr)
        mergeVersion(lstInfo, pInfo, stVersion);
}
catch (...)
{
    logThrown(DC_HERE, DC_RESULT_XML_ERROR); // list and record are as they were
}

void CDevTypeXMLResReader::raiseCapacityMissing(const LocationInfo& stWhere, const StAsnDevVersion& stAsnDevVersion)
{
    logInfo(stWhere, "Version has no capacity record, " + versionText(m_strDevType, stAsnDevVersion));
    if (ReadObserver::isRecorded())
        return;
    std::list<StDeviceInfo> lstDeviceInfo;
    const std::uint32_t     ulResult =
        CDCDeviceInfoDB::getDevInfo(m_strDevType, m_strDevTypeVer, stAsnDevVersion, lstDeviceInfo);
    if (ulResult != DC_RESULT_OK)
        logCall(stWhere, ulResult,
                "CDCDeviceInfoDB::getDevInfo(m_strDevType, m_strDevTypeVer, stAsnDevVersion, lstDeviceInfo)");
    for (const StDeviceInfo& stDeviceInfo : lstDeviceInfo)
    {
        TEEventParam stParam;
        stParam.ulDeviceID      = stDeviceInfo.ulDeviceID;
        stParam.strDeviceName   = stDeviceInfo.strDeviceName;
        stParam.strDevType      = m_strDevType;
        stParam.strSoftVersion  = stAsnDevVersion.strSoftVersion;
        stParam.strPatchVersion = stAsnDevVersion.strPatchVersion;
        TEEventMgr::Instance()->raiseEvent(EVENT_CAPACITY_FILE_MISSING, stParam);
    }
}
