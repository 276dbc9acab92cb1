// Small pieces of the sentences in findings.
#ifndef OPERATIONXML_LINT_PHRASES_H
#define OPERATIONXML_LINT_PHRASES_H

#include <string>
#include <string_view>

namespace lint
{
constexpr std::string_view BLANKS = " \t\r\n"; // all that XML has

inline std::string inQuotes(std::string_view strText)
{
    return "\"" + std::string(strText) + "\"";
}

inline std::string tag(std::string_view strElement)
{
    return "<" + std::string(strElement) + ">";
}

// Without the blanks at either end.
inline std::string_view trimmed(std::string_view strText)
{
    const std::size_t nBegin = strText.find_first_not_of(BLANKS);
    if (nBegin == std::string_view::npos)
        return {};
    return strText.substr(nBegin, strText.find_last_not_of(BLANKS) - nBegin + 1);
}
} // namespace lint

#endif
