// The small readers, seen through the operation sections: lookups by name, numbers
// and flags. Texts go the whole way in cli/dump.py.
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
        const char* const NAMES[]  = {"DeviceOperation", "Operation", "Option", "option", "Operation"};
        const char* const OTHERS[] = {"<!-- <Operation/> -->", "<![CDATA[<Option/>]]>text", "<?pi?>"};
        std::string       strXml;
        for (unsigned nCount = m_oRandom() % 4; nCount > 0; --nCount)
        {
            const unsigned nKind = m_oRandom() % 8;
            if (nKind < 5)
                strXml += fmt::format("<{0} id=\"{1}\">{2}</{0}>", NAMES[nKind], ++m_nId,
                                      nDepth < 7 ? elements(nDepth + 1, bEntities) : "");
            else
                strXml += nKind == 7 && bEntities && m_nEntities++ < 32 ? "&e;" : OTHERS[nKind - 5];
        }
        return strXml;
    }

    std::mt19937 m_oRandom;
    int          m_nId       = 0;
    int          m_nEntities = 0;
};

Ids domIds(const DOMElement& oBelow, const char16_t* pszName)
{
    Ids                         lstId;
    const xercesc::DOMNodeList& lstNode = *oBelow.getElementsByTagName(pszName);
    for (XMLSize_t nAt = 0; nAt < lstNode.getLength(); ++nAt)
    {
        const XMLCh* pszId = static_cast<const DOMElement&>(*lstNode.item(nAt)).getAttribute(u"id");
        lstId.emplace_back(pszId, pszId + xercesc::XMLString::stringLen(pszId)); // ids are digits
    }
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
        ASSERT_EQ("", pParser->problem().strText);
        CForeignXml oForeign(strXml);

        // Whole documents: every section, then every operation of each.
        Ids                         lstExpected;
        const xercesc::DOMNodeList& lstSection = *pParser->getDocument()->getElementsByTagName(u"DeviceOperation");
        for (XMLSize_t nAt = 0; nAt < lstSection.getLength(); ++nAt)
        {
            const auto& oSection = static_cast<const DOMElement&>(*lstSection.item(nAt));
            const Ids   lstId    = domIds(oSection, u"Operation");
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
            Ids lstOption = domIds(*pOper, u"Option");
            if (lstOption.empty())
                lstOption = domIds(*pOper, u"option");
            std::list<StAsnOptionInfo> lstRead;
            EXPECT_EQ(0u, CDevOpXMLConfig().fillOperOptionInfo(pOper, lstRead));
            EXPECT_EQ(lstOption, recordIds(lstRead));
        }
    }
    EXPECT_GT(nFound, 300u); // the documents do hold something
}

TEST(XmlReadTest, NumbersAreBaseTenInThirtyTwoBits)
{
    // clang-format off
    const struct
    {
        const char*   pszText;
        std::uint32_t ulValue; // also decides the flag: true when it is not 0
    } CASES[] = {
        {"15", 15}, {"+7", 7}, {" 12x", 12}, {"007", 7}, {"", 0}, {"true", 0}, {"0x1", 0}, {"- 1", 0}, {"1 2", 1},
        {"-1", 4294967295u}, {"4294967295", 4294967295u}, {"4294967296", 0}, {"4294967297", 1}, {"-4294967295", 1},
        // Held at the largest and the smallest 64-bit number.
        {"9223372036854775807", 4294967295u}, {"9223372036854775808", 4294967295u}, {"-9223372036854775809", 0},
        {"99999999999999999999999", 4294967295u},
    };
    // clang-format on
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
} // namespace
