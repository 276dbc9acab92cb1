// opxml query --batch: one JSON array a line in, one JSON object a line out. The
// answer to line N is line N, whatever the lines hold.
#ifndef OPERATIONXML_TOOLS_OPXML_QUERY_QUERYBATCH_H
#define OPERATIONXML_TOOLS_OPXML_QUERY_QUERYBATCH_H

#include "tools/opxml/query/QueryOperations.h"

#include <string>

// {"op":…,"result":…,"answer":…}, with the end of the line; and "why" and "offer", when
// there is a reason.
std::string answerLine(const StQueryOperation& stOperation, const StQueryAnswer& stAnswer,
                       const StQueryReason& stReason = {});

// Answers every line of the file, "-" for stdin, on stdout. Whoever waits at the
// other end of a pipe gets each answer before the next line is waited for. False
// when a line was no question; throws CTrouble when the file cannot be read.
bool answerBatch(const std::string& strFile);

#endif
