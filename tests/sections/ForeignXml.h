// A document that a caller parsed without CXmlParser, so that its nesting has not
// been checked; and snippets of nested elements.
#ifndef OPERATIONXML_TESTS_SECTIONS_FOREIGNXML_H
#define OPERATIONXML_TESTS_SECTIONS_FOREIGNXML_H

#include "common/XmlParser.h"

#include <xercesc/framework/MemBufInputSource.hpp>

#include <string>

// nDepth elements of the name inside each other, the innermost with a text in it.
inline std::string nested(const std::string& strName, unsigned nDepth)
{
    std::string strOpening;
    std::string strClosing;
    for (; nDepth > 0; --nDepth)
    {
        strOpening.append("<").append(strName).append(">");
        strClosing.append("</").append(strName).append(">");
    }
    return strOpening + "text" + strClosing;
}

class CForeignXml
{
public:
    explicit CForeignXml(const std::string& strXml) : m_pInitialised(CXmlParser::create())
    {
        m_oParser.setValidationScheme(xercesc::XercesDOMParser::Val_Auto); // where there is a document type
        m_oParser.parse(
            xercesc::MemBufInputSource(reinterpret_cast<const XMLByte*>(strXml.data()), strXml.size(), u"test"));
    }

    xercesc::XercesDOMParser* parser() { return &m_oParser; }

    // The last element of the name, which in a chain stands deepest.
    const xercesc::DOMElement* innermost(const char16_t* pszName)
    {
        const xercesc::DOMNodeList* pList = m_oParser.getDocument()->getElementsByTagName(pszName);
        return static_cast<const xercesc::DOMElement*>(pList->item(pList->getLength() - 1));
    }

private:
    std::unique_ptr<CXmlParser> m_pInitialised; // Xerces must run before the parser is made
    xercesc::XercesDOMParser    m_oParser;
};

#endif
