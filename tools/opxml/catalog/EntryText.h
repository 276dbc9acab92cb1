// An entry in words: where it stands, whose file that is, what it says.
#ifndef OPERATIONXML_TOOLS_OPXML_CATALOG_ENTRYTEXT_H
#define OPERATIONXML_TOOLS_OPXML_CATALOG_ENTRYTEXT_H

#include "catalog/Catalog.h"

#include <string>
#include <vector>

// "FILE:LINE:COLUMN" as compilers write it, or "FILE" for the whole file. The file as
// it can be opened from here: with the root in front, unless that is the current folder.
std::string placeText(const std::string& strFile, const catalog::StPlace& stPlace);

// Of a catalog, whose files are lstFile; empty when there is no place.
std::string placeText(const std::vector<std::string>& lstFile, const catalog::StPlace& stPlace);

// "own file", "module NAME", …
std::string originText(const catalog::StEntry& stEntry);

// A field as authors write it: "isCancelable" for "bIsCancelable".
std::string attributeText(const char* pszField);

// What stands in the file beside the id: "isCancelable=1, operationLevel=Both"; "?" for a
// word that means nothing there.
std::string saysText(const catalog::StEntry& stEntry);

#endif
