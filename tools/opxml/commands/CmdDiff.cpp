// opxml diff: what changed between two server roots, or two configuration files, and
// whom it hurts.
#include "tools/opxml/commands/Command.h"
#include "tools/opxml/diff/RootDiff.h"
#include "tools/opxml/difftext/DiffPrinter.h"
#include "tools/opxml/output/Terminal.h"
#include "tools/opxml/output/Text.h"

#include <filesystem>
#include <memory>
#include <system_error>

namespace
{
struct StDiffOptions
{
    std::string              strOld;
    std::string              strNew;
    std::vector<std::string> lstType;
    std::string              strFormat = "text";
    std::string              strFailOn = "any";
    bool                     bRules    = false;
};

int printRules(const std::string& strFormat)
{
    if (strFormat == "json")
        print(diffRulesJson());
    else
        print(strFormat == "markdown" ? diffRulesMarkdown() : diffRulesText());
    return EXIT_YES;
}

bool isFolder(const std::string& strPath)
{
    std::error_code oProblem;
    const bool      bExists = std::filesystem::exists(strPath, oProblem);
    if (oProblem || !bExists)
        throw CTrouble(printable(strPath) + ": " +
                       (oProblem ? oProblem : std::make_error_code(std::errc::no_such_file_or_directory)).message());
    return std::filesystem::is_directory(strPath, oProblem);
}

StDiff compare(const StDiffOptions& stOptions)
{
    const bool bRoots = isFolder(stOptions.strOld);
    if (bRoots != isFolder(stOptions.strNew))
        throw CTrouble("compare two server roots, or two configuration files: not one with the other");
    if (bRoots)
        return diffRoots(stOptions.strOld, stOptions.strNew, stOptions.lstType);
    if (!stOptions.lstType.empty())
        throw CTrouble("TYPE goes with two server roots");
    return diffFiles(stOptions.strOld, stOptions.strNew);
}

int runDiff(const StGlobalOptions& stGlobal, const StDiffOptions& stOptions)
{
    if (stOptions.bRules)
        return printRules(stOptions.strFormat);
    if (stOptions.strNew.empty())
        throw CTrouble("name two server roots, or two configuration files: OLD and NEW");
    applyOptions(stGlobal);
    const StDiff stDiff = compare(stOptions);
    if (stOptions.strFormat == "json")
        printDiffJson(stDiff, print);
    else if (stOptions.strFormat == "markdown")
        printDiffMarkdown(stDiff, print);
    else
        printDiffText(stDiff, print);
    if (!stDiff.isEmpty())
        remark(diffSummary(stDiff));
    const bool bBreaking = !stDiff.isEmpty() && stDiff.lstChange.front().pRule->enImpact == EnImpact::Breaking;
    return (stOptions.strFailOn == "breaking" ? bBreaking : !stDiff.isEmpty()) ? EXIT_NO : EXIT_YES;
}
} // namespace

void addDiffCommand(CLI::App& oApp, StTool& stTool)
{
    CLI::App* pCommand = oApp.add_subcommand("diff", "Say what changed between two server roots, and whom it hurts");
    auto      pOptions = std::make_shared<StDiffOptions>();
    pCommand->add_option("OLD", pOptions->strOld, "Server root, or configuration file, as it was");
    pCommand->add_option("NEW", pOptions->strNew, "The same as it is now");
    pCommand->add_option("TYPE", pOptions->lstType, "Only these device types: TYPE, or TYPE:VERSION");
    pCommand->add_option("--format", pOptions->strFormat, "How changes are printed")
        ->check(CLI::IsMember({"text", "json", "markdown"}))
        ->capture_default_str();
    pCommand->add_option("--fail-on", pOptions->strFailOn, "Changes that give exit status 1")
        ->check(CLI::IsMember({"breaking", "any"}))
        ->capture_default_str();
    pCommand->add_flag("--rules", pOptions->bRules,
                       "List the rules by which a change is breaking, compatible, cosmetic");
    pCommand->footer("Exit status: 0 no change, or none that --fail-on asks for; 1 changes; 2 trouble.");
    pCommand->callback([&stTool, pOptions]
                       { stTool.fnRun = [&stTool, pOptions] { return runDiff(stTool.stOptions, *pOptions); }; });
}
