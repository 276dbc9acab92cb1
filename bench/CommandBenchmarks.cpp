// The commands that read every type, held against a load of the same root: lint, the
// page, a comparison. Each run is a process of its own.
#include "Measure.h"
#include "Roots.h"
#include "Targets.h"

#include "ServerRootText.h"

#include <fmt/format.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace
{
constexpr std::size_t TYPES = 1000;

constexpr StTarget LINT_TARGET = {"lint", "CPU of `opxml lint` ÷ `opxml load`, 1,000 types, one thread", "≤ 2.5", 2.5};
constexpr StTarget PAGE_TARGET = {"page", "CPU of `opxml report` ÷ `opxml load`, 1,000 types, one thread", "≤ 2", 2};
constexpr StTarget PAGE_OF_TWO_TARGET = {"page, elapsed", "the same elapsed, both with two threads", "≤ 2", 2};
constexpr StTarget DIFF_TARGET        = {
           "comparison",
           "CPU of `opxml diff` with an operation changed in each of 1,000 files ÷ `opxml load` of one root, one thread",
           "≤ 2.3", 2.3};

StChild runTool(const std::filesystem::path& oRoot, const char* pszJobs, std::vector<std::string> lstArgument)
{
    lstArgument.insert(lstArgument.begin(), {OPXML_PROGRAM, "--root", oRoot.string(), "--jobs", pszJobs});
    StChild stChild = runChild(lstArgument);
    if (stChild.nExit > 1) // 1: there is something to tell
        throw std::runtime_error(lstArgument[5] + " failed");
    return stChild;
}

// One command against the load of the root, in turn.
StComparison againstLoad(const char* pszJobs, double StChild::*pSeconds, const std::vector<std::string>& lstArgument)
{
    const std::filesystem::path oRoot = rootOf(TYPES);
    return alternate([&] { return runTool(oRoot, pszJobs, lstArgument).*pSeconds; },
                     [&] { return runTool(oRoot, pszJobs, {"load"}).*pSeconds; });
}

void answerWith(benchmark::State& oState, const StTarget& stTarget, const StComparison& stComparison)
{
    answer(oState, stTarget, stComparison.dRatio,
           fmt::format("{:.2f} ({:.2f} s ÷ {:.2f} s)", stComparison.dRatio, stComparison.dOne, stComparison.dOther));
}

void measureLint(benchmark::State& oState)
{
    const StComparison stComparison = againstLoad("1", &StChild::dCpu, {"lint"});
    oState.SetIterationTime(stComparison.dOne);
    answerWith(oState, LINT_TARGET, stComparison);
}

void measurePage(benchmark::State& oState)
{
    const std::vector<std::string> lstArgument  = {"report", "--output", (workFolder() / "page.html").string()};
    const StComparison             stComparison = againstLoad("1", &StChild::dCpu, lstArgument);
    oState.SetIterationTime(stComparison.dOne);
    answerWith(oState, PAGE_TARGET, stComparison);
    answerWith(oState, PAGE_OF_TWO_TARGET, againstLoad("2", &StChild::dWall, lstArgument));
}

// Another text of one operation.
void changeFile(const std::filesystem::path& oFile)
{
    std::ifstream     oInput(oFile, std::ios::binary);
    std::string       strText(std::istreambuf_iterator<char>(oInput), {});
    const std::size_t nAt = strText.find(" operDescription=\"");
    if (nAt == std::string::npos)
        throw std::runtime_error("no operation in " + oFile.string());
    strText.insert(strText.find('"', nAt) + 1, "New: ");
    if (!(std::ofstream(oFile, std::ios::binary | std::ios::trunc) << strText).flush())
        throw std::runtime_error("cannot write " + oFile.string());
}

void measureDiff(benchmark::State& oState)
{
    StRootWish stWish;
    stWish.oFolder = workFolder() / "changed";
    stWish.nTypes  = TYPES;
    writeServerRoot(stWish);
    for (std::size_t nType = 0; nType < TYPES; ++nType)
        changeFile(configFile(stWish.oFolder, nType));
    const StComparison stComparison =
        againstLoad("1", &StChild::dCpu, {"diff", rootOf(TYPES).string(), stWish.oFolder.string()});
    std::filesystem::remove_all(stWish.oFolder);
    oState.SetIterationTime(stComparison.dOne);
    answerWith(oState, DIFF_TARGET, stComparison);
}
} // namespace

void addCommandBenchmarks()
{
    measureOnce("command/lint", measureLint, {LINT_TARGET});
    measureOnce("command/page", measurePage, {PAGE_TARGET, PAGE_OF_TWO_TARGET});
    measureOnce("command/diff", measureDiff, {DIFF_TARGET});
}
