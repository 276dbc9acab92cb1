// What becomes of a file: a whole document, or none and the reason.
#include "TestSupport.h"
#include "common/XmlLimits.h"
#include "records/ResultCodes.h"
#include "sections/CDevOpXMLConfig.h"
#include "sections/ForeignXml.h"

#include <fmt/format.h>

#include <sys/stat.h>

namespace
{
// Every entity stands ten times in the next one.
std::string entityBomb()
{
    std::string strXml = "<!DOCTYPE a [<!ENTITY e0 'ha'>";
    for (int nLevel = 1; nLevel < 9; ++nLevel)
    {
        std::string strTen;
        for (int nTimes = 0; nTimes < 10; ++nTimes)
            strTen += fmt::format("&e{};", nLevel - 1);
        strXml += fmt::format("<!ENTITY e{} '{}'>", nLevel, strTen);
    }
    return strXml + "]><a><b/>&e8;</a>";
}

TEST(XmlParserTest, RefusesWhatIsNoDocument)
{
    const struct
    {
        const char* pszName;
        std::string strXml;
        const char* pszProblem; // its beginning
    } CASES[] = {
        {"only blanks", " \n ", "line"},
        {"only a comment", "<!-- -->", "line 1"},
        {"torn off", "<a>\n<b/><c", "line 2"},
        {"two roots", "<a><b/></a><a/>", "line 1, column"},
        {"invalid UTF-8", "<?xml version='1.0' encoding='UTF-8'?><a><b/>\xC3(</a>", "line 1"},
        {"other encoding declared", "<?xml version='1.0' encoding='US-ASCII'?><a><b/>\xC3\xB6</a>", "line 1"},
        {"unknown encoding", "<?xml version='1.0' encoding='none-such'?><a><b/></a>", "line 1"},
        {"nul byte", std::string("<a><b/>\0</a>", 12), "line 1"},
        {"external DTD", "<!DOCTYPE a SYSTEM 'file:///etc/hostname'><a><b/></a>", "line 1"},
        {"external entity", "<!DOCTYPE a [<!ENTITY e SYSTEM 'file:///etc/hostname'>]><a><b/>&e;</a>", "line 1"},
        {"entity of itself", "<!DOCTYPE a [<!ENTITY e '&e;'>]><a><b/>&e;</a>", "line 1"},
        {"entity bomb", entityBomb(), "line 1"},
    };
    CTempServerRoot oRoot;
    const auto      pParser = CXmlParser::create();
    for (const auto& stCase : CASES)
    {
        SCOPED_TRACE(stCase.pszName);
        pParser->parseText("<a><b/></a>"); // must not shine through
        pParser->parseFile(oRoot.write("a.xml", stCase.strXml));
        EXPECT_EQ(nullptr, pParser->getDocument());
        EXPECT_THAT(pParser->elements(u"b"), testing::IsEmpty());
        EXPECT_THAT(problemText(pParser->problem()), testing::StartsWith(stCase.pszProblem));
        std::list<StAsnOperation> lstOper;
        EXPECT_EQ(DC_RESULT_XML_ERROR, CDevOpXMLConfig().setDevOperXMLConfig(pParser.get(), &lstOper));
    }
}

TEST(XmlParserTest, RefusesWhatIsNoFile)
{
    CTempServerRoot   oRoot;
    const std::string strPipe = oRoot.path() + "/pipe";
    ASSERT_EQ(0, ::mkfifo(strPipe.c_str(), 0600));
    const std::pair<std::string, const char*> CASES[] = {
        {oRoot.path() + "/none.xml", "No such file or directory"},
        {"", "No such file or directory"},
        {oRoot.path(), "not a regular file"},
        {"/dev/null", "not a regular file"},
        {strPipe, "not a regular file"}, // and nobody waits for a writer
    };
    const auto pParser = CXmlParser::create();
    for (const auto& [strPath, pszProblem] : CASES)
    {
        pParser->parseText("<a/>");
        pParser->parseFile(strPath);
        EXPECT_EQ(nullptr, pParser->getDocument());
        EXPECT_EQ(strPath.empty() ? pszProblem : strPath + ": " + pszProblem, problemWithFile(pParser->problem()));
    }
}

TEST(XmlParserTest, EveryTruncationIsRefused)
{
    const std::string strXml  = "<?xml version='1.0'?><a x='1'><b>t&amp;</b><!-- c --><![CDATA[d]]></a>";
    const auto        pParser = CXmlParser::create();
    for (std::size_t nLength = 0; nLength <= strXml.size(); ++nLength)
    {
        pParser->parseText(std::string_view(strXml).substr(0, nLength));
        EXPECT_EQ(nLength == strXml.size(), pParser->getDocument() != nullptr) << nLength;
    }
}

TEST(XmlParserTest, AGoodParseReplacesWhatWasThere)
{
    const auto pParser = CXmlParser::create();
    for (const char* pszXml : {"<a><b/></a>", "<a><b/><b/>", "<!DOCTYPE a [<!ENTITY e '<c/>'>]><a>&e;&e;</a>"})
        pParser->parseText(pszXml);
    EXPECT_FALSE(pParser->problem().isSet());
    EXPECT_THAT(pParser->elements(u"b"), testing::IsEmpty());
    EXPECT_THAT(pParser->elements(u"c"), testing::SizeIs(2));
    EXPECT_THAT(pParser->elements(u"a"), testing::ElementsAre(pParser->getDocument()->getDocumentElement()));
}

// Elements inside each other, all of different names.
std::string ladder(std::size_t nDepth)
{
    std::string strXml;
    for (std::size_t nAt = nDepth; nAt > 0; --nAt)
        strXml = fmt::format("<e{}>{}</e{}>", nAt, strXml, nAt);
    return strXml;
}

// Chains of sub items that are read exactly so many times more than once each:
// the element below n of its kind is read 2^n times.
std::string repeatedReads(std::uint64_t nReads)
{
    std::string strXml;
    for (unsigned nDepth = 16; nDepth > 1; --nDepth)
    {
        const std::uint64_t nChain = (std::uint64_t{1} << nDepth) - 1 - nDepth;
        for (; nReads >= nChain; nReads -= nChain)
            strXml += nested("SubItem", nDepth);
    }
    return "<a>" + strXml + "</a>";
}

TEST(XmlParserTest, ReadsUpToEachLimitAndNotBeyond)
{
    using namespace XmlLimits;
    const std::string strSameName = "elements \"b\" are nested in each other too deep";
    const std::string strReads    = "elements \"SubItem\" are nested so that they would be read too many times";
    const std::string strText     = "elements \"SubItem\" hold too much for the times that they would be read";
    const auto        fnEntities  = [](std::size_t nCharacters)
    { return "<!DOCTYPE a [<!ENTITY e 'x'><!ENTITY f '" + std::string(nCharacters - 1, 'x') + "'>]><a/>"; };
    const auto fnTwice = [](const std::string& strAttribute, const std::string& strInside)
    { return "<SubItem><SubItem" + strAttribute + ">" + strInside + "</SubItem></SubItem>"; };
    const std::string strMost(MAX_REPEATED_TEXT - 8, 'x'); // each node counts as eight more
    const auto        fnExpansions = [](unsigned nTimes)
    {
        return fmt::format("<!DOCTYPE a [<!ENTITY e 't'>]><a>{}</a>",
                           fmt::join(std::vector<const char*>(nTimes, "&e;"), ""));
    };
    const struct
    {
        const char* pszName;
        std::string strXml;
        std::string strProblem;
    } CASES[] = {
        {"Depth", ladder(MAX_DEPTH), ""},
        {"DepthPassed", ladder(MAX_DEPTH + 1), "elements \"e101\" are nested too deep"},
        {"SameName", nested("b", MAX_SAME_NAME_DEPTH), ""},
        {"SameNamePassed", nested("b", MAX_SAME_NAME_DEPTH + 1), strSameName},
        {"SameNameWithOthersBetween", "<c>" + nested("b", MAX_SAME_NAME_DEPTH) + "</c>", ""},
        {"SameNameSideBySide", "<c>" + nested("b", MAX_SAME_NAME_DEPTH) + nested("b", 1) + "</c>", ""},
        {"RepeatedReads", repeatedReads(MAX_REPEATED_READS), ""},
        {"RepeatedReadsPassed", repeatedReads(MAX_REPEATED_READS + 1), strReads},
        {"Expansions", fnExpansions(MAX_ENTITY_EXPANSION), ""},
        {"EntityText", fnEntities(MAX_ENTITY_TEXT), ""},
        {"EntityTextPassed", fnEntities(MAX_ENTITY_TEXT + 1), "the document type declares too much text as entities"},
        {"ParameterEntity", "<!DOCTYPE a [<!ENTITY % p ''>]><a/>", "the document type declares a parameter entity"},
        {"AttributeList", "<!DOCTYPE a [<!ATTLIST a b CDATA ''>]><a/>", "the document type declares attributes"},
        {"RepeatedAttribute", fnTwice(" id='" + strMost + "'", ""), ""},
        {"RepeatedAttributePassed", fnTwice(" id='x" + strMost + "'", ""), strText},
        {"RepeatedTextPassed", fnTwice("", strMost), strText}, // the element itself counts as well
        {"RepeatedCommentPassed", fnTwice("", "<!--" + strMost + "-->"), strText},
        {"RepeatedInstructionPassed", fnTwice("", "<?p " + strMost + "?>"), strText},
        {"ReadOnce", "<SubItem>" + strMost + strMost + "</SubItem>", ""},
    };
    const auto pParser = CXmlParser::create();
    for (const auto& stCase : CASES)
    {
        SCOPED_TRACE(stCase.pszName);
        pParser->parseText(stCase.strXml);
        EXPECT_EQ(stCase.strProblem, problemWithFile(pParser->problem()));
        EXPECT_EQ(stCase.strProblem.empty(), pParser->getDocument() != nullptr);
    }
    pParser->parseText(fnExpansions(MAX_ENTITY_EXPANSION + 1));
    EXPECT_EQ(nullptr, pParser->getDocument());
}

// Names that share one hash in the parser's tables: a megabyte of them takes it
// many seconds.
TEST(XmlParserTest, GivesUpOnAFileThatTakesFarLongerThanItsSizeDoes)
{
    std::string strXml = "<a>";
    for (unsigned nName = 0; nName < 28000; ++nName)
    {
        strXml += '<';
        for (unsigned nBit = 0; nBit < 15; ++nBit)
            strXml += (nName >> nBit & 1) != 0 ? "bP" : "av"; // 38 * 'b' + 'P' == 38 * 'a' + 'v'
        strXml += "/>";
    }
    const auto pParser = CXmlParser::create();
    pParser->parseText(strXml + "</a>");
    EXPECT_EQ("the file takes too long to parse", pParser->problem().strText);
    pParser->parseText("<a/>");
    EXPECT_FALSE(pParser->problem().isSet());
}

// Entity references between the levels count for nothing, in the parser as in
// the lookups.
TEST(XmlParserTest, EntityReferencesAreNoLevel)
{
    const auto        pParser = CXmlParser::create();
    const std::string strRef  = "<!DOCTYPE e1 [<!ENTITY c '<DeviceOperation><Operation/></DeviceOperation>'>"
                                "<!ENTITY b '&c;'><!ENTITY DeviceOperation '&b;'>]>";
    std::string       strXml  = ladder(XmlLimits::MAX_DEPTH - 2);
    strXml.insert(strXml.find("</"), "&DeviceOperation;");
    pParser->parseText(strRef + strXml);
    ASSERT_EQ("", pParser->problem().strText);
    std::list<StAsnOperation> lstOper;
    EXPECT_EQ(0u, CDevOpXMLConfig().setDevOperXMLConfig(pParser.get(), &lstOper));
    EXPECT_THAT(lstOper, testing::SizeIs(1));
    EXPECT_THAT(logLines(), testing::IsEmpty());
}

// A parser that a caller made: its document counts unless it failed half-way.
TEST(XmlParserTest, ForeignParserIsHeldToTheSameRules)
{
    const struct
    {
        const char*   pszXml;
        std::uint32_t ulResult;
        std::size_t   nOperations;
    } CASES[] = {
        {"<DeviceOperation><Operation/><Operation/></DeviceOperation>", 0, 2}, // the root is a section itself
        {"<a><DeviceOperation><Operation/></DeviceOperation><DeviceOperation><Operation/></DeviceOperation></a>", 0, 2},
        {"<a><DeviceOperation><Operation/></DeviceOperation>", DC_RESULT_XML_ERROR, 0},
        {"", DC_RESULT_XML_ERROR, 0},
    };
    for (const auto& stCase : CASES)
    {
        SCOPED_TRACE(stCase.pszXml);
        CForeignXml               oXml(stCase.pszXml);
        std::list<StAsnOperation> lstOper;
        EXPECT_EQ(stCase.ulResult, CDevOpXMLConfig().setDevOperXMLConfig(oXml.parser(), &lstOper));
        EXPECT_EQ(stCase.nOperations, lstOper.size());
    }
}
} // namespace
