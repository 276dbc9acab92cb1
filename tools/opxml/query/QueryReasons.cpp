// Why a capability or an alarm was answered with no; those of content types are in
// QueryContentReasons.cpp.
#include "tools/opxml/query/QueryReasons.h"

#include "alarm/InitAlarmInfo.h"
#include "alarm/InitTblRegInfo.h"
#include "common/XmlParser.h"
#include "database/CXMLConfigDatabase.h"
#include "filecheck/ParseXMLFile.h"
#include "records/RecordSearch.h"
#include "records/ResultCodes.h"
#include "records/WordTables.h"
#include "tools/opxml/output/DevTypes.h"
#include "tools/opxml/query/QueryPlace.h"

#include <fmt/format.h>

#include <memory>

namespace
{
// What is in the way of a parameter of an operation; pParam is set when nothing is.
template <typename Operation>
StQueryReason whyNoParameter(const std::list<Operation>& lstOper, const std::string& strWhat, std::string_view strOper,
                             std::string_view strParam, const std::string& strWhere, const StAsnOperParamDef*& pParam)
{
    const std::string strOperId(strOper);
    const Operation*  pOper = findFirst(lstOper, strOper);
    if (pOper == nullptr)
        return noneOfThem(strWhat, strOperId, strWhere, idsOf(lstOper));
    pParam = findFirst(pOper->lstParam, strParam);
    if (pParam == nullptr)
        return noneOfThem("parameter", std::string(strParam), fmt::format("\"{}\" of {}", strOperId, strWhere),
                          idsOf(pOper->lstParam));
    return {};
}

std::string taskTypeName(const StAsnTaskConfigInfoOperation& stTask)
{
    for (const StTaskTypeWord& stWord : TASK_TYPE_WORDS)
    {
        if (stWord.enConfigType == stTask.enTaskType)
            return fmt::format("{} {}", stTask.enTaskType.number(), stWord.strWord);
    }
    return std::to_string(stTask.enTaskType.number());
}
} // namespace

StQueryReason whyNoRecord(const QueryArguments& lstArgument)
{
    return findPlace(lstArgument[0].strText, lstArgument[1].strText).stReason;
}

StQueryReason whyNoDeviceOperation(const QueryArguments& lstArgument)
{
    const StPlace stPlace = findPlace(lstArgument[0].strText, lstArgument[1].strText);
    if (stPlace.pInfo == nullptr)
        return stPlace.stReason;
    const auto&              lstOper   = stPlace.pInfo->stOperationConfig.lstDevOperation;
    const std::string&       strOperId = lstArgument[2].strText;
    const StAsnOperParamDef* pParam    = nullptr;
    if (lstArgument.size() > 3)
        return whyNoParameter(lstOper, "device operation", strOperId, lstArgument[3].strText, stPlace.strName, pParam);
    if (findFirst(lstOper, strOperId) != nullptr)
        return {};
    return noneOfThem("device operation", strOperId, stPlace.strName, idsOf(lstOper));
}

StQueryReason whyNoOtherOperation(const QueryArguments& lstArgument)
{
    const StPlace stPlace = findPlace(lstArgument[0].strText, lstArgument[1].strText);
    if (stPlace.pInfo == nullptr)
        return stPlace.stReason;
    const auto&                   lstOper   = stPlace.pInfo->stOperationConfig.lstOtherOperation;
    const std::string&            strOperId = lstArgument[2].strText;
    const StAsnOtherOperationDef* pOper     = findFirst(lstOper, strOperId);
    if (lstArgument.size() > 3)
    {
        const StAsnOperParamDef* pParam = nullptr;
        StQueryReason            stReason =
            whyNoParameter(lstOper, "other operation", strOperId, lstArgument[3].strText, stPlace.strName, pParam);
        if (pParam != nullptr && !pParam->bIsRequired)
            stReason.strWhy = "the parameter is there, but not required: its isRequired is not set";
        return stReason;
    }
    if (pOper == nullptr)
        return noneOfThem("other operation", strOperId, stPlace.strName, idsOf(lstOper));
    return {pOper->bIsSupported ? "" : "the operation is there, but switched off: its isSupported is not set", {}};
}

StQueryReason whyNotCancelable(const QueryArguments& lstArgument)
{
    const StPlace stPlace = findDevicePlace(lstArgument[0].asId(), EnTelnetRule::ByName);
    if (stPlace.pInfo == nullptr)
    {
        StQueryReason stReason = stPlace.stReason;
        if (stPlace.strName.empty())
            stReason.strWhy += "; cancelling is allowed then";
        return stReason;
    }
    const auto&        stConfig  = stPlace.pInfo->stOperationConfig;
    const std::string& strOperId = lstArgument[1].strText;
    if (const auto* pCheck = findFirst(stConfig.lstCheckOperation, strOperId))
        return {pCheck->bIsCancelable ? "" : "the check operation is there, but its isCancelable is not set", {}};
    if (const auto* pTask = findFirst(stConfig.lstTaskOperation, strOperId))
        return {pTask->bIsCancelable ? "" : "the task operation is there, but its isCancelable is not set", {}};
    std::vector<std::string> lstId = idsOf(stConfig.lstTaskOperation);
    addIds(lstId, stConfig.lstCheckOperation);
    return noneOfThem("task or check operation", strOperId, stPlace.strName, lstId);
}

