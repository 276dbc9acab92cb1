// The steps in which the files of a device type are found: the reader takes them
// one by one as it goes, makeConfigPlan() all at once. Each asks the platform and
// answers what it found; stateless, safe on any thread.
// pWhere is the operation under whose name a failure is logged; null for one that
// only looks ahead and logs nothing.
#ifndef OPERATIONXML_READER_CONFIGSEARCH_H
#define OPERATIONXML_READER_CONFIGSEARCH_H

#include "platform/CapacityDatabase.h"
#include "reader/ConfigPlan.h"

#include <list>
#include <string>

struct LocationInfo;

namespace configSearch
{
// The type's entry in the registry; the adapter's code.
std::uint32_t findDeviceType(const LocationInfo* pWhere, const std::string& strDevType,
                             const std::string& strDevTypeVer, StDeviceType& stDeviceType);

// The server configuration file: the file of a version, else the common file (with
// bUseCommon, if the type is registered for it) or the type's own. A missing file
// is replaced by that of the "_telnet" twin.
StPlannedFile findConfig(const LocationInfo* pWhere, const std::string& strDevType, const std::string& strDevTypeVer,
                         const StAsnDevVersion& stVersion, bool bUseCommon);

// The type's own file, as the adapter names it; whether it is there is not looked for.
StPlannedFile findOwnFile(const LocationInfo* pWhere, const std::string& strDevType);

StPlannedFile findCommonFile(const LocationInfo* pWhere);

// The separate check file. A failing adapter is no reason to leave out the file
// that it names all the same.
StPlannedFile findCheckFile(const LocationInfo* pWhere, const std::string& strDevType, EnCheckReportType& enReportType);

// The fixed check file; found only when those are switched on and it is there.
StPlannedFile findFixedCheckFile(const std::string& strDevType);

// The capacity record of exactly this version, or null.
const StCapacityInfo* findCapacity(const std::list<StCapacityInfo>& lstCapacity, const StAsnDevVersion& stVersion);
} // namespace configSearch

#endif
