// A text that the local code page cannot express. That of the XML library in use
// expresses every text, so its conversion is told to fail.
#include "TestSupport.h"
#include "platform/Export.h"
#include "records/ResultCodes.h"
#include "sections/CDevOpXMLConfig.h"

#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/TransService.hpp>
#include <xercesc/util/UTFDataFormatException.hpp>

#include <dlfcn.h>

namespace
{
enum class EnConversion
{
    Works,
    GivesNothing,
    Throws,
    LacksMemory,
};
EnConversion g_enConversion = EnConversion::Works;
} // namespace

// Exported, so that it stands before that of the XML library for the library under
// test as well.
XERCES_CPP_NAMESPACE_BEGIN
OPERATIONXML_API char* XMLString::transcode(const XMLCh* const pszText, MemoryManager* const pManager)
{
    switch (g_enConversion)
    {
    case EnConversion::GivesNothing:
        return nullptr;
    case EnConversion::Throws:
        ThrowXMLwithMemMgr(UTFDataFormatException, XMLExcepts::Trans_BadSrcSeq, pManager);
    case EnConversion::LacksMemory:
        throw OutOfMemoryException();
    case EnConversion::Works:
        break;
    }
    using Transcode       = char* (*)(const XMLCh*, MemoryManager*);
    static const auto s_p = reinterpret_cast<Transcode>(
        ::dlsym(RTLD_NEXT, "_ZN11xercesc_3_29XMLString9transcodeEPKDsPNS_13MemoryManagerE"));
    return s_p(pszText, pManager);
}
XERCES_CPP_NAMESPACE_END

namespace
{
TEST(XmlTextTest, WhatTheCodePageCannotExpressIsEmpty)
{
    const struct
    {
        EnConversion             enConversion;
        std::uint32_t            ulResult;
        std::vector<std::string> lstId;
    } CASES[] = {
        {EnConversion::Works, DC_RESULT_OK, {"Gr\xC3\xB6", "plain"}},
        {EnConversion::GivesNothing, DC_RESULT_OK, {"", "plain"}},
        {EnConversion::Throws, DC_RESULT_OK, {"", "plain"}},
        {EnConversion::LacksMemory, DC_RESULT_XML_ERROR, {}},
    };
    CParsedXml oXml("<DeviceOperation><Operation id='Gr\xC3\xB6'/><Operation id='plain'/></DeviceOperation>");
    for (const auto& stCase : CASES)
    {
        std::list<StAsnOperation> lstOper;
        std::vector<std::string>  lstId;
        g_enConversion = stCase.enConversion;
        EXPECT_EQ(stCase.ulResult, CDevOpXMLConfig().setDevOperXMLConfig(oXml.parser(), &lstOper));
        g_enConversion = EnConversion::Works;
        for (const StAsnOperation& stOper : lstOper)
            lstId.push_back(stOper.strId);
        EXPECT_EQ(stCase.lstId, lstId);
    }
}
} // namespace
