// See Output.h.
#include "tools/opxml/output/Output.h"

#include "records/ResultCodes.h"
#include "standalone/ServerRoot.h"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <numeric>
#include <unistd.h>
#include <utility>

void print(const std::string& strText)
{
    std::fwrite(strText.data(), 1, strText.size(), stdout);
}

bool isTerminal(std::FILE* pStream)
{
    return ::isatty(::fileno(pStream)) == 1;
}

namespace
{
std::string inColour(const char* pszCode, const std::string& strText)
{
    const char* pszNoColour = std::getenv("NO_COLOR"); // NOLINT(concurrency-mt-unsafe): nothing sets it
    if (!isTerminal(stdout) || (pszNoColour != nullptr && *pszNoColour != '\0'))
        return strText;
    return fmt::format("\033[{}m{}\033[0m", pszCode, strText);
}

void appendTree(std::string& strOut, const StTree& stTree, const std::string& strIndent)
{
    for (const StTree& stChild : stTree.lstChild)
    {
        const bool bLast = &stChild == &stTree.lstChild.back();
        strOut += strIndent + (bLast ? "└─ " : "├─ ") + printable(stChild.strText) + "\n";
        appendTree(strOut, stChild, strIndent + (bLast ? "   " : "│  "));
    }
}

std::string lowerCase(std::string strText)
{
    std::transform(strText.begin(), strText.end(), strText.begin(),
                   [](unsigned char cChar) { return static_cast<char>(std::tolower(cChar)); });
    return strText;
}

// How many letters must change to make one text of the other, case aside.
std::size_t editDistance(const std::string& strLeft, const std::string& strRight)
{
    std::vector<std::size_t> lstRow(strRight.size() + 1);
    std::iota(lstRow.begin(), lstRow.end(), std::size_t{0});
    for (std::size_t nLeft = 0; nLeft < strLeft.size(); ++nLeft)
    {
        std::size_t nDiagonal = std::exchange(lstRow[0], nLeft + 1);
        for (std::size_t nRight = 0; nRight < strRight.size(); ++nRight)
        {
            const std::size_t nChange = nDiagonal + (strLeft[nLeft] == strRight[nRight] ? 0 : 1);
            nDiagonal                 = lstRow[nRight + 1];
            lstRow[nRight + 1]        = std::min({nChange, nDiagonal + 1, lstRow[nRight] + 1});
        }
    }
    return lstRow.back();
}
} // namespace

std::string inRed(const std::string& strText)
{
    return inColour("31", strText);
}

std::string inBold(const std::string& strText)
{
    return inColour("1", strText);
}

std::size_t textWidth(const std::string& strText)
{
    return static_cast<std::size_t>(
        std::count_if(strText.begin(), strText.end(), [](char cChar) { return (cChar & 0xC0) != 0x80; }));
}

std::string printable(const std::string& strText)
{
    std::string strOut;
    for (const char cChar : strText)
    {
        if (static_cast<unsigned char>(cChar) < 0x20 || cChar == 0x7F)
            strOut += fmt::format("\\x{:02X}", static_cast<unsigned char>(cChar));
        else
            strOut += cChar;
    }
    return strOut;
}

CTable::CTable(std::vector<std::string> lstHeading)
{
    m_lstRow.push_back({std::move(lstHeading)});
}

void CTable::addRow(std::vector<std::string> lstCell)
{
    m_lstRow.push_back({std::move(lstCell)});
}

void CTable::addWideRow(std::vector<std::string> lstCell, bool bInRed)
{
    m_lstRow.push_back({std::move(lstCell), true, bInRed});
}

std::string CTable::text() const
{
    std::vector<std::size_t> lstWidth(m_lstRow.front().lstCell.size());
    for (const StRow& stRow : m_lstRow)
    {
        const std::size_t nCounted = stRow.lstCell.size() - (stRow.bWide ? 1 : 0);
        for (std::size_t nAt = 0; nAt < nCounted && nAt < lstWidth.size(); ++nAt)
            lstWidth[nAt] = std::max(lstWidth[nAt], textWidth(printable(stRow.lstCell[nAt])));
    }
    std::string strText;
    for (const StRow& stRow : m_lstRow)
    {
        std::string strLine;
        for (std::size_t nAt = 0; nAt < stRow.lstCell.size(); ++nAt)
        {
            const std::string strCell = printable(stRow.lstCell[nAt]);
            strLine += strCell;
            if (nAt + 1 < stRow.lstCell.size())
                strLine.append(lstWidth[nAt] - textWidth(strCell) + 2, ' ');
        }
        const bool bHeading = &stRow == &m_lstRow.front();
        strText += (bHeading ? inBold(strLine) : stRow.bInRed ? inRed(strLine) : strLine) + "\n";
    }
    return strText;
}

StTree& StTree::add(std::string strChild)
{
    lstChild.push_back({std::move(strChild), {}});
    return lstChild.back();
}

std::string treeText(const StTree& stTree)
{
    std::string strOut = inBold(printable(stTree.strText)) + "\n";
    appendTree(strOut, stTree, "");
    return strOut;
}

std::string resultName(std::uint32_t ulResult)
{
    switch (ulResult)
    {
    case DC_RESULT_OK:
        return "DC_RESULT_OK";
    case DC_RESULT_PARSER_NULL:
        return "DC_RESULT_PARSER_NULL";
    case DC_RESULT_INVALID_PARA:
        return "DC_RESULT_INVALID_PARA";
    case DC_RESULT_XML_ERROR:
        return "DC_RESULT_XML_ERROR";
    case DC_RESULT_FILE_NOT_EXIST:
        return "DC_RESULT_FILE_NOT_EXIST";
    case standalone::RESULT_NOT_IN_INVENTORY:
        return "not in the inventory";
    default:
        return "code of the platform";
    }
}

std::string resultText(std::uint32_t ulResult)
{
    return fmt::format("{} (0x{:08X}, {})", ulResult, ulResult, resultName(ulResult));
}

std::string nearestNames(const std::string& strMisspelt, const std::vector<std::string>& lstName)
{
    std::vector<std::pair<std::size_t, std::string>> lstNear;
    const std::string                                strWanted = lowerCase(strMisspelt);
    for (const std::string& strName : lstName)
    {
        const std::size_t nDistance = editDistance(strWanted, lowerCase(strName));
        if (nDistance <= std::max<std::size_t>(2, strWanted.size() / 2))
            lstNear.emplace_back(nDistance, strName);
    }
    std::sort(lstNear.begin(), lstNear.end());
    lstNear.erase(std::unique(lstNear.begin(), lstNear.end()), lstNear.end());
    lstNear.resize(std::min<std::size_t>(lstNear.size(), 3));
    std::string strText;
    for (const auto& [nDistance, strName] : lstNear)
    {
        const bool bFirst = &strName == &lstNear.front().second;
        const bool bLast  = &strName == &lstNear.back().second;
        strText += (bFirst ? "did you mean " : bLast ? " or " : ", ") + ("\"" + strName + "\"");
    }
    return strText.empty() ? strText : "; " + strText + "?";
}
