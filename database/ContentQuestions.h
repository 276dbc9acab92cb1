// The questions for a content type or board type: which parameter of which operation
// they look at. They look at every one of the ids, where all other questions take the
// first match. Constants; read by the questions and by whoever says which entries
// answer none.
#ifndef OPERATIONXML_DATABASE_CONTENTQUESTIONS_H
#define OPERATIONXML_DATABASE_CONTENTQUESTIONS_H

#include "records/RootRecords.h"
#include "records/Vocabulary.h"

#include <list>
#include <string_view>
#include <tuple>

template <typename Operation>
struct StContentQuestion
{
    std::list<Operation> StAsnOperationConfig::*pList;
    std::string_view                            strOperation;
    std::string_view                            strParameter;
};

// clang-format off
inline constexpr StContentQuestion<StAsnOperation> BACKUP_CONTENT =
    {&StAsnOperationConfig::lstDevOperation, Vocabulary::OP_BACKUP, "ContentType"};
inline constexpr StContentQuestion<StAsnOperation> LOAD_DATA_CONTENT =
    {&StAsnOperationConfig::lstDevOperation, Vocabulary::OP_LOAD_DATA, "ContentType"};
inline constexpr StContentQuestion<StAsnOtherOperationDef> SAM_CONTENT =
    {&StAsnOperationConfig::lstOtherOperation, "SAM", "ContentType"};
inline constexpr StContentQuestion<StAsnOperation> BOARD_TYPE =
    {&StAsnOperationConfig::lstTaskOperation, Vocabulary::OP_ACTIVATE_SOFTWARE, "BoardType"};
// clang-format on

inline constexpr std::tuple CONTENT_QUESTIONS = {BACKUP_CONTENT, LOAD_DATA_CONTENT, SAM_CONTENT, BOARD_TYPE};

#endif
