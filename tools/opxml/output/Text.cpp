// See Text.h.
#include "tools/opxml/output/Text.h"

#include "tools/opxml/output/Terminal.h"

#include <fmt/format.h>

#include <algorithm>
#include <cwchar>
#include <locale.h>
#include <string_view>
#include <utility>

namespace
{
constexpr std::string_view WORD_BREAKS = "/_;,"; // a long word is broken behind one of them

// The C library knows the width of every character, in a locale that does; the
// process keeps its own, by which file names and messages are read and written.
class CUtf8Locale
{
public:
    CUtf8Locale()
    {
        static const locale_t oUtf8 = ::newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
        if (oUtf8 != nullptr)
            m_oBefore = ::uselocale(oUtf8);
    }
    ~CUtf8Locale()
    {
        if (m_oBefore != nullptr)
            ::uselocale(m_oBefore);
    }
    CUtf8Locale(const CUtf8Locale&)            = delete;
    CUtf8Locale& operator=(const CUtf8Locale&) = delete;

private:
    locale_t m_oBefore = nullptr;
};

struct StCharacter
{
    std::size_t nBytes;
    std::size_t nColumns;
    bool        bControl;
};

// The character that a text begins with; a byte that begins none takes a column.
StCharacter firstCharacter(std::string_view strText)
{
    const auto ucFirst = static_cast<unsigned char>(strText.front());
    if (ucFirst < 0x80)
        return {1, 1, ucFirst < 0x20 || ucFirst == 0x7F};
    wchar_t        cWide  = 0;
    std::mbstate_t oState = {};
    // NOLINTNEXTLINE(concurrency-mt-unsafe): it has a state of its own
    const std::size_t nBytes  = std::mbrtowc(&cWide, strText.data(), strText.size(), &oState);
    const bool        bBroken = nBytes == 0 || nBytes > strText.size();
    if (bBroken)
        return {1, 1, false};
    const int nColumns = ::wcwidth(cWide);
    return {nBytes, nColumns < 0 ? 1 : static_cast<std::size_t>(nColumns), cWide >= 0x80 && cWide < 0xA0};
}

// How many bytes of a word go onto a line of nWidth columns: up to the last place
// there at which words are broken, else as many as fit, one character at least.
std::size_t splitWord(std::string_view strWord, std::size_t nWidth)
{
    std::size_t nFits    = 0;
    std::size_t nBreak   = 0;
    std::size_t nColumns = 0;
    while (nFits < strWord.size())
    {
        const StCharacter stNext = firstCharacter(strWord.substr(nFits));
        nColumns += stNext.nColumns;
        if (nColumns > nWidth && nFits > 0)
            return nBreak > 0 ? nBreak : nFits;
        nFits += stNext.nBytes;
        if (WORD_BREAKS.find(strWord[nFits - 1]) != std::string_view::npos)
            nBreak = nFits;
    }
    return nFits;
}
} // namespace

std::size_t textWidth(std::string_view strText)
{
    const CUtf8Locale oLocale;
    std::size_t       nColumns = 0;
    while (!strText.empty())
    {
        const StCharacter stNext = firstCharacter(strText);
        nColumns += stNext.nColumns;
        strText.remove_prefix(stNext.nBytes);
    }
    return nColumns;
}

std::string printable(std::string_view strText)
{
    const CUtf8Locale oLocale;
    std::string       strOut;
    while (!strText.empty())
    {
        const StCharacter stNext = firstCharacter(strText);
        for (const char cByte : strText.substr(0, stNext.nBytes))
        {
            if (stNext.bControl)
                strOut += fmt::format("\\x{:02X}", static_cast<unsigned char>(cByte));
            else
                strOut += cByte;
        }
        strText.remove_prefix(stNext.nBytes);
    }
    return strOut;
}

std::vector<std::string> wrapText(const std::string& strText, std::size_t nWidth, std::size_t nIndent)
{
    if (nWidth == UNLIMITED || textWidth(strText) <= nWidth)
        return {strText};
    const CUtf8Locale        oLocale;
    const std::string        strIndent(std::min(nIndent, nWidth / 2), ' ');
    std::vector<std::string> lstLine;
    std::string              strLine;
    std::size_t              nFree     = nWidth;
    std::size_t              nIndented = 0; // bytes of strLine that are no text
    const auto               endLine   = [&]
    {
        lstLine.push_back(std::exchange(strLine, strIndent));
        nFree     = nWidth - strIndent.size();
        nIndented = strIndent.size();
    };
    for (std::string_view strRest = strText; !strRest.empty();)
    {
        // A word with the blanks before it, which go where a line is broken.
        const std::size_t nBlanks = std::min(strRest.find_first_not_of(' '), strRest.size());
        const std::size_t nEnd    = std::min(strRest.find(' ', nBlanks), strRest.size());
        std::string_view  strWord = strRest.substr(0, nEnd);
        strRest.remove_prefix(nEnd);
        if (strLine.size() > nIndented && textWidth(strWord) > nFree)
        {
            endLine();
            strWord.remove_prefix(nBlanks);
        }
        while (textWidth(strWord) > nFree)
        {
            const std::size_t nPart = splitWord(strWord, nFree);
            strLine += strWord.substr(0, nPart);
            strWord.remove_prefix(nPart);
            endLine();
        }
        strLine += strWord;
        nFree -= textWidth(strWord);
    }
    if (strLine.size() > nIndented)
        lstLine.push_back(std::move(strLine));
    return lstLine;
}

std::size_t longestPiece(std::string_view strText)
{
    std::size_t nLongest = 0;
    while (!strText.empty())
    {
        const std::size_t nBlank = std::min(strText.find(' '), strText.size());
        const std::size_t nBreak = std::min(strText.find_first_of(WORD_BREAKS), strText.size() - 1) + 1;
        nLongest                 = std::max(nLongest, textWidth(strText.substr(0, std::min(nBlank, nBreak))));
        strText.remove_prefix(std::min(nBlank + 1, nBreak));
    }
    return nLongest;
}

std::string joinLines(const std::vector<std::string>& lstLine)
{
    std::string strText;
    for (const std::string& strLine : lstLine)
        strText += strLine + "\n";
    return strText;
}
