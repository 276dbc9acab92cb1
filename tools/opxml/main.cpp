// opxml: asks the library what a server's device types support, from the command
// line. Parses the command line, runs one command, and turns every end into an
// exit code: 0 yes or found, 1 no or nothing, 2 trouble (one line on stderr).
// commands/ has a source for each command, query/ and lint/ what stands behind
// opxml query and opxml lint, explain/ why something is offered or not, catalog/ what
// questions about entries share, completion/ what shells may put at the cursor, output/
// how things look; completion -> commands -> query, lint -> explain -> catalog -> output,
// never back.
#include "tools/opxml/commands/CommandLine.h"
#include "tools/opxml/completion/Completion.h"
#include "tools/opxml/output/Names.h"
#include "tools/opxml/output/Terminal.h"
#include "tools/opxml/output/Text.h"

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <string>
#include <vector>

namespace
{
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
    CLI::App oApp;
    StTool   stTool;
    describeTool(oApp, stTool);
    if (nArguments > 1 && std::string(ppszArguments[1]) == COMPLETION_WORD)
        return runCompletion(oApp, stTool.stOptions, {ppszArguments + 2, ppszArguments + nArguments});
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
        remark(oProblem.what());
        return EXIT_TROUBLE;
    }
}
