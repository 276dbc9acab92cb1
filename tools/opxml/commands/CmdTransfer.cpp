// opxml transfer: whether an alarm of a device type is forwarded to the server,
// and by which registration. Loads the registration table only, no device type.
#include "alarm/InitTblRegInfo.h"
#include "platform/DeviceAdapter.h"
#include "tools/opxml/commands/AlarmTables.h"
#include "tools/opxml/lint/CheckFile.h"
#include "tools/opxml/output/DevTypes.h"
#include "tools/opxml/output/Names.h"
#include "tools/opxml/output/RecordJson.h"
#include "tools/opxml/output/Terminal.h"
#include "tools/opxml/output/Text.h"

#include <fmt/format.h>

#include <list>
#include <memory>
#include <vector>

namespace
{
struct StQuestion
{
    std::string    strFaultId;
    std::string    strDevType;
    StAlarmOptions stOptions;
};

struct StAnswer
{
    NS_UTIL::EnvAlarmInfo      stAlarm;
    EnTransferBy               enBy     = EnTransferBy::None;
    unsigned long              ulRecord = 0; // of the deciding registration
    std::vector<unsigned long> lstOtherType; // device types that the alarm is registered for as well
};

std::list<StDeviceType> readRegistry()
{
    std::list<StDeviceType> lstDeviceType;
    CDeviceAdapterInterface::getInstance()->getALLDLLInfo(lstDeviceType); // only names come from it
    return lstDeviceType;
}

// A device type by its number or by its name in the registry.
unsigned long findDevType(const std::list<StDeviceType>& lstDeviceType, const std::string& strDevType)
{
    std::uint64_t ulDevType = 0;
    if (isId(strDevType, ulDevType))
        return ulDevType;
    std::vector<std::string> lstName;
    for (const StDeviceType& stType : lstDeviceType)
    {
        if (stType.strDevType == strDevType)
            return stType.ulDeviceTypeID;
        lstName.push_back(stType.strDevType);
    }
    throw CTrouble("no device type \"" + printable(strDevType) + "\"" + nearestNames(strDevType, lstName));
}

// "1001 (LX 2400/S)".
std::string typeText(const std::list<StDeviceType>& lstDeviceType, unsigned long ulDevType)
{
    for (const StDeviceType& stType : lstDeviceType)
    {
        if (stType.ulDeviceTypeID == ulDevType)
            return fmt::format("{} ({})", ulDevType, printable(stType.strDevType));
    }
    return std::to_string(ulDevType);
}

StAnswer findAnswer(const InitTblRegInfo& oTable, const NS_UTIL::EnvAlarmInfo& stAlarm)
{
    StAnswer stAnswer;
    stAnswer.stAlarm = stAlarm;
    stAnswer.enBy    = oTable.findRegistration(stAlarm);
    if (stAnswer.enBy == EnTransferBy::AllTypes)
        stAnswer.ulRecord = oTable.allTypes().at(stAlarm.ulFaultId);
    if (stAnswer.enBy == EnTransferBy::DeviceType)
        stAnswer.ulRecord = oTable.byDevType().at(stAlarm.ulDevType).at(stAlarm.ulFaultId);
    for (const auto& [ulDevType, mapFaultId] : oTable.byDevType())
    {
        if (ulDevType != stAlarm.ulDevType && mapFaultId.count(stAlarm.ulFaultId) != 0)
            stAnswer.lstOtherType.push_back(ulDevType);
    }
    return stAnswer;
}

std::string answerText(const StAnswer& stAnswer, const std::list<StDeviceType>& lstDeviceType)
{
    const std::string strType = typeText(lstDeviceType, stAnswer.stAlarm.ulDevType);
    if (stAnswer.enBy == EnTransferBy::AllTypes)
        return fmt::format("yes\nregistered for all device types by record {}\n", stAnswer.ulRecord);
    if (stAnswer.enBy == EnTransferBy::DeviceType)
        return fmt::format("yes\nregistered for device type {} by record {}\n", strType, stAnswer.ulRecord);
    std::string strText = fmt::format("no\nnot registered for all device types, nor for device type {}\n", strType);
    for (const unsigned long ulDevType : stAnswer.lstOtherType)
        strText += fmt::format("registered for device type {}\n", typeText(lstDeviceType, ulDevType));
    return strText;
}

std::string answerJson(const StAnswer& stAnswer)
{
    const bool  bYes  = stAnswer.enBy != EnTransferBy::None;
    const char* pszBy = stAnswer.enBy == EnTransferBy::AllTypes ? "allTypes" : "deviceType";
    return jsonText({{"faultId", stAnswer.stAlarm.ulFaultId},
                     {"deviceType", stAnswer.stAlarm.ulDevType},
                     {"transferred", bYes},
                     {"by", bYes ? Json(pszBy) : Json()},
                     {"record", bYes ? Json(stAnswer.ulRecord) : Json()},
                     {"otherDeviceTypes", stAnswer.lstOtherType}}) +
           "\n";
}

int runTransfer(const StGlobalOptions& stGlobal, const StQuestion& stQuestion)
{
    const bool bAsked = !stQuestion.strDevType.empty();
    if (stQuestion.stOptions.bCheck ? !stQuestion.strFaultId.empty() : !bAsked)
        throw CTrouble("transfer: give FAULT-ID and DEVICE-TYPE, or --check");
    NS_UTIL::EnvAlarmInfo stAlarm;
    if (bAsked)
        stAlarm.ulFaultId = readId("fault id", stQuestion.strFaultId);
    openAlarmRoot(stGlobal, stQuestion.stOptions);
    const std::list<StDeviceType> lstDeviceType = readRegistry();
    if (bAsked)
        stAlarm.ulDevType = findDevType(lstDeviceType, stQuestion.strDevType);

    const InitTblRegInfo& oTable = *InitTblRegInfo::Instance();
    requireTable(oTable);
    if (stQuestion.stOptions.bCheck)
        return printMistakes(oTable.path(), shortPath(oTable.path()), lint::EnFileKind::AlarmRegistration,
                             stQuestion.stOptions.bJson);
    const StAnswer stAnswer = findAnswer(oTable, stAlarm);
    print(stQuestion.stOptions.bJson ? answerJson(stAnswer) : answerText(stAnswer, lstDeviceType));
    return oTable.NeedTransfer(stAlarm) ? EXIT_YES : EXIT_NO;
}
} // namespace

void addTransferCommand(CLI::App& oApp, StTool& stTool)
{
    CLI::App* pCommand  = oApp.add_subcommand("transfer", "Tell whether an alarm is forwarded to the server, and why");
    auto      pQuestion = std::make_shared<StQuestion>();
    pCommand->add_option("FAULT-ID", pQuestion->strFaultId, "Number of the alarm");
    pCommand->add_option("DEVICE-TYPE", pQuestion->strDevType, "Number or name of the device type that raises it");
    addAlarmOptions(*pCommand, pQuestion->stOptions);
    pCommand->footer("Exit status: 0 forwarded (--check: no mistakes), 1 not forwarded, 2 trouble.");
    pCommand->callback([&stTool, pQuestion]
                       { stTool.fnRun = [&stTool, pQuestion] { return runTransfer(stTool.stOptions, *pQuestion); }; });
}
