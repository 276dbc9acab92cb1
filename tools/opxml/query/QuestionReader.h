// Reads one line of a batch: a JSON array of the operation's name and its
// arguments. The parser calls it value by value; nothing is built that the
// question does not need, and nesting is refused where it begins.
#ifndef OPERATIONXML_TOOLS_OPXML_QUERY_QUESTIONREADER_H
#define OPERATIONXML_TOOLS_OPXML_QUERY_QUESTIONREADER_H

#include "tools/opxml/query/QueryArguments.h"

#include <nlohmann/json.hpp>

#include <cstddef>
#include <string>
#include <string_view>

class CQuestionReader
{
public:
    // False when the line is no question; error() says why.
    bool read(std::string_view strLine);

    const std::string& name() const { return m_strName; } // empty when there is none
    QueryArguments&    arguments() { return m_lstArgument; }
    const std::string& error() const { return m_strError; }

    // Called by the parser.
    using Base = nlohmann::json;
    bool null() { return addValue("null", false); }
    bool boolean(bool bValue) { return addValue(bValue ? "true" : "false", false); }
    bool number_integer(Base::number_integer_t nValue) { return addValue(std::to_string(nValue), false); }
    bool number_unsigned(Base::number_unsigned_t nValue) { return addValue(std::to_string(nValue), false); }
    bool number_float(Base::number_float_t, const std::string& strValue) { return addValue(strValue, false); }
    bool string(std::string& strValue) { return addValue(std::move(strValue), true); }
    bool binary(Base::binary_t&) { return refuse(); }
    bool start_object(std::size_t) { return refuse(); }
    bool key(std::string&) { return refuse(); }
    bool end_object() { return refuse(); }
    bool start_array(std::size_t);
    bool end_array() { return true; }
    bool parse_error(std::size_t nPosition, const std::string& strToken, const nlohmann::detail::exception& oProblem);

private:
    bool addValue(std::string strValue, bool bIsText);
    bool refuse();

    bool           m_bInArray = false;
    bool           m_bNamed   = false;
    std::string    m_strName;
    QueryArguments m_lstArgument;
    std::string    m_strError;
};

#endif
