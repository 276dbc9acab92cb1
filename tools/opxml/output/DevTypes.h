// Finding a device type by what people type: its name and perhaps a version, or
// a storage key.
#ifndef OPERATIONXML_TOOLS_OPXML_OUTPUT_DEVTYPES_H
#define OPERATIONXML_TOOLS_OPXML_OUTPUT_DEVTYPES_H

#include "database/LoadReport.h"

#include <set>
#include <string>
#include <vector>

// One entry of the registry.
struct StRegisteredType
{
    std::string strDevType;
    std::string strDevTypeVer;
    std::string strKey; // storage key
};

// All of them, in the order of a full load. Nothing is loaded for it.
std::vector<StRegisteredType> registeredTypes();

// Every storage key that a name stands for: the key of this name, and those of
// the registry entries of this type (with a version: of that entry alone).
std::set<std::string> findKeys(const std::vector<StRegisteredType>& lstType, const std::string& strName,
                               const std::string& strVersion = "");

// A type as people write it: TYPE:VERSION:SOFTWARE:PATCH, as much of it as is wanted.
struct StNamedType
{
    std::string strName;
    std::string strVersion;
    std::string strSoftVersion;
    std::string strPatchVersion;
};

// A type's own name may hold colons, so the longest name that exists counts; where none
// does, all of it is the name.
StNamedType splitTypeName(const std::vector<StRegisteredType>& lstType, const std::string& strText);

// "device type "X" has no version "Y"; it has "Z""; empty when there is no such type.
std::string unknownVersionText(const std::vector<StRegisteredType>& lstType, const std::string& strName,
                               const std::string& strVersion);

// "no device type "X"; did you mean "Y"?"
std::string unknownTypeText(const std::vector<StRegisteredType>& lstType, const std::string& strName);

// Where a configuration came from, in words: "own file", "capacity", ...
std::string sourceText(EnConfigSource enSource);

// Why an entry has no configuration, in words.
std::string failureText(const StDevTypeLoad& stLoad);

// What became of a capacity type's version, in words: "narrowed", "failed", ...
std::string outcomeText(EnVersionOutcome enOutcome);

// "version V4.2 P03 failed: FILE: why".
std::string versionFailureText(const StVersionLoad& stVersion);

// "V4.2 P03".
std::string versionText(const std::string& strSoftVersion, const std::string& strPatchVersion);

// The failed versions of an entry that its own failure does not tell already.
std::vector<StVersionLoad> failedVersions(const StDevTypeLoad& stLoad);

// A path below the server root without the root.
std::string shortPath(const std::string& strPath);

#endif
