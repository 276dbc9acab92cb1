// Why a capability or an alarm was answered with no; those of content types are in
// QueryContentReasons.cpp.
#include "tools/opxml/query/QueryReasons.h"

#include "alarm/InitAlarmInfo.h"
#include "alarm/InitTblRegInfo.h"
#include "common/XmlParser.h"
#include "database/CXMLConfigDatabase.h"
#include "filecheck/ParseXMLFile.h"
#include "records/RecordFields.h"
#include "records/ResultCodes.h"
#include "tools/opxml/explain/TelnetRule.h"
#include "tools/opxml/output/DevTypes.h"
#include "tools/opxml/query/QueryPlace.h"

#include <fmt/format.h>

#include <algorithm>
#include <memory>

namespace
{
// An operation, and a parameter of it when there is one more argument.
StQueryReason whyNoOperation(EnEntryKind enKind, const QueryArguments& lstArgument)
{
    StWanted stWanted;
    stWanted.lstKind = {enKind};
    for (std::size_t nAt = 2; nAt < lstArgument.size(); ++nAt)
        stWanted.lstId.push_back(lstArgument[nAt].strText);
    return whyAbsent(findPlace(lstArgument[0].strText, lstArgument[1].strText), stWanted);
}

// The word by which files name a task type, or else its number; and back.
std::string taskTypeWord(DCAsn1ClientToServer::AsnTaskTypeEnum enTaskType)
{
    const std::string strWord(wordText(StTaskType<&StTaskTypeWord::enConfigType>(), enTaskType));
    return strWord.empty() ? std::to_string(enTaskType) : strWord;
}

std::string withNumber(const std::string& strWord)
{
    for (const StTaskTypeWord& stWord : TASK_TYPE_WORDS)
    {
        if (stWord.strWord == strWord)
            return fmt::format("{} {}", static_cast<int>(stWord.enConfigType), strWord);
    }
    return strWord;
}
} // namespace

StQueryReason whyNoRecord(const QueryArguments& lstArgument)
{
    return findPlace(lstArgument[0].strText, lstArgument[1].strText).stReason;
}

StQueryReason whyNoDeviceOperation(const QueryArguments& lstArgument)
{
    return whyNoOperation(EnEntryKind::DeviceOperation, lstArgument);
}

StQueryReason whyNoOtherOperation(const QueryArguments& lstArgument)
{
    return whyNoOperation(EnEntryKind::OtherOperation, lstArgument);
}

// The first check operation of the id decides, else the first task operation.
StQueryReason whyNotCancelable(const QueryArguments& lstArgument)
{
    const StPlace stPlace = findDevicePlace(lstArgument[0].asId(), EnTelnetRule::ByName);
    if (!stPlace.isThere())
    {
        StQueryReason stReason = stPlace.stReason;
        if (stPlace.stLookedInto.pServed == nullptr)
            stReason.strWhy += "; cancelling is allowed then";
        return stReason;
    }
    const catalog::StTypeCatalog& stCatalog = stPlace.stLookedInto.pServed->stCatalog;
    const StWanted stWanted = {{EnEntryKind::TaskOperation, EnEntryKind::CheckOperation}, {lstArgument[1].strText}};
    const StStand* pDecides = nullptr;
    const auto     lstStand = findStands(stCatalog.lstConfiguration.front().lstSection, stCatalog.lstFile, stWanted);
    for (const StStand& stStand : lstStand)
    {
        const bool bCheck = stStand.pKind->enKind == EnEntryKind::CheckOperation;
        if (stStand.bInEffect &&
            (pDecides == nullptr || (bCheck && pDecides->pKind->enKind != EnEntryKind::CheckOperation)))
            pDecides = &stStand;
    }
    if (pDecides == nullptr)
        return whyAbsent(stPlace, stWanted);
    if (pDecides->entry().field("bIsCancelable")->strValue == "1")
        return {};
    return {fmt::format("the {} is there, but its isCancelable is not set ({})", pDecides->pKind->pszName,
                        pDecides->strPlace),
            {}};
}

StQueryReason whyNoTaskType(const QueryArguments& lstArgument)
{
    const StPlace stPlace = findDevicePlace(lstArgument[0].asId(), EnTelnetRule::ByName);
    if (!stPlace.isThere())
        return stPlace.stReason;
    StAbsence stAbsence = findAbsence(CServedKeys::instance(), stPlace.stLookedInto,
                                      {{EnEntryKind::TaskType}, {taskTypeWord(lstArgument[1].asTaskType())}});
    if (stAbsence.strWhat.empty())
        return {};
    std::transform(stAbsence.lstThereAre.begin(), stAbsence.lstThereAre.end(), stAbsence.lstThereAre.begin(),
                   withNumber);
    return {stAbsence.text(), offerText(stAbsence.lstThereAre)};
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
    const StTelnetRule stTelnet = telnetRule(stDevice);
    return {stTelnet.bTelnet ? "" : stTelnet.strWhy, {}};
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
