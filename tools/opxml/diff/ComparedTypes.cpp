// See ComparedTypes.h.
#include "tools/opxml/diff/ComparedTypes.h"

#include "lint/Nearness.h"
#include "tools/opxml/output/Exit.h"
#include "tools/opxml/output/Names.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <set>

namespace
{
// Entries of one side that the other does not have.
std::vector<StRegisteredType> missingIn(const CServerSide& oOther, const CServerSide& oSide)
{
    std::vector<StRegisteredType> lstType;
    std::copy_if(oSide.types().begin(), oSide.types().end(), std::back_inserter(lstType),
                 [&oOther](const StRegisteredType& stName) { return oOther.find(stName) == nullptr; });
    return lstType;
}

// Where very many came, nobody renamed them one by one.
std::string nearType(const StRegisteredType& stLost, const std::multimap<std::string, StRegisteredType>& mapGained)
{
    constexpr std::size_t    FEW = 200;
    std::vector<std::string> lstName;
    for (const auto& [strName, stGained] : mapGained)
        lstName.push_back(strName);
    return lstName.size() > FEW ? std::string() : lint::nearestName(stLost.strDevType, lstName);
}
} // namespace

std::vector<StRegisteredType> comparedTypes(const CServerSide& oOld, const CServerSide& oNew,
                                            const std::vector<std::string>& lstWanted)
{
    std::vector<StRegisteredType>       lstType = oOld.types();
    const std::vector<StRegisteredType> lstNew  = missingIn(oOld, oNew);
    lstType.insert(lstType.end(), lstNew.begin(), lstNew.end());
    if (lstWanted.empty())
        return lstType;
    std::set<std::string>         setNamed;
    std::vector<StRegisteredType> lstNamed;
    for (const std::string& strWanted : lstWanted)
    {
        const std::vector<StRegisteredType> lstOf = typesNamed(lstType, strWanted);
        if (lstOf.empty())
            throw CTrouble("no device type \"" + strWanted + "\"" + nearestNames(strWanted, namesOf(lstType)));
        std::copy_if(lstOf.begin(), lstOf.end(), std::back_inserter(lstNamed),
                     [&setNamed](const StRegisteredType& stType) { return setNamed.insert(fullName(stType)).second; });
    }
    return lstNamed;
}

std::string fullName(const StRegisteredType& stType)
{
    return stType.strDevType + " " + stType.strDevTypeVer;
}

std::map<std::string, std::string> typeRenames(const CServerSide& oOld, const CServerSide& oNew)
{
    std::multimap<std::string, StRegisteredType> mapGained; // by type name
    for (const StRegisteredType& stGained : missingIn(oOld, oNew))
        mapGained.emplace(stGained.strDevType, stGained);
    std::map<std::string, std::string> mapRename;
    for (const StRegisteredType& stLost : missingIn(oNew, oOld))
    {
        auto itGained = mapGained.find(stLost.strDevType);
        if (itGained == mapGained.end())
            itGained = mapGained.find(nearType(stLost, mapGained));
        if (itGained == mapGained.end())
            continue;
        mapRename[fullName(stLost)]           = fullName(itGained->second);
        mapRename[fullName(itGained->second)] = fullName(stLost);
        mapGained.erase(itGained);
    }
    return mapRename;
}
