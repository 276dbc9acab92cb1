// opxml show: one device type as a readable tree.
#include "database/CXMLConfigDatabase.h"
#include "tools/opxml/commands/Command.h"
#include "tools/opxml/output/DevTypes.h"
#include "tools/opxml/output/RecordJson.h"
#include "tools/opxml/output/RecordTree.h"
#include "tools/opxml/output/Terminal.h"
#include "tools/opxml/output/Tree.h"

#include <fmt/format.h>

#include <list>
#include <memory>
#include <set>
#include <vector>

namespace
{
struct StShowOptions
{
    std::string strName;
    std::string strVersion;
    bool        bJson = false;
};

// What is shown of one storage key.
struct StShownKey
{
    std::string         strKey;
    Json                oRecords; // with --json
    std::vector<StTree> lstTree;  // without, one for each configuration
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

// Those of the keys that hold something, in order.
std::vector<StShownKey> gather(const StLoadReport& stReport, const std::set<std::string>& setKey, bool bJson)
{
    std::vector<StShownKey> lstShown;
    CXMLConfigDatabase::getInstance()->visitDevTypes(
        [&](const std::string& strKey, const std::list<StAsnDevTypeVerXMLInfo*>& lstInfo)
        {
            if (setKey.count(strKey) == 0 || lstInfo.empty())
                return;
            StShownKey& stShown = lstShown.emplace_back();
            stShown.strKey      = strKey;
            if (bJson)
            {
                stShown.oRecords = toJson(lstInfo);
                return;
            }
            std::vector<StContribution> lstContribution = contributionsTo(stReport, strKey);
            for (const StAsnDevTypeVerXMLInfo* pInfo : lstInfo)
            {
                stShown.lstTree.push_back(configurationTree(strKey, *pInfo, lstContribution));
                lstContribution.clear(); // they went into the first
            }
        });
    return lstShown;
}

void printShown(const std::vector<StShownKey>& lstShown, bool bJson)
{
    Json oJson = Json::object();
    for (const StShownKey& stShown : lstShown)
    {
        if (bJson)
            oJson[stShown.strKey] = stShown.oRecords;
        for (const StTree& stTree : stShown.lstTree)
            print(treeText(stTree));
    }
    if (bJson)
        print(jsonText(oJson) + "\n");
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

// The keys that are asked for; none, with a remark, when there is no such type or
// version.
std::set<std::string> askedKeys(const StLoadReport& stReport, const StShowOptions& stOptions)
{
    std::set<std::string> setKey = findKeys(stReport, stOptions.strName, stOptions.strVersion);
    if (!setKey.empty())
        return setKey;
    std::string strVersions;
    for (const StDevTypeLoad& stLoad : stReport.lstDevType)
    {
        if (stLoad.strDevType == stOptions.strName)
            strVersions += " \"" + stLoad.strDevTypeVer + "\"";
    }
    if (strVersions.empty())
        remark(unknownTypeText(stReport, stOptions.strName));
    else
        remark(fmt::format("device type \"{}\" has no version \"{}\"; it has{}", stOptions.strName,
                           stOptions.strVersion, strVersions));
    return setKey;
}

int runShow(const StGlobalOptions& stGlobal, const StShowOptions& stOptions)
{
    openRoot(stGlobal);
    const StLoadReport          stReport = CXMLConfigDatabase::getInstance()->getLoadReport();
    const std::set<std::string> setKey   = askedKeys(stReport, stOptions);
    if (setKey.empty())
        return EXIT_NO;
    const std::vector<StShownKey> lstShown = gather(stReport, setKey, stOptions.bJson);
    printShown(lstShown, stOptions.bJson);
    std::set<std::string> setMissing = setKey;
    for (const StShownKey& stShown : lstShown)
        setMissing.erase(stShown.strKey);
    for (const std::string& strKey : setKey)
        explainMissing(stReport, strKey);
    return setMissing.empty() ? EXIT_YES : EXIT_NO;
}
} // namespace

void addShowCommand(CLI::App& oApp, StTool& stTool)
{
    CLI::App* pCommand = oApp.add_subcommand("show", "Show what one device type supports, as a tree");
    auto      pOptions = std::make_shared<StShowOptions>();
    pCommand->add_option("TYPE", pOptions->strName, "Device type or storage key")->required();
    pCommand->add_option("VERSION", pOptions->strVersion, "One version of it; without it, all variants are shown");
    pCommand->add_flag("--json", pOptions->bJson, "Print JSON");
    pCommand->callback([&stTool, pOptions]
                       { stTool.fnRun = [&stTool, pOptions] { return runShow(stTool.stOptions, *pOptions); }; });
}
