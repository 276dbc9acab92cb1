// See CommandLine.h.
#include "tools/opxml/commands/CommandLine.h"

#include "reader/LoadThreads.h"
#include "tools/opxml/commands/HelpFormat.h"
#include "tools/opxml/output/Terminal.h"

#include <memory>

namespace
{
void addGlobalOptions(CLI::App& oApp, StGlobalOptions& stOptions)
{
    oApp.formatter(std::make_shared<CHelpFormat>()); // of its commands as well
    oApp.require_subcommand(1);
    oApp.fallthrough(); // the options below may follow the command as well
    oApp.set_version_flag("--version", "opxml " OPXML_VERSION);
    oApp.set_help_all_flag("--help-all", "Help for all commands");
    oApp.add_option("--root", stOptions.strRoot, "Server root: a folder with server.db or server.sql")
        ->envname("OPXML_ROOT")
        ->type_name("DIR")
        ->capture_default_str();
    oApp.add_option("--log", stOptions.strLogFile, "Write the library's log to a file, one JSON object a line")
        ->type_name("FILE");
    oApp.add_flag("-v,--verbose", stOptions.bVerbose, "Write the library's log to stderr");
    oApp.add_option("--jobs", stOptions.uJobs,
                    "Threads that read configuration files; by itself as many as may run, 8 at most")
        ->envname(loadThreads::VARIABLE)
        ->type_name("N")
        ->check(CLI::Range(std::size_t{1}, loadThreads::MOST));
    oApp.add_flag_callback("--wide", showWide, "Tables and trees as wide as they are, whatever the terminal");
    oApp.footer("Exit status: 0 yes, found or all loaded; 1 no, nothing or some failed; 2 trouble.\n"
                "Colours only on a terminal, and never when NO_COLOR is set.");
}
} // namespace

void describeTool(CLI::App& oApp, StTool& stTool)
{
    oApp.name("opxml");
    oApp.description("What a server's device types support, read from their configuration files.");
    addGlobalOptions(oApp, stTool.stOptions);
    addLoadCommand(oApp, stTool);
    addShowCommand(oApp, stTool);
    addDumpCommand(oApp, stTool);
    addQueryCommand(oApp, stTool);
    addModulesCommand(oApp, stTool);
    addDevicesCommand(oApp, stTool);
    addExplainCommand(oApp, stTool);
    addFindCommand(oApp, stTool);
    addDiffCommand(oApp, stTool);
    addAlarmCommand(oApp, stTool);
    addTransferCommand(oApp, stTool);
    addFileCheckCommand(oApp, stTool);
    addLintCommand(oApp, stTool);
    addReportCommand(oApp, stTool);
}
