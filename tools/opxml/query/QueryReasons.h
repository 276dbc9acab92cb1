// Why a query was answered with no. Those about operations and what stands below them
// say what is wanted where; what stands in the way there is the business of the room
// explain/, which reads the types in question once more and says the same to
// opxml explain.
#ifndef OPERATIONXML_TOOLS_OPXML_QUERY_QUERYREASONS_H
#define OPERATIONXML_TOOLS_OPXML_QUERY_QUERYREASONS_H

#include "tools/opxml/query/QueryArguments.h"

#include <string>

struct StQueryReason
{
    std::string strWhy;   // empty: nothing stands in the way
    std::string strOffer; // what there is instead
};
using QueryReason = StQueryReason (*)(const QueryArguments&);

StQueryReason whyNoRecord(const QueryArguments& lstArgument);
StQueryReason whyNoDeviceOperation(const QueryArguments& lstArgument); // with or without a parameter
StQueryReason whyNoOtherOperation(const QueryArguments& lstArgument);  // likewise
StQueryReason whyNotCancelable(const QueryArguments& lstArgument);
StQueryReason whyNoTaskType(const QueryArguments& lstArgument);
StQueryReason whyNoCapacity(const QueryArguments& lstArgument);
StQueryReason whyNotTelnet(const QueryArguments& lstArgument);
StQueryReason whyNoContentType(const QueryArguments& lstArgument);
StQueryReason whyNoLoadDataContentType(const QueryArguments& lstArgument);
StQueryReason whyNoBackupContentType(const QueryArguments& lstArgument);
StQueryReason whyNoSamContentType(const QueryArguments& lstArgument); // by value
StQueryReason whyNoSamContentName(const QueryArguments& lstArgument); // by name
StQueryReason whyNoBoardType(const QueryArguments& lstArgument);
StQueryReason whyNoBackupContents(const QueryArguments& lstArgument);
StQueryReason whyNoAlarm(const QueryArguments& lstArgument);
StQueryReason whyNoTransfer(const QueryArguments& lstArgument);
StQueryReason whyNoRules(const QueryArguments& lstArgument);

#endif
