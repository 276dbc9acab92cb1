// Elements nested in their own kind: read as often as the lookups say, refused
// before they could exhaust the server.
#include "ForeignXml.h"
#include "RecordText.h"
#include "records/ResultCodes.h"
#include "sections/CCheckOpXMLConfig.h"
#include "sections/CUpgradeOpXMLConfig.h"

namespace
{
std::string checkSection(unsigned nDepth)
{
    return "<CheckOperations><Operation><Parameter>" + nested("SubItem", nDepth) +
           "</Parameter></Operation></CheckOperations>";
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
    for (const unsigned nDepth : {2u, 6u, 16u})
    {
        CParsedXml                        oXml(checkSection(nDepth));
        std::list<StAsnCheckOperationDef> lstCheck;
        ASSERT_EQ(0u, CCheckOpXMLConfig().setCheckOpConfiguration(oXml.parser(), &lstCheck));
        ASSERT_EQ(1u, lstCheck.size());
        EXPECT_EQ(std::size_t{1} << nDepth, itemCount(lstCheck.front().lstCheckType));
    }
}

TEST(SectionLimitTest, UncheckedDocumentIsRefusedAtTheEntry)
{
    CForeignXml                       oXml(checkSection(17));
    std::list<StAsnCheckOperationDef> lstCheck;
    EXPECT_EQ(DC_RESULT_XML_ERROR, CCheckOpXMLConfig().setCheckOpConfiguration(oXml.parser(), &lstCheck));
    EXPECT_THAT(lstCheck, testing::IsEmpty());
    EXPECT_THAT(
        logLinesWithPlace(),
        testing::ElementsAre("E 3B0004EE XmlRead::documentOf [DCServer]XML document is refused: elements \"SubItem\" "
                             "are nested in each other too deep",
                             "E 3B0004EE CCheckOpXMLConfig::setCheckOpConfiguration [DCServer]XercesDOMParser::"
                             "getDocument failed."));
}

// Only the operation whose content cannot be looked up is lost.
TEST(SectionLimitTest, UpgradeDropsThatOperationAlone)
{
    const std::pair<std::string, const char*> CASES[] = {
        {nested("SubOperation", 17), "fillSubParaType"},
        {"<SubOperation>" + nested("Parameter", 17) + "</SubOperation>", "fillOperOptionInfo"},
    };
    for (const auto& [strBroken, pszFailing] : CASES)
    {
        SCOPED_TRACE(pszFailing);
        CForeignXml oXml("<UpgradeOperation><Operation id='first'/><Operation id='broken'>" + strBroken +
                         "</Operation><Operation id='last'/></UpgradeOperation>");
        std::list<StAsnUpgradeOperationDef> lstUpgrade;
        const auto*                         pSection = oXml.parser()->getDocument()->getDocumentElement();
        EXPECT_EQ(0u, CUpgradeOpXMLConfig().fillUpgradeOperInfo(pSection, &lstUpgrade));
        EXPECT_EQ("first|0|[], last|0|[]", CRecordText::list(lstUpgrade));
        EXPECT_THAT(logLinesWithPlace(),
                    testing::Contains(fmt::format("E 3B0004EE CUpgradeOpXMLConfig::{} [DCServer]DOMElement::"
                                                  "getElementsByTagName failed :",
                                                  pszFailing)));
    }
}
} // namespace
