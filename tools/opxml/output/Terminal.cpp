// See Terminal.h.
#include "tools/opxml/output/Terminal.h"

#include "tools/opxml/output/Text.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <string_view>
#include <sys/ioctl.h>
#include <unistd.h>

namespace
{
constexpr std::size_t NARROWEST = 40; // below that, lines broken at words are harder to read than others

bool g_bWide = false; // set once, before anything is printed

std::string_view environmentText(const char* pszName)
{
    const char* pszValue = std::getenv(pszName); // NOLINT(concurrency-mt-unsafe): nothing sets it
    return pszValue == nullptr ? std::string_view() : pszValue;
}

std::string inColour(const char* pszCode, const std::string& strText)
{
    if (!isTerminal(stdout) || !environmentText("NO_COLOR").empty())
        return strText;
    return fmt::format("\033[{}m{}\033[0m", pszCode, strText);
}

void printTo(std::FILE* pStream, const std::string& strText)
{
    const std::string strLines = joinLines(wrapText(printable(strText), widthOf(pStream), 2));
    std::fwrite(strLines.data(), 1, strLines.size(), pStream);
}
} // namespace

void print(const std::string& strText)
{
    std::fwrite(strText.data(), 1, strText.size(), stdout);
}

void printLine(const std::string& strText)
{
    printTo(stdout, strText);
}

void remark(const std::string& strText)
{
    printTo(stderr, "opxml: " + strText);
}

bool isTerminal(std::FILE* pStream)
{
    return ::isatty(::fileno(pStream)) == 1;
}

std::size_t widthOf(std::FILE* pStream)
{
    if (g_bWide)
        return UNLIMITED;
    std::size_t            nColumns   = 0;
    const std::string_view strColumns = environmentText("COLUMNS");
    std::from_chars(strColumns.data(), strColumns.data() + strColumns.size(), nColumns);
    struct ::winsize stSize = {};
    if (nColumns == 0 && isTerminal(pStream) && ::ioctl(::fileno(pStream), TIOCGWINSZ, &stSize) == 0)
        nColumns = stSize.ws_col;
    return nColumns == 0 ? UNLIMITED : std::max(nColumns, NARROWEST);
}

void showWide()
{
    g_bWide = true;
}

std::string inRed(const std::string& strText)
{
    return inColour("31", strText);
}

std::string inBold(const std::string& strText)
{
    return inColour("1", strText);
}
