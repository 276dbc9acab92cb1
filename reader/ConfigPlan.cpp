// All steps of a search in one go, without a word in the log.
#include "reader/ConfigPlan.h"

#include "platform/DeviceDatabase.h"
#include "reader/ConfigSearch.h"
#include "records/ResultCodes.h"

#include <utility>

namespace
{
// What the versions in service are read from, and the common file where one of
// them is narrowed. False: there is no version information.
bool planVersions(const std::string& strDevType, const std::string& strDevTypeVer, StConfigPlan& stPlan)
{
    std::list<StAsnDevVersion> lstVersion;
    if (!CDCDeviceInfoDB::getDevVerInfo(strDevType, strDevTypeVer, lstVersion))
        return false;
    std::list<StCapacityInfo> lstCapacity;
    if (!CDCCapacityManagerDB::readCapacity(strDevType, strDevTypeVer, lstCapacity))
    {
        stPlan.ulResult = DC_RESULT_FILE_NOT_EXIST;
        return true;
    }
    bool bNarrows = false;
    for (const StAsnDevVersion& stVersion : lstVersion)
    {
        StVersionPlan         stPlanned = {stVersion, false, false, {}};
        const StCapacityInfo* pCapacity = configSearch::findCapacity(lstCapacity, stVersion);
        if (pCapacity != nullptr)
        {
            stPlanned.bHasRecord  = true;
            stPlanned.bFullConfig = pCapacity->bFullConfig;
            stPlanned.stFile =
                configSearch::findConfig(nullptr, strDevType, strDevTypeVer,
                                         stPlanned.bFullConfig ? StAsnDevVersion() : stVersion, stPlanned.bFullConfig);
            bNarrows = bNarrows || (!stPlanned.bFullConfig && stPlanned.stFile.isFound());
        }
        stPlan.lstVersion.push_back(std::move(stPlanned));
    }
    if (bNarrows)
        stPlan.stConfig = configSearch::findCommonFile(nullptr);
    return true;
}
} // namespace

StConfigPlan makeConfigPlan(const std::string& strDevType, const std::string& strDevTypeVer, bool bCapacity)
{
    StConfigPlan stPlan;
    StDeviceType stDeviceType;
    stPlan.ulResult = configSearch::findDeviceType(nullptr, strDevType, strDevTypeVer, stDeviceType);
    if (stPlan.ulResult != DC_RESULT_OK)
        return stPlan;
    stPlan.stCheck = configSearch::findCheckFile(nullptr, strDevType, stPlan.enReportType);
    if (!stPlan.stCheck.isFound())
        stPlan.stFixedCheck = configSearch::findFixedCheckFile(strDevType);
    if (bCapacity && planVersions(strDevType, strDevTypeVer, stPlan))
        return stPlan;
    const bool bCommonAlone = bCapacity && stDeviceType.enConfigFileType == EnConfigFileCommon; // no twin serves it
    stPlan.stConfig         = bCommonAlone ? configSearch::findCommonFile(nullptr)
                                           : configSearch::findConfig(nullptr, strDevType, strDevTypeVer, {}, true);
    return stPlan;
}
