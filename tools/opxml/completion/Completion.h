// The room completion/: what may stand where the cursor is, for the shells. Behind
// the hidden first word "__complete": the scripts in shells/ hand over the line and
// get one candidate a line. Commands and options come from the description of the
// command line, names from the inventory (CompletionNames.h): configurations are not
// loaded, so that an answer takes a fraction of a second on the largest root.
#ifndef OPERATIONXML_TOOLS_OPXML_COMPLETION_COMPLETION_H
#define OPERATIONXML_TOOLS_OPXML_COMPLETION_COMPLETION_H

#include "tools/opxml/commands/Command.h"

#include <string>
#include <vector>

constexpr const char* COMPLETION_WORD = "__complete";

struct StCandidate
{
    std::string strWord;
    std::string strDescription; // may be empty
};

struct StCompletion
{
    std::vector<StCandidate> lstCandidate;    // those that begin with the last word
    bool                     bFiles  = false; // the shell's own file names instead
    bool                     bFolder = false; // folders only
};

// The words behind "opxml", without quotes; the last one, which may be empty, is to
// be completed.
StCompletion complete(const CLI::App& oApp, const StGlobalOptions& stDefaults, const std::vector<std::string>& lstWord);

// "__complete zsh|fish WORD…" or "__complete bash LINE", LINE up to the cursor. Prints
// the candidates; trouble is silent, for nobody wants it in his command line.
int runCompletion(const CLI::App& oApp, const StGlobalOptions& stDefaults, const std::vector<std::string>& lstArgument);

#endif
