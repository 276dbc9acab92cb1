// The file-check rules: what a file yields, and for every failure the exact line
// and exactly the records before it.
#include "filecheck/ParseXMLFile.h"
#include "TestSupport.h"
#include "records/ResultCodes.h"

#include <thread>

namespace
{
using testing::ElementsAre;

// "name:fields " of every record, the fields in the order they are read.
std::string rules(const ParseXMLFile::TypeMap& mapType)
{
    std::string strRules;
    for (const auto& [strName, stType] : mapType)
        strRules += strName + ":" + stType.strUncompressedSuffix + "|" + stType.strMaxSize + "|" +
                    stType.strFileMaxSize + "|" + stType.strWholeFileMaxSize + "|" + stType.strMaxCount + "|" +
                    stType.strFileSuffix + " ";
    return strRules;
}

// One type; without parameters it is read as "name:||||| ".
std::string type(const std::string& strValue, const std::string& strParams = "")
{
    return "<uncompressed_type value='" + strValue + "'>" + strParams + "</uncompressed_type>";
}

std::string zipcheck(const std::string& strTypes)
{
    return "<zipcheck>" + strTypes + "</zipcheck>";
}

const std::string WHOLE_FILE  = zipcheck(type("zip", "<uncompressed_suffix value='.txt;.xml'/><max_size value='10'/>"
                                                      "<file_max_size value='20'/><whole_file_max_size value='30'/>"
                                                      "<max_count value='40'/><file_suffix value='.zip'/>") +
                                         "<group>" + type("&#252;ber") + "</group>");
const std::string WHOLE_RULES = "zip:.txt;.xml|10|20|30|40|.zip \u00FC"
                                "ber:||||| ";

TEST(ParseXMLFileTest, ReadsUpToTheFirstMistake)
{
    const struct
    {
        std::string strContent;
        std::string strRules;
        std::string strLog; // function and text; empty when the read succeeds
    } CASES[] = {
        {WHOLE_FILE, WHOLE_RULES, ""},
        // The first of a name, of a root and of a value counts.
        {zipcheck(type("a", "<x><max_size value='1'/></x><max_size/>")), "a:|1|||| ", ""},
        {"<r>" + zipcheck(type("a")) + zipcheck(type("")) + "</r>", "a:||||| ", ""},
        {zipcheck(type("a") + type("a", "<max_size value='1'/>")), "a:||||| ", ""},
        // Failures.
        {"<zipcheck>" + type("a"), "", "GoNextParam [DCServer]The file_check.xml file is invalid."},
        {"<r/>", "", "GoNextParam [DCServer]Element <zipcheck> is not exist in the file_check.xml"},
        {"<r><zipcheck/>" + type("a") + "</r>", "",
         "GetXMLInfo [DCServer]Element <uncompressed_type> is not exist in the file_check.xml"},
        {zipcheck(type("a") + type("") + type("c")), "a:||||| ",
         "GetXMLInfo [DCServer]<uncompressed_type> value is not valid in the file_check.xml "},
        {zipcheck(type("a") + type("b", "<file_suffix/><max_count value=''/>") + type("c")), "a:||||| ",
         "GetXMLParam [DCServer]<max_count> value is not valid in the file_check.xml file "},
    };
    for (const auto& stCase : CASES)
    {
        SCOPED_TRACE(stCase.strContent);
        CTempServerRoot          oRoot;
        ParseXMLFile::TypeMap    mapType;
        std::vector<std::string> lstLog;
        if (!stCase.strLog.empty())
            lstLog = {"E 3B0004EE ParseXMLFile::" + stCase.strLog};
        EXPECT_EQ(lstLog.empty() ? DC_RESULT_OK : DC_RESULT_XML_ERROR,
                  ParseXMLFile::GetXMLInfo(oRoot.write("file_check.xml", stCase.strContent), mapType));
        EXPECT_EQ(stCase.strRules, rules(mapType));
        EXPECT_EQ(lstLog, logLinesWithPlace());
        clearLog();
    }
}

TEST(ParseXMLFileTest, NullAndUnknownInput)
{
    ParseXMLFile::TypeMap      mapType;
    UncompressedType           stType;
    const xercesc::DOMElement* pElement = nullptr;
    CParsedXml                 oXml("<owner value='x'/><note/>");
    EXPECT_EQ(DC_RESULT_OK, ParseXMLFile::GetXMLParam(nullptr, u"max_size", stType));
    EXPECT_EQ(DC_RESULT_OK, ParseXMLFile::GetXMLParam(oXml.root(), u"owner", stType));
    EXPECT_EQ("", ParseXMLFile::xmlChToStr(u""));
    EXPECT_THAT(logLines(), testing::IsEmpty());
    EXPECT_EQ(":||||| ", rules({{"", stType}}));

    EXPECT_EQ(DC_RESULT_XML_ERROR, ParseXMLFile::GetXMLParam(oXml.root(), u"note", stType));
    EXPECT_EQ(DC_RESULT_XML_ERROR, ParseXMLFile::GetXMLInfo("/no/such/file_check.xml", mapType));
    EXPECT_EQ(DC_RESULT_XML_ERROR, ParseXMLFile::GoNextParam(nullptr, pElement, u"zipcheck"));
    EXPECT_EQ("", ParseXMLFile::xmlChToStr(nullptr));
    EXPECT_THAT(logLines(), ElementsAre("E 3B0004EE [DCServer]<note> value is not valid in the file_check.xml file ",
                                        "E 3B0004EE [DCServer]The file_check.xml file is invalid.",
                                        "E 3B0004EE [DCServer]The file_check.xml file is invalid.",
                                        "E 00000000 [DCServer]XMLString::transcode return NULL"));
}

TEST(ParseXMLFileTest, EightThreadsReadAtOnceEachIntoItsOwnMap)
{
    CTempServerRoot                    oRoot;
    const std::string                  strGood = oRoot.write("good.xml", WHOLE_FILE);
    const std::string                  strTorn = oRoot.write("torn.xml", "<zipcheck>");
    std::vector<ParseXMLFile::TypeMap> lstMap(8);
    std::vector<std::thread>           lstThread;
    lstThread.reserve(lstMap.size());
    for (ParseXMLFile::TypeMap& mapType : lstMap)
        lstThread.emplace_back(
            [&]
            {
                for (int nRound = 0; nRound < 20; ++nRound)
                {
                    mapType.clear();
                    ParseXMLFile::GetXMLInfo(strTorn, mapType);
                    ParseXMLFile::GetXMLInfo(strGood, mapType);
                }
            });
    for (std::thread& oThread : lstThread)
        oThread.join();
    for (const ParseXMLFile::TypeMap& mapType : lstMap)
        EXPECT_EQ(WHOLE_RULES, rules(mapType));
    EXPECT_EQ(160u, logLines().size()); // the torn file, by every thread in every round
}
} // namespace
