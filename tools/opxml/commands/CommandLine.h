// The command line as a whole: its options, its commands, what their help says.
// main() parses with it; the manual pages are written from it.
#ifndef OPERATIONXML_TOOLS_OPXML_COMMANDS_COMMANDLINE_H
#define OPERATIONXML_TOOLS_OPXML_COMMANDS_COMMANDLINE_H

#include "tools/opxml/commands/Command.h"

// Fills oApp. What the command line asks for goes to stTool, which must outlive it.
void describeTool(CLI::App& oApp, StTool& stTool);

#endif
