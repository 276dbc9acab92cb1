// The walk over the module folders: what is read, what is passed over, what is
// said about it.
#include "ServerFixture.h"
#include "reader/CDevTypeXMLConfig.h"
#include "reader/CModuleXMLResReader.h"
#include "records/ResultCodes.h"

namespace
{
class ModuleReadTest : public CServerTest
{
protected:
    ModuleReadTest() { std::filesystem::create_directories(m_oRoot.path() + "/m"); }

    void write(const std::string& strPath, const std::string& strName, const std::string& strRest = "")
    {
        m_oRoot.write("m/" + strPath, "<C><DeviceType name='" + strName + "'/>" + strRest + "</C>");
    }

    std::uint32_t walk() { return m_oReader.parseXMLOfDirs(m_oRoot.path() + "/m", m_mapModule); }

    // "name<file;" of every file met; a file that was not taken has a "!".
    std::string files() const
    {
        std::string strText;
        for (const StModuleLoad& stFile : m_oReader.files())
            strText += stFile.strName + (stFile.ulResult == 0 ? "<" : "!") +
                       stFile.strFile.substr(m_oRoot.path().size() + 3) + ";";
        return strText;
    }

    CModuleXMLResReader m_oReader;
    ModuleInfoMap       m_mapModule;
};

TEST_F(ModuleReadTest, FindsBothSpellingsAtEveryDepthInByteOrder)
{
    write("b/ServerConfiguration.xml", "B");
    write("a/deep/deeper/ServerConfiguration.XML", "Deep");
    write("Z/ServerConfiguration.xml", "Z");
    write("\xC3\xA4/ServerConfiguration.xml", "Umlaut");
    write("a/X_ServerConfiguration.xml.old", "Contained");
    write("a/serverconfiguration.xml", "Case");
    write("a/ServerConfiguration.Xml", "Mixed");
    write("a/Other.xml", "Other");
    write("ServerConfiguration.xml/readme.txt", "Folder"); // the whole path counts
    EXPECT_EQ(0u, walk());
    EXPECT_EQ("Folder<ServerConfiguration.xml/readme.txt;Z<Z/ServerConfiguration.xml;"
              "Contained<a/X_ServerConfiguration.xml.old;Deep<a/deep/deeper/ServerConfiguration.XML;"
              "B<b/ServerConfiguration.xml;Umlaut<\xC3\xA4/ServerConfiguration.xml;",
              files());
    EXPECT_EQ(6u, m_mapModule.size());
    EXPECT_THAT(log(), testing::IsEmpty());
}

TEST_F(ModuleReadTest, WhatIsBrokenCostsNothingElse)
{
    write("a/ServerConfiguration.xml", "A", "<support><dev name='first'/></support>");
    write("b/ServerConfiguration.xml", "Unreachable");
    m_oRoot.write("m/c/ServerConfiguration.xml", "<C><DeviceType name='C'/>");
    m_oRoot.write("m/d/ServerConfiguration.xml", "<C><support/></C>");
    std::filesystem::create_symlink("nowhere", m_oRoot.path() + "/m/e");
    std::filesystem::create_directory_symlink("..", m_oRoot.path() + "/m/a/parent");
    std::filesystem::create_directory_symlink(".", m_oRoot.path() + "/m/f");
    write("g/ServerConfiguration.xml", "G");
    write("h/ServerConfiguration.xml", "A", "<support><dev name='second'/></support>");
    // The folders are opened in order: m, a, its parent again, b.
    const standalone::CFaultPoint oUnreadable("KIVO_OS::opendir", 4, 13);
    EXPECT_EQ(0u, walk());
    EXPECT_EQ("A<a/ServerConfiguration.xml;!c/ServerConfiguration.xml;!d/ServerConfiguration.xml;"
              "G<g/ServerConfiguration.xml;A!h/ServerConfiguration.xml;",
              files());
    EXPECT_THAT(m_mapModule["A"].lstSupportDevType, testing::ElementsAre("first"));
    const std::string FAILED = " Call Function return Error:parseModuleXML(strFilePath, pModuleInfoMap): ROOT/m/";
    EXPECT_EQ(
        "E 3B0004EC [DCServer]CModuleXMLResReader::parseXMLOfDirs(): open dir failed! dirname: ROOT/m/b, errno: 13\n"
        "E 3B0004EC Call Function return Error:parseXMLOfDirs(strFilePath, pModuleInfoMap): ROOT/m/b\n"
        "E 3B0004EE [DCServer]XercesDOMParser::getDocument failed :\nE 3B0004EE" +
            FAILED +
            "c/ServerConfiguration.xml\n"
            "E 3B0004EE [DCServer]pElm is null.\nE 3B0004EE" +
            FAILED +
            "d/ServerConfiguration.xml\n"
            "E FFFFFFFF Call Function return Error:KIVO_OS::stat(strFilePath.c_str(), &oStatbuf): ROOT/m/e\n"
            "E 3B0004EC [DCServer]DeviceType name is already taken by another file :A\nE 3B0004EC" +
            FAILED + "h/ServerConfiguration.xml\n",
        logText());
}

TEST_F(ModuleReadTest, RefusesAModuleThatNamesOneTypeTooOften)
{
    std::string strDevices;
    for (int nTimes = 0; nTimes < 4; ++nTimes)
        strDevices += "<dev name='X'/><dev name='Y'/>";
    write("a/ServerConfiguration.xml", "A", "<support>" + strDevices + "</support>");
    write("b/ServerConfiguration.xml", "B", "<support>" + strDevices + "</support><support><dev name='Y'/></support>");
    walk();
    EXPECT_EQ("A<a/ServerConfiguration.xml;B!b/ServerConfiguration.xml;", files());
    EXPECT_EQ("E 3B0004EE [DCServer]DeviceType is named too many times by one file :Y", logLines().front());
}

TEST_F(ModuleReadTest, ReadsAllSectionsButTheIsolationMenu)
{
    write("ServerConfiguration.xml", "M",
          "<support><dev name='X'/><g><dev name='Y'/></g></support><support><dev name='X'/><dev/></support>"
          "<CheckOperations><Operation id='check'/></CheckOperations>"
          "<DeviceViewPopupMenu><Item id='menu'/></DeviceViewPopupMenu>");
    EXPECT_EQ(0u, walk());
    const StAsnModuleInfoVerXMLInfo& stModule = m_mapModule["M"];
    EXPECT_THAT(stModule.lstSupportDevType, testing::ElementsAre("X", "Y", "X", ""));
    EXPECT_EQ("check", ids(stModule.stOperationConfig.lstCheckOperation));
    EXPECT_EQ("menu", ids(stModule.stViewConfig.lstDevViewPopupMenu));
    EXPECT_EQ("", ids(stModule.stViewConfig.lstIsolationViewPopupMenu));
}

// A call of the walk that fails once: what could be read before stays. FaultTest has the calls that always fail.
TEST_F(ModuleReadTest, FailingCallsEndNoMoreThanTheyMust)
{
    write("a/ServerConfiguration.xml", "A");
    for (const auto& [pszCall, nModules] : {std::pair{"KIVO_OS::opendir", 0u},
                                            {"KIVO_OS::readdir_r", 0u},
                                            {"KIVO_OS::closedir", 1u},
                                            {"NS_UTIL::IsExists", 0u},
                                            {"KIVO_OS::stat", 1u}})
    {
        SCOPED_TRACE(pszCall);
        const standalone::CFaultPoint oFault(pszCall, 1, 5);
        m_mapModule.clear();
        CModuleXMLResReader().parseXMLOfDirs(m_oRoot.path() + "/m", m_mapModule);
        EXPECT_EQ(nModules, m_mapModule.size());
    }
}

TEST_F(ModuleReadTest, MissingInputIsNamed)
{
    const auto                pNoDocument = CXmlParser::create();
    std::string               strName;
    StAsnModuleInfoVerXMLInfo stModule;
    CDevTypeXMLConfig         oConfig;
    EXPECT_EQ(DC_RESULT_XML_ERROR, oConfig.setModuleXMLConfig(nullptr, strName));
    EXPECT_EQ(DC_RESULT_XML_ERROR, oConfig.setDevTypeXMLConfig(pNoDocument.get(), stModule));
    EXPECT_EQ(DC_RESULT_FILE_NOT_EXIST, m_oReader.initialize("/none.xml", nullptr));
    EXPECT_EQ(DC_RESULT_XML_ERROR, m_oReader.initialize("/", nullptr));
    EXPECT_EQ("E 3B0004EE [DCServer]DOMElement::setDevOperXMLConfig(): pDOMParser pointer is NULL: \n"
              "E 3B0004EE [DCServer]XercesDOMParser::getDocument failed :\n"
              "E 3B0004EC [DCServer]Server config File :/none.xml not exist.\n"
              "E 3B0004EE [DCServer] pXmlParser is null :\n",
              logText());
}
} // namespace
