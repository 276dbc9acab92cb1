// The options of a parameter by their numbers: the first one of a number is its name.
// Points into the entry.
#ifndef OPERATIONXML_TOOLS_OPXML_DIFF_OPTIONNUMBERS_H
#define OPERATIONXML_TOOLS_OPXML_DIFF_OPTIONNUMBERS_H

#include "catalog/Catalog.h"

#include <map>
#include <set>
#include <string_view>
#include <utility>

// Empty for what is no option.
std::string_view numberOf(const catalog::StEntry& stOption);

class COptionNumbers
{
public:
    explicit COptionNumbers(const catalog::StEntry& stParameter);

    const std::map<std::string_view, const catalog::StEntry*>& first() const { return m_mapFirst; }

    bool has(std::string_view strId, std::string_view strNumber) const
    {
        return m_setOption.count({strId, strNumber}) != 0;
    }

private:
    std::map<std::string_view, const catalog::StEntry*>     m_mapFirst; // by number
    std::set<std::pair<std::string_view, std::string_view>> m_setOption;
};

#endif
