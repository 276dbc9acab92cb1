// A scanner of just the tokens that can hide a ";" or a keyword: quoted texts
// and names, comments, words. It sees them as SQLite's own tokenizer does.
#include "standalone/SqlText.h"

#include "standalone/Utf8.h"

#include <algorithm>

namespace standalone
{
namespace
{
constexpr std::string_view BYTE_ORDER_MARK = "\xEF\xBB\xBF"; // a blank to SQLite

bool isBlank(char chByte)
{
    return chByte == ' ' || (chByte >= '\t' && chByte <= '\r');
}

bool isWordByte(char chByte)
{
    const auto chValue = static_cast<unsigned char>(chByte);
    return (chValue >= '0' && chValue <= '9') || ((chValue | 0x20u) >= 'a' && (chValue | 0x20u) <= 'z') ||
           chValue == '_' || chValue == '$' || chValue >= 0x80;
}

// Behind the first strEnd at or after a position; the end of the text without one.
std::size_t behind(std::string_view strSql, std::string_view strEnd, std::size_t nFrom)
{
    const std::size_t nAt = strSql.find(strEnd, nFrom);
    return nAt == std::string_view::npos ? strSql.size() : nAt + strEnd.size();
}

// Behind the blank or comment at a position; the position itself when there is none.
std::size_t behindBlank(std::string_view strSql, std::size_t nAt)
{
    const std::string_view strRest = strSql.substr(nAt);
    if (strRest.empty())
        return nAt;
    if (isBlank(strRest[0]))
        return nAt + 1;
    if (strRest.substr(0, 2) == "--")
        return behind(strSql, "\n", nAt);
    if (strRest.substr(0, 2) == "/*")
        return behind(strSql, "*/", nAt + 2);
    return strRest.substr(0, 3) == BYTE_ORDER_MARK ? nAt + 3 : nAt;
}

// Behind the token at a position. A doubled quote reads as two quoted tokens.
std::size_t behindToken(std::string_view strSql, std::size_t nAt)
{
    const char chFirst = strSql[nAt];
    if (chFirst == '\'' || chFirst == '"' || chFirst == '`')
        return behind(strSql, strSql.substr(nAt, 1), nAt + 1);
    if (chFirst == '[')
        return behind(strSql, "]", nAt + 1);
    if (!isWordByte(chFirst))
        return nAt + 1;
    const auto* itEnd = std::find_if_not(strSql.begin() + nAt, strSql.end(), isWordByte);
    return static_cast<std::size_t>(itEnd - strSql.begin());
}

bool isWord(std::string_view strToken, std::string_view strUpper)
{
    return std::equal(strToken.begin(), strToken.end(), strUpper.begin(), strUpper.end(),
                      [](char chByte, char chUpper) { return (chByte & ~0x20) == chUpper; });
}
} // namespace

StSqlStatement nextStatement(std::string_view strSql, std::size_t nFrom)
{
    std::size_t nAt = nFrom;
    for (std::size_t nNext = behindBlank(strSql, nAt); nNext != nAt; nNext = behindBlank(strSql, nAt))
        nAt = nNext;
    StSqlStatement stStatement;
    stStatement.nStart = nAt;
    bool bEnded        = false;
    while (!bEnded && nAt < strSql.size())
    {
        if (const std::size_t nNext = behindBlank(strSql, nAt); nNext != nAt)
        {
            nAt = nNext;
            continue;
        }
        const std::size_t      nNext    = behindToken(strSql, nAt);
        const std::string_view strToken = strSql.substr(nAt, nNext - nAt);
        stStatement.nSelects += isWord(strToken, "SELECT") ? 1 : 0;
        stStatement.bWith = stStatement.bWith || isWord(strToken, "WITH");
        bEnded            = strToken == ";";
        nAt               = nNext;
    }
    stStatement.nEnd = nAt;
    return stStatement;
}

std::string abbreviate(std::string_view strText, std::size_t nLength)
{
    std::string strOut;
    for (std::size_t nAt = 0; nAt < strText.size();)
    {
        const std::size_t      nBytes       = utf8Length(strText, nAt);
        const std::string_view strCharacter = strText.substr(nAt, std::max<std::size_t>(nBytes, 1));
        const bool             bBlank = strCharacter[0] >= 0 && (strCharacter[0] <= ' ' || strCharacter[0] == 0x7F);
        if (nBytes == 0)
            strOut += '?';
        else if (!bBlank)
            strOut += strCharacter;
        else if (!strOut.empty() && strOut.back() != ' ')
            strOut += ' ';
        nAt += strCharacter.size();
        if (strOut.size() >= nLength && nAt < strText.size())
            return strOut + "...";
    }
    return strOut;
}
} // namespace standalone
