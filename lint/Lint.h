// Lint: says what is wrong with the files that the readers take without a word.
// For authors of device-type files, by way of "opxml lint", and for servers that
// check a file before they accept it. Not part of a server's start-up.
//
// The rules listen to the real readers, so they know no names of their own: what
// stands in a file and no reader asked for is a finding. The files are read as the
// server would read them, with the library's own readers.
//
// Threads: one lint at a time in a process, on any thread; meanwhile nothing else
// may read configuration files (a second lint waits, a server's load does not).
// lintServer() has files parsed ahead as the load does, on as many threads, which call
// nothing but the parser and have ended when it returns.
// No operation throws.
#ifndef OPERATIONXML_LINT_LINT_H
#define OPERATIONXML_LINT_LINT_H

#include "platform/Export.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace catalog
{
class CCatalogMaker;
struct StTypeCatalog;
} // namespace catalog

namespace lint
{
enum class EnSeverity : std::int32_t
{
    Note,    // worth knowing
    Warning, // surely not meant, but the server does what the rest of the file says
    Error,   // something that the author wrote has no effect, or another one
};

// What a file holds, and with it who reads it.
enum class EnFileKind : std::int32_t
{
    Unknown,
    Configuration,     // of a device type: own, common, telnet twin
    Module,            // module configuration
    Capacity,          // capacity document
    TelnetCheck,       // telnet check file
    FixedCheck,        // fixed check file
    AlarmExplanation,  // alarm explanation table
    AlarmRegistration, // alarm transfer registration table
    FileCheck,         // file-check rules
};

// One mistake, told once, where it was made. Lines and columns count from 1,
// columns in characters; 0 stands for the whole file.
struct StFinding
{
    std::string              strRule;
    EnSeverity               enSeverity = EnSeverity::Warning;
    std::string              strFile;
    std::uint32_t            ulLine   = 0;
    std::uint32_t            ulColumn = 0;
    std::uint32_t            ulLength = 0; // characters that are meant, in that line
    std::string              strMessage;   // one sentence: what is wrong, and for whom
    std::string              strSource;    // the line of the file
    std::vector<std::string> lstHelp;      // what to do about it; may be empty
    std::string              strSubject;   // what the finding is about, without lines: stays when lines move
};

// One rule. The texts are for people; the examples are whole files.
struct StRule
{
    const char* pszId;
    const char* pszGroup;
    EnSeverity  enSeverity;
    const char* pszTitle; // a sentence without its full stop
    const char* pszWhy;   // why it matters
};

// All rules, by group and in a fixed order.
OPERATIONXML_API const std::vector<StRule>& rules();

// The rule of an id, or null.
OPERATIONXML_API const StRule* findRule(const std::string& strId);

// Gets each finding as soon as its file is done, sorted by file and place.
using FindingSink = std::function<void(const StFinding&)>;

// Checks one file by itself: what needs the rest of a server is left out. With
// EnFileKind::Unknown the kind is found by name, place and content; false when they do
// not tell it. A file that cannot be read is a finding.
OPERATIONXML_API bool lintFile(const std::string& strPath, EnFileKind enKind, const FindingSink& fnFinding);

// Hears what lintServer() reads on its way, for whoever needs it as well: nobody has
// to read a server twice. What is not given is not called.
struct StReadAlong
{
    std::function<void(const std::string&)>            fnFile;    // before it is read
    std::function<void(const catalog::CCatalogMaker&)> fnModules; // once, when the modules are read
    std::function<void(const catalog::StTypeCatalog&)> fnType;    // once for every registered type, in any order
};

// Checks every file that the readers would find through the platform: the
// configuration of each installed device type with what modules and capacity
// documents make of it, the check files, the alarm tables, and the folders in which
// they lie. What is wrong with the lists of the platform itself (a version in service
// without a capacity record, say) is told about strInventory, whatever keeps them.
OPERATIONXML_API void lintServer(const std::string& strInventory, const FindingSink& fnFinding,
                                 const StReadAlong& stAlong = {});
} // namespace lint

#endif
