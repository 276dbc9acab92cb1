// See ConfigSearch.h. Log texts are those of the reader's operations, which these
// steps were asked by.
#include "reader/ConfigSearch.h"

#include "common/LogLine.h"
#include "database/CXMLConfigDatabase.h"
#include "platform/DeviceDatabase.h"
#include "platform/Paths.h"
#include "records/Vocabulary.h"

#include <algorithm>
#include <utility>

namespace
{
constexpr const char* MISSING = "the file is not there";

std::uint32_t failedCall(const LocationInfo* pWhere, std::uint32_t ulCode, const std::string& strCall)
{
    return pWhere == nullptr ? ulCode : logCall(*pWhere, ulCode, strCall);
}

std::uint32_t missingFile(const LocationInfo* pWhere, const std::string& strPath)
{
    // Logged under another code than the one that is returned.
    if (pWhere != nullptr)
        logFail(*pWhere, DC_RESULT_INVALID_PARA, "Server config File :" + strPath + " not exist.");
    return DC_RESULT_FILE_NOT_EXIST;
}

StPlannedFile foundFile(EnConfigSource enSource, std::string strFile)
{
    StPlannedFile stFile;
    stFile.enSource = enSource;
    stFile.strFile  = std::move(strFile);
    return stFile;
}

void setMissing(StPlannedFile& stFile, std::uint32_t ulResult)
{
    stFile.enSource          = EnConfigSource::None;
    stFile.ulResult          = ulResult;
    stFile.stProblem.strFile = stFile.strFile;
    stFile.stProblem.strText = MISSING;
}

StPlannedFile chooseConfig(const LocationInfo* pWhere, const std::string& strDevType, const StDeviceType& stDeviceType,
                           const StAsnDevVersion& stVersion, bool bUseCommon)
{
    if (bUseCommon && stDeviceType.enConfigFileType == EnConfigFileCommon)
        return foundFile(EnConfigSource::CommonFile, CXMLConfigDatabase::getCommonDevTypeXMLFileName(true));
    if (!stVersion.strSoftVersion.empty() || !stVersion.strPatchVersion.empty())
        return foundFile(EnConfigSource::CapacityDocument,
                         CXMLConfigDatabase::getDevTypeXMLFileName(strDevType, stVersion.strSoftVersion,
                                                                   stVersion.strPatchVersion, true, ""));
    return configSearch::findOwnFile(pWhere, strDevType);
}

void useTelnetTwin(const LocationInfo* pWhere, const std::string& strDevType, StPlannedFile& stFile)
{
    const std::string   strDevTypeTemp = strDevType + std::string(Vocabulary::TELNET_SUFFIX);
    std::string         strFilePath;
    const std::uint32_t ulResult =
        CDeviceAdapterInterface::getInstance()->getServerConfigFile(strDevTypeTemp, strFilePath);
    if (ulResult != DC_RESULT_OK)
        setMissing(stFile, failedCall(pWhere, ulResult,
                                      "CDeviceAdapterInterface::getInstance()->getServerConfigFile(strDevTypeTemp, "
                                      "strFilePath)"));
    else if (NS_UTIL::IsExists(strFilePath))
        stFile = foundFile(EnConfigSource::TelnetTwin, std::move(strFilePath));
    else
        setMissing(stFile, missingFile(pWhere, strFilePath));
}
} // namespace

std::uint32_t configSearch::findDeviceType(const LocationInfo* pWhere, const std::string& strDevType,
                                           const std::string& strDevTypeVer, StDeviceType& stDeviceType)
{
    const std::uint32_t ulResult =
        CDeviceAdapterInterface::getInstance()->searchDeviceType(strDevType, strDevTypeVer, stDeviceType);
    if (ulResult == DC_RESULT_OK)
        return DC_RESULT_OK;
    return failedCall(pWhere, ulResult,
                      "CDeviceAdapterInterface::getInstance()->searchDeviceType(m_strDevType, m_strDevTypeVer, "
                      "oStDeviceType)");
}

