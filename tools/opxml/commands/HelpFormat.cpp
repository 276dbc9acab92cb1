// See HelpFormat.h.
#include "tools/opxml/commands/HelpFormat.h"

#include "tools/opxml/output/Terminal.h"
#include "tools/opxml/output/Text.h"

#include <algorithm>
#include <sstream>
#include <vector>

namespace
{
constexpr std::size_t NAME_INDENT = 2;
constexpr std::size_t MORE_INDENT = 4; // of the second line of a long name

// Every line of the text by itself; one with colours is that of a table, which fits.
std::string wrapLines(const std::string& strText, std::size_t nIndent)
{
    std::istringstream oText(strText);
    std::string        strWrapped;
    for (std::string strLine; std::getline(oText, strLine);)
        strWrapped += strLine.find('\033') == std::string::npos ? joinLines(wrapText(strLine, widthOf(stdout), nIndent))
                                                                : strLine + "\n";
    return strWrapped;
}
} // namespace

// The name, and beside it what it means; below it, when the name is too long.
std::string CHelpFormat::line(const std::string& strName, const std::string& strDescription) const
{
    const std::size_t nColumn = get_column_width();
    const std::size_t nWidth  = widthOf(stdout);
    const std::size_t nBeside = nWidth == UNLIMITED ? UNLIMITED : std::max(nWidth, 2 * nColumn) - nColumn;
    std::string       strText =
        joinLines(wrapText(std::string(NAME_INDENT, ' ') + strName, nWidth, NAME_INDENT + MORE_INDENT));
    if (strDescription.empty())
        return strText;
    const std::vector<std::string> lstLine = wrapText(strDescription, nBeside);
    std::size_t                    nFirst  = 0;
    const std::size_t              nName   = NAME_INDENT + textWidth(strName);
    if (nName < nColumn)
    {
        strText.insert(strText.size() - 1, std::string(nColumn - nName, ' ') + lstLine.front());
        nFirst = 1;
    }
    for (std::size_t nAt = nFirst; nAt < lstLine.size(); ++nAt)
        strText += std::string(nColumn, ' ') + lstLine[nAt] + "\n";
    return strText;
}

std::string CHelpFormat::make_option(const CLI::Option* pOption, bool bPositional) const
{
    return line(make_option_name(pOption, bPositional) + make_option_opts(pOption), make_option_desc(pOption));
}

std::string CHelpFormat::make_subcommand(const CLI::App* pCommand) const
{
    return line(pCommand->get_display_name(true), pCommand->get_description());
}

std::string CHelpFormat::make_description(const CLI::App* pCommand) const
{
    return wrapLines(CLI::Formatter::make_description(pCommand), 0);
}

std::string CHelpFormat::make_usage(const CLI::App* pCommand, std::string strName) const
{
    return wrapLines(CLI::Formatter::make_usage(pCommand, std::move(strName)), MORE_INDENT);
}

std::string CHelpFormat::make_footer(const CLI::App* pCommand) const
{
    return wrapLines(CLI::Formatter::make_footer(pCommand), MORE_INDENT);
}
