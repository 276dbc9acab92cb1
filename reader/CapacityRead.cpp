// Capacity mode of the device-type reader: one read for each version in service,
// one record for each distinct result.
#include "common/LogLine.h"
#include "platform/CapacityDatabase.h"
#include "platform/DeviceDatabase.h"
#include "platform/Events.h"
#include "reader/CCapacityXMLConfig.h"
#include "reader/CDevTypeXMLResReader.h"

#include <algorithm>
#include <utility>

namespace
{
constexpr const char* DC_SOURCE = "CDevTypeXMLResReader";

// The capacity record of exactly this version, or null.
const StCapacityInfo* findCapacity(const std::list<StCapacityInfo>& lstCapacity, const StAsnDevVersion& stVersion)
{
    const auto itFound = std::find_if(lstCapacity.begin(), lstCapacity.end(),
                                      [&stVersion](const StCapacityInfo& stCapacity)
                                      {
                                          return stCapacity.strSoftVersion == stVersion.strSoftVersion &&
                                                 stCapacity.strPatchVersion == stVersion.strPatchVersion;
                                      });
    return itFound == lstCapacity.end() ? nullptr : &*itFound;
}

std::string versionText(const std::string& strDevType, const StAsnDevVersion& stVersion)
{
    return "DeviceType:" + strDevType + ", SoftVersion:" + stVersion.strSoftVersion +
           ", PatchVersion:" + stVersion.strPatchVersion;
}
} // namespace

std::uint32_t CDevTypeXMLResReader::parseCapacityXML(std::list<StAsnDevTypeVerXMLInfo*>& lstInfo)
{
    const _TraceFunction       oTrace(DC_HERE);
    std::list<StAsnDevVersion> lstVersion;
    const bool                 bHasVersions = CDCDeviceInfoDB::getDevVerInfo(m_strDevType, m_strDevTypeVer, lstVersion);
    StDeviceType               oStDeviceType;
    std::uint32_t              ulResult = searchOwnDeviceType(DC_HERE, oStDeviceType);
    if (ulResult == DC_RESULT_OK)
        ulResult = bHasVersions ? readVersions(DC_HERE, oStDeviceType, lstVersion, lstInfo)
                                : readUnversioned(oStDeviceType, lstInfo);
    m_stOrigin.enSource = ulResult == DC_RESULT_OK ? EnConfigSource::Capacity : EnConfigSource::None;
    return ulResult;
}

std::uint32_t CDevTypeXMLResReader::readUnversioned(const StDeviceType&                 oStDeviceType,
                                                    std::list<StAsnDevTypeVerXMLInfo*>& lstInfo)
{
    StAsnDevTypeVerXMLInfo* pInfo = nullptr;
    const std::uint32_t     ulResult =
        oStDeviceType.enConfigFileType == EnConfigFileCommon ? parseCommonXML(pInfo) : parseNormalXML(pInfo);
    if (ulResult == DC_RESULT_OK)
        lstInfo.push_back(pInfo);
    return ulResult;
}

std::uint32_t CDevTypeXMLResReader::readVersions(const LocationInfo& stWhere, const StDeviceType& oStDeviceType,
                                                 const std::list<StAsnDevVersion>&   lstVersion,
                                                 std::list<StAsnDevTypeVerXMLInfo*>& lstInfo)
{
    std::uint32_t             ulFailed = DC_RESULT_OK;
    std::list<StCapacityInfo> lstCapacity;
    if (!CDCCapacityManagerDB::readCapacity(m_strDevType, m_strDevTypeVer, lstCapacity))
        ulFailed = logFail(stWhere, DC_RESULT_FILE_NOT_EXIST, "readCapacity failed");

    // A version that cannot be read does not cost the others their configuration.
    bool bCapacityGiven = true;
    for (const StAsnDevVersion& stAsnDevVersion : lstVersion)
    {
        const StCapacityInfo* pCapacity = findCapacity(lstCapacity, stAsnDevVersion);
        if (pCapacity == nullptr)
        {
            raiseCapacityMissing(stWhere, stAsnDevVersion);
            bCapacityGiven = false;
            continue;
        }
        StAsnDevTypeVerXMLInfo* pInfo    = nullptr;
        const std::uint32_t     ulResult = readVersion(stWhere, oStDeviceType, *pCapacity, stAsnDevVersion, pInfo);
        if (ulResult != DC_RESULT_OK)
        {
            ulFailed = logFail(stWhere, ulResult, "Version is left out, " + versionText(m_strDevType, stAsnDevVersion));
            delete std::exchange(pInfo, nullptr);
            continue;
        }
        compareAndAdd(lstInfo, pInfo, stAsnDevVersion);
    }
    if (!bCapacityGiven)
        logFail(stWhere, DC_RESULT_FILE_NOT_EXIST,
                " The capacity XML file is not exist for DeviceType:" + m_strDevType);
    // A type of which no version could be read has not been read. One whose
    // versions merely have no capacity record has: it offers nothing.
    return lstInfo.empty() ? ulFailed : DC_RESULT_OK;
}

std::uint32_t CDevTypeXMLResReader::readVersion(const LocationInfo& stWhere, const StDeviceType& oStDeviceType,
                                                const StCapacityInfo&  stCapacity,
                                                const StAsnDevVersion& stAsnDevVersion, StAsnDevTypeVerXMLInfo*& pInfo)
{
    if (stCapacity.bFullConfig)
    {
        const std::uint32_t ulMade = initializeXMLInfo(stAsnDevVersion, pInfo);
        return ulMade == DC_RESULT_OK ? parseNormalXML(pInfo) : ulMade;
    }
    std::uint32_t ulResult = initialize(stAsnDevVersion.strSoftVersion, stAsnDevVersion.strPatchVersion, false);
    if (ulResult != DC_RESULT_OK)
    {
        logCall(stWhere, ulResult,
                "initialize(stAsnDevVersion.strSoftVersion, stAsnDevVersion.strPatchVersion, false)");
        return logFail(stWhere, ulResult, "CDevTypeXMLResReader::initialize failed");
    }
    ulResult = initializeXMLInfo(stAsnDevVersion, pInfo);
    if (ulResult != DC_RESULT_OK)
        return ulResult;
    ulResult = CCapacityXMLConfig().parseCapacityXML(oStDeviceType.strDevSysOid, m_pXmlParser.get(), pInfo);
    if (ulResult != DC_RESULT_OK)
    {
        logCall(stWhere, ulResult,
                "CCapacityXMLConfig::parseCapacityXML(oStDeviceType.strDevSysOid, m_pXmlParser, "
                "pAsnDevTypeVerXMLInfo)");
        return logFail(stWhere, ulResult, "CCapacityXMLConfig::parseCapacityXML failed");
    }
    return DC_RESULT_OK;
}

void CDevTypeXMLResReader::raiseCapacityMissing(const LocationInfo& stWhere, const StAsnDevVersion& stAsnDevVersion)
{
    logInfo(stWhere, "Version has no capacity record, " + versionText(m_strDevType, stAsnDevVersion));
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
