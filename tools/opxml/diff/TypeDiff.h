// The catalogs of one device type on both sides compared: configuration with
// configuration, of each version in service where there are several. Stateless.
#ifndef OPERATIONXML_TOOLS_OPXML_DIFF_TYPEDIFF_H
#define OPERATIONXML_TOOLS_OPXML_DIFF_TYPEDIFF_H

#include "tools/opxml/diff/ConfigurationDiff.h"

#include <string>
#include <vector>

struct StTypeChange
{
    StEntryChange            stEntryChange;
    std::vector<std::string> lstSoftware; // the versions in service that it concerns; empty: all there are
};

std::vector<StTypeChange> diffTypes(const catalog::StTypeCatalog& stOld, const catalog::StTypeCatalog& stNew,
                                    const StPassedOver& stPassedOver);

#endif
