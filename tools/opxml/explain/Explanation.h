// An explanation as one plain value, and its two prints.
#ifndef OPERATIONXML_TOOLS_OPXML_EXPLAIN_EXPLANATION_H
#define OPERATIONXML_TOOLS_OPXML_EXPLAIN_EXPLANATION_H

#include "tools/opxml/explain/Subject.h"

#include <string>
#include <vector>

// What one question of the server answers. Asked by whoever knows the questions.
struct StQuestionAnswer
{
    std::string              strOperation; // "isDeviceOpSupported"
    std::vector<std::string> lstArgument;
    std::string              strAnswer; // "yes", "no", "CONFIG", …
    bool                     bYes = false;
    std::string              strWhy; // of a no
};

struct StExplanation
{
    StSubject                     stSubject;
    StWanted                      stWanted;         // no ids: the subject alone
    bool                          bOffered = false; // or, without ids, whether there is a configuration
    std::vector<StStand>          lstStand;
    std::vector<StObstacle>       lstObstacle; // when it is not offered
    std::vector<StQuestionAnswer> lstQuestion;
};

// Everything but the questions. lstId: operation, parameter and option, or fewer.
StExplanation explain(CServedKeys& oKeys, StSubject stSubject, const std::vector<std::string>& lstId);

// '"ContentType" of "Backup"'.
std::string wantedText(const StWanted& stWanted);

std::string explanationText(const StExplanation& stExplanation); // for stdout
std::string explanationJson(const StExplanation& stExplanation);

#endif
