// What the commands of opxml share: the options that stand before every command,
// exit codes, opening the server root, and how a command is added to the tool.
#ifndef OPERATIONXML_TOOLS_OPXML_COMMAND_H
#define OPERATIONXML_TOOLS_OPXML_COMMAND_H

#include <CLI/CLI.hpp>

#include <functional>
#include <stdexcept>
#include <string>

// The tool answers like grep.
enum EnExit : int
{
    EXIT_YES     = 0, // yes, found, all loaded
    EXIT_NO      = 1, // no, nothing found, some failed
    EXIT_TROUBLE = 2, // usage, server root, output
};

// Ends a command with EXIT_TROUBLE; main() prints the text as one line on stderr.
class CTrouble : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

struct StGlobalOptions
{
    std::string strRoot = ".";
    std::string strLogFile;
    bool        bVerbose = false;
};

// What the command line asked for; main() runs it after parsing.
struct StTool
{
    StGlobalOptions      stOptions;
    std::function<int()> fnRun;
};

// Opens the log that the options name; throws CTrouble.
void openLog(const StGlobalOptions& stOptions);

// Opens the log and the server root; throws CTrouble.
void openRoot(const StGlobalOptions& stOptions);

// Each adds one command, in a source file of its own.
void addLoadCommand(CLI::App& oApp, StTool& stTool);
void addShowCommand(CLI::App& oApp, StTool& stTool);
void addDumpCommand(CLI::App& oApp, StTool& stTool);
void addQueryCommand(CLI::App& oApp, StTool& stTool);
void addModulesCommand(CLI::App& oApp, StTool& stTool);
void addAlarmCommand(CLI::App& oApp, StTool& stTool);
void addTransferCommand(CLI::App& oApp, StTool& stTool);
void addFileCheckCommand(CLI::App& oApp, StTool& stTool);

#endif
