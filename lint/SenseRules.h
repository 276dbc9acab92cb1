// The rules that look at a configuration as a whole: what refers to what, modules
// and capacity documents. They stand on the catalog (catalog/Catalog.h) and tell what
// they find about files that several types may share (TypeFindings.h).
#ifndef OPERATIONXML_LINT_SENSERULES_H
#define OPERATIONXML_LINT_SENSERULES_H

#include "catalog/Catalog.h"
#include "lint/DocumentRules.h"
#include "lint/TypeFindings.h"

#include <functional>
#include <set>
#include <string>
#include <vector>

namespace lint
{
// A file as messages name it: those of modules are all called alike, so with their folder.
std::string shortPath(const std::string& strFile);

using ReportOf = std::function<CFileReport&(const std::string& strFile)>;

// References to operations, what modules add in vain, options that this server drops
// (SenseRules.cpp). Nothing is said about ids that were lost with another mistake.
void checkSense(const catalog::StTypeCatalog& stType, const StLostNames& stLost, CTypeFindings& oFindings);

// The documents of a capacity type; nothing for any other (CapacityRules.cpp).
// setSysOid holds those of all registered types. Versions without a record are told
// in the report of the file that lists them.
void checkCapacity(const catalog::StTypeCatalog& stType, const std::set<std::string>& setSysOid,
                   const StLostNames& stLost, CTypeFindings& oFindings);
void checkVersions(const catalog::StTypeCatalog& stType, CFileReport& oInventory);

// Names of modules and of the types they are for (ModuleRules.cpp).
void checkModules(const std::vector<catalog::StModuleCatalog>& lstModule,
                  const std::vector<std::string>& lstRegisteredType, const StLostNames& stLost,
                  const ReportOf& fnReport);
} // namespace lint

#endif
