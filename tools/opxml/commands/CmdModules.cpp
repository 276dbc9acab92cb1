// opxml modules: the module files, what each adds to which device types, the
// names that no device type has, and the files and folders that were not read.
#include "database/CXMLConfigDatabase.h"
#include "tools/opxml/commands/Command.h"
#include "tools/opxml/output/DevTypes.h"
#include "tools/opxml/output/Names.h"
#include "tools/opxml/output/Progress.h"
#include "tools/opxml/output/RecordJson.h"
#include "tools/opxml/output/Sections.h"
#include "tools/opxml/output/Terminal.h"
#include "tools/opxml/output/Text.h"
#include "tools/opxml/output/Tree.h"

#include <fmt/format.h>

#include <algorithm>
#include <map>
#include <memory>
#include <set>

namespace
{
// What the database keeps of one module.
struct StModule
{
    SectionCounts            arRead  = {};
    SectionCounts            arAdded = {}; // without menus and tabs
    std::vector<std::string> lstSupport;
};

struct StModules
{
    StLoadReport                    stReport;
    std::map<std::string, StModule> mapModule;
    std::vector<std::string>        lstTypeName;      // of the registry
    std::set<std::string>           setLoaded;        // types with a configuration
    std::vector<std::string>        lstFolderProblem; // folders and entries that could not be looked into
};

StModules loadModules()
{
    StModules           stModules;
    CXMLConfigDatabase* pDatabase = nullptr;
    {
        const CProgress oProgress;
        pDatabase = CXMLConfigDatabase::getInstance();
    }
    stModules.stReport = pDatabase->getLoadReport();
    for (const StReadProblem& stProblem : stModules.stReport.lstModuleProblem)
        stModules.lstFolderProblem.push_back(shortPath(stProblem.strFile) + ": " + problemText(stProblem));
    for (const StDevTypeLoad& stLoad : stModules.stReport.lstDevType)
    {
        stModules.lstTypeName.push_back(stLoad.strDevType);
        if (stLoad.isConfigured())
            stModules.setLoaded.insert(stLoad.strDevType);
    }
    pDatabase->visitModules(
        [&stModules](const std::string& strName, const StAsnModuleInfoVerXMLInfo& stModule)
        {
            stModules.mapModule[strName] = {countSections(stModule),
                                            countAdded(stModule),
                                            {stModule.lstSupportDevType.begin(), stModule.lstSupportDevType.end()}};
        });
    return stModules;
}

bool isRegistered(const StModules& stModules, const std::string& strType)
{
    const auto& lstName = stModules.lstTypeName;
    return std::find(lstName.begin(), lstName.end(), strType) != lstName.end();
}

// Why a file is no module, in words.
std::string moduleFailure(const StModuleLoad& stLoad)
{
    return stLoad.stProblem.isSet() ? problemText(stLoad.stProblem) : "result " + resultText(stLoad.ulResult);
}

// "Device operations 1, Check operations 2"; empty when there are none.
std::string countsText(const SectionCounts& arCount)
{
    std::string strText;
    for (std::size_t nAt = 0; nAt < SECTION_COUNT; ++nAt)
    {
        if (arCount[nAt] != 0)
            strText += fmt::format("{}{} {}", strText.empty() ? "" : ", ", SECTION_TITLES[nAt].pszTitle, arCount[nAt]);
    }
    return strText;
}

void addSupport(StTree& stTree, const StModules& stModules, const StModule& stModule)
{
    StTree&               stSupport = stTree.add(stModule.lstSupport.empty() ? "supports no device type" : "supports");
    std::set<std::string> setSeen;
    for (const std::string& strType : stModule.lstSupport)
    {
        std::string strLine = strType;
        if (!setSeen.insert(strType).second)
            strLine += " (again: everything is added once more)";
        if (!isRegistered(stModules, strType))
            strLine += ": no such device type" + nearestNames(strType, stModules.lstTypeName);
        else if (stModules.setLoaded.count(strType) == 0)
            strLine += ": has no configuration; opxml load says why";
        stSupport.add(strLine);
    }
}

std::string modulesText(const StModules& stModules)
{
    std::string strText;
    for (const StModuleLoad& stLoad : stModules.stReport.lstModule)
    {
        const std::string strFile = shortPath(stLoad.strFile);
        if (stLoad.ulResult != 0)
        {
            const std::string strFailure = printable(strFile + ": failed: " + moduleFailure(stLoad));
            for (const std::string& strLine : wrapText(strFailure, widthOf(stdout), 2))
                strText += inRed(strLine) + "\n";
            continue;
        }
        const StModule& stModule = stModules.mapModule.at(stLoad.strName);
        StTree          stTree   = {stLoad.strName, {}};
        stTree.add("file " + strFile);
        SectionCounts arNotAdded = {};
        for (std::size_t nAt = 0; nAt < SECTION_COUNT; ++nAt)
            arNotAdded[nAt] = stModule.arRead[nAt] - stModule.arAdded[nAt];
        const std::string strAdded    = countsText(stModule.arAdded);
        const std::string strNotAdded = countsText(arNotAdded);
        stTree.add(strAdded.empty() ? "adds nothing" : "adds " + strAdded);
        if (!strNotAdded.empty())
            stTree.add("read, but not added: " + strNotAdded);
        addSupport(stTree, stModules, stModule);
        strText += treeText(stTree);
    }
    return strText;
}

Json moduleJson(const StModules& stModules, const StModuleLoad& stLoad)
{
    Json oModule = {{"name", stLoad.strName}, {"file", stLoad.strFile}, {"result", stLoad.ulResult}};
    if (stLoad.ulResult != 0)
    {
        oModule["reason"] = moduleFailure(stLoad);
        return oModule;
    }
    const StModule& stModule = stModules.mapModule.at(stLoad.strName);
    for (std::size_t nAt = 0; nAt < SECTION_COUNT; ++nAt)
    {
        oModule["read"][SECTION_TITLES[nAt].pszField]  = stModule.arRead[nAt];
        oModule["added"][SECTION_TITLES[nAt].pszField] = stModule.arAdded[nAt];
    }
    oModule["supports"] = Json::array();
    for (const std::string& strType : stModule.lstSupport)
        oModule["supports"].push_back({{"type", strType},
                                       {"registered", isRegistered(stModules, strType)},
                                       {"loaded", stModules.setLoaded.count(strType) != 0}});
    return oModule;
}

std::string modulesJson(const StModules& stModules)
{
    Json oModules = Json::array();
    for (const StModuleLoad& stLoad : stModules.stReport.lstModule)
        oModules.push_back(moduleJson(stModules, stLoad));
    return jsonText({{"modules", oModules}, {"folderProblems", stModules.lstFolderProblem}}) + "\n";
}

int runModules(const StGlobalOptions& stOptions, bool bJson)
{
    openRoot(stOptions);
    const StModules stModules = loadModules();
    bool            bAllRead  = stModules.lstFolderProblem.empty() && !stModules.mapModule.empty();
    for (const StModuleLoad& stLoad : stModules.stReport.lstModule)
        bAllRead = bAllRead && stLoad.ulResult == 0;
    print(bJson ? modulesJson(stModules) : modulesText(stModules));
    for (const std::string& strProblem : stModules.lstFolderProblem)
        remark(strProblem);
    if (stModules.stReport.lstModule.empty())
        remark("there are no module files");
    return bAllRead ? EXIT_YES : EXIT_NO;
}
} // namespace

void addModulesCommand(CLI::App& oApp, StTool& stTool)
{
    CLI::App* pCommand = oApp.add_subcommand("modules", "Show the modules, what they add, and to which device types");
    auto      pJson    = std::make_shared<bool>(false);
    pCommand->add_flag("--json", *pJson, "Print JSON");
    pCommand->footer("Exit status: 0 all read, 1 some file or folder was not, or there are none, 2 trouble.");
    pCommand->callback([&stTool, pJson]
                       { stTool.fnRun = [&stTool, pJson] { return runModules(stTool.stOptions, *pJson); }; });
}
