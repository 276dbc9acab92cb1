// The platform's capacity database: which versions of a device type have a
// capacity document of their own. Read once per capacity read.
// No call may throw; the library survives one that does, and answers without it.
#ifndef OPERATIONXML_PLATFORM_CAPACITYDATABASE_H
#define OPERATIONXML_PLATFORM_CAPACITYDATABASE_H

#include "platform/Export.h"

#include <list>
#include <string>

// The capacity record of one software and patch version.
struct StCapacityInfo
{
    std::string strSoftVersion;
    std::string strPatchVersion;
    bool        bFullConfig = false; // true: the version supports the type's whole own configuration
};

class OPERATIONXML_PLATFORM_API CDCCapacityManagerDB
{
public:
    // Appends the capacity records of a device type and version to the list.
    // False: they could not be read.
    static bool readCapacity(const std::string& strDevType, const std::string& strDevTypeVer,
                             std::list<StCapacityInfo>& lstCapacity);
};

#endif
