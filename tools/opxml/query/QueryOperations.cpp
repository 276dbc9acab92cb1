// The table of operations, and how a question finds its row.
#include "tools/opxml/query/QueryOperations.h"

#include "alarm/InitAlarmInfo.h"
#include "alarm/InitTblRegInfo.h"
#include "database/CXMLConfigDatabase.h"
#include "filecheck/ParseXMLFile.h"
#include "records/Vocabulary.h"
#include "tools/opxml/output/DevTypes.h"
#include "tools/opxml/output/Names.h"
#include "tools/opxml/output/Text.h"
#include "tools/opxml/query/QueryCall.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

namespace
{
constexpr StQueryParameter TYPE        = {"TYPE", EnQueryArgument::Text};
constexpr StQueryParameter VERSION     = {"VERSION", EnQueryArgument::Text};
constexpr StQueryParameter OPERATION   = {"OPERATION", EnQueryArgument::Text};
constexpr StQueryParameter PARAMETER   = {"PARAMETER", EnQueryArgument::Text};
constexpr StQueryParameter NAME        = {"NAME", EnQueryArgument::Text};
constexpr StQueryParameter VALUE       = {"VALUE", EnQueryArgument::Value};
constexpr StQueryParameter DEVICE_ID   = {"DEVICE-ID", EnQueryArgument::Id};
constexpr StQueryParameter TYPE_ID     = {"TYPE-ID", EnQueryArgument::Id};
constexpr StQueryParameter VERSION_ID  = {"VERSION-ID", EnQueryArgument::Id};
constexpr StQueryParameter TASK_TYPE   = {"TASK-TYPE", EnQueryArgument::TaskType};
constexpr StQueryParameter DOMAIN_NO   = {"DOMAIN", EnQueryArgument::Value};
constexpr StQueryParameter CAPACITY    = {"CAPACITY", EnQueryArgument::Flag};
constexpr StQueryParameter WHOLE_PATH  = {"WHOLE-PATH", EnQueryArgument::Flag};
constexpr StQueryParameter VERSION_ONE = {"VERSION-ONE", EnQueryArgument::Text};
constexpr StQueryParameter VERSION_TWO = {"VERSION-TWO", EnQueryArgument::Text};
constexpr StQueryParameter ALARM_ID    = {"ALARM-ID", EnQueryArgument::LongId};
constexpr StQueryParameter FAULT_ID    = {"FAULT-ID", EnQueryArgument::LongId};
constexpr StQueryParameter DEVICE_TYPE = {"DEVICE-TYPE", EnQueryArgument::LongId};
constexpr StQueryParameter FILE_PATH   = {"FILE", EnQueryArgument::Text};

constexpr const char* YES_NO = "yes or no";

using Database = CXMLConfigDatabase;

Database& database()
{
    return *Database::getInstance();
}

StQueryAnswer found(std::string strText)
{
    return {0, std::move(strText), true};
}

StQueryAnswer askCancel(const QueryArguments& arg)
{
    return yesNo(0, database().isCancelOperSupported(arg[0].asInt(), arg[1].strText));
}

StQueryAnswer askCapacity(const QueryArguments& arg)
{
    return yesNo(0, database().isSupportCapacity(arg[0].strText, arg[1].strText));
}

StQueryAnswer askTelnet(const QueryArguments& arg)
{
    StDeviceInfo        stDevice;
    const std::uint32_t ulResult = CDCDeviceInfoDB::getDeviceInfo(arg[0].asId(), stDevice);
    return yesNo(ulResult, ulResult == 0 && Database::bTelnetToDev(stDevice));
}

StQueryAnswer askKey(const QueryArguments& arg)
{
    return found(Database::trans2TelnetDevType(arg[0].strText, arg[1].strText));
}

StQueryAnswer askConfig(const QueryArguments& arg)
{
    std::list<StAsnDevTypeVerXMLInfo*> lstInfo;
    const bool                         bCapacity = arg.size() > 2 && arg[2].asFlag();
    const std::uint32_t ulResult = database().getDevTypeXMLConfig(arg[0].strText, arg[1].strText, lstInfo, bCapacity);
    return {ulResult, toJson(lstInfo), ulResult == 0 && !lstInfo.empty()};
}

StQueryAnswer askFirstConfig(const QueryArguments& arg)
{
    const StAsnDevTypeVerXMLInfo* pInfo = database().getFirstDevTypeXMLConfig(arg[0].strText, arg[1].strText);
    return {0, pInfo == nullptr ? Json() : toJson(*pInfo), pInfo != nullptr};
}

StQueryAnswer askBackupContents(const QueryArguments& arg)
{
    const auto    enDomain = static_cast<EnDeviceType>(arg[1].asInt());
    StQueryAnswer stAnswer =
        askText([&](std::string& strList)
                { return database().getAllBackupContentTypeNameByDevTypeName(arg[0].strText, strList, enDomain); });
    stAnswer.bFound = stAnswer.bFound && !stAnswer.oAnswer.get_ref<const std::string&>().empty();
    return stAnswer;
}

StQueryAnswer askFolder(const QueryArguments& /*arg*/)
{
    return found(Database::getDevTypeXMLPath());
}

StQueryAnswer askCommonFile(const QueryArguments& arg)
{
    return found(Database::getCommonDevTypeXMLFileName(arg[0].asFlag()));
}

StQueryAnswer askFile(const QueryArguments& arg)
{
    return found(Database::getDevTypeXMLFileName(arg[0].strText, arg[1].strText, arg[2].strText, arg[3].asFlag(),
                                                 arg[4].strText));
}

StQueryAnswer askAlarm(const QueryArguments& arg)
{
    const InitAlarmInfo*  pDictionary = InitAlarmInfo::Instance();
    const AlarmStaticInfo stAlarm     = pDictionary->getAlarmNameByAlarmId(arg[0].ulNumber);
    return {0,
            {{"ulAlarmId", stAlarm.ulAlarmId},
             {"strAlarmName", stAlarm.strAlarmName},
             {"strExplain", stAlarm.strExplain},
             {"strReserved", stAlarm.strReserved}},
            pDictionary->alarms().count(arg[0].ulNumber) != 0};
}

StQueryAnswer askTransfer(const QueryArguments& arg)
{
    NS_UTIL::EnvAlarmInfo stAlarm;
    stAlarm.ulFaultId = arg[0].ulNumber;
    stAlarm.ulDevType = arg[1].ulNumber;
    return yesNo(0, InitTblRegInfo::Instance()->NeedTransfer(stAlarm));
}

StQueryAnswer askRules(const QueryArguments& arg)
{
    ParseXMLFile::TypeMap mapType;
    const std::uint32_t   ulResult = ParseXMLFile::GetXMLInfo(arg[0].strText, mapType);
    Json                  oTypes; // null while no type was read
    for (const auto& [strValue, stType] : mapType)
    {
        oTypes[strValue] = {{"strUncompressedSuffix", stType.strUncompressedSuffix},
                            {"strMaxSize", stType.strMaxSize},
                            {"strFileMaxSize", stType.strFileMaxSize},
                            {"strWholeFileMaxSize", stType.strWholeFileMaxSize},
                            {"strMaxCount", stType.strMaxCount},
                            {"strFileSuffix", stType.strFileSuffix}};
    }
    return {ulResult, std::move(oTypes), ulResult == 0};
}

// The two ways to ask for an other operation.
using OtherOp     = std::uint32_t (Database::*)(const std::string&, const std::string&, const std::string&, bool&);
using OtherOpPara = std::uint32_t (Database::*)(const std::string&, const std::string&, const std::string&,
                                                const std::string&, bool&);
constexpr OtherOp     OTHER_OP      = &Database::isOtherOpSupported;
constexpr OtherOpPara OTHER_OP_PARA = &Database::isOtherOpSupported;

// clang-format off
std::vector<StQueryOperation> makeOperations()
{
    return {
        {"isDeviceOpSupported",     {TYPE, VERSION, OPERATION},            YES_NO, ask<&Database::isDeviceOpSupported>,     whyNoDeviceOperation},
        {"isDeviceOpParaSupported", {TYPE, VERSION, OPERATION, PARAMETER}, YES_NO, ask<&Database::isDeviceOpParaSupported>, whyNoDeviceOperation},
        {"isOtherOpSupported",      {TYPE, VERSION, OPERATION},            YES_NO, ask<OTHER_OP>,                           whyNoOtherOperation},
        {"isOtherOpSupported",      {TYPE, VERSION, OPERATION, PARAMETER}, YES_NO, ask<OTHER_OP_PARA>,                      whyNoOtherOperation},
        {"isCancelOperSupported",   {DEVICE_ID, OPERATION},                YES_NO, askCancel,                               whyNotCancelable},
        {"isSupportTaskType",       {DEVICE_ID, TASK_TYPE},                YES_NO, ask<&Database::isSupportTaskType>,       whyNoTaskType},
        {"isSupportCapacity",       {TYPE, VERSION},                       YES_NO, askCapacity,                             whyNoCapacity},
        {"bTelnetToDev",            {DEVICE_ID},                           YES_NO, askTelnet,                               whyNotTelnet},
        {"trans2TelnetDevType",     {TYPE, VERSION},                       "storage key", askKey,                           nullptr},

        {"getContentTypeId",         {DEVICE_ID, VALUE},           "name",   ask<&Database::getContentTypeId>,         whyNoContentType},
        {"getLoadDataContentTypeID", {DEVICE_ID, VALUE},           "name",   ask<&Database::getLoadDataContentTypeID>, whyNoLoadDataContentType},
        {"getBackupContentTypeId",   {DEVICE_ID, VALUE},           "name",   ask<&Database::getBackupContentTypeId>,   whyNoBackupContentType},
        {"getSAMContentTypeID",      {TYPE, VERSION, VALUE},       "name",   ask<&Database::getSAMContentTypeID>,      whyNoSamContentType},
        {"getSAMContentTypeValue",   {TYPE, VERSION, NAME},        "number", ask<&Database::getSAMContentTypeValue>,   whyNoSamContentName},
        {"getBoardType",             {TYPE_ID, VERSION_ID, VALUE}, "name",   ask<&Database::getBoardType>,             whyNoBoardType},
        {"getAllBackupContentTypeNameByDevTypeName", {TYPE, DOMAIN_NO}, "list", askBackupContents, whyNoBackupContents},

        {"getDevTypeXMLConfig",         {TYPE, VERSION},           "records", askConfig,      whyNoRecord},
        {"getDevTypeXMLConfig",         {TYPE, VERSION, CAPACITY}, "records", askConfig,      whyNoRecord},
        {"getFirstDevTypeXMLConfig",    {TYPE, VERSION},           "record",  askFirstConfig, whyNoRecord},
        {"getDevTypeXMLPath",           {},                        "path",    askFolder,      nullptr},
        {"getCommonDevTypeXMLFileName", {WHOLE_PATH},              "path",    askCommonFile,  nullptr},
        {"getDevTypeXMLFileName", {TYPE, VERSION_ONE, VERSION_TWO, WHOLE_PATH, VERSION}, "path", askFile, nullptr},

        {"getAlarmNameByAlarmId", {ALARM_ID},              "alarm", askAlarm,    whyNoAlarm},
        {"NeedTransfer",          {FAULT_ID, DEVICE_TYPE}, YES_NO,  askTransfer, whyNoTransfer},
        {"GetXMLInfo",            {FILE_PATH},             "rules", askRules,    whyNoRules},
    };
}
// clang-format on

std::string unknownOperationText(const std::string& strName)
{
    std::vector<std::string> lstName;
    for (const StQueryOperation& stOperation : queryOperations())
        lstName.emplace_back(stOperation.pszName);
    return fmt::format("no operation \"{}\" (opxml query --list has them all){}", strName,
                       nearestNames(strName, lstName));
}

std::string wrongCountText(const std::string& strName, std::size_t nGiven)
{
    std::string strForms;
    for (const StQueryOperation& stOperation : queryOperations())
    {
        if (strName != stOperation.pszName)
            continue;
        strForms += strForms.empty() ? "" : ", or ";
        strForms += stOperation.lstParameter.empty() ? "no arguments" : parameterNames(stOperation);
    }
    return fmt::format("{} takes {}; {} given", strName, strForms, nGiven);
}
} // namespace

