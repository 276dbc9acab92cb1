// See UnreadElements.h. An element may stand at any depth below the one that asks
// for it, as the readers look there: others in between are unread only when they
// hold nothing that is read.
#include "tools/opxml/commands/UnreadElements.h"

#include "tools/opxml/output/Names.h"

#include <fmt/format.h>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/sax/Locator.hpp>
#include <xercesc/sax2/Attributes.hpp>
#include <xercesc/sax2/DefaultHandler.hpp>
#include <xercesc/sax2/SAX2XMLReader.hpp>
#include <xercesc/sax2/XMLReaderFactory.hpp>
#include <xercesc/util/SecurityManager.hpp>
#include <xercesc/util/TransService.hpp>
#include <xercesc/util/XMLUni.hpp>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
#include <memory>

using namespace xercesc;

namespace
{
// One element, as far as the rules look at it.
struct StNode
{
    std::string                        strName;
    std::uint32_t                      ulLine = 0;
    std::map<std::string, std::string> mapAttribute;
    std::vector<StNode>                lstChild;
};

// What the readers ask for below an element, and where it counts.
struct StElementRule
{
    const char*                pszName;
    const char*                pszAttribute;  // the one that is read; null: none
    std::vector<StElementRule> lstBelow;      // empty: whatever stands below is not looked at
    bool                       bOnce = false; // of its name and attributes, the first below one element counts
};

std::string utf8(const XMLCh* pszText)
{
    const TranscodeToStr oText(pszText, "UTF-8");
    return {reinterpret_cast<const char*>(oText.str()), oText.length()};
}

class CTreeBuilder : public DefaultHandler
{
public:
    StNode& root() { return m_stRoot; }

    void setDocumentLocator(const Locator* pLocator) override { m_pLocator = pLocator; }

    void startElement(const XMLCh*, const XMLCh*, const XMLCh* pszName, const Attributes& oAttributes) override
    {
        StNode& stNode = m_lstOpen.back()->lstChild.emplace_back();
        stNode.strName = utf8(pszName);
        stNode.ulLine  = static_cast<std::uint32_t>(m_pLocator == nullptr ? 0 : m_pLocator->getLineNumber());
        for (XMLSize_t nAt = 0; nAt < oAttributes.getLength(); ++nAt)
            stNode.mapAttribute[utf8(oAttributes.getQName(nAt))] = utf8(oAttributes.getValue(nAt));
        m_lstOpen.push_back(&stNode);
    }
    void endElement(const XMLCh*, const XMLCh*, const XMLCh*) override { m_lstOpen.pop_back(); }
    void fatalError(const SAXParseException& oProblem) override { throw oProblem; }

private:
    StNode               m_stRoot; // holds the root element
    std::vector<StNode*> m_lstOpen  = {&m_stRoot};
    const Locator*       m_pLocator = nullptr;
};

// The elements of a file that its reader could parse; nothing below the root of
// one that cannot be.
StNode readTree(const std::string& strFile)
{
    std::ifstream     oFile(strFile, std::ios::binary);
    const std::string strXml((std::istreambuf_iterator<char>(oFile)), {});
    CTreeBuilder      oBuilder;
    try
    {
        SecurityManager                      oLimits; // of entities, should the file have changed
        const std::unique_ptr<SAX2XMLReader> pReader(XMLReaderFactory::createXMLReader());
        pReader->setFeature(XMLUni::fgSAX2CoreValidation, false);
        pReader->setFeature(XMLUni::fgXercesLoadExternalDTD, false);
        pReader->setFeature(XMLUni::fgXercesDisableDefaultEntityResolution, true);
        pReader->setProperty(XMLUni::fgXercesSecurityManager, &oLimits);
        pReader->setContentHandler(&oBuilder);
        pReader->setErrorHandler(&oBuilder);
        pReader->parse(MemBufInputSource(reinterpret_cast<const XMLByte*>(strXml.data()), strXml.size(), "file"));
    }
    catch (const SAXException&)
    {
        oBuilder.root().lstChild.clear();
    }
    catch (const XMLException&)
    {
        oBuilder.root().lstChild.clear();
    }
    return std::move(oBuilder.root());
}

class CUnreadSearch
{
public:
    explicit CUnreadSearch(std::string strFile) : m_strFile(std::move(strFile)) {}

    void search(const StNode& stNode, const std::vector<StElementRule>& lstRule)
    {
        std::map<std::string, std::uint32_t> mapSeen;
        searchBelow(stNode, lstRule, mapSeen);
    }

