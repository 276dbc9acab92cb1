// Names that are nearly the same: what an author may have meant.
#ifndef OPERATIONXML_LINT_NEARNESS_H
#define OPERATIONXML_LINT_NEARNESS_H

#include "platform/Export.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lint
{
// The name that is nearest to a misspelt one: one or two letters changed, left out,
// doubled or swapped, or the same but for upper and lower case. Empty when none is so
// near; of several equally near ones the first.
OPERATIONXML_API std::string nearestName(std::string_view strMisspelt, const std::vector<std::string>& lstName);

// What was meant, and the help lines of a check. Bounded: where everything is
// misspelt, only the first mistakes are compared with all the names there are.
class CHints
{
public:
    // The nearest name, or nothing.
    template <typename Names>
    std::string nearest(std::string_view strMisspelt, const Names& names)
    {
        if (names.size() > m_nLeft)
            return {};
        m_nLeft -= names.size();
        std::vector<std::string> lstName;
        for (const auto& name : names)
            lstName.emplace_back(textOf(name));
        return nearestName(strMisspelt, lstName);
    }

    // One line, or none when no name is near.
    template <typename Names>
    std::vector<std::string> didYouMean(std::string_view strMisspelt, const Names& names)
    {
        const std::string strNear = nearest(strMisspelt, names);
        return strNear.empty() ? std::vector<std::string>() : std::vector{"did you mean \"" + strNear + "\"?"};
    }

private:
    static std::string_view textOf(std::string_view strName) { return strName; }
    template <typename Value>
    static std::string_view textOf(const std::pair<const std::string, Value>& oNamed) // of a map by names
    {
        return oNamed.first;
    }

    std::size_t m_nLeft = 200'000; // names
};

// "a, b and c", for help lines.
OPERATIONXML_API std::string listText(const std::vector<std::string>& lstName);
} // namespace lint

#endif
