// The page that explains how a section is added shows code that compiles and reads
// what the page says.
#include "RecordText.h"
#include "examples/new-section/SparePartSection.h"

#include <fstream>
#include <sstream>

namespace
{
std::string source(const std::string& strPath)
{
    std::stringstream oText;
    oText << std::ifstream(OPERATIONXML_SOURCE_DIR "/" + strPath).rdbuf();
    return oText.str();
}

TEST(NewSectionTest, ThePageShowsWhatIsBuiltHere)
{
    const std::string strFile = "examples/new-section/SparePartSection";
    const std::string strCode = source(strFile + ".h") + source(strFile + ".cpp");
    const std::string strPage = source("docs/adding-a-section.md");
    std::string       strRead;
    int               nCode = 0;
    for (std::size_t nAt = 0; (nAt = strPage.find("\n```", nAt)) != std::string::npos; nAt += 4)
    {
        const std::size_t nText   = strPage.find('\n', nAt + 1) + 1;
        const std::string strKind = strPage.substr(nAt + 4, nText - nAt - 5);
        nAt                       = strPage.find("```\n", nText) - 1;
        const std::string strText = strPage.substr(nText, nAt + 1 - nText);
        nCode += strKind == "cpp" ? 1 : 0;
        if (strKind == "cpp")
            EXPECT_THAT(strCode, testing::HasSubstr(strText));
        else
            strRead += section(std::get<0>(example::SECTIONS).pfnRead)(strText);
    }
    EXPECT_EQ("FAN-2|1|1", strRead);
    EXPECT_LE(4, nCode);
}
} // namespace
