// See Names.h.
#include "tools/opxml/output/Names.h"

#include "records/ResultCodes.h"
#include "standalone/ServerRoot.h"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <numeric>
#include <utility>

namespace
{
char lowerLetter(char cChar)
{
    return cChar >= 'A' && cChar <= 'Z' ? static_cast<char>(cChar - 'A' + 'a') : cChar;
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

bool mentions(const std::string& strText, const std::string& strPart)
{
    return std::search(strText.begin(), strText.end(), strPart.begin(), strPart.end(),
                       [](char cLeft, char cRight)
                       { return lowerLetter(cLeft) == lowerLetter(cRight); }) != strText.end() ||
           strPart.empty();
}

bool matchesPattern(const std::string& strText, const std::string& strPattern)
{
    const std::string strFolded = lowerCase(strText);
    const std::string strWanted = lowerCase(strPattern);
    std::size_t       nText     = 0;
    std::size_t       nPattern  = 0;
    std::size_t       nStar     = std::string::npos; // the last "*", and where the text behind it may begin
    std::size_t       nBehind   = 0;
    while (nText < strFolded.size())
    {
        if (nPattern < strWanted.size() && strWanted[nPattern] == '*')
        {
            nStar   = nPattern++;
            nBehind = nText;
        }
        else if (nPattern < strWanted.size() && strWanted[nPattern] == '?')
        {
            ++nPattern;
            while (++nText < strFolded.size() && (static_cast<unsigned char>(strFolded[nText]) & 0xC0U) == 0x80)
                continue; // the rest of a UTF-8 character
        }
        else if (nPattern < strWanted.size() && strWanted[nPattern] == strFolded[nText])
        {
            ++nPattern;
            ++nText;
        }
        else if (nStar == std::string::npos)
            return false;
        else
        {
            nPattern = nStar + 1;
            nText    = ++nBehind;
        }
    }
    return strWanted.find_first_not_of('*', nPattern) == std::string::npos;
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
        if (!strName.empty() && nDistance <= std::max<std::size_t>(2, strWanted.size() / 2))
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
