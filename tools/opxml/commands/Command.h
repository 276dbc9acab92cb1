// The room commands/: one source a command (CmdNAME.cpp), which gathers what it
// shows as plain values and then prints it. Here is what they share: the options
// that stand before every command, exit codes, opening the server root, and how a
// command is added to the tool.
#ifndef OPERATIONXML_TOOLS_OPXML_COMMANDS_COMMAND_H
#define OPERATIONXML_TOOLS_OPXML_COMMANDS_COMMAND_H

#include "tools/opxml/output/Exit.h"

#include <CLI/CLI.hpp>

#include <functional>
#include <string>

struct StGlobalOptions
{
    std::string strRoot = ".";
    std::string strLogFile;
    bool        bVerbose = false;
    unsigned    uJobs    = 0; // 0: as many threads as the library takes by itself
};

// What the command line asked for; main() runs it after parsing.
struct StTool
{
    StGlobalOptions      stOptions;
    std::function<int()> fnRun;
};

// Opens the log that the options name, and sets how many threads may read; throws CTrouble.
void applyOptions(const StGlobalOptions& stOptions);

// The same, and opens the server root; throws CTrouble.
void openRoot(const StGlobalOptions& stOptions);

// Each adds one command, in a source file of its own.
void addLoadCommand(CLI::App& oApp, StTool& stTool);
void addShowCommand(CLI::App& oApp, StTool& stTool);
void addDumpCommand(CLI::App& oApp, StTool& stTool);
void addQueryCommand(CLI::App& oApp, StTool& stTool);
void addModulesCommand(CLI::App& oApp, StTool& stTool);
void addDevicesCommand(CLI::App& oApp, StTool& stTool);
void addExplainCommand(CLI::App& oApp, StTool& stTool);
void addAlarmCommand(CLI::App& oApp, StTool& stTool);
void addTransferCommand(CLI::App& oApp, StTool& stTool);
void addDiffCommand(CLI::App& oApp, StTool& stTool);
void addFileCheckCommand(CLI::App& oApp, StTool& stTool);
void addFindCommand(CLI::App& oApp, StTool& stTool);
void addLintCommand(CLI::App& oApp, StTool& stTool);
void addReportCommand(CLI::App& oApp, StTool& stTool);

#endif
