// Why a content type or a board type was not found.
#include "database/ContentQuestions.h"
#include "tools/opxml/query/QueryPlace.h"

#include <fmt/format.h>

#include <cstdint>

namespace
{
// The parameter that a question looks at, and an option of it by its number.
template <typename Operation>
StWanted wantedBy(const StContentQuestion<Operation>& stQuestion, EnEntryKind enKind)
{
    return {{enKind}, {std::string(stQuestion.strOperation), std::string(stQuestion.strParameter)}, false, true, true};
}

template <typename Operation>
StQueryReason whyNoValue(const StPlace& stPlace, const StContentQuestion<Operation>& stQuestion, EnEntryKind enKind,
                         std::uint32_t ulValue)
{
    StWanted stWanted = wantedBy(stQuestion, enKind);
    stWanted.lstId.push_back(std::to_string(ulValue));
    return whyAbsent(stPlace, stWanted);
}
} // namespace

StQueryReason whyNoContentType(const QueryArguments& lstArgument)
{
    return whyNoValue(findDevicePlace(lstArgument[0].asId(), EnTelnetRule::Never), BACKUP_CONTENT,
                      EnEntryKind::DeviceOperation, lstArgument[1].asId());
}

StQueryReason whyNoLoadDataContentType(const QueryArguments& lstArgument)
{
    return whyNoValue(findDevicePlace(lstArgument[0].asId(), EnTelnetRule::Never), LOAD_DATA_CONTENT,
                      EnEntryKind::DeviceOperation, lstArgument[1].asId());
}

StQueryReason whyNoBackupContentType(const QueryArguments& lstArgument)
{
    return whyNoValue(findDevicePlace(lstArgument[0].asId(), EnTelnetRule::ByDevice), BACKUP_CONTENT,
                      EnEntryKind::DeviceOperation, lstArgument[1].asId());
}

StQueryReason whyNoSamContentType(const QueryArguments& lstArgument)
{
    return whyNoValue(findPlace(lstArgument[0].strText, lstArgument[1].strText), SAM_CONTENT,
                      EnEntryKind::OtherOperation, lstArgument[2].asId());
}

StQueryReason whyNoSamContentName(const QueryArguments& lstArgument)
{
    StWanted stWanted = wantedBy(SAM_CONTENT, EnEntryKind::OtherOperation);
    stWanted.lstId.push_back(lstArgument[2].strText);
    stWanted.bByName  = true;
    stWanted.bByValue = false;
    return whyAbsent(findPlace(lstArgument[0].strText, lstArgument[1].strText), stWanted);
}

StQueryReason whyNoBoardType(const QueryArguments& lstArgument)
{
    return whyNoValue(findTypePlace(lstArgument[0].asId(), lstArgument[1].asId()), BOARD_TYPE,
                      EnEntryKind::TaskOperation, lstArgument[2].asId());
}

// An operation that is there, with a parameter that has no option, lists nothing either.
StQueryReason whyNoBackupContents(const QueryArguments& lstArgument)
{
    const StPlace  stPlace  = findPlace(lstArgument[0].strText, "");
    const StWanted stWanted = wantedBy(BACKUP_CONTENT, EnEntryKind::DeviceOperation);
    StQueryReason  stReason = whyAbsent(stPlace, stWanted);
    if (stReason.strWhy.empty())
        stReason.strWhy = fmt::format("no option at all in \"{}\" of \"{}\" of {}", stWanted.lstId[1],
                                      stWanted.lstId[0], stPlace.stLookedInto.strWhere);
    return stReason;
}
