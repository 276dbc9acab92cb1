// Cuts SQL text into statements before SQLite compiles them, so that a message
// can name the line and a statement can be judged by its size. Called by the
// inventory script; plain functions without state.
#ifndef OPERATIONXML_STANDALONE_SQLTEXT_H
#define OPERATIONXML_STANDALONE_SQLTEXT_H

#include <cstddef>
#include <string>
#include <string_view>

namespace standalone
{
struct StSqlStatement
{
    std::size_t nStart   = 0; // first byte that is neither blank nor comment
    std::size_t nEnd     = 0; // behind the ";" or at the end of the text
    unsigned    nSelects = 0; // SELECT keywords
    bool        bWith    = false;
};

// The statement at or behind a position. nStart equals nEnd at the end of the text.
StSqlStatement nextStatement(std::string_view strSql, std::size_t nFrom);

// A text on one line, cut to a readable length, without control characters and
// broken bytes: for a message that quotes a statement or SQLite's words.
std::string abbreviate(std::string_view strText, std::size_t nLength);
} // namespace standalone

#endif
