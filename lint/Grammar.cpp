// See Grammar.h. Each round writes a document with an element for all that was asked
// for so far, each attribute with a word that its reader knows, and has it read. An
// element inside one of its own name is where the rounds end.
#include "lint/Grammar.h"

#include "common/XmlRead.h"
#include "lint/FileKind.h"
#include "lint/ReadMarks.h"

#include <mutex>

using namespace xercesc;

namespace lint
{
namespace
{
constexpr int MAX_ROUNDS = 12; // one for each level, and some for what shows only without another

bool isInItself(const StGrammarElement& stElement, const std::string& strName)
{
    const std::string strPath = "/" + stElement.strPath + "/";
    return strPath.find("/" + strName + "/") != std::string::npos;
}

std::string attributesText(const StGrammarElement& stElement)
{
    std::string strText;
    for (const auto& [strName, stAttribute] : stElement.mapAttribute)
    {
        std::string strValue = "1";
        for (const std::string& strWord : stAttribute.lstWord)
        {
            if (!strWord.empty())
            {
                strValue = strWord;
                break;
            }
        }
        strText += " " + strName + "=\"" + strValue + "\"";
    }
    return strText;
}

// An element with one child of each kind, and once more without any: some readers
// look for one element only where there is no other.
void write(const std::string& strName, const StGrammarElement& stElement, std::string& strText)
{
    const std::string strTag = strName + attributesText(stElement);
    strText += "<" + strTag + ">";
    for (const auto& [strChild, stChild] : stElement.mapChild)
        write(strChild, stChild, strText);
    strText += "</" + strName + ">";
    if (!stElement.mapChild.empty())
        strText += "<" + strTag + "/>";
}

class CProbe
{
public:
    explicit CProbe(EnFileKind enKind) : m_enKind(enKind) {}

    StGrammar run()
    {
        for (int nRound = 0; nRound < MAX_ROUNDS && m_bGrown; ++nRound)
            readOnce();
        collect(m_stGrammar.stRoot);
        return std::move(m_stGrammar);
    }

private:
    void readOnce()
    {
        m_bGrown            = false;
        std::string strText = "<probe>";
        for (const auto& [strName, stElement] : m_stGrammar.stRoot.mapChild)
            write(strName, stElement, strText);
        strText += "</probe>";
        const std::unique_ptr<CXmlParser> pParser = CXmlParser::create();
        if (pParser == nullptr)
            return;
        pParser->parseText(strText);
        if (pParser->problem().isSet())
            return;
        CReadMarks oMarks;
        {
            const ReadObserver::CScope oScope(oMarks);
            readAs(m_enKind, *pParser);
        }
        takeLookups(oMarks, *pParser->getDocument(), m_stGrammar.stRoot);
        take(oMarks, *pParser->getDocument()->getDocumentElement(), m_stGrammar.stRoot);
    }

    void takeLookups(const CReadMarks& oMarks, const DOMNode& oNode, StGrammarElement& stElement)
    {
        for (const std::string& strName : oMarks.questions(oMarks.of(oNode)).lstElement)
        {
            if (isInItself(stElement, strName))
                continue;
            const auto [itChild, bNew] = stElement.mapChild.try_emplace(strName);
            if (bNew)
                itChild->second.strPath = stElement.strPath.empty() ? strName : stElement.strPath + "/" + strName;
            m_bGrown = m_bGrown || bNew;
        }
    }

    // The marks at the children of a node, which stand in the order of the grammar.
    void take(const CReadMarks& oMarks, const DOMElement& oParent, StGrammarElement& stParent)
    {
        for (const DOMElement* pChild = oParent.getFirstElementChild(); pChild != nullptr;
             pChild                   = pChild->getNextElementSibling())
        {
            StGrammarElement& stChild = stParent.mapChild[toLocal(pChild->getTagName())];
            takeLookups(oMarks, *pChild, stChild);
            for (const StAskedAttribute& stAsked : oMarks.questions(oMarks.of(*pChild)).lstAttribute)
            {
                const auto [itAttribute, bNew]  = stChild.mapAttribute.try_emplace(stAsked.strName);
                m_bGrown                        = m_bGrown || bNew;
                StGrammarAttribute& stAttribute = itAttribute->second;
                stAttribute.strName             = itAttribute->first;
                stAttribute.enReadAs            = stAsked.enReadAs;
                stAttribute.lstWord.assign(stAsked.lstWord.begin(), stAsked.lstWord.end());
            }
            take(oMarks, *pChild, stChild);
        }
    }

    void collect(const StGrammarElement& stElement)
    {
        for (const auto& [strName, stChild] : stElement.mapChild)
        {
            m_stGrammar.mapPlace[strName].insert(stElement.strPath);
            collect(stChild);
        }
    }

    EnFileKind m_enKind;
    StGrammar  m_stGrammar;
    bool       m_bGrown = true;
};
} // namespace

const StGrammar& grammarOf(EnFileKind enKind)
{
    static std::mutex                      s_oMutex;
    static std::map<EnFileKind, StGrammar> s_mapGrammar; // guarded by s_oMutex
    const std::lock_guard<std::mutex>      oGuard(s_oMutex);
    const auto                             itGrammar = s_mapGrammar.find(enKind);
    if (itGrammar != s_mapGrammar.end())
        return itGrammar->second;
    return s_mapGrammar.emplace(enKind, CProbe(enKind).run()).first->second;
}
} // namespace lint
