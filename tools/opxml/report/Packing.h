// How data stand in the page: compressed as zlib does it (the browser's
// DecompressionStream undoes it), in base64; and JSON that HTML cannot take for a tag.
// Stateless.
#ifndef OPERATIONXML_TOOLS_OPXML_REPORT_PACKING_H
#define OPERATIONXML_TOOLS_OPXML_REPORT_PACKING_H

#include "tools/opxml/output/RecordJson.h"

#include <string>
#include <string_view>

// Throws CTrouble when there is no memory for it.
std::string packed(std::string_view strText);

// On one line, without "<".
std::string scriptJson(const Json& oJson);

// Text between tags, or in an attribute's double quotes.
std::string htmlText(std::string_view strText);

#endif