StQueryReason whyNoTaskType(const QueryArguments& lstArgument)
{
    const StPlace stPlace = findDevicePlace(lstArgument[0].asId(), EnTelnetRule::ByName);
    if (stPlace.pInfo == nullptr)
        return stPlace.stReason;
    std::vector<std::string> lstName;
    for (const StAsnTaskConfigInfoOperation& stTask : stPlace.pInfo->lstTaskConfigInfoOperation)
    {
        if (stTask.enTaskType == lstArgument[1].asTaskType())
            return {};
        lstName.push_back(taskTypeName(stTask));
    }
    return {fmt::format("no task type {} in {}", lstArgument[1].strText, stPlace.strName), offerText(lstName)};
}

StQueryReason whyNoCapacity(const QueryArguments& lstArgument)
{
    const std::string& strDevType    = lstArgument[0].strText;
    const std::string& strDevTypeVer = lstArgument[1].strText;
    StDeviceType       stType;
    if (CDeviceAdapterInterface::getInstance()->searchDeviceType(strDevType, strDevTypeVer, stType) != DC_RESULT_OK)
        return {fmt::format("\"{}\" with version \"{}\" is not installed", strDevType, strDevTypeVer), {}};
    std::vector<std::string> lstFlag;
    if (stType.nSupportUpgrade != 1)
        lstFlag.push_back(fmt::format("nSupportUpgrade is {}", stType.nSupportUpgrade));
    if (stType.nSupportCapacity != 1)
        lstFlag.push_back(fmt::format("nSupportCapacity is {}", stType.nSupportCapacity));
    if (stType.nCapacityPerVersion != 1)
        lstFlag.push_back(fmt::format("nCapacityPerVersion is {}", stType.nCapacityPerVersion));
    if (lstFlag.empty())
        return {};
    return {fmt::format("not 1 in the registry: {}", fmt::join(lstFlag, ", ")), {}};
}

StQueryReason whyNotTelnet(const QueryArguments& lstArgument)
{
    StDeviceInfo stDevice;
    if (CDCDeviceInfoDB::getDeviceInfo(lstArgument[0].asId(), stDevice) != DC_RESULT_OK)
        return {fmt::format("no device {}", lstArgument[0].asId()), {}};
    using Step                    = CXMLConfigDatabase::EnTelnetStep;
    Step                enDecided = Step::Domain;
    const std::uint32_t ulTypeID  = stDevice.ulDeviceTypeID;
    if (CXMLConfigDatabase::bTelnetToDev(stDevice, enDecided))
        return {};
    switch (enDecided)
    {
    case Step::Domain:
        return {fmt::format("type {} is not in domain {} (datacom)", ulTypeID, static_cast<int>(EnDeviceTypeDatacom)),
                {}};
    case Step::NoDevice:
        return {"the id stands for no device", {}};
    case Step::ConnectState:
        return {fmt::format("the connection state is {}", stDevice.ulConnectState), {}};
    case Step::Snmp:
        return {fmt::format("type {} is managed over SNMP", ulTypeID), {}};
    case Step::Capability:
        return {fmt::format("type {} does not support the telnet capability \"{}\"", ulTypeID,
                            stDevice.strTelnetCapability),
                {}};
    case Step::LoginState:
    case Step::NotV3R7:
    case Step::OtherType:
        break; // these say yes
    }
    return {};
}

StQueryReason whyNoAlarm(const QueryArguments& lstArgument)
{
    const InitAlarmInfo* pDictionary = InitAlarmInfo::Instance();
    if (pDictionary->alarms().count(lstArgument[0].ulNumber) != 0)
        return {};
    return {fmt::format("no alarm {} in {}", lstArgument[0].ulNumber, shortPath(pDictionary->path())), {}};
}

StQueryReason whyNoTransfer(const QueryArguments& lstArgument)
{
    NS_UTIL::EnvAlarmInfo stAlarm;
    stAlarm.ulFaultId           = lstArgument[0].ulNumber;
    stAlarm.ulDevType           = lstArgument[1].ulNumber;
    const InitTblRegInfo* pInfo = InitTblRegInfo::Instance();
    if (pInfo->findRegistration(stAlarm) != EnTransferBy::None)
        return {};
    return {fmt::format("fault {} is registered in {} neither for all device types nor for {}", stAlarm.ulFaultId,
                        shortPath(pInfo->path()), stAlarm.ulDevType),
            {}};
}

StQueryReason whyNoRules(const QueryArguments& lstArgument)
{
    ParseXMLFile::TypeMap mapType;
    if (ParseXMLFile::GetXMLInfo(lstArgument[0].strText, mapType) == DC_RESULT_OK)
        return {};
    std::string strProblem = "the rules are not as they should be";
    if (const std::unique_ptr<CXmlParser> pParser = CXmlParser::create())
    {
        pParser->parseFile(lstArgument[0].strText);
        if (pParser->problem().isSet())
            strProblem = problemText(pParser->problem());
    }
    return {fmt::format("{}: {}", lstArgument[0].strText, strProblem), {}};
}
