// See ConfigurationSteps.h.
#include "tools/opxml/explain/ConfigurationSteps.h"

#include "tools/opxml/catalog/EntryText.h"
#include "tools/opxml/explain/CapacityPlace.h"

#include <fmt/format.h>

#include <algorithm>

namespace
{
using catalog::StTypeCatalog;

std::string fileText(const std::string& strFile)
{
    return placeText(strFile, {});
}

// Why this file: what the search found before it.
std::string sourceRule(const StTypeCatalog& stCatalog)
{
    switch (stCatalog.stOrigin.enSource)
    {
    case EnConfigSource::OwnFile:
        return "the type has a file of its own";
    case EnConfigSource::CommonFile:
        return "the type is registered for the common file";
    case EnConfigSource::TelnetTwin:
        return "the file of its telnet twin, as its own is not there";
    case EnConfigSource::Capacity:
        return "the common file, with a configuration for each version in service";
    default:
        return {};
    }
}

std::string outcomeRule(const StTypeCatalog& stCatalog, const StVersionLoad& stVersion)
{
    switch (stVersion.enOutcome)
    {
    case EnVersionOutcome::Narrowed:
        return "narrowed by the capacity document at " + narrowingPlace(stCatalog, stVersion.strFile);
    case EnVersionOutcome::FullConfiguration:
        return "its capacity record says that it has the whole configuration";
    case EnVersionOutcome::NotNarrowed:
        return fmt::format("not narrowed: {} has no entry for the sysoid \"{}\"", fileText(stVersion.strFile),
                           stCatalog.strDevSysOid);
    case EnVersionOutcome::NoCapacityRecord:
        return "it has no capacity record, so that it has no configuration";
    case EnVersionOutcome::Failed:
        break;
    }
    return versionFailureText(stVersion);
}

bool isServed(const catalog::StConfiguration& stConfiguration, const StLookedInto& stServing)
{
    return std::any_of(stConfiguration.lstVersion.begin(), stConfiguration.lstVersion.end(),
                       [&stServing](const catalog::StVersion& stVersion)
                       {
                           return stVersion.strSoftVersion == stServing.strSoftVersion &&
                                  (stVersion.strPatchVersion == stServing.strPatchVersion);
                       });
}

// Which of several configurations, by the version that runs.
void addVersionSteps(const StTypeCatalog& stCatalog, StSubject& stSubject)
{
    StLookedInto&     stServing  = stSubject.stServing;
    const std::string strVersion = versionText(stServing.strSoftVersion, stServing.strPatchVersion);
    for (const StVersionLoad& stVersion : stCatalog.stOrigin.lstVersion)
    {
        const bool bRuns = stVersion.strSoftVersion == stServing.strSoftVersion &&
                           stVersion.strPatchVersion == stServing.strPatchVersion;
        if (!bRuns && !strVersion.empty())
            continue;
        stSubject.lstStep.push_back({"version in service",
                                     versionText(stVersion.strSoftVersion, stVersion.strPatchVersion),
                                     outcomeRule(stCatalog, stVersion)});
        if (bRuns && (stVersion.enOutcome == EnVersionOutcome::Failed ||
                      stVersion.enOutcome == EnVersionOutcome::NoCapacityRecord))
            stSubject.strProblem = fmt::format("version {}: {}", strVersion, outcomeRule(stCatalog, stVersion));
    }
    const auto& lstConfiguration = stCatalog.lstConfiguration;
    const auto  itServing        = std::find_if(lstConfiguration.begin(), lstConfiguration.end(),
                                                [&stServing](const catalog::StConfiguration& stConfiguration)
                                                { return isServed(stConfiguration, stServing); });
    if (itServing != lstConfiguration.end())
        stServing.nConfiguration = static_cast<std::size_t>(itServing - lstConfiguration.begin());
    else if (!strVersion.empty() && stSubject.strProblem.empty())
        stSubject.strProblem = "no configuration is for version " + strVersion;
    stSubject.lstStep.push_back(
        {"configuration",
         fmt::format("{} of {}, of {}", stServing.nConfiguration + 1, lstConfiguration.size(),
                     versionsText(lstConfiguration[stServing.nConfiguration])),
         "the questions of the server look into the first one, whatever version a device runs"});
}

void addCheckSteps(const StConfigPlan& stPlan, StSubject& stSubject)
{
    if (stPlan.stCheck.isFound())
        stSubject.lstStep.push_back(
            {"checks", fileText(stPlan.stCheck.strFile), "a separate check file takes the place of every other"});
    else if (stPlan.stFixedCheck.isFound())
        stSubject.lstStep.push_back({"checks", fileText(stPlan.stFixedCheck.strFile),
                                     "fixed check items are switched on, and the type has a file of them"});
}

void addModuleSteps(const CServedKeys& oKeys, const StTypeCatalog& stCatalog, StSubject& stSubject)
{
    for (const catalog::StModuleCatalog& stModule : oKeys.modules())
    {
        for (const catalog::StSupportedType& stType : stModule.lstSupported)
        {
            if (stModule.ulResult == 0 && stType.strDevType == stSubject.strDevType)
                stSubject.lstStep.push_back({"module", stModule.strName,
                                             "it names the type at " + placeText(stCatalog.lstFile, stType.stPlace)});
        }
    }
}
} // namespace

void addConfigurationSteps(const CServedKeys& oKeys, StSubject& stSubject)
{
    const StServedKey&   stServed  = *stSubject.stServing.pServed;
    const StTypeCatalog& stCatalog = stServed.stCatalog;
    if (stServed.lstType.size() > 1)
        stSubject.lstStep.push_back(
            {"registered as", fmt::format("{}, version {}", stCatalog.strDevType, stCatalog.strDevTypeVer),
             fmt::format("{} entries share the key, and the last one loaded stays", stServed.lstType.size())});
    if (!stServed.strProblem.empty())
    {
        stSubject.lstStep.push_back({"configuration", "none", stServed.strProblem});
        return;
    }
    stSubject.lstStep.push_back({"file", fileText(stCatalog.stPlan.stConfig.strFile), sourceRule(stCatalog)});
    if (!stCatalog.lstConfiguration.front().lstVersion.empty() || !stCatalog.stOrigin.lstVersion.empty())
        addVersionSteps(stCatalog, stSubject);
    addCheckSteps(stCatalog.stPlan, stSubject);
    addModuleSteps(oKeys, stCatalog, stSubject);
}
