// Small pieces of the sentences in findings.
#ifndef OPERATIONXML_LINT_PHRASES_H
#define OPERATIONXML_LINT_PHRASES_H

#include <string>
#include <string_view>

namespace lint
{
constexpr std::string_view BLANKS = " \t\r\n"; // all that XML has

// A text as far as anybody reads it: a file may have a megabyte in one attribute.
inline std::string shortened(std::string_view strText)
{
    constexpr std::size_t LONGEST = 200;
    if (strText.size() <= LONGEST)
        return std::string(strText);
    std::size_t nEnd = LONGEST;
    while (nEnd > 0 && (strText[nEnd] & 0xC0) == 0x80) // within a character
        --nEnd;
    return std::string(strText.substr(0, nEnd)) + "…";
}

inline std::string inQuotes(std::string_view strText)
{
    return "\"" + shortened(strText) + "\"";
}

inline std::string tag(std::string_view strElement)
{
    return "<" + shortened(strElement) + ">";
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
