// opxml show: one device type as a readable tree.
#include "database/CXMLConfigDatabase.h"
#include "tools/opxml/commands/Command.h"
#include "tools/opxml/output/DevTypes.h"
#include "tools/opxml/output/Output.h"
#include "tools/opxml/output/RecordJson.h"
#include "tools/opxml/output/RecordTree.h"

#include <fmt/format.h>

#include <memory>

namespace
{
struct StShowOptions
{
    std::string strName;
    std::string strVersion;
    bool        bJson = false;
};

// Prints what one storage key holds; false when it holds nothing.
bool showKey(const StLoadReport& stReport, const std::string& strKey, Json* pJson)
{
    bool bShown = false;
    CXMLConfigDatabase::getInstance()->visitDevTypes(
        [&](const std::string& strStored, const std::list<StAsnDevTypeVerXMLInfo*>& lstInfo)
        {
            if (strStored != strKey || lstInfo.empty())
                return;
            bShown = true;
            if (pJson != nullptr)
            {
                (*pJson)[strKey] = toJson(lstInfo);
                return;
            }
            for (const StAsnDevTypeVerXMLInfo* pInfo : lstInfo)
            {
                StTree stTree = {fmt::format("{}, version {}", strKey, pInfo->strDevTypeVer), {}};
                // Modules go into the first record of a type, under its plain name.
                std::vector<StContribution> lstContribution;
                for (const StDevTypeLoad& stLoad : stReport.lstDevType)
                {
                    if (pInfo == lstInfo.front() && stLoad.strKey == strKey && stLoad.ulResult == 0)
                        lstContribution = findContributions(stLoad.strDevType);
                }
                addRecord(stTree, *pInfo, lstContribution);
                print(treeText(stTree));
            }
        });
    return bShown;
}

// Why a key holds nothing: the last of its registry entries says so.
void explainMissing(const StLoadReport& stReport, const std::string& strKey)
{
    for (const StDevTypeLoad& stLoad : stReport.lstDevType)
    {
        if (stLoad.strKey == strKey)
            fmt::print(stderr, "opxml: {} {} {}\n", stLoad.strDevType, stLoad.strDevTypeVer, failureText(stLoad));
    }
}

int runShow(const StGlobalOptions& stGlobal, const StShowOptions& stOptions)
{
    openRoot(stGlobal);
    const StLoadReport stReport = CXMLConfigDatabase::getInstance()->getLoadReport();
    if (findKeys(stReport, stOptions.strName).empty())
    {
        fmt::print(stderr, "opxml: {}\n", unknownTypeText(stReport, stOptions.strName));
        return EXIT_NO;
    }
    const std::set<std::string> setKey = findKeys(stReport, stOptions.strName, stOptions.strVersion);
    if (setKey.empty())
    {
        fmt::print(stderr, "opxml: device type \"{}\" has no version \"{}\"; it has", stOptions.strName,
                   stOptions.strVersion);
        for (const StDevTypeLoad& stLoad : stReport.lstDevType)
        {
            if (stLoad.strDevType == stOptions.strName)
                fmt::print(stderr, " \"{}\"", stLoad.strDevTypeVer);
        }
        fmt::print(stderr, "\n");
        return EXIT_NO;
    }
    Json oJson = Json::object();
    int  nExit = EXIT_YES;
    for (const std::string& strKey : setKey)
    {
        if (showKey(stReport, strKey, stOptions.bJson ? &oJson : nullptr))
            continue;
        explainMissing(stReport, strKey);
        nExit = EXIT_NO;
    }
    if (stOptions.bJson)
        print(jsonText(oJson) + "\n");
    return nExit;
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