StPlannedFile configSearch::findConfig(const LocationInfo* pWhere, const std::string& strDevType,
                                       const std::string& strDevTypeVer, const StAsnDevVersion& stVersion,
                                       bool bUseCommon)
{
    StPlannedFile stFile;
    StDeviceType  stDeviceType;
    stFile.ulResult = findDeviceType(pWhere, strDevType, strDevTypeVer, stDeviceType);
    if (stFile.ulResult != DC_RESULT_OK)
        return stFile;
    stFile = chooseConfig(pWhere, strDevType, stDeviceType, stVersion, bUseCommon);
    if (stFile.ulResult != DC_RESULT_OK || NS_UTIL::IsExists(stFile.strFile))
        return stFile;
    missingFile(pWhere, stFile.strFile); // the twin decides whether that matters
    useTelnetTwin(pWhere, strDevType, stFile);
    return stFile;
}

StPlannedFile configSearch::findOwnFile(const LocationInfo* pWhere, const std::string& strDevType)
{
    StPlannedFile stFile;
    stFile.ulResult = CDeviceAdapterInterface::getInstance()->getServerConfigFile(strDevType, stFile.strFile);
    if (stFile.ulResult == DC_RESULT_OK)
        return foundFile(EnConfigSource::OwnFile, std::move(stFile.strFile));
    failedCall(pWhere, stFile.ulResult,
               "CDeviceAdapterInterface::getInstance()->getServerConfigFile(m_strDevType, strFilePath)");
    stFile.strFile.clear(); // what a failing call leaves there is no path
    return stFile;
}

StPlannedFile configSearch::findCommonFile(const LocationInfo* pWhere)
{
    StPlannedFile stFile = foundFile(EnConfigSource::CommonFile, CXMLConfigDatabase::getCommonDevTypeXMLFileName(true));
    if (!NS_UTIL::IsExists(stFile.strFile))
        setMissing(stFile, missingFile(pWhere, stFile.strFile));
    return stFile;
}

StPlannedFile configSearch::findCheckFile(const LocationInfo* pWhere, const std::string& strDevType,
                                          EnCheckReportType& enReportType)
{
    StPlannedFile stFile;
    stFile.ulResult =
        CDeviceAdapterInterface::getInstance()->getCheckFileAndType(strDevType, stFile.strFile, enReportType);
    if (stFile.ulResult != DC_RESULT_OK)
        failedCall(pWhere, stFile.ulResult,
                   "CDeviceAdapterInterface::getInstance()->getCheckFileAndType(strDevType, strFilePath, "
                   "m_enReportType): DeviceType = " +
                       strDevType);
    if (!stFile.strFile.empty())
        stFile.enSource = EnConfigSource::CheckFile; // whether it is there shows when it is parsed
    return stFile;
}

StPlannedFile configSearch::findFixedCheckFile(const std::string& strDevType)
{
    std::string strPath = CDeviceAdapterInterface::getInstance()->initXMLPath() + "/access_snmp/fixedcheck/" +
                          strDevType + std::string(Vocabulary::XML_SUFFIX);
    if (isFixedCheckEnabled() && NS_UTIL::IsExists(strPath))
        return foundFile(EnConfigSource::FixedCheckFile, std::move(strPath));
    return {};
}

const StCapacityInfo* configSearch::findCapacity(const std::list<StCapacityInfo>& lstCapacity,
                                                 const StAsnDevVersion&           stVersion)
{
    const auto itFound = std::find_if(lstCapacity.begin(), lstCapacity.end(),
                                      [&stVersion](const StCapacityInfo& stCapacity)
                                      {
                                          return stCapacity.strSoftVersion == stVersion.strSoftVersion &&
                                                 stCapacity.strPatchVersion == stVersion.strPatchVersion;
                                      });
    return itFound == lstCapacity.end() ? nullptr : &*itFound;
}
