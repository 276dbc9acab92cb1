// See QueryArguments.h.
#include "tools/opxml/query/QueryArguments.h"

#include "records/WordTables.h"
#include "tools/opxml/output/Names.h"

#include <fmt/format.h>

#include <charconv>
#include <limits>

namespace
{
// A whole decimal number from nLowest to ulHighest, as 64 bits in two's complement.
bool readNumber(const std::string& strText, std::int64_t nLowest, std::uint64_t ulHighest, std::uint64_t& ulNumber)
{
    const char* pszEnd = strText.data() + strText.size();
    if (strText[0] != '-')
    {
        const auto stRead = std::from_chars(strText.data(), pszEnd, ulNumber);
        return stRead.ec == std::errc() && stRead.ptr == pszEnd && ulNumber <= ulHighest;
    }
    std::int64_t nNumber = 0;
    const auto   stRead  = std::from_chars(strText.data(), pszEnd, nNumber);
    ulNumber             = static_cast<std::uint64_t>(nNumber);
    return stRead.ec == std::errc() && stRead.ptr == pszEnd && nNumber >= nLowest;
}

std::string convertNumber(const StQueryParameter& stParameter, StQueryArgument& stArgument, std::int64_t nLowest,
                          std::uint64_t ulHighest)
{
    if (readNumber(stArgument.strText, nLowest, ulHighest, stArgument.ulNumber))
        return {};
    return fmt::format("{} \"{}\" is no number from {} to {}", stParameter.pszName, stArgument.strText, nLowest,
                       ulHighest);
}

std::string convertFlag(const StQueryParameter& stParameter, StQueryArgument& stArgument)
{
    const std::string& strText = stArgument.strText;
    stArgument.ulNumber        = strText == "1" || strText == "true" ? 1 : 0;
    if (stArgument.asFlag() || strText == "0" || strText == "false")
        return {};
    return fmt::format("{} \"{}\" is neither 0 (false) nor 1 (true)", stParameter.pszName, strText);
}

std::string convertTaskType(const StQueryParameter& stParameter, StQueryArgument& stArgument)
{
    // A name stands for the number that the records of a device type hold for it:
    // the one of the task configuration, where the two tables differ.
    if (const StTaskTypeWord* pWord = findTaskType(stArgument.strText))
    {
        stArgument.ulNumber = static_cast<std::uint32_t>(pWord->enConfigType);
        return {};
    }
    if (convertNumber(stParameter, stArgument, std::numeric_limits<std::int32_t>::min(),
                      std::numeric_limits<std::int32_t>::max())
            .empty())
        return {};
    std::vector<std::string> lstName;
    for (const StTaskTypeWord& stWord : TASK_TYPE_WORDS)
        lstName.emplace_back(stWord.strWord);
    return fmt::format("{} \"{}\" is neither a task type nor a number{}", stParameter.pszName, stArgument.strText,
                       nearestNames(stArgument.strText, lstName));
}
} // namespace

const char* kindName(EnQueryArgument enKind)
{
    switch (enKind)
    {
    case EnQueryArgument::Text:
        return "text";
    case EnQueryArgument::Flag:
        return "flag";
    case EnQueryArgument::TaskType:
        return "task type";
    case EnQueryArgument::Id:
    case EnQueryArgument::LongId:
    case EnQueryArgument::Value:
        break;
    }
    return "number";
}

std::string convertArgument(const StQueryParameter& stParameter, StQueryArgument& stArgument)
{
    switch (stParameter.enKind)
    {
    case EnQueryArgument::Text:
        // 3.70 as a number would be asked for as 3.7.
        return stArgument.bIsText ? std::string()
                                  : fmt::format("{} {} is no text", stParameter.pszName, stArgument.strText);
    case EnQueryArgument::Flag:
        return convertFlag(stParameter, stArgument);
    case EnQueryArgument::Id:
        return convertNumber(stParameter, stArgument, 0, std::numeric_limits<std::uint32_t>::max());
    case EnQueryArgument::LongId:
        return convertNumber(stParameter, stArgument, 0, std::numeric_limits<std::uint64_t>::max());
    case EnQueryArgument::Value:
        return convertNumber(stParameter, stArgument, std::numeric_limits<std::int32_t>::min(),
                             std::numeric_limits<std::uint32_t>::max());
    case EnQueryArgument::TaskType:
        break;
    }
    return convertTaskType(stParameter, stArgument);
}
