// The schemas as a strict parser sees them.
#include "TestSupport.h"

#include <fmt/format.h>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/sax/HandlerBase.hpp>
#include <xercesc/validators/common/Grammar.hpp>

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

} // namespace
