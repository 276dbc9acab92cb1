// What becomes of a file: a whole document, or none and the reason.
#include "TestSupport.h"
#include "common/XmlLimits.h"
#include "common/XmlRead.h"
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
    const std::string LATE   = "<?xml version='1.0' encoding='{}'?>\n<a>\n" + std::string(100000, ' ') + "<b/>{}\n</a>";
    const auto        fnLate = [&](const char* pszEncoding, const char* pszBytes)
    { return fmt::format(fmt::runtime(LATE), pszEncoding, pszBytes); };
    // clang-format off
    const struct
    {
        const char* pszName;
        std::string strXml;
        const char* pszProblem; // its beginning
    } CASES[] = {
        {"only blanks", " \n ", "line"}, {"only a comment", "<!-- -->", "line 1"},
        {"torn off", "<a>\n<b/><c", "line 2"}, {"two roots", "<a><b/></a><a/>", "line 1, column"},
        // The place of the byte, not of the block that it is decoded in.
        {"invalid UTF-8", "<a><b/>\n<c/>\xC3(</a>", "line 2, column 5: "},
        {"invalid UTF-8 in a value", fnLate("UTF-8", "<c d='\xC3\xB6\xFF'/>"), "line 3, column 100012: "},
        {"invalid UTF-8 at the end", fnLate("UTF-8", "<c>\xE6\xBC"), "line 3, column 100008: "},
        {"other encoding declared", fnLate("US-ASCII", "<c/>\xC3\xB6"), "line 3, column 100009: "},
        {"UTF-8 as UTF-16", fnLate("UTF-16", ""), "line 1, column 40: encoding 'UTF-16'"},
        {"unknown encoding", "<?xml version='1.0' encoding='none-such'?><a><b/></a>", "line 1"},
        {"nul byte", std::string("<a><b/>\0</a>", 12), "line 1"},
        {"external DTD", "<!DOCTYPE a SYSTEM 'file:///etc/hostname'><a><b/></a>", "line 1"},
        {"external entity", "<!DOCTYPE a [<!ENTITY e SYSTEM 'file:///etc/hostname'>]><a><b/></a>", "line 1, column 55: the document type names another file"},
        {"notation", "<!DOCTYPE a [<!NOTATION n SYSTEM 'n'>]><a><b/></a>", "line 1, column 37: the document type declares"},
        {"entity of itself", "<!DOCTYPE a [<!ENTITY e '&e;'>]><a><b/>&e;</a>", "line 1"},
        {"entity bomb", entityBomb(), "line 1"},
        {"what the DOM refuses", "<!DOCTYPE a:b:c><a><b/></a>", "attempt is made"},
    };
    // clang-format on
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

