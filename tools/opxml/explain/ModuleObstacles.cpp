// See ModuleObstacles.h.
#include "tools/opxml/explain/ModuleObstacles.h"

#include "common/FileBytes.h"
#include "lint/Nearness.h"
#include "tools/opxml/catalog/EntryText.h"

#include <fmt/format.h>

#include <algorithm>

namespace
{
// The files of a module's places, which are numbered with those of others.
std::vector<std::string> filesOf(const catalog::StModuleCatalog& stModule)
{
    std::vector<std::string> lstFile(stModule.ulFile + 1);
    lstFile.back() = stModule.strFile;
    return lstFile;
}

bool isRegistered(const CServedKeys& oKeys, const std::string& strDevType)
{
    return std::any_of(oKeys.types().begin(), oKeys.types().end(),
                       [&strDevType](const StRegisteredType& stType) { return stType.strDevType == strDevType; });
}

// What a module calls the type, where that is no type's name.
const catalog::StSupportedType* findMisspelt(const CServedKeys& oKeys, const catalog::StModuleCatalog& stModule,
                                             const std::string& strDevType)
{
    const auto itName = std::find_if(stModule.lstSupported.begin(), stModule.lstSupported.end(),
                                     [&](const catalog::StSupportedType& stType)
                                     {
                                         return !isRegistered(oKeys, stType.strDevType) &&
                                                (!lint::nearestName(stType.strDevType, {strDevType}).empty() ||
                                                 stType.strDevType == strDevType + "_telnet");
                                     });
    return itName == stModule.lstSupported.end() ? nullptr : &*itName;
}

StObstacle obstacleOf(const CServedKeys& oKeys, const catalog::StModuleCatalog& stModule, const std::string& strDevType,
                      const StStand& stStand)
{
    const std::string strHas =
        fmt::format("module {} has it as {} ({})", stModule.strName, kindText(stStand), stStand.strPlace);
    const bool bNamed =
        std::any_of(stModule.lstSupported.begin(), stModule.lstSupported.end(),
                    [&strDevType](const catalog::StSupportedType& stType) { return stType.strDevType == strDevType; });
    if (bNamed && !stStand.bInEffect)
        return {EnObstacle::LeftOut, fmt::format("{}, {}", strHas, fateText(stStand)), {stStand.strPlace}};
    if (bNamed)
        return {EnObstacle::Module, strHas + ", and the server does not merge those", {stStand.strPlace}};
    if (const catalog::StSupportedType* pMisspelt = findMisspelt(oKeys, stModule, strDevType))
    {
        const std::string strName = placeText(filesOf(stModule), pMisspelt->stPlace);
        return {
            EnObstacle::ModuleName,
            fmt::format("{}, but names \"{}\" ({}) and not \"{}\"", strHas, pMisspelt->strDevType, strName, strDevType),
            {stStand.strPlace, strName}};
    }
    return {EnObstacle::Module, fmt::format("{}, but does not name \"{}\"", strHas, strDevType), {stStand.strPlace}};
}

bool mentions(const std::string& strFile, const std::string& strId)
{
    std::string strBytes;
    return readFileBytes(strFile, strBytes).empty() && (strBytes.find("\"" + strId + "\"") != std::string::npos ||
                                                        strBytes.find("'" + strId + "'") != std::string::npos);
}
} // namespace

std::vector<StObstacle> moduleObstacles(CServedKeys& oKeys, const std::string& strDevType, const StWanted& stWanted)
{
    std::vector<StObstacle> lstObstacle;
    for (const catalog::StModuleCatalog& stModule : oKeys.modules())
    {
        const std::vector<StStand> lstStand = findStands(stModule.lstSection, filesOf(stModule), stWanted);
        if (!lstStand.empty())
            lstObstacle.push_back(obstacleOf(oKeys, stModule, strDevType, lstStand.front()));
    }
    return lstObstacle;
}

std::vector<StObstacle> brokenModules(CServedKeys& oKeys, const StWanted& stWanted)
{
    std::vector<StObstacle> lstObstacle;
    for (const catalog::StModuleCatalog& stModule : oKeys.modules())
    {
        if (stModule.ulResult == 0 || !stModule.stProblem.isSet() || !mentions(stModule.strFile, stWanted.lstId.back()))
            continue;
        catalog::StPlace stPlace;
        stPlace.ulLine             = stModule.stProblem.ulLine;
        stPlace.ulColumn           = stModule.stProblem.ulColumn;
        const std::string strPlace = placeText(stModule.strFile, stPlace);
        lstObstacle.push_back({EnObstacle::BrokenModule,
                               fmt::format("a module file that mentions it could not be read: {}: {}", strPlace,
                                           stModule.stProblem.strText),
                               {strPlace}});
    }
    return lstObstacle;
}
