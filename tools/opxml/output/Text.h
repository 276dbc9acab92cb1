// UTF-8 text on a terminal: how many columns it takes, what of it is safe to show,
// and where it is broken. Stateless.
#ifndef OPERATIONXML_TOOLS_OPXML_OUTPUT_TEXT_H
#define OPERATIONXML_TOOLS_OPXML_OUTPUT_TEXT_H

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// The columns that a text takes: two for an East Asian wide character, none for
// one that is drawn onto the character before it.
std::size_t textWidth(std::string_view strText);

// A text made safe for a terminal: control characters as \xNN.
std::string printable(std::string_view strText);

// The text in lines of at most nWidth columns (UNLIMITED: one line), broken at
// blanks; a word longer than a line is broken behind one of "/_;,", or where it
// must. All lines but the first begin with nIndent blanks.
std::vector<std::string> wrapText(const std::string& strText, std::size_t nWidth, std::size_t nIndent = 0);

// The columns of the longest text between two such places.
std::size_t longestPiece(std::string_view strText);

// The lines, each with its end.
std::string joinLines(const std::vector<std::string>& lstLine);

#endif
