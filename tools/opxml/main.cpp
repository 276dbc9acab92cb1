// opxml: asks the library what a server's device types support, from the command
// line. Parses the command line, runs one command, and turns every end into an
// exit code: 0 yes or found, 1 no or nothing, 2 trouble (one line on stderr).
// commands/ has a source for each command, query/ what stands behind opxml query,
// output/ how things look; commands -> query -> output, never back.
#include "tools/opxml/commands/Command.h"
#include "tools/opxml/output/Output.h"

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <string>
#include <vector>

#ifndef OPXML_VERSION
#define OPXML_VERSION "unknown"
#endif

namespace
{
void addGlobalOptions(CLI::App& oApp, StGlobalOptions& stOptions)
{
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
    oApp.footer("Exit status: 0 yes, found or all loaded; 1 no, nothing or some failed; 2 trouble.\n"
                "Colours only on a terminal, and never when NO_COLOR is set.");
}

// The parser reports a misspelt command as a missing one.
void nameUnknownCommand(const CLI::App& oApp)
{
    const std::vector<std::string> lstUnknown = oApp.remaining();
    if (!oApp.get_subcommands().empty() || lstUnknown.empty() || lstUnknown.front().compare(0, 1, "-") == 0)
        return;
    std::vector<std::string> lstName;
    for (const CLI::App* pCommand : oApp.get_subcommands({}))
        lstName.push_back(pCommand->get_name());
    throw CTrouble("no command \"" + printable(lstUnknown.front()) + "\"" + nearestNames(lstUnknown.front(), lstName));
}

int runTool(int nArguments, char** ppszArguments)
{
    CLI::App oApp("What a server's device types support, read from their configuration files.", "opxml");
    StTool   stTool;
    addGlobalOptions(oApp, stTool.stOptions);
    addLoadCommand(oApp, stTool);
    addShowCommand(oApp, stTool);
    addDumpCommand(oApp, stTool);
    addQueryCommand(oApp, stTool);
    addModulesCommand(oApp, stTool);
    addAlarmCommand(oApp, stTool);
    addTransferCommand(oApp, stTool);
    addFileCheckCommand(oApp, stTool);
    try
    {
        oApp.parse(nArguments, ppszArguments);
    }
    catch (const CLI::ParseError& oProblem)
    {
        nameUnknownCommand(oApp);
        // Help and version end well; everything else is a usage error.
        return oApp.exit(oProblem) == 0 ? EXIT_YES : EXIT_TROUBLE;
    }
    return stTool.fnRun();
}

// A full disk must not pass for an answer. CLI11 writes its help to std::cout.
void flushOutput()
{
    std::cout.flush();
    if (!std::cout || std::fflush(stdout) != 0 || std::ferror(stdout) != 0)
        throw CTrouble("cannot write the output");
}
} // namespace

int main(int nArguments, char** ppszArguments)
{
    try
    {
        const int nExit = runTool(nArguments, ppszArguments);
        flushOutput();
        // The store dies with the process: freeing its records one by one at exit
        // would only take time.
        std::_Exit(nExit);
    }
    catch (const std::exception& oProblem)
    {
        std::fprintf(stderr, "opxml: %s\n", oProblem.what());
        return EXIT_TROUBLE;
    }
}
