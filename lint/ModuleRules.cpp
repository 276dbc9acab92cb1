// The names of modules, and of the device types that they add something to.
#include "lint/Nearness.h"
#include "lint/Phrases.h"
#include "lint/SenseRules.h"

#include <map>

using namespace catalog;

namespace lint
{
namespace
{
StSpot spotOf(const StPlace& stPlace)
{
    return {stPlace.ulLine, stPlace.ulColumn, stPlace.ulLength};
}

class CModuleCheck
{
public:
    CModuleCheck(const std::vector<std::string>& lstRegisteredType, const StLostNames& stLost, const ReportOf& fnReport)
        : m_setType(lstRegisteredType.begin(), lstRegisteredType.end()), m_stLost(stLost), m_fnReport(fnReport)
    {
    }

    void check(const StModuleCatalog& stModule)
    {
        if (stModule.strName.empty())
            return; // not read, or without a name: told about the file
        const auto [itFirst, bNew] = m_mapFile.emplace(stModule.strName, stModule.strFile);
        if (!bNew)
            return m_fnReport(stModule.strFile)
                .add("module-name-taken", spotOf(stModule.stName),
                     shortPath(itFirst->second) + " has taken the name " + inQuotes(stModule.strName) +
                         ": nothing of this file is used",
                     "module " + stModule.strName, {"give the module a name of its own"});
        std::set<std::string> setNamed;
        for (const StSupportedType& stSupported : stModule.lstSupported)
            checkType(stModule, stSupported, !setNamed.insert(stSupported.strDevType).second);
    }

private:
    void checkType(const StModuleCatalog& stModule, const StSupportedType& stSupported, bool bAgain)
    {
        const std::string& strType    = stSupported.strDevType;
        const std::string  strSubject = stModule.strName + "/" + strType;
        if (strType.empty() || m_stLost.setText.count(strType) != 0)
            return;
        if (bAgain)
            return m_fnReport(stModule.strFile)
                .add("module-names-type-twice", spotOf(stSupported.stPlace),
                     "the module names " + inQuotes(strType) + " once more: the type gets all of it again", strSubject,
                     {"name each type once"});
        if (m_setType.count(strType) != 0)
            return;
        m_fnReport(stModule.strFile)
            .add("unregistered-type", spotOf(stSupported.stPlace),
                 "no device type is registered as " + inQuotes(strType) + ": nothing is added to it", strSubject,
                 m_oHints.didYouMean(strType, m_setType));
    }

    const std::set<std::string>        m_setType;
    const StLostNames&                 m_stLost;
    const ReportOf&                    m_fnReport;
    std::map<std::string, std::string> m_mapFile; // that took a name
    CHints                             m_oHints;
};
} // namespace

std::string shortPath(const std::string& strFile)
{
    const std::size_t nName   = strFile.rfind('/') == std::string::npos ? 0 : strFile.rfind('/') + 1;
    const bool        bModule = strFile.compare(nName, 20, "ServerConfiguration.") == 0;
    if (!bModule || nName < 2)
        return strFile.substr(nName);
    const std::size_t nFolder = strFile.rfind('/', nName - 2);
    return strFile.substr(nFolder == std::string::npos ? 0 : nFolder + 1);
}

void checkModules(const std::vector<StModuleCatalog>& lstModule, const std::vector<std::string>& lstRegisteredType,
                  const StLostNames& stLost, const ReportOf& fnReport)
{
    CModuleCheck oCheck(lstRegisteredType, stLost, fnReport);
    for (const StModuleCatalog& stModule : lstModule)
        oCheck.check(stModule);
}
} // namespace lint