const std::vector<StQueryOperation>& queryOperations()
{
    static const std::vector<StQueryOperation> OPERATIONS = makeOperations();
    return OPERATIONS;
}

std::set<std::string> typesAsked(const StQueryOperation& stOperation, const QueryArguments& lstArgument)
{
    std::set<std::string> setType;
    for (std::size_t nAt = 0; nAt < lstArgument.size(); ++nAt)
    {
        const std::string_view strParameter = stOperation.lstParameter[nAt].pszName;
        std::string            strDevType;
        std::string            strDevTypeVer; // of no use here
        if (strParameter == TYPE.pszName)
            strDevType = lstArgument[nAt].strText;
        else if (strParameter == DEVICE_ID.pszName)
            CDCDeviceInfoDB::getDevTypeAndVersionName(lstArgument[nAt].asId(), strDevType, strDevTypeVer);
        else if (strParameter == TYPE_ID.pszName) // its version comes next
            CDeviceAdapterInterface::getInstance()->searchTypeName(lstArgument[nAt].asId(), lstArgument[nAt + 1].asId(),
                                                                   strDevType, strDevTypeVer);
        else
            continue;
        setType.insert(strDevType);
    }
    return setType;
}

StQueryReason reasonOf(const StQueryOperation& stOperation, const QueryArguments& lstArgument,
                       const StQueryAnswer& stAnswer)
{
    StQueryReason stReason;
    if (stOperation.pfnReason != nullptr)
        stReason = stOperation.pfnReason(lstArgument);
    if (stReason.strWhy.empty() && stAnswer.ulResult != 0)
        stReason.strWhy = "the library's log says more (-v)";
    return stReason;
}

