// The one home of prefixes and filtering.
#include "common/LogLine.h"

#include "records/Vocabulary.h"

#include <string>

namespace
{
std::string compose(std::string_view strPrefix, std::string_view strText)
{
    std::string strLine;
    strLine.reserve(strPrefix.size() + strText.size());
    strLine.append(strPrefix).append(strText);
    return strLine;
}

std::string composeFiltered(std::string_view strPrefix, std::string_view strText)
{
    std::string strLine = compose(strPrefix, strText);
    NS_UTIL::CDCLogFilter::getInstance()->filter(strLine);
    return strLine;
}
} // namespace

std::uint32_t logFail(const LocationInfo& stWhere, std::uint32_t ulCode, std::string_view strText)
{
    LogProcess::Error(ulCode, composeFiltered(Vocabulary::LOG_MODULE_PREFIX, strText), stWhere);
    return ulCode;
}

std::uint32_t logCall(const LocationInfo& stWhere, std::uint32_t ulCode, std::string_view strCall)
{
    LogProcess::Error(ulCode, composeFiltered(Vocabulary::LOG_CALL_PREFIX, strCall), stWhere);
    return ulCode;
}

std::uint32_t logCallUnfiltered(const LocationInfo& stWhere, std::uint32_t ulCode, std::string_view strCall)
{
    LogProcess::Error(ulCode, compose(Vocabulary::LOG_CALL_PREFIX, strCall), stWhere);
    return ulCode;
}

void logInfo(const LocationInfo& stWhere, std::string_view strText)
{
    LogProcess::Info(composeFiltered(Vocabulary::LOG_MODULE_PREFIX, strText), stWhere);
}
