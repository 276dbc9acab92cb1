// The room query/: one question of the server, from a command line or a line of a
// batch to its answer (QueryCall.h) and to why it is no (QueryReasons.h). Here are
// the operations that opxml query knows: one table for its help, its list, the
// question of a command line and those of a batch. Asking one loads the device
// types when the operation needs them, on first use; it may not be asked before
// a server root is open.
#ifndef OPERATIONXML_TOOLS_OPXML_QUERY_QUERYOPERATIONS_H
#define OPERATIONXML_TOOLS_OPXML_QUERY_QUERYOPERATIONS_H

#include "tools/opxml/output/RecordJson.h"
#include "tools/opxml/query/QueryArguments.h"
#include "tools/opxml/query/QueryReasons.h"

#include <cstdint>
#include <set>
#include <string>
#include <vector>

struct StQueryAnswer
{
    std::uint32_t ulResult; // 0 for operations that have no result code
    Json          oAnswer;  // null: the operation left its output as it was
    bool          bFound;   // yes, or something was found
};

// One way to call an operation; an operation with two has two rows.
struct StQueryOperation
{
    const char*                   pszName;
    std::vector<StQueryParameter> lstParameter;
    const char*                   pszAnswer;
    StQueryAnswer (*pfnAsk)(const QueryArguments&);
    QueryReason pfnReason; // null: there is nothing to explain
};
const std::vector<StQueryOperation>& queryOperations();

// Why an answer is no; empty when there is nothing to explain.
StQueryReason reasonOf(const StQueryOperation& stOperation, const QueryArguments& lstArgument,
                       const StQueryAnswer& stAnswer);

// What to say about a version that the inventory does not have for the type, when the
// operation is asked about one; else empty. "_telnet" at its end goes with every version.
std::string unknownVersion(const StQueryOperation& stOperation, const QueryArguments& lstArgument);

// For people: texts as they are, records and the like as JSON.
std::string answerText(const StQueryAnswer& stAnswer);

// "TYPE VERSION OPERATION".
std::string parameterNames(const StQueryOperation& stOperation);

// The device types that a question is about: no others need be loaded for it.
std::set<std::string> typesAsked(const StQueryOperation& stOperation, const QueryArguments& lstArgument);

// The row for a name and its arguments, which it converts. Null with what is
// wrong in strError.
const StQueryOperation* findOperation(const std::string& strName, QueryArguments& lstArgument, std::string& strError);

#endif
