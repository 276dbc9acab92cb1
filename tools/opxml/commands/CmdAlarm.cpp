// opxml alarm: name and explanation of alarms, by id, all of them, or those that
// mention a text. Loads the alarm table only, no device type.
#include "alarm/InitAlarmInfo.h"
#include "tools/opxml/commands/AlarmTables.h"
#include "tools/opxml/lint/CheckFile.h"
#include "tools/opxml/output/DevTypes.h"
#include "tools/opxml/output/Names.h"
#include "tools/opxml/output/RecordJson.h"
#include "tools/opxml/output/Table.h"
#include "tools/opxml/output/Terminal.h"

#include <fmt/format.h>

#include <algorithm>
#include <memory>
#include <vector>

namespace
{
struct StWanted
{
    std::vector<std::string> lstId;
    std::string              strFind;
    bool                     bFind = false;
    bool                     bList = false;
    StAlarmOptions           stOptions;
};

std::vector<AlarmStaticInfo> findAlarms(const InitAlarmInfo& oTable, const std::string& strPart)
{
    std::vector<AlarmStaticInfo> lstAlarm;
    for (const auto& [ulAlarmId, stAlarm] : oTable.alarms())
    {
        if (mentions(stAlarm.strAlarmName, strPart) || mentions(stAlarm.strExplain, strPart))
            lstAlarm.push_back(stAlarm);
    }
    return lstAlarm;
}

std::string alarmTable(const std::vector<AlarmStaticInfo>& lstAlarm)
{
    CTable oTable({{"ALARM"}, {"NAME"}, {"EXPLANATION"}});
    for (const AlarmStaticInfo& stAlarm : lstAlarm)
        oTable.addRow({std::to_string(stAlarm.ulAlarmId), stAlarm.strAlarmName, stAlarm.strExplain});
    return oTable.text();
}

std::string alarmJson(const std::vector<AlarmStaticInfo>& lstAlarm)
{
    Json oAlarms = Json::array();
    for (const AlarmStaticInfo& stAlarm : lstAlarm)
        oAlarms.push_back({{"ulAlarmId", stAlarm.ulAlarmId},
                           {"strAlarmName", stAlarm.strAlarmName},
                           {"strExplain", stAlarm.strExplain},
                           {"strReserved", stAlarm.strReserved}});
    return jsonText(oAlarms) + "\n";
}

int runAlarm(const StGlobalOptions& stGlobal, const StWanted& stWanted)
{
    const std::size_t nAsked = (stWanted.lstId.empty() ? 0u : 1u) + (stWanted.bFind ? 1u : 0u) +
                               (stWanted.bList ? 1u : 0u) + (stWanted.stOptions.bCheck ? 1u : 0u);
    if (nAsked != 1)
        throw CTrouble("alarm: give alarm ids, --list, --find TEXT or --check, one of them");
    std::vector<std::uint64_t> lstId;
    for (const std::string& strId : stWanted.lstId)
        lstId.push_back(readId("alarm id", strId));

    openAlarmRoot(stGlobal, stWanted.stOptions);
    const InitAlarmInfo& oTable = *InitAlarmInfo::Instance();
    requireTable(oTable);
    if (stWanted.stOptions.bCheck)
        return printMistakes(oTable.path(), shortPath(oTable.path()), lint::EnFileKind::AlarmExplanation,
                             stWanted.stOptions.bJson);

    std::vector<AlarmStaticInfo> lstAlarm;
    bool                         bAllKnown = true;
    if (lstId.empty())
        lstAlarm = findAlarms(oTable, stWanted.strFind);
    for (const std::uint64_t ulId : lstId)
    {
        const bool bKnown = oTable.alarms().count(ulId) != 0;
        bAllKnown         = bAllKnown && bKnown;
        if (!bKnown)
            remark(fmt::format("alarm {} is not in {}", ulId, shortPath(oTable.path())));
        // JSON tells of an unknown alarm what the library does: its id and empty texts.
        if (bKnown || stWanted.stOptions.bJson)
            lstAlarm.push_back(oTable.getAlarmNameByAlarmId(ulId));
    }
    if (stWanted.stOptions.bJson)
        print(alarmJson(lstAlarm));
    else if (!lstAlarm.empty())
        print(alarmTable(lstAlarm));
    return bAllKnown && !lstAlarm.empty() ? EXIT_YES : EXIT_NO;
}
} // namespace

void addAlarmCommand(CLI::App& oApp, StTool& stTool)
{
    CLI::App* pCommand = oApp.add_subcommand("alarm", "Show name and explanation of alarms");
    auto      pWanted  = std::make_shared<StWanted>();
    pCommand->add_option("ID", pWanted->lstId, "Alarm ids");
    pCommand->add_flag("--list", pWanted->bList, "All alarms");
    CLI::Option* pFind = pCommand
                             ->add_option("--find", pWanted->strFind,
                                          "Alarms with this text in name or explanation; upper and lower case of "
                                          "ASCII letters are one")
                             ->type_name("TEXT");
    addAlarmOptions(*pCommand, pWanted->stOptions);
    pCommand->footer("Exit status: 0 all found (--check: no mistakes), 1 not all or nothing, 2 trouble.");
    pCommand->callback(
        [&stTool, pWanted, pFind]
        {
            pWanted->bFind = pFind->count() != 0;
            stTool.fnRun   = [&stTool, pWanted] { return runAlarm(stTool.stOptions, *pWanted); };
        });
}
