// How a command ends: the exit codes of the tool, and trouble that ends it early.
#ifndef OPERATIONXML_TOOLS_OPXML_OUTPUT_EXIT_H
#define OPERATIONXML_TOOLS_OPXML_OUTPUT_EXIT_H

#include <stdexcept>

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

#endif
