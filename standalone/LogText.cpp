// See LogText.h.
#include "standalone/LogText.h"

#include "standalone/Utf8.h"

#include <nlohmann/json.hpp>

#include <array>
#include <chrono>
#include <ctime>
#include <string>
#include <string_view>

namespace standalone
{
namespace
{
constexpr std::string_view HEX_DIGITS = "0123456789ABCDEF";

void appendHex(std::string& strOut, std::uint32_t ulValue, unsigned nDigits)
{
    for (unsigned nDigit = nDigits; nDigit > 0; --nDigit)
        strOut += HEX_DIGITS[(ulValue >> (4 * (nDigit - 1))) & 0xFu];
}

void appendEscapedByte(std::string& strOut, char chByte)
{
    switch (chByte)
    {
    case '\n':
        strOut += "\\n";
        break;
    case '\r':
        strOut += "\\r";
        break;
    case '\t':
        strOut += "\\t";
        break;
    default:
        strOut += "\\x";
        appendHex(strOut, static_cast<unsigned char>(chByte), 2);
    }
}

// C1 controls (U+0080 to U+009F) drive terminals as well.
bool isControl(std::string_view strCharacter)
{
    const auto chFirst = static_cast<unsigned char>(strCharacter[0]);
    if (strCharacter.size() == 1)
        return chFirst < 0x20 || chFirst == 0x7F;
    return chFirst == 0xC2 && static_cast<unsigned char>(strCharacter[1]) < 0xA0;
}

void appendEscaped(std::string& strOut, std::string_view strText)
{
    for (std::size_t nAt = 0; nAt < strText.size();)
    {
        const std::size_t      nLength      = utf8Length(strText, nAt);
        const std::string_view strCharacter = strText.substr(nAt, nLength == 0 ? 1 : nLength);
        if (nLength != 0 && !isControl(strCharacter))
            strOut += strCharacter;
        else
            for (const char chByte : strCharacter)
                appendEscapedByte(strOut, chByte);
        nAt += strCharacter.size();
    }
}

std::string utcTime(std::chrono::system_clock::time_point oTime)
{
    const auto        oSinceEpoch = std::chrono::duration_cast<std::chrono::milliseconds>(oTime.time_since_epoch());
    const std::time_t nSeconds    = oSinceEpoch.count() / 1000;
    std::tm           stUtc       = {};
    ::gmtime_r(&nSeconds, &stUtc);
    std::array<char, 32> aText = {};
    const std::size_t    nSize = std::strftime(aText.data(), aText.size(), "%Y-%m-%dT%H:%M:%S.", &stUtc);
    return std::string(aText.data(), nSize) + std::to_string(1000 + oSinceEpoch.count() % 1000).substr(1) + "Z";
}
} // namespace

std::string readableLine(const StLogLine& stLine)
{
    std::string strOut;
    if (stLine.bError)
    {
        strOut += "0x";
        appendHex(strOut, stLine.ulCode, 8);
        strOut += ' ';
    }
    appendEscaped(strOut, stLine.strText);
    strOut.append(" (").append(stLine.stWhere.pszFile).append("::").append(stLine.stWhere.pszFunction);
    strOut.append(":").append(std::to_string(stLine.stWhere.nLine)).append(")");
    if (!stLine.strAbout.empty())
        appendEscaped(strOut.append(" "), stLine.strAbout);
    return strOut;
}

std::string jsonLine(const StLogLine& stLine)
{
    nlohmann::ordered_json oLine;
    oLine["time"]     = utcTime(stLine.oTime);
    oLine["level"]    = stLine.bError ? "error" : "info";
    oLine["code"]     = stLine.ulCode;
    oLine["text"]     = stLine.strText;
    oLine["file"]     = stLine.stWhere.pszFile;
    oLine["function"] = stLine.stWhere.pszFunction;
    oLine["line"]     = stLine.stWhere.nLine;
    if (!stLine.strAbout.empty())
        oLine["about"] = stLine.strAbout;
    return oLine.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
}
} // namespace standalone
