// See QuestionReader.h.
#include "tools/opxml/query/QuestionReader.h"

#include <fmt/format.h>

bool CQuestionReader::read(std::string_view strLine)
{
    m_bInArray = false;
    m_bNamed   = false;
    m_strName.clear();
    m_lstArgument.clear();
    m_strError.clear();
    const bool bRead = Base::sax_parse(strLine.data(), strLine.data() + strLine.size(), this);
    if (bRead && !m_bNamed)
        return refuse();
    return bRead;
}

bool CQuestionReader::start_array(std::size_t)
{
    if (m_bInArray)
        return refuse();
    m_bInArray = true;
    return true;
}

bool CQuestionReader::parse_error(std::size_t nPosition, const std::string&, const nlohmann::detail::exception&)
{
    m_strError = fmt::format("no JSON: wrong at byte {}", nPosition);
    return false;
}

bool CQuestionReader::addValue(std::string strValue, bool bIsText)
{
    if (!m_bInArray || (!m_bNamed && !bIsText))
        return refuse();
    if (m_bNamed)
        m_lstArgument.push_back({std::move(strValue), bIsText});
    else
        m_strName = std::move(strValue);
    m_bNamed = true;
    return true;
}

bool CQuestionReader::refuse()
{
    m_strError = "no array of an operation's name and its arguments";
    return false;
}
