// CPlacedParser: the library's parser, which remembers where in the file every
// element stands. For reads that are recorded; a server's parser notes nothing.
// One thread; the places live as long as whoever holds them.
#ifndef OPERATIONXML_CATALOG_PLACEDPARSER_H
#define OPERATIONXML_CATALOG_PLACEDPARSER_H

#include "catalog/SourceText.h"
#include "common/XmlParser.h"
#include "platform/Export.h"

#include <tsl/robin_map.h>

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace catalog
{
// Bytes of the text.
struct StRange
{
    std::size_t nBegin = 0;
    std::size_t nEnd   = 0;
};

struct StAttributePlace
{
    std::string_view strName; // of the text
    StRange          stName;
    StRange          stValue; // without its quotes
};

struct StElementPlace
{
    StRange     stTag;   // of the start tag, "<" to ">"; of the parent's where an entity brought the element
    StRange     stWhole; // to the end of the end tag
    bool        bWritten                = false;   // not brought by an entity
    std::size_t nEnd                    = 0;       // number of the element behind all that stand in this one
    const xercesc::DOMElement* pElement = nullptr; // once the document is there
};

struct StCommentPlace
{
    std::string strText;
    StRange     stRange;
    std::size_t nElement; // number of the element right behind it, or NO_ELEMENT
};

constexpr std::size_t NO_ELEMENT = static_cast<std::size_t>(-1);

// Where the elements of one document stand.
class OPERATIONXML_API CDocumentPlaces
{
public:
    CDocumentPlaces(std::string strFile, std::shared_ptr<const CSourceText> pText)
        : m_strFile(std::move(strFile)), m_pText(std::move(pText))
    {
    }

    const std::string&                 file() const { return m_strFile; }
    std::shared_ptr<const CSourceText> text() const { return m_pText; }

    // The place of an element of the document; all of it when it is not known.
    const StElementPlace& element(const xercesc::DOMElement& oElement) const;

    // In the start tag of a known element: its name; the attributes in the order in which
    // they are written, into a list that is kept from element to element.
    StRange name(const StElementPlace& stElement) const;
    void    attributes(const StElementPlace& stElement, std::vector<StAttributePlace>& lstAttribute) const;

    // The name in the element's start tag.
    StSpot nameSpot(const xercesc::DOMElement& oElement) const;

    // The value of an attribute, or the element's name when it has none of the name.
    StSpot valueSpot(const xercesc::DOMElement& oElement, std::string_view strName) const;
    StSpot attributeSpot(const xercesc::DOMElement& oElement, std::string_view strName) const;

    StSpot spot(const StRange& stRange) const { return m_pText->spot(stRange.nBegin, stRange.nEnd - stRange.nBegin); }

    const std::vector<StElementPlace>& elements() const { return m_lstElement; }
    const std::vector<StCommentPlace>& comments() const { return m_lstComment; }

private:
    friend class CPlacedParser;

    StAttributePlace attribute(const xercesc::DOMElement& oElement, std::string_view strName) const;

    std::string                        m_strFile;
    std::shared_ptr<const CSourceText> m_pText;
    std::vector<StElementPlace>        m_lstElement; // in document order
    std::vector<StCommentPlace>        m_lstComment;

    // The number of each element. There are thousands in every file, and a map that
    // allocates for each one takes as long as all else that is noted of them.
    tsl::robin_map<const xercesc::DOMElement*, std::size_t> m_mapNumber;
};

class OPERATIONXML_API CPlacedParser : public CXmlParser
{
public:
    // A new parser, or null when Xerces cannot be initialised.
    static std::unique_ptr<CPlacedParser> create();

    // Parse a file as parseFile() and parseUntold() do. places() is then about it, also
    // when it gave no document.
    void parsePlaced(const std::string& strPath);
    void parsePlacedUntold(const std::string& strPath);

    const CDocumentPlaces& places() const { return *m_pPlaces; }

private:
    CPlacedParser();

    void startElement(const xercesc::XMLElementDecl& oDecl, unsigned int nUri, const XMLCh* pszPrefix,
                      const xercesc::RefVectorOf<xercesc::XMLAttr>& lstAttr, XMLSize_t nAttrs, bool bIsEmpty,
                      bool bIsRoot) override;
    void endElement(const xercesc::XMLElementDecl& oDecl, unsigned int nUri, bool bIsRoot,
                    const XMLCh* pszPrefix) override;
    void docComment(const XMLCh* pszText) override;

    void    readPlaced(const std::string& strPath);
    bool    isInEntity() const;
    StRange tagBefore(std::size_t nEnd) const;
    void    indexElements();

    std::unique_ptr<CDocumentPlaces> m_pPlaces;
    std::vector<std::size_t>         m_lstOpen;    // numbers of the open elements
    std::vector<std::size_t>         m_lstPending; // numbers of comments that wait for their element
};
} // namespace catalog

#endif
