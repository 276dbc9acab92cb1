// See QueryPlace.h.
#include "tools/opxml/query/QueryPlace.h"

#include "database/CXMLConfigDatabase.h"
#include "records/ResultCodes.h"
#include "records/Vocabulary.h"
#include "tools/opxml/output/DevTypes.h"
#include "tools/opxml/output/Names.h"

namespace
{
std::string missingText(const std::string& strDevType, const std::string& strKey)
{
    const StLoadReport stReport = CXMLConfigDatabase::getInstance()->getLoadReport();
    std::string        strText;
    for (const StDevTypeLoad& stLoad : stReport.lstDevType)
    {
        if (stLoad.strKey == strKey) // the last of them says how it ended
            strText = fmt::format("\"{}\" {} {}", stLoad.strDevType, stLoad.strDevTypeVer, failureText(stLoad));
        else if (stLoad.strDevType == strDevType && strText.empty())
            strText = fmt::format("device type \"{}\" has no configuration \"{}\"", strDevType, strKey);
    }
    return strText.empty() ? unknownTypeText(registeredTypes(), strDevType) : strText;
}
} // namespace

StPlace findPlace(const std::string& strDevType, const std::string& strDevTypeVer)
{
    const std::string strKey = CXMLConfigDatabase::trans2TelnetDevType(strDevType, strDevTypeVer);
    StPlace           stPlace;
    stPlace.strName = fmt::format("\"{}\"", strKey);
    CXMLConfigDatabase::getInstance()->visitDevTypes(
        [&](const std::string& strStored, const std::list<StAsnDevTypeVerXMLInfo*>& lstInfo)
        {
            if (strStored == strKey && !lstInfo.empty())
                stPlace.pInfo = lstInfo.front();
        });
    if (stPlace.pInfo == nullptr)
        stPlace.stReason.strWhy = missingText(strDevType, strKey);
    return stPlace;
}

StPlace findDevicePlace(std::uint32_t ulDeviceID, EnTelnetRule enRule)
{
    StDeviceInfo stDevice;
    if (CDCDeviceInfoDB::getDeviceInfo(ulDeviceID, stDevice) != DC_RESULT_OK)
        return {nullptr, {}, {fmt::format("no device {}", ulDeviceID), {}}};
    std::string strDevType;
    std::string strDevTypeVer;
    if (CDCDeviceInfoDB::getDevTypeAndVersionName(ulDeviceID, strDevType, strDevTypeVer) != DC_RESULT_OK)
        return {nullptr,
                {},
                {fmt::format("device {} is of type {}, version {}, which is not installed", ulDeviceID,
                             stDevice.ulDeviceTypeID, stDevice.ulDeviceTypeVersionID),
                 {}}};
    if ((enRule == EnTelnetRule::ByName && strDevType != strDevTypeVer) ||
        (enRule == EnTelnetRule::ByDevice && CXMLConfigDatabase::bTelnetToDev(stDevice)))
        strDevTypeVer += Vocabulary::TELNET_SUFFIX;
    StPlace stPlace = findPlace(strDevType, strDevTypeVer);
    stPlace.strName += fmt::format(" of device {}", ulDeviceID);
    if (stPlace.pInfo == nullptr)
        stPlace.stReason.strWhy = fmt::format("device {}: {}", ulDeviceID, stPlace.stReason.strWhy);
    return stPlace;
}

StPlace findTypePlace(std::uint32_t ulTypeID, std::uint32_t ulVersionID)
{
    std::string strDevType;
    std::string strDevTypeVer;
    if (CDeviceAdapterInterface::getInstance()->searchTypeName(ulTypeID, ulVersionID, strDevType, strDevTypeVer) ==
        DC_RESULT_OK)
        return findPlace(strDevType, strDevTypeVer);
    return {nullptr, {}, {fmt::format("type {}, version {}, is not installed", ulTypeID, ulVersionID), {}}};
}

std::string offerText(const std::vector<std::string>& lstName)
{
    return lstName.empty() ? "there is none" : fmt::format("there are: {}", fmt::join(lstName, ", "));
}

StQueryReason noneOfThem(const std::string& strWhat, const std::string& strId, const std::string& strWhere,
                         const std::vector<std::string>& lstId)
{
    return {fmt::format("no {} \"{}\" in {}{}", strWhat, strId, strWhere, nearestNames(strId, lstId)),
            offerText(lstId)};
}
