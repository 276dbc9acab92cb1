// UTF-8, as far as the inventory and the log need it. Called by the inventory
// reader, which refuses other texts, and by the log lines, which replace them.
// Plain functions without state.
#ifndef OPERATIONXML_STANDALONE_UTF8_H
#define OPERATIONXML_STANDALONE_UTF8_H

#include <cstddef>
#include <string>
#include <string_view>

namespace standalone
{
// Bytes of the character that starts at nAt; 0 when no whole, shortest-form
// character stands there.
std::size_t utf8Length(std::string_view strText, std::size_t nAt);

// The first byte that belongs to no character, or npos.
std::size_t findInvalidUtf8(std::string_view strText);

// A text on one line, cut to a readable length, without control characters and
// broken bytes: for a message that quotes a statement or SQLite's words.
std::string abbreviate(std::string_view strText, std::size_t nLength);
} // namespace standalone

#endif
