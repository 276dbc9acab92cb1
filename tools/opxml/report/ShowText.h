// One entry of a catalog in the words of opxml show: the same line. Stateless.
#ifndef OPERATIONXML_TOOLS_OPXML_REPORT_SHOWTEXT_H
#define OPERATIONXML_TOOLS_OPXML_REPORT_SHOWTEXT_H

#include "catalog/Catalog.h"

#include <string>

struct StShowText
{
    std::string strName; // "parameter ContentType": what tells it from its siblings
    std::string strRest; // ", required"
};

// pParent: the entry that it is in, or null.
StShowText showText(const catalog::StEntry& stEntry, const catalog::StEntry* pParent);

#endif