std::string unknownVersion(const StQueryOperation& stOperation, const QueryArguments& lstArgument)
{
    const auto& lstParameter = stOperation.lstParameter;
    if (lstArgument.size() < 2 || lstParameter[0].pszName != std::string_view(TYPE.pszName) ||
        lstParameter[1].pszName != std::string_view(VERSION.pszName))
        return {};
    const std::string& strAsked   = lstArgument[1].strText;
    const std::string  strVersion = strAsked.substr(0, strAsked.find(Vocabulary::TELNET_SUFFIX));
    const auto         lstType    = registeredTypes();
    const auto         fnKnown    = [&](const StRegisteredType& stType)
    {
        return stType.strDevType == lstArgument[0].strText &&
               (stType.strDevTypeVer == strAsked || stType.strDevTypeVer == strVersion);
    };
    const bool bKnown = strVersion.empty() || std::any_of(lstType.begin(), lstType.end(), fnKnown);
    return bKnown ? "" : unknownVersionText(lstType, lstArgument[0].strText, strAsked);
}

std::string answerText(const StQueryAnswer& stAnswer)
{
    const Json& oAnswer = stAnswer.oAnswer;
    if (oAnswer.is_boolean())
        return oAnswer == true ? "yes" : "no";
    if (!oAnswer.is_null() && !oAnswer.is_string())
        return jsonText(oAnswer);
    const std::string strText = oAnswer.is_null() ? "" : printable(oAnswer.get_ref<const std::string&>());
    return strText.empty() && !stAnswer.bFound ? "nothing" : strText;
}

std::string parameterNames(const StQueryOperation& stOperation)
{
    std::string strNames;
    for (const StQueryParameter& stParameter : stOperation.lstParameter)
        strNames += fmt::format("{}{}", strNames.empty() ? "" : " ", stParameter.pszName);
    return strNames;
}

const StQueryOperation* findOperation(const std::string& strName, QueryArguments& lstArgument, std::string& strError)
{
    bool bKnown = false;
    for (const StQueryOperation& stOperation : queryOperations())
    {
        if (strName != stOperation.pszName)
            continue;
        bKnown = true;
        if (stOperation.lstParameter.size() != lstArgument.size())
            continue;
        for (std::size_t nAt = 0; nAt < lstArgument.size(); ++nAt)
        {
            strError = convertArgument(stOperation.lstParameter[nAt], lstArgument[nAt]);
            if (!strError.empty())
                return nullptr;
        }
        return &stOperation;
    }
    strError = bKnown ? wrongCountText(strName, lstArgument.size()) : unknownOperationText(strName);
    return nullptr;
}
