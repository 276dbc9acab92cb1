// See QueryPlace.h.
#include "tools/opxml/query/QueryPlace.h"

#include "database/CXMLConfigDatabase.h"
#include "records/ResultCodes.h"
#include "records/Vocabulary.h"

#include <fmt/format.h>

StPlace findPlace(const std::string& strDevType, const std::string& strDevTypeVer)
{
    const StServedKey& stServed = CServedKeys::instance().find(strDevType, strDevTypeVer);
    StPlace            stPlace;
    stPlace.stLookedInto.pServed    = &stServed;
    stPlace.stLookedInto.strDevType = strDevType;
    stPlace.stLookedInto.strWhere   = fmt::format("\"{}\"", stServed.strKey);
    stPlace.stReason.strWhy         = stServed.strProblem;
    return stPlace;
}

StPlace findDevicePlace(std::uint32_t ulDeviceID, EnTelnetRule enRule)
{
    StDeviceInfo stDevice;
    if (CDCDeviceInfoDB::getDeviceInfo(ulDeviceID, stDevice) != DC_RESULT_OK)
        return {{}, {fmt::format("no device {}", ulDeviceID), {}}};
    std::string strDevType;
    std::string strDevTypeVer;
    if (CDCDeviceInfoDB::getDevTypeAndVersionName(ulDeviceID, strDevType, strDevTypeVer) != DC_RESULT_OK)
        return {{},
                {fmt::format("device {} is of type {}, version {}, which is not installed", ulDeviceID,
                             stDevice.ulDeviceTypeID, stDevice.ulDeviceTypeVersionID),
                 {}}};
    if ((enRule == EnTelnetRule::ByName && strDevType != strDevTypeVer) ||
        (enRule == EnTelnetRule::ByDevice && CXMLConfigDatabase::bTelnetToDev(stDevice)))
        strDevTypeVer += Vocabulary::TELNET_SUFFIX;
    StPlace stPlace = findPlace(strDevType, strDevTypeVer);
    stPlace.stLookedInto.strWhere += fmt::format(" of device {}", ulDeviceID);
    if (!stPlace.isThere())
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
    return {{}, {fmt::format("type {}, version {}, is not installed", ulTypeID, ulVersionID), {}}};
}

std::string offerText(const std::vector<std::string>& lstName)
{
    return lstName.empty() ? "there is none" : fmt::format("there are: {}", fmt::join(lstName, ", "));
}

StQueryReason whyAbsent(const StPlace& stPlace, const StWanted& stWanted)
{
    if (!stPlace.isThere())
        return stPlace.stReason;
    const StAbsence stAbsence = findAbsence(CServedKeys::instance(), stPlace.stLookedInto, stWanted);
    const bool      bIsThere =
        stAbsence.strWhat.empty() ||
        (!stAbsence.lstObstacle.empty() && stAbsence.lstObstacle.front().enObstacle == EnObstacle::SwitchedOff);
    return {stAbsence.text(), bIsThere ? "" : offerText(stAbsence.lstThereAre)};
}
