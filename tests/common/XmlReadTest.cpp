// The small readers, seen through the operation sections: lookups by name,
// numbers, flags, and texts.
#include "TestSupport.h"
#include "sections/CDevOpXMLConfig.h"
#include "sections/ForeignXml.h"

#include <fmt/format.h>

#include <random>

using xercesc::DOMElement;

namespace
{
using Ids = std::vector<std::string>;

// Documents of nested sections, operations and options, with everything between
// them that a lookup has to pass over.
class CGenerator
{
public:
    explicit CGenerator(unsigned nSeed) : m_oRandom(nSeed) {}

    std::string document()
    {
        return fmt::format("<!DOCTYPE DeviceOperation [<!ENTITY e '{}'>]><DeviceOperation>{}</DeviceOperation>",
                           elements(5, false), elements(1, true));
    }

private:
    std::string elements(int nDepth, bool bEntities)
    {
        std::string strXml;
        for (unsigned nCount = m_oRandom() % 4; nCount > 0; --nCount)
        {
            switch (m_oRandom() % 8)
            {
            case 0:
                strXml += "<!-- <Operation/> -->";
                break;
            case 1:
                strXml += "<![CDATA[<Option/>]]>text";
                break;
            case 2:
                strXml += bEntities && m_nEntities++ < 32 ? "&e;" : "<?pi?>";
                break;
            default:
                static const char* const NAMES[] = {"DeviceOperation", "Operation", "Option", "option"};
                const char*              pszName = NAMES[m_oRandom() % 4];
                strXml += fmt::format("<{0} id=\"{1}\">{2}</{0}>", pszName, ++m_nId,
                                      nDepth < 7 ? elements(nDepth + 1, bEntities) : "");
            }
        }
        return strXml;
    }

