// Where a configuration was read from, or why it was not: kept by the readers
// for whoever has to explain a load to people.
#ifndef OPERATIONXML_READER_CONFIGORIGIN_H
#define OPERATIONXML_READER_CONFIGORIGIN_H

#include <cstdint>
#include <string>

enum class EnConfigSource : std::int32_t
{
    None,       // nothing was found
    OwnFile,    // the device type's own file
    CommonFile, // the file shared by all types that are registered for it
    TelnetTwin, // the file of the type's "_telnet" variant, its own being missing
    Capacity,   // the common file, narrowed for each version in service
};

struct StConfigOrigin
{
    EnConfigSource enSource = EnConfigSource::None;
    std::string    strFile;    // the last file that was looked for or parsed
    std::string    strProblem; // why that file gave no document; empty when it did
};

// One module configuration file.
struct StModuleLoad
{
    std::string   strFile;
    std::string   strName;      // its "DeviceType" name; empty when it was not read that far
    std::string   strProblem;   // why the file gave no document; empty when it did
    std::uint32_t ulResult = 0; // 0: it is in the module map under its name
};

#endif
