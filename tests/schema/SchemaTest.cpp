// The schemas as a strict parser sees them, and their words beside the word tables.
#include "TestSupport.h"
#include "records/WordTables.h"

#include <fmt/format.h>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/sax/HandlerBase.hpp>
#include <xercesc/validators/common/Grammar.hpp>

#include <map>

using namespace xercesc;

namespace
{
const std::filesystem::path SCHEMAS = std::filesystem::path(OPERATIONXML_SOURCE_DIR) / "schema";

class SchemaTest : public testing::Test
{
    std::unique_ptr<CXmlParser> m_pInitialised = CXmlParser::create(); // Xerces must run before a parser is made
};

std::string local(const XMLCh* pszText)
{
    char*       pszLocal = XMLString::transcode(pszText);
    std::string strLocal = pszLocal;
    XMLString::release(&pszLocal);
    return strLocal;
}

// Full checking finds what other validators pass over: content models in which an
// element could be meant in two ways, and elements of one name with two types.
TEST_F(SchemaTest, StrictParsersTakeEverySchema)
{
    struct StProblems : HandlerBase
    {
        void add(const SAXParseException& oProblem)
        {
            lstProblem.push_back(fmt::format("{}:{}: {}", local(oProblem.getSystemId()), oProblem.getLineNumber(),
                                             local(oProblem.getMessage())));
        }
        void warning(const SAXParseException& oProblem) override { add(oProblem); }
        void error(const SAXParseException& oProblem) override { add(oProblem); }
        void fatalError(const SAXParseException& oProblem) override { add(oProblem); }

        std::vector<std::string> lstProblem;
    };
    std::size_t nSchemas = 0;
    for (const auto& oFile : std::filesystem::directory_iterator(SCHEMAS))
    {
        if (oFile.path().extension() != ".xsd")
            continue;
        SCOPED_TRACE(oFile.path().filename());
        StProblems      oProblems;
        XercesDOMParser oParser;
        oParser.setDoNamespaces(true);
        oParser.setDoSchema(true);
        oParser.setValidationScheme(XercesDOMParser::Val_Always); // or there is no full checking
        oParser.setValidationSchemaFullChecking(true);
        oParser.setErrorHandler(&oProblems);
        EXPECT_NE(nullptr, oParser.loadGrammar(oFile.path().c_str(), Grammar::SchemaGrammarType));
        EXPECT_THAT(oProblems.lstProblem, testing::IsEmpty());
        ++nSchemas;
    }
    EXPECT_EQ(10u, nSchemas); // one for each kind of file, and two that they share
}

template <typename Table>
std::vector<std::string> tableWords(const Table& arTable)
{
    std::vector<std::string> lstWord;
    for (const auto& stRow : arTable)
        lstWord.emplace_back(stRow.strWord);
    return lstWord;
}

TEST_F(SchemaTest, WordsAreThoseOfTheWordTables)
{
    // clang-format off
    const struct
    {
        const char*              pszType;
        std::vector<std::string> lstWord;
    } CASES[] = {
        {"operationLevel", tableWords(OPERATION_LEVEL_WORDS)}, {"availability", tableWords(AVAILABILITY_WORDS)},
        {"patchType", tableWords(PATCH_TYPE_WORDS)}, {"operationKind", tableWords(TYPE_REF_WORDS)},
        {"isolationOperationKind", tableWords(ISOLATION_TYPE_REF_WORDS)}, {"taskTypeName", tableWords(TASK_TYPE_WORDS)},
    };
    // clang-format on
    XercesDOMParser oParser;
    oParser.parse((SCHEMAS / "types.xsd").c_str());
    ASSERT_EQ(0u, oParser.getErrorCount());
    std::map<std::string, std::vector<std::string>> mapWords; // of each type
    const DOMNodeList* pWords = oParser.getDocument()->getElementsByTagName(u"xs:enumeration");
    for (XMLSize_t nWord = 0; nWord < pWords->getLength(); ++nWord)
    {
        const auto*    pWord = dynamic_cast<const DOMElement*>(pWords->item(nWord));
        const DOMNode* pType = pWord->getParentNode()->getParentNode();
        mapWords[local(dynamic_cast<const DOMElement*>(pType)->getAttribute(u"name"))].push_back(
            local(pWord->getAttribute(u"value")));
    }
    for (const auto& stCase : CASES)
        EXPECT_THAT(mapWords[stCase.pszType], testing::UnorderedElementsAreArray(stCase.lstWord)) << stCase.pszType;
}
} // namespace