    std::mt19937 m_oRandom;
    int          m_nId       = 0;
    int          m_nEntities = 0;
};

std::string idOf(const DOMElement& oElement)
{
    const XMLCh* pszId = oElement.getAttribute(u"id");
    return std::string(pszId, pszId + xercesc::XMLString::stringLen(pszId)); // ids are digits
}

Ids domIds(const xercesc::DOMNodeList& lstNode)
{
    Ids lstId;
    for (XMLSize_t nAt = 0; nAt < lstNode.getLength(); ++nAt)
        lstId.push_back(idOf(static_cast<const DOMElement&>(*lstNode.item(nAt))));
    return lstId;
}

template <typename Record>
Ids recordIds(const std::list<Record>& lstRecord)
{
    Ids lstId;
    for (const Record& stRecord : lstRecord)
        lstId.push_back(stRecord.strId);
    return lstId;
}

TEST(XmlReadTest, LookupsAreTheDescendantLookupOfTheDom)
{
    std::size_t nFound = 0;
    for (unsigned nSeed = 1; nSeed <= 150; ++nSeed)
    {
        const std::string strXml = CGenerator(nSeed).document();
        SCOPED_TRACE(strXml);
        const auto pParser = CXmlParser::create();
        pParser->parseText(strXml);
        ASSERT_EQ("", pParser->problem());
        CForeignXml oForeign(strXml);

        // Whole documents: every section, then every operation of each.
        Ids                         lstExpected;
        const xercesc::DOMNodeList& lstSection = *pParser->getDocument()->getElementsByTagName(u"DeviceOperation");
        for (XMLSize_t nAt = 0; nAt < lstSection.getLength(); ++nAt)
        {
            const auto& oSection = static_cast<const DOMElement&>(*lstSection.item(nAt));
            const Ids   lstId    = domIds(*oSection.getElementsByTagName(u"Operation"));
            lstExpected.insert(lstExpected.end(), lstId.begin(), lstId.end());
        }
        std::list<StAsnOperation> lstOper;
        std::list<StAsnOperation> lstForeignOper;
        EXPECT_EQ(0u, CDevOpXMLConfig().setDevOperXMLConfig(pParser.get(), &lstOper));
        EXPECT_EQ(0u, CDevOpXMLConfig().setDevOperXMLConfig(oForeign.parser(), &lstForeignOper));
        EXPECT_EQ(lstExpected, recordIds(lstOper));
        EXPECT_EQ(lstExpected, recordIds(lstForeignOper));
        nFound += lstExpected.size();

        // Below one element, with the second spelling where the first has no match.
        for (const DOMElement* pOper : pParser->elements(u"Operation"))
        {
            Ids lstOption = domIds(*pOper->getElementsByTagName(u"Option"));
            if (lstOption.empty())
                lstOption = domIds(*pOper->getElementsByTagName(u"option"));
            std::list<StAsnOptionInfo> lstRead;
            EXPECT_EQ(0u, CDevOpXMLConfig().fillOperOptionInfo(pOper, lstRead));
            EXPECT_EQ(lstOption, recordIds(lstRead));
        }
    }
    EXPECT_GT(nFound, 300u); // the documents do hold something
}

TEST(XmlReadTest, NumbersAreBaseTenInThirtyTwoBits)
{
    const struct
    {
        const char*   pszText;
        std::uint32_t ulValue; // also decides the flag: true when it is not 0
    } CASES[] = {
        {"15", 15},
        {"+7", 7},
        {" 12x", 12},
        {"007", 7},
        {"", 0},
        {"x", 0},
        {"true", 0},
        {"0x1", 0},
        {"- 1", 0},
        {"1 2", 1},
        {"-1", 4294967295u},
        {"4294967295", 4294967295u},
        {"4294967296", 0},
        {"4294967297", 1},
        {"-4294967295", 1},
        {"9223372036854775807", 4294967295u},
        {"9223372036854775808", 4294967295u}, // held at the largest 64-bit number
        {"-9223372036854775809", 0},          // and at the smallest
        {"99999999999999999999999", 4294967295u},
    };
    for (const auto& stCase : CASES)
    {
        SCOPED_TRACE(stCase.pszText);
        CParsedXml oXml(fmt::format("<DeviceOperation><Operation isCancelable='{0}'><Parameter><Option value='{0}'/>"
                                    "</Parameter></Operation></DeviceOperation>",
                                    stCase.pszText));
        std::list<StAsnOperation> lstOper;
        ASSERT_EQ(0u, CDevOpXMLConfig().setDevOperXMLConfig(oXml.parser(), &lstOper));
        EXPECT_EQ(stCase.ulValue, lstOper.front().lstParam.front().lstOption.front().ulValue);
        EXPECT_EQ(stCase.ulValue != 0, lstOper.front().bIsCancelable);
    }
}

TEST(XmlReadTest, TextsComeInTheLocalCodePage)
{
    const std::string strLong(100000, 'x');
    const struct
    {
        const char* pszName;
        std::string strWritten;
        std::string strRead; // the local code page of the tests is UTF-8
    } CASES[] = {
        {"Ascii", "LoadData ~", "LoadData ~"},
        {"References", "&lt;&amp;&quot;&#65;", "<&\"A"},
        {"LineEndsBecomeBlanks", "a\n\tb&#10;", "a  b\n"},
        {"TwoBytes",
         "Gr\xC3\xB6\xC3\x9F"
         "e",
         "Gr\xC3\xB6\xC3\x9F"
         "e"},
        {"ThreeBytesAfterAscii", "abc\xE6\xBC\xA2", "abc\xE6\xBC\xA2"},
        {"FourBytes", "\xF0\x9F\x93\xA1!", "\xF0\x9F\x93\xA1!"},
        {"Long", strLong + "\xC3\xB6", strLong + "\xC3\xB6"},
    };
    for (const auto& stCase : CASES)
    {
        SCOPED_TRACE(stCase.pszName);
        CParsedXml oXml("<DeviceOperation><Operation id=\"" + stCase.strWritten + "\"/></DeviceOperation>");
        std::list<StAsnOperation> lstOper;
        ASSERT_EQ(0u, CDevOpXMLConfig().setDevOperXMLConfig(oXml.parser(), &lstOper));
        EXPECT_EQ(stCase.strRead, lstOper.front().strId);
    }
}
} // namespace
