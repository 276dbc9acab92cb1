// The questions of the server that are about something that is explained, with what they
// answer. Asks the database.
#ifndef OPERATIONXML_TOOLS_OPXML_QUERY_QUESTIONSABOUT_H
#define OPERATIONXML_TOOLS_OPXML_QUERY_QUESTIONSABOUT_H

#include "tools/opxml/explain/Explanation.h"

#include <vector>

// In the order of the table of questions; none when nothing but a subject is explained.
// Questions about a device are asked for one alone.
std::vector<StQuestionAnswer> askAbout(const StExplanation& stExplanation);

#endif
