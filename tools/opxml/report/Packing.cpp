// See Packing.h.
#include "tools/opxml/report/Packing.h"

#include "tools/opxml/output/Exit.h"

#include <zlib.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace
{
// A page of the usual level, 6, is a fifth smaller and takes three times as long.
constexpr int PACKING_LEVEL = 2;

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

std::string base64(Bytes lstByte)
{
    constexpr std::string_view DIGITS   = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    const std::size_t          nPadding = (3 - lstByte.size() % 3) % 3;
    lstByte.resize(lstByte.size() + nPadding);
    std::string strText(lstByte.size() / 3 * 4, '=');
    auto        itDigit = strText.begin();
    for (std::size_t nAt = 0; nAt < lstByte.size(); nAt += 3)
    {
        const std::uint32_t ulBits =
            std::uint32_t{lstByte[nAt]} << 16U | std::uint32_t{lstByte[nAt + 1]} << 8U | lstByte[nAt + 2];
        for (const unsigned uShift : {18U, 12U, 6U, 0U})
            *itDigit++ = DIGITS[ulBits >> uShift & 63U];
    }
    std::fill_n(strText.rbegin(), nPadding, '=');
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