    void add(std::uint32_t ulLine, const std::string& strText)
    {
        m_lstProblem.push_back({m_strFile, ulLine, 0, strText});
    }

    std::vector<StReadProblem>& problems() { return m_lstProblem; }

private:
    static const StElementRule* find(const std::vector<StElementRule>& lstRule, const std::string& strName)
    {
        const auto itRule = std::find_if(lstRule.begin(), lstRule.end(),
                                         [&strName](const StElementRule& stRule) { return strName == stRule.pszName; });
        return itRule == lstRule.end() ? nullptr : &*itRule;
    }

    static bool holdsRead(const StNode& stNode, const std::vector<StElementRule>& lstRule)
    {
        return std::any_of(stNode.lstChild.begin(), stNode.lstChild.end(),
                           [&lstRule](const StNode& stChild)
                           { return find(lstRule, stChild.strName) != nullptr || holdsRead(stChild, lstRule); });
    }

    void searchBelow(const StNode& stNode, const std::vector<StElementRule>& lstRule,
                     std::map<std::string, std::uint32_t>& mapSeen)
    {
        for (const StNode& stChild : stNode.lstChild)
        {
            if (const StElementRule* pRule = find(lstRule, stChild.strName))
                searchRead(stChild, *pRule, mapSeen);
            else if (holdsRead(stChild, lstRule))
                searchBelow(stChild, lstRule, mapSeen);
            else
                addUnread(stChild, lstRule);
        }
    }

    void searchRead(const StNode& stNode, const StElementRule& stRule, std::map<std::string, std::uint32_t>& mapSeen)
    {
        for (const auto& [strName, strValue] : stNode.mapAttribute)
        {
            if (stRule.pszAttribute == nullptr)
                add(stNode.ulLine, fmt::format("attribute \"{}\" of <{}> is not read", strName, stNode.strName));
            else if (strName != stRule.pszAttribute)
                add(stNode.ulLine, fmt::format("attribute \"{}\" of <{}> is not read{}", strName, stNode.strName,
                                               nearestNames(strName, {stRule.pszAttribute})));
        }
        if (stRule.bOnce)
        {
            const auto [itSeen, bFirst] = mapSeen.emplace(stNode.strName, stNode.ulLine);
            if (!bFirst)
                return add(stNode.ulLine, fmt::format("a second <{}> is not read, that of line {} counts",
                                                      stNode.strName, itSeen->second));
        }
        if (!stRule.lstBelow.empty())
            search(stNode, stRule.lstBelow);
    }

    void addUnread(const StNode& stNode, const std::vector<StElementRule>& lstRule)
    {
        std::vector<std::string> lstName(lstRule.size());
        std::transform(lstRule.begin(), lstRule.end(), lstName.begin(),
                       [](const StElementRule& stRule) { return stRule.pszName; });
        add(stNode.ulLine,
            fmt::format("element <{}> is not read here{}", stNode.strName, nearestNames(stNode.strName, lstName)));
    }

    std::string                m_strFile;
    std::vector<StReadProblem> m_lstProblem;
};
} // namespace

std::vector<StReadProblem> findUnreadInTable(const std::string& strFile)
{
    static const std::vector<StElementRule> TABLE = {{"record", nullptr, {{"param", "name", {}}}}};
    CUnreadSearch                           oSearch(strFile);
    const StNode                            stTree = readTree(strFile);
    for (const StNode& stRoot : stTree.lstChild) // of any name; a record may be the root itself
        oSearch.search(stRoot.strName == TABLE.front().pszName ? stTree : stRoot, TABLE);
    return std::move(oSearch.problems());
}

std::vector<StReadProblem> findUnreadInRules(const std::string& strFile)
{
    static const std::vector<StElementRule> RULES = {{"zipcheck",
                                                      nullptr,
                                                      {{"uncompressed_type",
                                                        "value",
                                                        {{"uncompressed_suffix", "value", {}, true},
                                                         {"max_size", "value", {}, true},
                                                         {"file_max_size", "value", {}, true},
                                                         {"whole_file_max_size", "value", {}, true},
                                                         {"max_count", "value", {}, true},
                                                         {"file_suffix", "value", {}, true}}}},
                                                      true}};
    CUnreadSearch                           oSearch(strFile);
    oSearch.search(readTree(strFile), RULES);
    return std::move(oSearch.problems());
}
