// Elements nested in their own kind: read as often as the lookups say, refused
// before they could exhaust the server.
#include "ForeignXml.h"
#include "RecordText.h"
#include "records/ResultCodes.h"
#include "sections/CCheckOpXMLConfig.h"
#include "sections/CUpgradeOpXMLConfig.h"

namespace
{
std::string checkSection(const std::string& strItems)
{
    return "<CheckOperations><Operation><Parameter>" + strItems + "</Parameter></Operation></CheckOperations>";
}

std::size_t itemCount(const std::list<StAsnCheckType>& lstItem)
{
    std::size_t nItems = lstItem.size();
    for (const StAsnCheckType& stItem : lstItem)
        nItems += itemCount(stItem.lstSubItem);
    return nItems;
}

// Every sub item stands under each chain of its ancestors: 2^depth - 1, and the item itself.
TEST(SectionLimitTest, ChainOfSubItemsDoublesWithEveryLevel)
{
    for (const unsigned nDepth : {1u, 2u, 6u, 16u})
    {
        SCOPED_TRACE(nDepth);
        CParsedXml                        oXml(checkSection(nested("SubItem", nDepth)));
        std::list<StAsnCheckOperationDef> lstCheck;
        ASSERT_EQ(0u, CCheckOpXMLConfig().setCheckOpConfiguration(oXml.parser(), &lstCheck));
        ASSERT_EQ(1u, lstCheck.size());
        EXPECT_EQ(std::size_t{1} << nDepth, itemCount(lstCheck.front().lstCheckType));
    }
}

TEST(SectionLimitTest, DeeperChainHasNoDocument)
{
    const auto pParser = CXmlParser::create();
    pParser->parseText(checkSection(nested("SubItem", 17)));
    EXPECT_EQ("elements \"SubItem\" are nested in each other too deep", pParser->problem());
    EXPECT_EQ(nullptr, pParser->getDocument());
}

TEST(SectionLimitTest, UncheckedDocumentIsRefusedAtTheEntry)
{
    CForeignXml                       oXml(checkSection(nested("SubItem", 40)));
    std::list<StAsnCheckOperationDef> lstCheck;
    EXPECT_EQ(DC_RESULT_XML_ERROR, CCheckOpXMLConfig().setCheckOpConfiguration(oXml.parser(), &lstCheck));
    EXPECT_THAT(lstCheck, testing::IsEmpty());
    EXPECT_EQ((Lines{"E 3B0004EE XmlRead::documentOf [DCServer]XML document is refused: elements \"SubItem\" are "
                     "nested in each other too deep",
                     "E 3B0004EE CCheckOpXMLConfig::setCheckOpConfiguration [DCServer]XercesDOMParser::getDocument "
                     "failed."}),
              logLinesWithPlace());
}

// Only the operation whose content cannot be looked up is lost.
struct StDropCase
{
    const char* pszName;
    std::string strBroken; // what stands in the operation "broken"
    const char* pszFailing;
};
class UpgradeDropTest : public testing::TestWithParam<StDropCase>
{
};

TEST_P(UpgradeDropTest, DropsThatOperationAlone)
{
    CForeignXml oXml("<UpgradeOperation><Operation id='first'/><Operation id='broken'>" + GetParam().strBroken +
                     "</Operation><Operation id='last'/></UpgradeOperation>");
    std::list<StAsnUpgradeOperationDef> lstUpgrade;
    const auto*                         pSection = oXml.parser()->getDocument()->getDocumentElement();
    EXPECT_EQ(0u, CUpgradeOpXMLConfig().fillUpgradeOperInfo(pSection, &lstUpgrade));
    EXPECT_EQ((Lines{"first|0|[]", "last|0|[]"}), CRecordText::lines(lstUpgrade));
    const std::string strLine = fmt::format("E 3B0004EE CUpgradeOpXMLConfig::{} [DCServer]DOMElement::"
                                            "getElementsByTagName failed :",
                                            GetParam().pszFailing);
    EXPECT_THAT(logLinesWithPlace(), testing::Contains(strLine));
}
INSTANTIATE_TEST_SUITE_P(Level, UpgradeDropTest,
                         testing::ValuesIn(std::vector<StDropCase>{
                             {"SubOperation", nested("SubOperation", 17), "fillSubParaType"},
                             {"Parameter", "<SubOperation>" + nested("Parameter", 17) + "</SubOperation>",
                              "fillOperOptionInfo"},
                         }),
                         rowName<StDropCase>);
} // namespace
