// What stands in the way of an operation, a parameter or an option that is not offered,
// most telling first. The one list of rules for that: opxml explain tells them all,
// opxml query the first.
#ifndef OPERATIONXML_TOOLS_OPXML_EXPLAIN_OBSTACLES_H
#define OPERATIONXML_TOOLS_OPXML_EXPLAIN_OBSTACLES_H

#include "tools/opxml/explain/ServedKeys.h"
#include "tools/opxml/explain/Stands.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

// In the order in which they are told.
enum class EnObstacle : std::int32_t
{
    Unresolved,   // the device does not resolve
    Unread,       // there is no configuration: its file could not be read, say
    SwitchedOff,  // it is there, and says that it is not supported
    Shadowed,     // another definition of the id comes first
    OtherKind,    // another kind of operation defines it
    Capacity,     // a capacity document takes it out
    OtherVersion, // other versions in service have it
    LeftOut,      // the reader leaves it out
    OtherVariant, // the telnet variant has it, or only that has not
    Module,       // a module has it that does not name the type, or does not merge it
    ModuleName,   // a module has it that names the type misspelt
    Elsewhere,    // nothing defines it, but something else uses the name
    Spelling,     // something is spelt nearly the same
    BrokenModule, // a module file that mentions it could not be read
};

struct StObstacle
{
    EnObstacle               enObstacle;
    std::string              strText;  // a clause without its full stop, with the places in it
    std::vector<std::string> lstPlace; // FILE:LINE:COLUMN
};

// "other-kind": for scripts.
const char* obstacleWord(EnObstacle enObstacle);

// Where a question looks.
struct StLookedInto
{
    const StServedKey* pServed        = nullptr;
    std::size_t        nConfiguration = 0; // of it
    std::string        strDevType;         // without "_telnet"
    std::string        strWhere;           // for people: '"LX 2400/S_telnet" of device 101'
    std::string        strSoftVersion;     // what the device runs, where that is known
    std::string        strPatchVersion;
};

struct StAbsence
{
    std::string              strWhat;     // 'no parameter "P" in "X" of "LX 2400/S"'; empty: nothing is in the way
    std::vector<StObstacle>  lstObstacle; // may be empty: nothing of that name is near
    std::vector<std::string> lstThereAre; // what there is instead, as questions name it

    // One sentence with the first obstacle; empty when nothing is in the way.
    std::string text() const;
};

StAbsence findAbsence(CServedKeys& oKeys, const StLookedInto& stLookedInto, const StWanted& stWanted);

#endif
