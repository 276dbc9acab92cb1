// Why a content type or a board type was not found.
#include "records/RecordSearch.h"
#include "records/Vocabulary.h"
#include "tools/opxml/query/QueryPlace.h"

namespace
{
// What is in the way of an option, which fnMatches picks. The lookups visit every
// operation and every parameter of an id, so all of them are listed.
template <typename Operation, typename Matches>
StQueryReason whyNoOption(const StPlace& stPlace, const std::list<Operation>& lstOper, const std::string& strWhat,
                          std::string_view strOper, std::string_view strParam, const std::string& strOption,
                          Matches fnMatches)
{
    std::vector<std::string> lstParam;
    std::vector<std::string> lstOption;
    bool                     bParam = false;
    for (const Operation& stOper : lstOper)
    {
        if (stOper.strId != strOper)
            continue;
        for (const StAsnOperParamDef& stParam : stOper.lstParam)
        {
            lstParam.push_back(stParam.strId);
            if (stParam.strId != strParam)
                continue;
            bParam = true;
            for (const StAsnOptionInfo& stOption : stParam.lstOption)
            {
                if (fnMatches(stOption))
                    return {};
                lstOption.push_back(fmt::format("{} {}", stOption.ulValue, stOption.strId));
            }
        }
    }
    if (findFirst(lstOper, strOper) == nullptr)
        return noneOfThem(strWhat, std::string(strOper), stPlace.strName, idsOf(lstOper));
    if (!bParam)
        return noneOfThem("parameter", std::string(strParam), fmt::format("\"{}\" of {}", strOper, stPlace.strName),
                          lstParam);
    return {fmt::format("no option {} in \"{}\" of \"{}\" of {}", strOption, strParam, strOper, stPlace.strName),
            offerText(lstOption)};
}

// By the value that was asked for.
template <typename Operation>
StQueryReason whyNoValue(const StPlace& stPlace, const std::list<Operation>& lstOper, const std::string& strWhat,
                         std::string_view strOper, std::string_view strParam, const StQueryArgument& stValue)
{
    return whyNoOption(stPlace, lstOper, strWhat, strOper, strParam, stValue.strText,
                       [&stValue](const StAsnOptionInfo& stOption) { return stOption.ulValue == stValue.asId(); });
}

StQueryReason whyNoDeviceContent(const StPlace& stPlace, std::string_view strOper, const StQueryArgument& stValue)
{
    if (stPlace.pInfo == nullptr)
        return stPlace.stReason;
    return whyNoValue(stPlace, stPlace.pInfo->stOperationConfig.lstDevOperation, "device operation", strOper,
                      "ContentType", stValue);
}
} // namespace

StQueryReason whyNoContentType(const QueryArguments& lstArgument)
{
    return whyNoDeviceContent(findDevicePlace(lstArgument[0].asId(), EnTelnetRule::Never), Vocabulary::OP_BACKUP,
                              lstArgument[1]);
}

StQueryReason whyNoLoadDataContentType(const QueryArguments& lstArgument)
{
    return whyNoDeviceContent(findDevicePlace(lstArgument[0].asId(), EnTelnetRule::Never), Vocabulary::OP_LOAD_DATA,
                              lstArgument[1]);
}

StQueryReason whyNoBackupContentType(const QueryArguments& lstArgument)
{
    return whyNoDeviceContent(findDevicePlace(lstArgument[0].asId(), EnTelnetRule::ByDevice), Vocabulary::OP_BACKUP,
                              lstArgument[1]);
}

StQueryReason whyNoSamContentType(const QueryArguments& lstArgument)
{
    const StPlace stPlace = findPlace(lstArgument[0].strText, lstArgument[1].strText);
    if (stPlace.pInfo == nullptr)
        return stPlace.stReason;
    return whyNoValue(stPlace, stPlace.pInfo->stOperationConfig.lstOtherOperation, "other operation", "SAM",
                      "ContentType", lstArgument[2]);
}

StQueryReason whyNoSamContentName(const QueryArguments& lstArgument)
{
    const StPlace stPlace = findPlace(lstArgument[0].strText, lstArgument[1].strText);
    if (stPlace.pInfo == nullptr)
        return stPlace.stReason;
    const std::string& strName = lstArgument[2].strText;
    return whyNoOption(stPlace, stPlace.pInfo->stOperationConfig.lstOtherOperation, "other operation", "SAM",
                       "ContentType", fmt::format("\"{}\"", strName),
                       [&strName](const StAsnOptionInfo& stOption) { return stOption.strId == strName; });
}

StQueryReason whyNoBoardType(const QueryArguments& lstArgument)
{
    const StPlace stPlace = findTypePlace(lstArgument[0].asId(), lstArgument[1].asId());
    if (stPlace.pInfo == nullptr)
        return stPlace.stReason;
    return whyNoValue(stPlace, stPlace.pInfo->stOperationConfig.lstTaskOperation, "task operation",
                      Vocabulary::OP_ACTIVATE_SOFTWARE, "BoardType", lstArgument[2]);
}

StQueryReason whyNoBackupContents(const QueryArguments& lstArgument)
{
    const StPlace stPlace = findPlace(lstArgument[0].strText, "");
    if (stPlace.pInfo == nullptr)
        return stPlace.stReason;
    return whyNoOption(stPlace, stPlace.pInfo->stOperationConfig.lstDevOperation, "device operation",
                       Vocabulary::OP_BACKUP, "ContentType", "at all", [](const StAsnOptionInfo&) { return true; });
}
