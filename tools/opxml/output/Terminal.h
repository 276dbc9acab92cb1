// The room output/: how things look and are named, for all commands. Records as
// JSON or as a tree, sections and device types in words, tables, the progress bar,
// exit codes; and here the two streams, their width and colours.
// A terminal gets lines of its width, broken at words; a pipe or file gets every
// line whole, so that scripts never depend on a window.
#ifndef OPERATIONXML_TOOLS_OPXML_OUTPUT_TERMINAL_H
#define OPERATIONXML_TOOLS_OPXML_OUTPUT_TERMINAL_H

#include <cstddef>
#include <cstdio>
#include <string>

constexpr std::size_t UNLIMITED = 0;

// Writes to stdout; what cannot be written is found when the tool ends.
void print(const std::string& strText);

// One line of text on stdout, and one behind "opxml: " on stderr; made safe for a
// terminal and broken to its width.
void printLine(const std::string& strText);
void remark(const std::string& strText);

bool isTerminal(std::FILE* pStream);

// The columns of a stream: COLUMNS of the environment, else those of the terminal
// that it is, else UNLIMITED. UNLIMITED after showWide().
std::size_t widthOf(std::FILE* pStream);
void        showWide();

// Colours on stdout: only when it is a terminal and NO_COLOR is not set.
std::string inRed(const std::string& strText);
std::string inBold(const std::string& strText);

#endif
