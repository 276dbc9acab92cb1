// StConfigPlan: which files the configuration of one device type is made of, each
// with its origin, or what went wrong in finding it. A value that outlives whoever
// made it. The reader keeps the plan of the read it is at; makeConfigPlan() names
// the files without reading any, for those who parse them ahead or check them.
#ifndef OPERATIONXML_READER_CONFIGPLAN_H
#define OPERATIONXML_READER_CONFIGPLAN_H

#include "platform/DeviceAdapter.h"
#include "platform/Export.h"
#include "reader/ConfigOrigin.h"
#include "records/OperationRecords.h"

#include <cstdint>
#include <string>
#include <vector>

// One file. Not looked for, or none of its kind: no path, no problem, result 0.
struct StPlannedFile
{
    EnConfigSource enSource = EnConfigSource::None; // None: it was not found
    std::string    strFile;                         // its path; when it is missing, the first one that was looked for
    std::uint32_t  ulResult = 0;                    // of finding it
    StReadProblem  stProblem;                       // why it was not found or, once parsed, gave no document

    bool isFound() const { return enSource != EnConfigSource::None; }
};

// The files of one version in service.
struct StVersionPlan
{
    StAsnDevVersion stVersion;
    bool            bHasRecord  = false; // without a capacity record it needs no file
    bool            bFullConfig = false;
    StPlannedFile   stFile; // its capacity document, or the configuration it has whole
};

struct StConfigPlan
{
    std::uint32_t              ulResult = 0; // of asking about the type; other than 0: it cannot be read
    StPlannedFile              stConfig;     // what the records are made of; not wanted when every version has its own
    StPlannedFile              stCheck;      // separate check file: its checks replace those of every other file
    EnCheckReportType          enReportType = EnCheckReportNone;
    StPlannedFile              stFixedCheck; // only looked for where there is no separate check file
    std::vector<StVersionPlan> lstVersion;   // of a capacity type, in the platform's order
};

// Whether a registered type has a configuration for each version in service: all
// three of its flags are 1.
inline bool isCapacityType(const StDeviceType& stDeviceType)
{
    return stDeviceType.nSupportUpgrade == 1 && stDeviceType.nSupportCapacity == 1 &&
           stDeviceType.nCapacityPerVersion == 1;
}

// The plan of a type, asked for by its storage key, as the start-up load would read
// it now. Asks the platform what the read would ask, raises no event, writes no log.
OPERATIONXML_API StConfigPlan makeConfigPlan(const std::string& strDevType, const std::string& strDevTypeVer,
                                             bool bCapacity);

#endif
