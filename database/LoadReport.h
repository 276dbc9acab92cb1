// What the start-up load did, entry by entry: for whoever has to explain why an
// operation is not offered on a device. Costs the load nothing worth counting.
//
// A type has a configuration when isConfigured(). A capacity-capable type of which
// no version in service has a capacity record is read without a failure (result 0)
// and has none all the same: the store keeps an empty list for it, questions about
// it answer DC_RESULT_INVALID_PARA, and stOrigin.stProblem says so. The versions of
// a capacity type stand in stOrigin.lstVersion; each may have failed (isFailed())
// while others, and with them the type, are served.
#ifndef OPERATIONXML_DATABASE_LOADREPORT_H
#define OPERATIONXML_DATABASE_LOADREPORT_H

#include "reader/ConfigOrigin.h"

#include <cstdint>
#include <string>
#include <vector>

// One registry entry.
struct StDevTypeLoad
{
    std::string    strDevType;
    std::string    strDevTypeVer;
    std::string    strKey;       // storage key
    StConfigOrigin stOrigin;     // where its configuration came from
    std::uint32_t  ulResult = 0; // 0: its records, if any, went into the store

    bool isConfigured() const { return ulResult == 0 && stOrigin.enSource != EnConfigSource::None; }
};

struct StLoadReport
{
    std::vector<StDevTypeLoad> lstDevType;       // in the order of the load
    std::vector<StModuleLoad>  lstModule;        // in the order of the walk
    std::vector<StReadProblem> lstModuleProblem; // folders and entries of the walk that could not be looked into
};

#endif
