// CXmlText: an XML document written line by line, indented as people write it.
// Used by the generator only. Names and values are taken as they are: the
// vocabulary has nothing to escape.
#ifndef OPERATIONXML_BENCH_XMLTEXT_H
#define OPERATIONXML_BENCH_XMLTEXT_H

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

using XmlAttributes = std::initializer_list<std::pair<std::string_view, std::string_view>>;

class CXmlText
{
public:
    explicit CXmlText(std::string strText = {}, std::size_t nDepth = 0)
        : m_strText(std::move(strText)), m_nDepth(nDepth)
    {
    }

    void open(std::string_view strName, XmlAttributes lstAttribute = {})
    {
        start(strName, lstAttribute);
        m_strText += ">\n";
        m_lstOpen.push_back(strName);
        ++m_nDepth;
    }

    void leaf(std::string_view strName, XmlAttributes lstAttribute)
    {
        start(strName, lstAttribute);
        m_strText += "/>\n";
    }

    // An element whose content is one text.
    void text(std::string_view strName, XmlAttributes lstAttribute, std::string_view strContent)
    {
        start(strName, lstAttribute);
        m_strText.append(">").append(strContent).append("</").append(strName).append(">\n");
    }

    void close()
    {
        --m_nDepth;
        m_strText.append(2 * m_nDepth, ' ').append("</").append(m_lstOpen.back()).append(">\n");
        m_lstOpen.pop_back();
    }

    std::size_t        size() const { return m_strText.size(); }
    const std::string& str() const { return m_strText; }

private:
    // An attribute with an empty value is left out, as authors do.
    void start(std::string_view strName, XmlAttributes lstAttribute)
    {
        m_strText.append(2 * m_nDepth, ' ').append("<").append(strName);
        for (const auto& [strKey, strValue] : lstAttribute)
        {
            if (!strValue.empty())
                m_strText.append(" ").append(strKey).append("=\"").append(strValue).append("\"");
        }
    }

    std::string                   m_strText;
    std::size_t                   m_nDepth;
    std::vector<std::string_view> m_lstOpen; // literals
};

#endif
