// See Nearness.h.
#include "lint/Nearness.h"

#include <algorithm>
#include <cctype>
#include <numeric>

namespace lint
{
namespace
{
constexpr std::size_t FAR = 100;

char lower(char cLetter)
{
    return static_cast<char>(std::tolower(static_cast<unsigned char>(cLetter)));
}

// Letters to change, leave out, add, or swap with their neighbour, case aside.
std::size_t distance(std::string_view strLeft, std::string_view strRight)
{
    if (std::max(strLeft.size(), strRight.size()) - std::min(strLeft.size(), strRight.size()) > 2 ||
        strLeft.size() > 200)
        return FAR;
    std::vector<std::size_t> lstBefore(strRight.size() + 1);
    std::vector<std::size_t> lstRow(strRight.size() + 1);
    std::vector<std::size_t> lstNext(strRight.size() + 1);
    std::iota(lstRow.begin(), lstRow.end(), std::size_t{0});
    for (std::size_t nLeft = 1; nLeft <= strLeft.size(); ++nLeft)
    {
        lstNext[0] = nLeft;
        for (std::size_t nRight = 1; nRight <= strRight.size(); ++nRight)
        {
            const bool bSame = lower(strLeft[nLeft - 1]) == lower(strRight[nRight - 1]);
            lstNext[nRight] =
                std::min({lstRow[nRight] + 1, lstNext[nRight - 1] + 1, lstRow[nRight - 1] + (bSame ? 0 : 1)});
            if (nLeft > 1 && nRight > 1 && lower(strLeft[nLeft - 1]) == lower(strRight[nRight - 2]) &&
                lower(strLeft[nLeft - 2]) == lower(strRight[nRight - 1]))
                lstNext[nRight] = std::min(lstNext[nRight], lstBefore[nRight - 2] + 1);
        }
        std::swap(lstBefore, lstRow);
        std::swap(lstRow, lstNext);
    }
    return lstRow.back();
}
} // namespace

std::string nearestName(std::string_view strMisspelt, const std::vector<std::string>& lstName)
{
    const std::string* pNearest = nullptr;
    std::size_t        nNearest = FAR;
    for (const std::string& strName : lstName)
    {
        const std::size_t nDistance = distance(strMisspelt, strName);
        const std::size_t nAllowed  = std::min<std::size_t>(2, std::max<std::size_t>(1, strName.size() / 3));
        if (nDistance > nAllowed || nDistance >= nNearest || strName == strMisspelt)
            continue;
        pNearest = &strName;
        nNearest = nDistance;
    }
    return pNearest == nullptr ? std::string() : *pNearest;
}

std::string listText(const std::vector<std::string>& lstName)
{
    std::string strText;
    for (std::size_t nAt = 0; nAt < lstName.size(); ++nAt)
        strText += (nAt == 0 ? "" : nAt + 1 == lstName.size() ? " and " : ", ") + lstName[nAt];
    return strText;
}
} // namespace lint
