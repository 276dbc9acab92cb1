// The ranges of the second byte keep out overlong forms, surrogates and numbers
// beyond U+10FFFF; every further byte only continues.
#include "standalone/Utf8.h"

#include <algorithm>

namespace standalone
{
namespace
{
struct StLead
{
    unsigned char chFirst;
    unsigned char chLast;
    unsigned char chSecondFrom;
    unsigned char chSecondTo;
    std::size_t   nLength;
};
constexpr StLead LEADS[] = {
    {0xC2, 0xDF, 0x80, 0xBF, 2}, {0xE0, 0xE0, 0xA0, 0xBF, 3}, {0xE1, 0xEC, 0x80, 0xBF, 3}, {0xED, 0xED, 0x80, 0x9F, 3},
    {0xEE, 0xEF, 0x80, 0xBF, 3}, {0xF0, 0xF0, 0x90, 0xBF, 4}, {0xF1, 0xF3, 0x80, 0xBF, 4}, {0xF4, 0xF4, 0x80, 0x8F, 4},
};

unsigned char byteAt(std::string_view strText, std::size_t nAt)
{
    return nAt < strText.size() ? static_cast<unsigned char>(strText[nAt]) : 0;
}
} // namespace

std::size_t utf8Length(std::string_view strText, std::size_t nAt)
{
    const unsigned char chLead = byteAt(strText, nAt);
    if (chLead < 0x80)
        return nAt < strText.size() ? 1 : 0;
    for (const StLead& stLead : LEADS)
    {
        if (chLead < stLead.chFirst || chLead > stLead.chLast)
            continue;
        const unsigned char chSecond = byteAt(strText, nAt + 1);
        bool                bWhole   = chSecond >= stLead.chSecondFrom && chSecond <= stLead.chSecondTo;
        for (std::size_t nByte = 2; nByte < stLead.nLength; ++nByte)
            bWhole = bWhole && (byteAt(strText, nAt + nByte) & 0xC0u) == 0x80u;
        return bWhole ? stLead.nLength : 0;
    }
    return 0;
}

std::size_t findInvalidUtf8(std::string_view strText)
{
    for (std::size_t nAt = 0; nAt < strText.size();)
    {
        const std::size_t nLength = utf8Length(strText, nAt);
        if (nLength == 0)
            return nAt;
        nAt += nLength;
    }
    return std::string_view::npos;
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
