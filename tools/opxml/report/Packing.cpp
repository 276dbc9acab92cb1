// See Packing.h.
#include "tools/opxml/report/Packing.h"

#include "tools/opxml/output/Exit.h"

#include <zlib.h>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace
{
// From here on a page gets little smaller, and takes longer to write.
constexpr int PACKING_LEVEL = 5;

using Bytes = std::vector<unsigned char>;

Bytes compressed(std::string_view strText)
{
    uLongf nBytes = compressBound(static_cast<uLong>(strText.size()));
    Bytes  lstByte(nBytes);
    if (compress2(lstByte.data(), &nBytes, reinterpret_cast<const Bytef*>(strText.data()),
                  static_cast<uLong>(strText.size()), PACKING_LEVEL) != Z_OK)
        throw CTrouble("no memory to compress the details of a type");
    lstByte.resize(nBytes);
    return lstByte;
}

std::string base64(const Bytes& lstByte)
{
    constexpr std::string_view DIGITS = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string                strText;
    strText.reserve((lstByte.size() + 2) / 3 * 4);
    for (std::size_t nAt = 0; nAt < lstByte.size(); nAt += 3)
    {
        const auto fnByte = [&](std::size_t nPlace) -> std::uint32_t
        { return nPlace < lstByte.size() ? lstByte[nPlace] : 0U; };
        const std::uint32_t ulBits = fnByte(nAt) << 16U | fnByte(nAt + 1) << 8U | fnByte(nAt + 2);
        const std::size_t   nBytes = lstByte.size() - nAt;
        strText += DIGITS[ulBits >> 18U];
        strText += DIGITS[ulBits >> 12U & 63U];
        strText += nBytes > 1 ? DIGITS[ulBits >> 6U & 63U] : '=';
        strText += nBytes > 2 ? DIGITS[ulBits & 63U] : '=';
    }
    return strText;
}
} // namespace

std::string packed(std::string_view strText)
{
    return base64(compressed(strText));
}

std::string scriptJson(const Json& oJson)
{
    std::string strText;
    for (const char cByte : jsonLine(oJson))
    {
        if (cByte == '<')
            strText += "\\u003c";
        else
            strText += cByte;
    }
    return strText;
}

std::string htmlText(std::string_view strText)
{
    std::string strHtml;
    for (const char cByte : strText)
    {
        if (cByte == '&')
            strHtml += "&amp;";
        else if (cByte == '<')
            strHtml += "&lt;";
        else if (cByte == '"')
            strHtml += "&quot;";
        else
            strHtml += cByte;
    }
    return strHtml;
}