// Of so many different names, not deep.
std::string ladders(std::size_t nNames)
{
    std::string strXml;
    for (std::size_t nAt = 0; nAt < nNames; ++nAt)
        strXml += fmt::format("<e{}/>", nAt);
    return "<a>" + strXml + "</a>";
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
    const std::string strNames    = "elements and attributes have too many different names";
    const std::string strAttrs    = "an element has too many attributes";
    const auto fnDocType = [](std::size_t nBytes) { return "<!DOCTYPE a [" + std::string(nBytes, ' ') + "]><a/>"; };
    // So many different names, of which all but those of the root and one element are attributes.
    const auto fnNames = [](std::size_t nNames)
    {
        std::string strXml;
        for (std::size_t nAt = 0; nAt + 2 < nNames; ++nAt)
            strXml += fmt::format("<b a{}=''/>", nAt);
        return "<a>" + strXml + "</a>";
    };
    const auto fnAttributes = [](std::size_t nAttributes, const char* pszEnd)
    {
        std::string strXml = "<a";
        for (std::size_t nAt = 0; nAt < nAttributes; ++nAt)
            strXml += fmt::format(" a{}=''", nAt);
        return strXml + pszEnd;
    };
    const auto fnEntities = [](std::size_t nCharacters)
    { return "<!DOCTYPE a [<!ENTITY e 'x'><!ENTITY f '" + std::string(nCharacters - 1, 'x') + "'>]><a/>"; };
    const auto fnTwice = [](const std::string& strAttribute, const std::string& strInside)
    { return "<SubItem><SubItem" + strAttribute + ">" + strInside + "</SubItem></SubItem>"; };
    const std::string strMost(MAX_REPEATED_TEXT - 8, 'x'); // each node counts as eight more
    const auto        fnExpansions = [](unsigned nTimes)
    {
        return fmt::format("<!DOCTYPE a [<!ENTITY e 't'>]><a>{}</a>",
                           fmt::join(std::vector<const char*>(nTimes, "&e;"), ""));
    };
    // clang-format off
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
        {"RepeatedReadsPassed", repeatedReads(MAX_REPEATED_READS + 1), strReads}, {"Names", fnNames(MAX_NAMES), ""},
        {"NamesPassed", fnNames(MAX_NAMES + 1), strNames}, {"ElementNamesPassed", ladders(MAX_NAMES), strNames},
        {"Attributes", fnAttributes(MAX_ATTRIBUTES - 1, "/>"), ""},
        {"AttributesPassed", fnAttributes(MAX_ATTRIBUTES + 1, "/>"), strAttrs},
        {"AttributesOfATagWithoutEnd", fnAttributes(20000, ""), strAttrs}, // before the end is missed
        {"LongValue", "<a b='" + std::string(1000000, 'x') + "'/>", ""}, {"DocType", fnDocType(MAX_DOCTYPE_BYTES), ""},
        {"DocTypePassed", fnDocType(MAX_DOCTYPE_BYTES + 100000), "the document type is too long"},
        {"Expansions", fnExpansions(MAX_ENTITY_EXPANSION), ""}, {"EntityText", fnEntities(MAX_ENTITY_TEXT), ""},
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
    // clang-format on
    const auto pParser   = CXmlParser::create();
    const auto pTextless = CXmlParser::create();
    pTextless->leaveOutTexts();
    for (const auto& stCase : CASES)
    {
        SCOPED_TRACE(stCase.pszName);
        pParser->parseText(stCase.strXml);
        pTextless->parseText(stCase.strXml);
        EXPECT_EQ(problemText(pParser->problem()), problemText(pTextless->problem()));
        EXPECT_EQ(stCase.strProblem, pParser->problem().strText);
        EXPECT_EQ(stCase.strProblem.empty(), pParser->problem().ulLine == 0);
        EXPECT_EQ(stCase.strProblem.empty(), pParser->getDocument() != nullptr);
    }
    pParser->parseText(fnExpansions(MAX_ENTITY_EXPANSION + 1));
    EXPECT_EQ(nullptr, pParser->getDocument());
}

TEST(XmlParserTest, LeavesOutBlanksBehindTagsAndNothingElse)
{
    const auto pParser = CXmlParser::create();
    pParser->leaveOutBlanks();
    pParser->parseText("<a>\n <b> </b>\n <c/> t <d/> &#32;u<![CDATA[ ]]>\n</a>");
    std::string strFound;
    for (const xercesc::DOMNode* pNode = pParser->getDocument()->getDocumentElement()->getFirstChild();
         pNode != nullptr; pNode       = pNode->getNextSibling())
        strFound += '[' + toLocal(pNode->getTextContent()) + ']';
    EXPECT_EQ("[][][ t ][][ u][ ][\n]", strFound);
}
TEST(XmlParserTest, LeavesOutTextsAndNothingElse)
{
    const auto pParser = CXmlParser::create();
    pParser->leaveOutTexts();
    pParser->parseText("<a>\n <b c='x'> t <!-- d --><![CDATA[e]]><f/></b>\n</a>");
    const xercesc::DOMNode* pB = pParser->getDocument()->getDocumentElement()->getFirstChild();
    EXPECT_EQ(pParser->elements(u"b").front(), pB);
    EXPECT_EQ(nullptr, pB->getNextSibling());
    EXPECT_EQ(pParser->elements(u"f").front(), pB->getFirstChild());
    EXPECT_EQ(nullptr, pB->getFirstChild()->getNextSibling());
    EXPECT_EQ("x", attrText(CAttributes(*pParser->elements(u"b").front()), u"c"));
}

