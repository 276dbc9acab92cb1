// Which line of a capacity document speaks about something, and for which version. For
// explanations. Plain values.
#ifndef OPERATIONXML_TOOLS_OPXML_EXPLAIN_CAPACITYPLACE_H
#define OPERATIONXML_TOOLS_OPXML_EXPLAIN_CAPACITYPLACE_H

#include "catalog/Catalog.h"

#include <string>

struct StCapacityPlace
{
    std::string strVersion; // "V4.2 P03"
    std::string strPlace;   // FILE:LINE:COLUMN
};

// Versions of one result share a configuration, which points at the document of the
// first: where the version that is asked about has a document that says the same, that
// one is named.
StCapacityPlace findCapacityPlace(const catalog::StTypeCatalog& stCatalog, const catalog::StPlace& stBecause,
                                  const std::string& strSoftVersion, const std::string& strPatchVersion);

// "V5.0, V5.0 P01 and V5.1".
std::string versionsText(const catalog::StConfiguration& stConfiguration);

// The place of the entry that narrows a version, with its document; empty when there is none.
std::string narrowingPlace(const catalog::StTypeCatalog& stCatalog, const std::string& strFile);

#endif
