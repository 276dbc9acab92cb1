// The reader of the file-check rules.
#include "filecheck/ParseXMLFile.h"

#include "common/Guarded.h"
#include "common/LogLine.h"
#include "common/XmlRead.h"
#include "platform/CodePage.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <utility>

using namespace xercesc;

namespace
{
constexpr const char* DC_SOURCE = "ParseXMLFile";

struct StParam
{
    const char16_t* pszName;
    std::string UncompressedType::*pField;
};

// In the order they are read, which decides whose mistake is logged.
constexpr StParam PARAMS[] = {
    {u"uncompressed_suffix", &UncompressedType::strUncompressedSuffix},
    {u"max_size", &UncompressedType::strMaxSize},
    {u"file_max_size", &UncompressedType::strFileMaxSize},
    {u"whole_file_max_size", &UncompressedType::strWholeFileMaxSize},
    {u"max_count", &UncompressedType::strMaxCount},
    {u"file_suffix", &UncompressedType::strFileSuffix},
};

const DOMElement* firstOf(const CElements& oElements)
{
    return oElements.isEmpty() ? nullptr : &*oElements.begin();
}

// Takes one "uncompressed_type" element into the map; logs for the operation that walks them.
std::uint32_t readUncompressedType(const LocationInfo& stWhere, const DOMElement* pElement,
                                   ParseXMLFile::TypeMap& mapType)
{
    if (pElement == nullptr)
        return logFail(stWhere, DC_RESULT_XML_ERROR, "uncompressed_type is not exist in the file_check.xml ");
    const XMLCh* pszValue = ParseXMLFile::valueOf(*pElement);
    if (pszValue == nullptr)
        return logFail(stWhere, DC_RESULT_XML_ERROR,
                       "Attribute value of element <uncompressed_type> is invalid in the file_check.xml");
    const std::string strValue = ParseXMLFile::xmlChToStr(pszValue);
    if (strValue.empty())
        return logFail(stWhere, DC_RESULT_XML_ERROR, "<uncompressed_type> value is not valid in the file_check.xml ");
    UncompressedType    stType;
    const std::uint32_t ulResult = ParseXMLFile::ReadStrParam(pElement, stType);
    if (ulResult != DC_RESULT_OK)
        return ulResult;
    mapType.try_emplace(strValue, std::move(stType)); // the first of a value stays
    return DC_RESULT_OK;
}
} // namespace

std::uint32_t ParseXMLFile::GetXMLInfo(const std::string& strPath, TypeMap& mapType)
try
{
    const CEntry                      oEntry;
    const _TraceFunction              oTrace(DC_HERE);
    const std::unique_ptr<CXmlParser> pDOMParser = CXmlParser::create();
    if (pDOMParser != nullptr)
        pDOMParser->parseFile(kIVOGlobalUtils::LOCTOUTF8(strPath));
    const DOMElement*   pRoot    = nullptr;
    const std::uint32_t ulResult = GoNextParam(pDOMParser.get(), pRoot, u"zipcheck");
    if (ulResult != DC_RESULT_OK)
        return ulResult;

    const CElements oTypes(pRoot, u"uncompressed_type");
    if (oTypes.isEmpty())
        return logFail(DC_HERE, DC_RESULT_XML_ERROR, "Element <uncompressed_type> is not exist in the file_check.xml");
    for (const DOMElement& oType : oTypes)
    {
        const std::uint32_t ulTypeResult = readUncompressedType(DC_HERE, &oType, mapType);
        if (ulTypeResult != DC_RESULT_OK)
            return ulTypeResult;
    }
    return DC_RESULT_OK;
}
catch (...)
{
    return answerThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

std::uint32_t ParseXMLFile::GoNextParam(XercesDOMParser* pDOMParser, const DOMElement*& pElement,
                                        const char16_t* pszTagName)
try
{
    const CEntry oEntry;
    pElement = nullptr;
    if (documentOf(pDOMParser) == nullptr)
        return logFail(DC_HERE, DC_RESULT_XML_ERROR, "The file_check.xml file is invalid.");
    const ElementList lstElement = documentElements(*pDOMParser, pszTagName);
    if (lstElement.empty()) // names the rule root whatever was asked for: operators know the line
        return logFail(DC_HERE, DC_RESULT_XML_ERROR, "Element <zipcheck> is not exist in the file_check.xml");
    pElement = lstElement.front();
    if (pElement == nullptr)
        return logFail(DC_HERE, DC_RESULT_XML_ERROR, "Node Element is not exist in the file_check.xml");
    return DC_RESULT_OK;
}
catch (...)
{
    return answerThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

std::uint32_t ParseXMLFile::ReadStrParam(const DOMElement* pElement, UncompressedType& stType)
try
{
    const CEntry oEntry;
    for (const StParam& stParam : PARAMS)
    {
        const std::uint32_t ulResult = GetXMLParam(pElement, stParam.pszName, stType);
        if (ulResult != DC_RESULT_OK)
            return ulResult;
    }
    return DC_RESULT_OK;
}
catch (...)
{
    return answerThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

std::uint32_t ParseXMLFile::GetXMLParam(const DOMElement* pElement, const char16_t* pszName, UncompressedType& stType)
try
{
    const CEntry    oEntry;
    const CElements oElements(pElement, pszName);
    if (oElements.isEmpty())
        return DC_RESULT_OK;
    const DOMElement* pParam = firstOf(oElements);
    if (pParam == nullptr)
        return logFail(DC_HERE, DC_RESULT_XML_ERROR, "Node Element is not exist in the file_check.xml file");
    const XMLCh* pszValue = valueOf(*pParam);
    if (pszValue == nullptr)
    {
        // Names "file_suffix" for every parameter and still succeeds. A missing
        // attribute does not come here: the DOM answers it with an empty text.
        logFail(DC_HERE, DC_RESULT_XML_ERROR,
                "Attribute value of element <file_suffix> is invalid in the file_check.xml file");
        return DC_RESULT_OK;
    }
    std::string strValue = xmlChToStr(pszValue);
    if (strValue.empty())
        return logFail(DC_HERE, DC_RESULT_XML_ERROR,
                       "<" + xmlChToStr(pszName) + "> value is not valid in the file_check.xml file ");
    const auto itParam =
        std::find_if(std::begin(PARAMS), std::end(PARAMS),
                     [pszName](const StParam& stParam) { return XMLString::equals(stParam.pszName, pszName); });
    if (itParam != std::end(PARAMS))
        stType.*itParam->pField = std::move(strValue);
    return DC_RESULT_OK;
}
catch (...)
{
    return answerThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

std::vector<const char16_t*> ParseXMLFile::paramNames()
{
    std::vector<const char16_t*> lstName;
    for (const StParam& stParam : PARAMS)
        lstName.push_back(stParam.pszName);
    return lstName;
}

const XMLCh* ParseXMLFile::valueOf(const DOMElement& oElement)
{
    const std::u16string_view strValue = CAttributes(oElement).value(u"value", EnReadAs::Text);
    return strValue.data() == nullptr ? u"" : strValue.data();
}

std::string ParseXMLFile::xmlChToStr(const XMLCh* pszText)
try
{
    const CEntry oEntry;
    std::string  strLocal = toLocal(pszText);
    if (strLocal.empty() && (pszText == nullptr || *pszText != 0))
        logFail(DC_HERE, DC_RESULT_OK, "XMLString::transcode return NULL");
    return strLocal;
}
catch (...)
{
    answerThrown(DC_HERE, DC_RESULT_XML_ERROR);
    return {};
}
