// ParseXMLFile: reads the rules of "file_check.xml", by which the server checks
// files that users upload, into UncompressedType records. The caller names the
// file and applies the rules.
// Stateless: calls may run on several threads at once, each with its own map, list
// of problems and parser. An element that GoNextParam hands out dies with the
// parser's document: when it parses again or is destroyed.
// Every failure is logged once, answers DC_RESULT_XML_ERROR and stops the read;
// records taken before it stay in the caller's map.
#ifndef OPERATIONXML_FILECHECK_PARSEXMLFILE_H
#define OPERATIONXML_FILECHECK_PARSEXMLFILE_H

#include "platform/Export.h"

#include <xercesc/dom/DOM.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

// The rules of one type: texts as they stand in the file, suffix lists too.
// A field whose element is absent is empty.
struct UncompressedType
{
    std::string strUncompressedSuffix; // "uncompressed_suffix"
    std::string strMaxSize;            // "max_size"
    std::string strFileMaxSize;        // "file_max_size"
    std::string strWholeFileMaxSize;   // "whole_file_max_size"
    std::string strMaxCount;           // "max_count"
    std::string strFileSuffix;         // "file_suffix"
};

class OPERATIONXML_API ParseXMLFile
{
public:
    using TypeMap = std::map<std::string, UncompressedType>; // by the type's "value"

    // Reads the file at a path of the local code page. A type that is in the map
    // already is dropped.
    static std::uint32_t GetXMLInfo(const std::string& strPath, TypeMap& mapType);

    // The first element of the tag name in the parsed document; null on failure.
    static std::uint32_t GoNextParam(xercesc::XercesDOMParser* pDOMParser, const xercesc::DOMElement*& pElement,
                                     const char16_t* pszTagName);

    // Reads the parameters below one "uncompressed_type"; stops at the first bad one.
    static std::uint32_t ReadStrParam(const xercesc::DOMElement* pElement, UncompressedType& stType);

    // Reads one parameter into its field. 0 when there is none.
    static std::uint32_t GetXMLParam(const xercesc::DOMElement* pElement, const char16_t* pszName,
                                     UncompressedType& stType);

    // The names of the parameters, in the order they are read.
    static std::vector<const char16_t*> paramNames();

    // The "value" of a type or parameter as the parser has it, "" when it is missing.
    static const XMLCh* valueOf(const xercesc::DOMElement& oElement);

    // A parser text in the local code page; one that cannot be converted is
    // logged and gives an empty text.
    static std::string xmlChToStr(const XMLCh* pszText);
};

#endif
