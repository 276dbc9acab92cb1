// What the start-up load did, entry by entry: for whoever has to explain why an
// operation is not offered on a device. Costs the load nothing worth counting.
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
    std::uint32_t  ulResult = 0; // 0: its records went into the store
};

struct StLoadReport
{
    std::vector<StDevTypeLoad> lstDevType; // in the order of the load
    std::vector<StModuleLoad>  lstModule;  // in the order of the walk
};

#endif
