// opxml show: what one device type, one version in service of it, or one device
// supports, as a readable tree.
#include "database/CXMLConfigDatabase.h"
#include "standalone/TypeList.h"
#include "tools/opxml/catalog/RecordPlaces.h"
#include "tools/opxml/commands/Command.h"
#include "tools/opxml/commands/Devices.h"
#include "tools/opxml/explain/ServedKeys.h"
#include "tools/opxml/output/DevTypes.h"
#include "tools/opxml/output/RecordJson.h"
#include "tools/opxml/output/RecordTree.h"
#include "tools/opxml/output/Terminal.h"
#include "tools/opxml/output/Tree.h"

#include <fmt/format.h>

#include <algorithm>
#include <list>
#include <memory>
#include <set>
#include <utility>
#include <vector>

namespace
{
struct StShowOptions
{
    std::string strName;
    std::string strVersion;
    bool        bWhere = false;
    bool        bJson  = false;
};

struct StWanted
{
    std::set<std::string> setKey;
    std::string           strSoftVersion;  // of one version in service; empty: all
    std::string           strPatchVersion; // likewise; empty and not exact: every patch of it
    bool                  bExactPatch = false;
    std::string           strDevice; // the device that was asked for, in words
};

bool isWanted(const StWanted& stWanted, const StAsnDevTypeVerXMLInfo& stInfo)
{
    // A configuration that names no version in service serves them all.
    return stWanted.strSoftVersion.empty() || stInfo.lstDevVersion.empty() ||
           std::any_of(stInfo.lstDevVersion.begin(), stInfo.lstDevVersion.end(),
                       [&stWanted](const StAsnDevVersion& stVersion)
                       {
                           const bool bAnyPatch = stWanted.strPatchVersion.empty() && !stWanted.bExactPatch;
                           return stVersion.strSoftVersion == stWanted.strSoftVersion &&
                                  (bAnyPatch || stVersion.strPatchVersion == stWanted.strPatchVersion);
                       });
}

// What is shown.
struct StShown
{
    std::size_t         nKeys    = 0;
    Json                oRecords = Json::object(); // with --json: by storage key
    std::vector<StTree> lstTree;                   // without: one for each configuration
};

// What modules added to the first record of a key, which a type has under its
// plain name only.
std::vector<StContribution> contributionsTo(const StLoadReport& stReport, const std::string& strKey)
{
    for (const StDevTypeLoad& stLoad : stReport.lstDevType)
    {
        if (stLoad.strKey == strKey && stLoad.isConfigured())
            return findContributions(stLoad.strDevType);
    }
    return {};
}

StTree configurationTree(const std::string& strKey, const StAsnDevTypeVerXMLInfo& stInfo,
                         const std::vector<StContribution>& lstContribution)
{
    StTree stTree = {fmt::format("{}, version {}", strKey, stInfo.strDevTypeVer), {}};
    addRecord(stTree, stInfo, lstContribution);
    return stTree;
}

// Where the records of a key stand; null when that is not asked for.
const catalog::StTypeCatalog* findCatalog(const StLoadReport& stReport, const std::string& strKey, bool bWhere)
{
    for (const StDevTypeLoad& stLoad : stReport.lstDevType)
    {
        if (bWhere && stLoad.strKey == strKey && stLoad.isConfigured())
            return &CServedKeys::instance().find(stLoad.strDevType, stLoad.strDevTypeVer).stCatalog;
    }
    return nullptr;
}

// Those of a key's records that are wanted.
void gatherKey(const StLoadReport& stReport, const StWanted& stWanted, const StShowOptions& stOptions,
               const std::string& strKey, const std::list<StAsnDevTypeVerXMLInfo*>& lstInfo, StShown& stShown)
{
    const catalog::StTypeCatalog* pCatalog       = findCatalog(stReport, strKey, stOptions.bWhere);
    Json                          oRecords       = Json::array();
    std::size_t                   nConfiguration = 0;
    std::size_t                   nShown         = 0;
    for (const StAsnDevTypeVerXMLInfo* pInfo : lstInfo)
    {
        const std::size_t nAt = nConfiguration++;
        if (!isWanted(stWanted, *pInfo))
            continue;
        ++nShown;
        if (stOptions.bJson)
        {
            Json& oInfo = oRecords.emplace_back(toJson(*pInfo));
            if (pCatalog != nullptr)
                addPlaces(oInfo, *pCatalog, nAt);
            continue;
        }
        // Modules go into the first record.
        const auto lstContribution = nAt == 0 ? contributionsTo(stReport, strKey) : std::vector<StContribution>();
        StTree&    stTree          = stShown.lstTree.emplace_back(configurationTree(strKey, *pInfo, lstContribution));
        if (pCatalog != nullptr)
            addPlaces(stTree, *pCatalog, nAt);
    }
    if (nShown == 0)
        return;
    ++stShown.nKeys;
    if (stOptions.bJson)
        stShown.oRecords[strKey] = std::move(oRecords);
}

// Of the keys, in order.
void gather(const StLoadReport& stReport, const StWanted& stWanted, const StShowOptions& stOptions, StShown& stShown)
{
    CXMLConfigDatabase::getInstance()->visitDevTypes(
        [&](const std::string& strKey, const std::list<StAsnDevTypeVerXMLInfo*>& lstInfo)
        {
            if (stWanted.setKey.count(strKey) != 0)
                gatherKey(stReport, stWanted, stOptions, strKey, lstInfo, stShown);
        });
}

// What is not shown, and why: a key without a configuration, single versions.
void explainMissing(const StLoadReport& stReport, const std::string& strKey)
{
    for (const StDevTypeLoad& stLoad : stReport.lstDevType)
    {
        if (stLoad.strKey != strKey)
            continue;
        for (const StVersionLoad& stVersion : failedVersions(stLoad))
            remark(fmt::format("{} {} {}", stLoad.strDevType, stLoad.strDevTypeVer, versionFailureText(stVersion)));
        if (!stLoad.isConfigured())
            remark(fmt::format("{} {} {}", stLoad.strDevType, stLoad.strDevTypeVer, failureText(stLoad)));
    }
}

// What serves the device of this id, name or address; false when there is none.
bool findDevice(const std::string& strName, StWanted& stWanted)
{
    const std::vector<StServedDevice> lstAll = gatherDevices();
    const auto                        itNamed =
        std::find_if(lstAll.begin(), lstAll.end(),
                     [&strName](const StServedDevice& stDevice) { return isDeviceNamed(stDevice.stInfo, strName); });
    if (itNamed == lstAll.end())
        return false;
    std::vector<StServedDevice> lstFound = {*itNamed};
    loadConfigurations(lstFound);
    const StServedDevice& stDevice = lstFound.front();
    const StDeviceInfo&   stInfo   = stDevice.stInfo;
    stWanted.strDevice =
        fmt::format("device {} {}: {} {}{}", stInfo.ulDeviceID, stInfo.strDeviceName, stDevice.strDevType,
                    stDevice.strDevTypeVer, stDevice.bTelnet ? ", managed over telnet" : "");
    if (!stDevice.strProblem.empty())
        remark(fmt::format("device {}: {}", stInfo.ulDeviceID, stDevice.strProblem));
    else
        stWanted.setKey.insert(stDevice.strKey);
    if (stDevice.bByVersion)
    {
        stWanted.strSoftVersion  = stDevice.stVersion.strSoftVersion;
        stWanted.strPatchVersion = stDevice.stVersion.strPatchVersion;
        stWanted.bExactPatch     = true;
    }
    return true;
}

// What is asked for, and loads it; no key, with a remark, when there is no such thing.
StWanted resolve(StShowOptions stOptions)
{
    const std::vector<StRegisteredType> lstType = registeredTypes();
    StWanted                            stWanted;
    if (stOptions.strVersion.empty())
    {
        const StNamedType stNamed = splitTypeName(lstType, stOptions.strName);
        stOptions.strName         = stNamed.strName;
        stOptions.strVersion      = stNamed.strVersion;
        stWanted.strSoftVersion   = stNamed.strSoftVersion;
        stWanted.strPatchVersion  = stNamed.strPatchVersion;
    }
    stWanted.setKey = findKeys(lstType, stOptions.strName, stOptions.strVersion);
    if (!stWanted.setKey.empty())
    {
        standalone::listOnlyTypes(stWanted.setKey);
        return stWanted;
    }
    const std::string strUnknown = unknownVersionText(lstType, stOptions.strName, stOptions.strVersion);
    if (!strUnknown.empty())
        remark(strUnknown);
    else if (!stOptions.strVersion.empty() || !findDevice(stOptions.strName, stWanted))
        remark(unknownTypeText(lstType, stOptions.strName));
    return stWanted;
}

int runShow(const StGlobalOptions& stGlobal, const StShowOptions& stOptions)
{
    openRoot(stGlobal);
    const StWanted stWanted = resolve(stOptions);
    if (stWanted.setKey.empty())
        return EXIT_NO;
    const StLoadReport stReport = CXMLConfigDatabase::getInstance()->getLoadReport();
    StShown            stShown;
    gather(stReport, stWanted, stOptions, stShown);
    if (!stWanted.strDevice.empty() && !stOptions.bJson)
        printLine(stWanted.strDevice);
    for (const StTree& stTree : stShown.lstTree)
        print(treeText(stTree));
    if (stOptions.bJson)
        print(jsonText(stShown.oRecords) + "\n");
    for (const std::string& strKey : stWanted.setKey)
        explainMissing(stReport, strKey);
    if (stShown.nKeys == 0 && !stWanted.strSoftVersion.empty())
        remark("no configuration is for version " + versionText(stWanted.strSoftVersion, stWanted.strPatchVersion));
    return stShown.nKeys == stWanted.setKey.size() ? EXIT_YES : EXIT_NO;
}
} // namespace

void addShowCommand(CLI::App& oApp, StTool& stTool)
{
    CLI::App* pCommand = oApp.add_subcommand("show", "Show what one device type supports, as a tree");
    auto      pOptions = std::make_shared<StShowOptions>();
    pCommand
        ->add_option(
            "DEVICE|TYPE", pOptions->strName,
            "A device by id, name or address; or a device type or storage key, with TYPE:VERSION:SOFTWARE:PATCH one "
            "version in service")
        ->required();
    pCommand->add_option("VERSION", pOptions->strVersion, "One version of it; without it, all variants are shown");
    pCommand->add_flag("--where", pOptions->bWhere, "Add to each record where it stands: FILE:LINE:COLUMN");
    pCommand->add_flag("--json", pOptions->bJson, "Print JSON");
    pCommand->callback([&stTool, pOptions]
                       { stTool.fnRun = [&stTool, pOptions] { return runShow(stTool.stOptions, *pOptions); }; });
}
