// Between the parser's UTF-16 and the texts and numbers that records hold.
// Stateless; safe on any thread.
#ifndef OPERATIONXML_COMMON_XMLTEXT_H
#define OPERATIONXML_COMMON_XMLTEXT_H

#include "platform/Export.h"

#include <xercesc/util/XercesDefs.hpp>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

static_assert(std::is_same_v<XMLCh, char16_t>, "names are written as u\"...\" literals");

// A text in the server's local code page; empty when that cannot express it. The
// text ends with a null, also where its length is known.
OPERATIONXML_API std::string toLocal(const XMLCh* pszText);
OPERATIONXML_API std::string toLocal(const XMLCh* pszText, std::size_t nLength);

// Narrows a text into as many bytes; false when it is not plain ASCII. ASCII is the same
// bytes in every local code page.
inline bool toAscii(std::u16string_view strText, char* pOut)
{
    unsigned int nBits = 0;
    for (std::size_t nAt = 0; nAt < strText.size(); ++nAt)
    {
        nBits |= strText[nAt];
        pOut[nAt] = static_cast<char>(strText[nAt]);
    }
    return nBits < 0x80;
}

// A text of the local code page as the parser holds it.
std::u16string fromLocal(const std::string& strText);

// Base 10 by the C library's string-to-long rule, kept to its low 32 bits; text
// without digits gives 0.
OPERATIONXML_API std::uint32_t toNumber(const std::string& strText);

#endif
