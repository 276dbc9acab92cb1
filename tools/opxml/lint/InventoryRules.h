// The rules of a stand-alone root's inventory: rows that name what is not there, names
// that no question asks for, and values that mean nothing. Called by LintRoot.
#ifndef OPERATIONXML_TOOLS_OPXML_LINT_INVENTORYRULES_H
#define OPERATIONXML_TOOLS_OPXML_LINT_INVENTORYRULES_H

#include "catalog/SourceText.h"
#include "lint/Lint.h"

#include <map>
#include <set>
#include <string>
#include <vector>

// A value of a row in the inventory; line 0 when its row is not found there.
struct StInventoryPlace
{
    catalog::StSpot stSpot;
    std::string     strSource; // the line
};

// What is wrong with the inventory of a root, in the order of its file; of a server.db
// with the file alone for a place.
struct StInventoryFindings
{
    std::string                  strFile;
    std::vector<lint::StFinding> lstFinding;
    std::set<std::string>        setToldFile;    // named by rows that are told: missing or unused because of that
    std::set<std::string>        setToldVersion; // "KEY/VERSION": without a capacity record because of that
    std::set<std::string>        setUnchecked;   // configuration files whose types have no check file because of that
    std::set<std::string>        setMeantName;   // that questions ask for in vain because of that

    // Where the versions in service stand that have no capacity record, by "KEY/VERSION".
    std::map<std::string, StInventoryPlace> mapUnrecorded;
};

// An inventory that cannot be read is trouble of whoever opens the root and gives
// nothing here.
StInventoryFindings lintInventory(const std::string& strRoot);

void setPlace(lint::StFinding& stFinding, const StInventoryPlace& stPlace);

#endif