// Blocks of one document become the next one's, whichever of them is the larger.
TEST(XmlParserTest, KeptBlocksServeDocumentsOfAnySize)
{
    const auto pParser = CXmlParser::create();
    pParser->keepBlocks();
    for (const std::size_t nElements : {1u, 5000u, 40000u, 3u, 5000u, 5001u, 60000u, 5000u})
    {
        std::string strXml = "<a>";
        for (std::size_t nElement = 0; nElement < nElements; ++nElement)
            strXml += fmt::format("<b c='{}'>{}</b>", nElement, std::string(nElement % 3 == 0 ? 300 : 3, 'x'));
        pParser->parseText(strXml + "</a>");
        const ElementList& lstElement = pParser->elements(u"b");
        ASSERT_EQ(nElements, lstElement.size());
        EXPECT_EQ(fmt::format("{}", nElements - 1), attrText(CAttributes(*lstElement.back()), u"c"));
        pParser->releaseDocument();
    }
}

// Whoever holds the parser as its base may parse and free by the base's operations.
// Elements of a document that is gone are never handed out.
TEST(XmlParserTest, TheIndexDiesWithItsDocument)
{
    const char* const SECTION = "<DeviceOperation><Operation id='{}'/></DeviceOperation>";
    const auto        fnParse = [&](xercesc::XercesDOMParser& oBase, const char* pszId)
    {
        const std::string strXml = fmt::format(fmt::runtime(SECTION), pszId);
        oBase.parse(xercesc::MemBufInputSource(reinterpret_cast<const XMLByte*>(strXml.data()), strXml.size(), u"x"));
    };
    const auto                pParser = CXmlParser::create();
    xercesc::XercesDOMParser& oBase   = *pParser;
    std::list<StAsnOperation> lstOper;
    pParser->parseText(fmt::format(fmt::runtime(SECTION), "first"));
    EXPECT_THAT(pParser->elements(u"Operation"), testing::SizeIs(1));
    fnParse(oBase, "second");
    EXPECT_THAT(pParser->elements(u"Operation"), testing::IsEmpty());
    EXPECT_EQ(0u, CDevOpXMLConfig().setDevOperXMLConfig(&oBase, &lstOper));
    oBase.resetDocumentPool();
    EXPECT_EQ(DC_RESULT_XML_ERROR, CDevOpXMLConfig().setDevOperXMLConfig(&oBase, &lstOper));

    pParser->parseText(fmt::format(fmt::runtime(SECTION), "third"));
    oBase.resetDocumentPool();
    EXPECT_THAT(pParser->elements(u"Operation"), testing::IsEmpty());
    EXPECT_EQ(DC_RESULT_XML_ERROR, CDevOpXMLConfig().setDevOperXMLConfig(&oBase, &lstOper));
    fnParse(oBase, "fourth"); // perhaps at the address of the one before
    EXPECT_EQ(0u, CDevOpXMLConfig().setDevOperXMLConfig(&oBase, &lstOper));
    ASSERT_THAT(lstOper, testing::SizeIs(2));
    EXPECT_EQ("second", lstOper.front().strId);
    EXPECT_EQ("fourth", lstOper.back().strId);
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

// A parser that a caller made: its document is taken as it is, whatever it reported.
TEST(XmlParserTest, ForeignDocumentIsTakenAsItIs)
{
    const char* const DTD = "<!DOCTYPE a [<!ELEMENT a (b)>]>";
    const struct
    {
        std::string   strXml;
        std::uint32_t ulResult;
        std::size_t   nOperations;
    } CASES[] = {
        {"<DeviceOperation><Operation/><Operation/></DeviceOperation>", 0, 2}, // the root is a section itself
        {"<a><DeviceOperation><Operation/></DeviceOperation><DeviceOperation><Operation/></DeviceOperation></a>", 0, 2},
        {std::string(DTD) + "<a><DeviceOperation><Operation/></DeviceOperation></a>", 0, 1}, // not valid
        {"<a><DeviceOperation><Operation/></DeviceOperation>", 0, 1},                        // half of one
        {"", DC_RESULT_XML_ERROR, 0},
    };
    for (const auto& stCase : CASES)
    {
        SCOPED_TRACE(stCase.strXml);
        CForeignXml               oXml(stCase.strXml);
        std::list<StAsnOperation> lstOper;
        EXPECT_EQ(stCase.ulResult, CDevOpXMLConfig().setDevOperXMLConfig(oXml.parser(), &lstOper));
        EXPECT_EQ(stCase.nOperations, lstOper.size());
    }
    EXPECT_GT(CForeignXml(CASES[2].strXml).parser()->getErrorCount(), 0); // the parser does validate
}
} // namespace
