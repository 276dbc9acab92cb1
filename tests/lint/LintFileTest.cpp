// What lint does with a file of more mistakes, or longer lines and texts, than anybody
// reads, and with allowances inside each other.
#include "TestSupport.h"
#include "lint/Lint.h"

namespace
{
using lint::StFinding;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class LintFileTest : public testing::Test
{
protected:
    // Findings about the content of one "DeviceOperation".
    std::vector<StFinding> findingsOf(const std::string& strOperations)
    {
        const std::string strFile = m_oRoot.write("a.xml", "<ServerConfiguration><DeviceOperation>\n" + strOperations +
                                                               "\n</DeviceOperation></ServerConfiguration>");
        std::vector<StFinding> lstFinding;
        EXPECT_TRUE(lint::lintFile(strFile, lint::EnFileKind::Configuration,
                                   [&](const StFinding& stFinding) { lstFinding.push_back(stFinding); }));
        return lstFinding;
    }

    CTempServerRoot m_oRoot;
};

std::string repeated(const std::string& strText, std::size_t nTimes)
{
    std::string strRepeated;
    for (std::size_t nTime = 0; nTime < nTimes; ++nTime)
        strRepeated += strText;
    return strRepeated;
}

// Every mistake is seen by another rule.
TEST_F(LintFileTest, TellsSoManyFindingsAndNoMore)
{
    for (const char* pszMistake :
         {"<Nothing/>", "<Operation/>", "<Operation id='A' x=''/>", "<Operation id='A'/>",
          "<Operation id='A' isCancelable='x'/>", "<!--opxml-lint: allow--><Operation id='A'/>",
          "<!--opxml-lint: allow missing-id because x--><Operation id='A'/>"})
    {
        SCOPED_TRACE(pszMistake);
        const std::vector<StFinding> lstFinding = findingsOf(repeated(pszMistake, 10'100));
        ASSERT_EQ(10'000u, lstFinding.size());
        EXPECT_THAT(lstFinding.front().lstHelp, testing::Not(testing::Contains(HasSubstr("only 10000"))));
        EXPECT_THAT(lstFinding.back().lstHelp, testing::Contains(HasSubstr("only 10000 findings of one file")));
    }
}

TEST_F(LintFileTest, ShowsALineUpTo4096Bytes)
{
    for (const std::size_t nLine : {4096u, 4097u})
    {
        const std::string            strEntry   = "<Operation id='A' x=''/>";
        const std::string            strLine    = std::string(nLine - strEntry.size(), ' ') + strEntry;
        const std::vector<StFinding> lstFinding = findingsOf(strLine);
        ASSERT_EQ(1u, lstFinding.size());
        EXPECT_EQ(2u, lstFinding[0].ulLine);
        EXPECT_EQ(nLine == 4096 ? strLine : "", lstFinding[0].strSource);
    }
}

TEST_F(LintFileTest, LongTextsAreShortened)
{
    const std::string            strLong = repeated("\xC3\xA9", 100'000);
    const std::vector<StFinding> lstFinding =
        findingsOf("<Operation id='" + strLong + "' operationLevel='" + strLong + "'><Parameter/></Operation>");
    ASSERT_EQ(2u, lstFinding.size());
    for (const StFinding& stFinding : lstFinding)
    {
        EXPECT_LT(stFinding.strMessage.size(), 600u);
        EXPECT_LT(stFinding.strSubject.size(), 600u);
        EXPECT_THAT(stFinding.strSubject, HasSubstr("\xC3\xA9\xE2\x80\xA6")); // cut behind a whole character
    }
}

// Longer than what the transcoder takes at once.
TEST_F(LintFileTest, LinesOfALongFileInAnotherEncodingAreThere)
{
    const std::string strFile = m_oRoot.write(
        "a.xml", "<?xml version='1.0' encoding='ISO-8859-1'?>\n<ServerConfiguration><!--" + repeated("\xE9", 5'000) +
                     "-->\n<DeviceOperation><Operation id='\xE9'/><Nothing/></DeviceOperation></ServerConfiguration>");
    std::vector<StFinding> lstFinding;
    lint::lintFile(strFile, lint::EnFileKind::Configuration,
                   [&](const StFinding& stFinding) { lstFinding.push_back(stFinding); });
    ASSERT_EQ(1u, lstFinding.size());
    EXPECT_EQ(3u, lstFinding[0].ulLine);
    EXPECT_EQ(38u, lstFinding[0].ulColumn);
    EXPECT_THAT(lstFinding[0].strSource, HasSubstr("<Operation id='\xC3\xA9'/><Nothing/>"));
}

// The innermost of several allowances is the one that is needed.
TEST_F(LintFileTest, OneAllowanceIsEnough)
{
    const std::string strAllow = "<!-- opxml-lint: allow missing-id because it shows -->";
    EXPECT_THAT(findingsOf(strAllow + "<Operation><Parameter/></Operation>"), IsEmpty());
    const std::vector<StFinding> lstFinding =
        findingsOf(strAllow + "<Operation id='A'>" + strAllow + "<Parameter/></Operation>");
    ASSERT_EQ(1u, lstFinding.size());
    EXPECT_EQ("unused-allowance", lstFinding[0].strRule);
    EXPECT_EQ(1u, lstFinding[0].ulColumn);
}
} // namespace
