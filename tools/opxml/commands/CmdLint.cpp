// opxml lint: what is wrong with the files of a server, or with some files alone.
// Findings go to stdout in the format that is asked for, the summary to stderr.
#include "lint/Lint.h"
#include "tools/opxml/commands/Command.h"
#include "tools/opxml/lint/Baseline.h"
#include "tools/opxml/lint/FindingPrinter.h"
#include "tools/opxml/lint/LintRoot.h"
#include "tools/opxml/lint/RuleText.h"
#include "tools/opxml/output/Terminal.h"
#include "tools/opxml/output/Text.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <memory>
#include <set>
#include <system_error>
#include <vector>

namespace
{
struct StLintOptions
{
    std::vector<std::string> lstFile;
    std::string              strKind;
    std::string              strFormat = "text";
    std::string              strFailOn = "warning";
    std::vector<std::string> lstOnly;
    std::vector<std::string> lstWithout;
    std::string              strBaseline;
    std::string              strWriteBaseline;
    std::string              strExplain;
    bool                     bRules = false;
};

struct StKindName
{
    const char*      pszName;
    lint::EnFileKind enKind;
};

constexpr StKindName KIND_NAMES[] = {
    {"configuration", lint::EnFileKind::Configuration},
    {"module", lint::EnFileKind::Module},
    {"capacity", lint::EnFileKind::Capacity},
    {"telnet-check", lint::EnFileKind::TelnetCheck},
    {"fixed-check", lint::EnFileKind::FixedCheck},
    {"alarm-explanations", lint::EnFileKind::AlarmExplanation},
    {"alarm-registrations", lint::EnFileKind::AlarmRegistration},
    {"file-check", lint::EnFileKind::FileCheck},
};

constexpr lint::EnSeverity SEVERITIES[] = {lint::EnSeverity::Note, lint::EnSeverity::Warning, lint::EnSeverity::Error};

std::vector<std::string> kindNames()
{
    std::vector<std::string> lstName;
    for (const StKindName& stKind : KIND_NAMES)
        lstName.emplace_back(stKind.pszName);
    return lstName;
}

lint::EnFileKind kindOf(const std::string& strName)
{
    for (const StKindName& stKind : KIND_NAMES)
    {
        if (strName == stKind.pszName)
            return stKind.enKind;
    }
    return lint::EnFileKind::Unknown;
}

std::set<std::string> ruleSet(const std::vector<std::string>& lstRule)
{
    for (const std::string& strRule : lstRule)
        requireRule(strRule);
    return {lstRule.begin(), lstRule.end()};
}

std::unique_ptr<CFindingPrinter> makePrinter(const std::string& strFormat)
{
    if (strFormat == "json")
        return makeJsonPrinter();
    if (strFormat == "sarif")
        return makeSarifPrinter(OPXML_VERSION);
    if (strFormat == "github")
        return makeGithubPrinter();
    return makeTextPrinter();
}

// Takes the findings as they come, leaves out what was not asked for, and counts
// what is printed.
class CFindingFilter
{
public:
    CFindingFilter(const StLintOptions& stOptions, std::string strRoot)
        : m_setOnly(ruleSet(stOptions.lstOnly)), m_setWithout(ruleSet(stOptions.lstWithout)),
          m_strRoot(std::move(strRoot)), m_pPrinter(makePrinter(stOptions.strFormat))
    {
        if (!stOptions.strBaseline.empty())
            m_oBaseline.read(stOptions.strBaseline);
        m_pPrinter->begin();
    }

    void take(const lint::StFinding& stFinding)
    {
        if ((!m_setOnly.empty() && m_setOnly.count(stFinding.strRule) == 0) ||
            m_setWithout.count(stFinding.strRule) != 0)
            return;
        const std::string strFile        = belowRoot(stFinding.strFile);
        const std::string strFingerprint = m_oFingerprints.next(stFinding, strFile);
        m_oBaseline.add(strFingerprint, stFinding.strRule, strFile);
        if (m_oBaseline.covers(strFingerprint))
        {
            ++m_nKnown;
            return;
        }
        ++m_arCount[static_cast<std::size_t>(stFinding.enSeverity)];
        m_pPrinter->print({stFinding, strFingerprint});
    }

    void end() { m_pPrinter->end(); }

    const CBaseline& baseline() const { return m_oBaseline; }

    bool hasAtLeast(const std::string& strSeverity) const
    {
        bool bCounts = false;
        for (const lint::EnSeverity enSeverity : SEVERITIES)
        {
            bCounts = bCounts || strSeverity == severityName(enSeverity);
            if (bCounts && m_arCount[static_cast<std::size_t>(enSeverity)] != 0)
                return true;
        }
        return false;
    }

    std::string summary(std::size_t nFiles) const
    {
        std::string              strText = fmt::format("{} file{}: ", nFiles, nFiles == 1 ? "" : "s");
        std::vector<std::string> lstCount;
        for (std::size_t nAt = m_arCount.size(); nAt-- > 0;)
        {
            if (m_arCount[nAt] != 0)
                lstCount.push_back(fmt::format("{} {}{}", m_arCount[nAt], severityName(SEVERITIES[nAt]),
                                               m_arCount[nAt] == 1 ? "" : "s"));
        }
        strText += lstCount.empty() ? "no findings" : fmt::format("{}", fmt::join(lstCount, ", "));
        if (m_nKnown != 0)
            strText += fmt::format(", {} known from the baseline", m_nKnown);
        return strText;
    }

private:
    std::string belowRoot(const std::string& strFile) const
    {
        const std::string strPrefix = m_strRoot + "/";
        return strFile.compare(0, strPrefix.size(), strPrefix) == 0 ? strFile.substr(strPrefix.size()) : strFile;
    }

