// A configuration file that is no whole document costs its own type and no other.
// Which bytes are no document is for XmlParserTest.
#include "reader/ServerFixture.h"

#include <sys/stat.h>

namespace
{
TEST_F(CServerTest, BrokenFileGivesNoRecordUntilItIsRepaired)
{
    const std::string WHOLE = "<?xml version='1.0'?><C><DeviceOperation><Operation id='Save'><Parameter id='p'/>"
                              "</Operation></DeviceOperation><CheckOperations/><OtherOperation id='x'/><TaskType "
                              "id='PatchUpdate'/><!-- c --><d><![CDATA[d]]>&amp;</d></C>";
    makeModuleFolder();
    const std::string strPath = m_oRoot.writeConfig("A.xml", "");
    m_oRoot.writeConfig("B.xml", deviceFile({"Save"}));
    open();
    const auto fnHas = [](const char* pszType) // reads the file of now when there is no record
    { return CXMLConfigDatabase::getInstance()->getFirstDevTypeXMLConfig(pszType, "V1") != nullptr; };
    std::filesystem::remove(strPath);
    std::filesystem::create_directory(strPath);
    EXPECT_FALSE(fnHas("A"));
    std::filesystem::remove(strPath);
    ASSERT_EQ(0, ::mkfifo(strPath.c_str(), 0600)); // nobody waits for a writer
    EXPECT_FALSE(fnHas("A"));
    EXPECT_THAT(log(), testing::Contains("E 3B0004EE [DCServer]XercesDOMParser::getDocument failed :").Times(3));
    std::filesystem::remove(strPath);
    for (std::size_t nLength = 0; nLength <= WHOLE.size(); ++nLength)
    {
        m_oRoot.writeConfig("A.xml", WHOLE.substr(0, nLength));
        EXPECT_EQ(nLength == WHOLE.size(), fnHas("A")) << nLength;
    }
    EXPECT_TRUE(fnHas("B"));
}
} // namespace
