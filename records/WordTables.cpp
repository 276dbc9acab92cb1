// See WordTables.h. Lookups for callers of the library and for the tool; parsers look
// words up by attrRow().
#include "records/WordTables.h"

const StTaskTypeWord* findTaskType(std::string_view strName)
{
    for (const StTaskTypeWord& stWord : TASK_TYPE_WORDS)
    {
        if (stWord.strWord == strName)
            return &stWord;
    }
    return nullptr;
}

std::int32_t getTaskTypeByName(const std::string& strName)
{
    const StTaskTypeWord* pWord = findTaskType(strName);
    return pWord == nullptr ? -1 : pWord->enTaskType;
}
