// See XmlText.h.
#include "common/XmlText.h"

#include <xercesc/util/Janitor.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/TransService.hpp>
#include <xercesc/util/XMLString.hpp>

#include <cstdlib>
#include <new>

using namespace xercesc;

namespace
{
// The parser's UTF-16 in the local code page, by way of the XML library.
std::string transcode(const XMLCh* pszText)
{
    try
    {
        char*       pszLocal = XMLString::transcode(pszText);
        std::string strLocal = pszLocal == nullptr ? "" : pszLocal;
        XMLString::release(&pszLocal);
        return strLocal;
    }
    catch (const OutOfMemoryException&)
    {
        throw std::bad_alloc();
    }
    catch (const XMLException&)
    {
        return {}; // not expressible in the local code page
    }
}
} // namespace

std::string toLocal(const XMLCh* pszText)
{
    return pszText == nullptr ? std::string() : toLocal(pszText, XMLString::stringLen(pszText));
}

// Nearly all texts are ASCII and short.
std::string toLocal(const XMLCh* pszText, std::size_t nLength)
{
    char arShort[64];
    if (nLength <= sizeof(arShort))
        return toAscii({pszText, nLength}, arShort) ? std::string(arShort, nLength) : transcode(pszText);
    std::string strLong(nLength, '\0');
    if (!toAscii({pszText, nLength}, strLong.data()))
        return transcode(pszText);
    return strLong;
}

std::u16string fromLocal(const std::string& strText)
{
    // Given back to the memory manager that it came from.
    MemoryManager* const      pMemory = XMLPlatformUtils::fgMemoryManager;
    const ArrayJanitor<XMLCh> oXml(XMLString::transcode(strText.c_str(), pMemory), pMemory);
    return oXml.get() == nullptr ? u"" : oXml.get();
}

std::uint32_t toNumber(const std::string& strText)
{
    return static_cast<std::uint32_t>(std::strtol(strText.c_str(), nullptr, 10));
}
