// Fuzz target: the two alarm tables, both from the same document.
#include "FuzzSupport.h"

#include "alarm/InitAlarmInfo.h"
#include "alarm/InitTblRegInfo.h"

#include <unistd.h>

namespace
{
constexpr const char* NAMES    = "pub/i18n/en_US/kivo/fm/dc_tbl_alm_exp_info.xml";
constexpr const char* TRANSFER = "pub/i18n/en_US/kivo/fm/dc_tbl_RegInfo.xml";

struct StTables
{
    std::map<std::uint64_t, AlarmStaticInfo>            mapAlarm;
    InitTblRegInfo::FaultIdMap                          mapAllTypes;
    std::map<unsigned long, InitTblRegInfo::FaultIdMap> mapByDevType;
};

StTables readOnce()
{
    InitAlarmInfo::Destroy();
    InitTblRegInfo::Destroy();
    const InitAlarmInfo&  oNames    = *InitAlarmInfo::Instance();
    const InitTblRegInfo& oTransfer = *InitTblRegInfo::Instance();
    return {oNames.alarms(), oTransfer.allTypes(), oTransfer.byDevType()};
}

void requireAnswers(const StTables& stTables)
{
    for (const auto& [ulId, stAlarm] : stTables.mapAlarm)
    {
        const AlarmStaticInfo stAnswer = InitAlarmInfo::Instance()->getAlarmNameByAlarmId(ulId);
        require(stAnswer.ulAlarmId == ulId && stAnswer.strAlarmName == stAlarm.strAlarmName, "an alarm is found");
    }
    NS_UTIL::EnvAlarmInfo stAlarm;
    for (const auto& [ulDevType, mapFaultId] : stTables.mapByDevType)
    {
        stAlarm.ulDevType = ulDevType;
        for (const auto& [ulFaultId, ulRecord] : mapFaultId)
        {
            stAlarm.ulFaultId = ulFaultId;
            require(InitTblRegInfo::Instance()->NeedTransfer(stAlarm), "a registered alarm is transferred");
            require(ulRecord > 0, "a registration knows its record");
        }
    }
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    static const CFuzzRoot s_oRoot;
    static const bool      s_bOpen =
        (s_oRoot.open(""), s_oRoot.write(NAMES, "") && ::link((s_oRoot.path() + "/" + NAMES).c_str(),
                                                              (s_oRoot.path() + "/" + TRANSFER).c_str()) == 0);
    require(s_bOpen, "there is room for the tables");
    s_oRoot.write(NAMES, std::string_view(reinterpret_cast<const char*>(pData), nSize));

    const StTables stFirst  = readOnce();
    const StTables stSecond = readOnce();
    require(stFirst.mapAlarm.size() == stSecond.mapAlarm.size(), "the same table gives the same alarms");
    require(stFirst.mapAllTypes == stSecond.mapAllTypes, "the same table registers the same alarms");
    require(stFirst.mapByDevType == stSecond.mapByDevType, "the same table registers them for the same types");
    requireAnswers(stSecond);
    return 0;
}
