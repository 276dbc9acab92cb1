// Where a configuration was read from, or what went wrong with which file: kept by
// the readers, carried in the load report, shown to people who ask why a device
// lacks an operation. Plain values, safe on any thread.
#ifndef OPERATIONXML_READER_CONFIGORIGIN_H
#define OPERATIONXML_READER_CONFIGORIGIN_H

#include "common/ReadProblem.h"

#include <cstdint>
#include <string>
#include <vector>

enum class EnConfigSource : std::int32_t
{
    None,             // nothing was found
    OwnFile,          // the device type's own file
    CommonFile,       // the file shared by all types that are registered for it
    TelnetTwin,       // the file of the type's "_telnet" variant, its own being missing
    Capacity,         // of a whole type: one configuration for each version in service
    CapacityDocument, // of one version: what narrows the common file for it
    CheckFile,        // the separate (telnet) check file
    FixedCheckFile,   // the fixed check file
};

// What became of one version in service of a capacity-capable type.
enum class EnVersionOutcome : std::int32_t
{
    Narrowed,          // the common file, narrowed by the version's capacity document
    FullConfiguration, // the type's whole configuration, as its capacity record says
    NotNarrowed,       // the whole common file: the document has no entry for the type's sysoid
    NoCapacityRecord,  // nothing; the platform was told (event 10007) for each of its devices
    Failed,            // nothing: a file it needs could not be read
};

struct StVersionLoad
{
    std::string      strSoftVersion;
    std::string      strPatchVersion;
    EnVersionOutcome enOutcome = EnVersionOutcome::Failed;
    std::string      strFile;      // its capacity document, or the configuration it has whole; empty without a record
    std::uint32_t    ulResult = 0; // of its read; 0 also where a record or an entry is missing
    StReadProblem    stProblem;    // why it is not as it should be, and the file to mend (it may be the common file)

    // The version does not have what its capacity record and document should give it.
    bool isFailed() const
    {
        return enOutcome != EnVersionOutcome::Narrowed && enOutcome != EnVersionOutcome::FullConfiguration;
    }
};

struct StConfigOrigin
{
    EnConfigSource             enSource = EnConfigSource::None;
    std::string                strFile;    // the last configuration file that was looked for or parsed
    StReadProblem              stProblem;  // why there is no configuration, and the file to mend, be it a check file
    std::vector<StVersionLoad> lstVersion; // a capacity type's versions in service, in the platform's order
};

// One module configuration file.
struct StModuleLoad
{
    std::string   strFile;
    std::string   strName;      // its "DeviceType" name; empty when it was not read that far
    StReadProblem stProblem;    // why the file gave no document; not set when it did
    std::uint32_t ulResult = 0; // 0: it is in the module map under its name
};

#endif