    std::set<std::string>            m_setOnly;
    std::set<std::string>            m_setWithout;
    std::string                      m_strRoot;
    std::unique_ptr<CFindingPrinter> m_pPrinter;
    CFingerprints                    m_oFingerprints;
    CBaseline                        m_oBaseline;
    std::array<std::size_t, 3>       m_arCount = {};
    std::size_t                      m_nKnown  = 0;
};

// A file that is not there is trouble of the caller, not a finding.
void requireFiles(const std::vector<std::string>& lstFile)
{
    for (const std::string& strFile : lstFile)
    {
        std::error_code oProblem;
        if (!std::filesystem::exists(strFile, oProblem))
            throw CTrouble(
                printable(strFile) + ": " +
                (oProblem ? oProblem.message() : std::make_error_code(std::errc::no_such_file_or_directory).message()));
        if (!std::filesystem::is_regular_file(strFile, oProblem))
            throw CTrouble(printable(strFile) + ": not a regular file");
    }
}

std::size_t lintFiles(const StLintOptions& stOptions, CFindingFilter& oFilter)
{
    requireFiles(stOptions.lstFile);
    std::vector<std::string> lstFile = stOptions.lstFile;
    std::sort(lstFile.begin(), lstFile.end());
    lstFile.erase(std::unique(lstFile.begin(), lstFile.end()), lstFile.end());
    std::size_t nUnknown = 0;
    for (const std::string& strFile : lstFile)
    {
        if (lint::lintFile(strFile, kindOf(stOptions.strKind),
                           [&](const lint::StFinding& stFinding) { oFilter.take(stFinding); }))
            continue;
        ++nUnknown;
        fmt::print(stderr, "opxml: {}: what the file holds cannot be told from its name and content; say --kind\n",
                   printable(strFile));
    }
    if (nUnknown != 0)
        throw CTrouble(fmt::format("{} of {} files not checked", nUnknown, lstFile.size()));
    return lstFile.size();
}

int runLint(const StGlobalOptions& stGlobal, const StLintOptions& stOptions)
{
    if (stOptions.bRules)
        return printRules();
    if (!stOptions.strExplain.empty())
        return printExplanation(stOptions.strExplain);

    const bool bServer = stOptions.lstFile.empty();
    if (bServer && !stOptions.strKind.empty())
        throw CTrouble("--kind goes with files");
    if (bServer)
        openRoot(stGlobal);
    else
        applyOptions(stGlobal);
    CFindingFilter    oFilter(stOptions, stGlobal.strRoot);
    const std::size_t nFiles =
        bServer ? lintRoot(stGlobal.strRoot, [&](const lint::StFinding& stFinding) { oFilter.take(stFinding); })
                : lintFiles(stOptions, oFilter);
    oFilter.end();
    if (!stOptions.strWriteBaseline.empty())
        oFilter.baseline().write(stOptions.strWriteBaseline);
    remark(oFilter.summary(nFiles));
    if (!bServer)
        remark("Files alone: what needs the rest of a server (modules, capacity, inventory) is left out");
    return oFilter.hasAtLeast(stOptions.strFailOn) && stOptions.strWriteBaseline.empty() ? EXIT_NO : EXIT_YES;
}
} // namespace

void addLintCommand(CLI::App& oApp, StTool& stTool)
{
    CLI::App* pCommand =
        oApp.add_subcommand("lint", "Name what is wrong with the files of a server, or with some files");
    auto pOptions = std::make_shared<StLintOptions>();
    pCommand->add_option("FILE", pOptions->lstFile, "Check these files alone; without one, everything below the root");
    pCommand->add_option("--kind", pOptions->strKind, "What the files hold, when name and content do not tell")
        ->check(CLI::IsMember(kindNames()));
    pCommand->add_option("--format", pOptions->strFormat, "How findings are printed")
        ->check(CLI::IsMember({"text", "json", "sarif", "github"}))
        ->capture_default_str();
    pCommand->add_option("--fail-on", pOptions->strFailOn, "Least severity that gives exit status 1")
        ->check(CLI::IsMember({"error", "warning", "note"}))
        ->capture_default_str();
    pCommand->add_option("--only", pOptions->lstOnly, "Apply this rule only; may be given several times")
        ->type_name("RULE")
        ->take_all()
        ->allow_extra_args(false);
    pCommand->add_option("--without", pOptions->lstWithout, "Leave this rule out; may be given several times")
        ->type_name("RULE")
        ->take_all()
        ->allow_extra_args(false);
    pCommand->add_option("--baseline", pOptions->strBaseline, "Leave out the findings that this file knows")
        ->type_name("FILE");
    pCommand
        ->add_option("--write-baseline", pOptions->strWriteBaseline,
                     "Write what is found to this file, as the baseline to start from; exit status 0")
        ->type_name("FILE");
    auto* pRules = pCommand->add_flag("--rules", pOptions->bRules, "List the rules");
    pCommand->add_option("--explain", pOptions->strExplain, "Why a rule is there, with a wrong and a right example")
        ->type_name("RULE")
        ->excludes(pRules);
    pCommand->footer("A finding that is meant is allowed by a comment before the element:\n"
                     "  <!-- opxml-lint: allow RULE because TEXT -->\n"
                     "Exit status: 0 nothing found, 1 findings, 2 trouble.");
    pCommand->callback([&stTool, pOptions]
                       { stTool.fnRun = [&stTool, pOptions] { return runLint(stTool.stOptions, *pOptions); }; });
}
