// The tool: questions a second in a batch, and what a single question costs.
#include "Measure.h"
#include "Roots.h"
#include "Targets.h"

#include "ConfigText.h"
#include "ServerRootText.h"

#include <fmt/format.h>

#include <fstream>
#include <stdexcept>

namespace
{
constexpr std::size_t QUESTIONS = 1000000;

constexpr StTarget BATCH_TARGET    = {"batch", "questions a second of `opxml query --batch`, example server, one core",
                                      "≥ 200,000", 200000, true};
constexpr StTarget START_TARGET    = {"start of the tool", "`opxml query` ÷ `opxml load`, example server", "≤ 2", 2};
constexpr StTarget QUESTION_TARGET = {
    "one question in a large root", "elapsed of `opxml query isDeviceOpSupported …` on 10,000 types", "≤ 0.25 s", 0.25};
constexpr StTarget SHARE_TARGET = {"the same against a load", "÷ elapsed of `opxml load`, two threads", "≤ 2 %", 0.02};
constexpr StTarget ROOT_TARGET = {"start without a load",
                                  "which of `opxml --help` and `opxml filecheck` want a server root", "none", 0};

const std::string EXAMPLE_SERVER = EXAMPLE_FOLDER "/server";

// CPU seconds of the tool, which must end with the exit status.
double cpuOfTool(const std::vector<std::string>& lstArgument, int nExit = 0)
{
    std::vector<std::string> lstWhole = {OPXML_PROGRAM, "--root", EXAMPLE_SERVER};
    lstWhole.insert(lstWhole.end(), lstArgument.begin(), lstArgument.end());
    const StChild stChild = runChild(lstWhole);
    if (stChild.nExit != nExit)
        throw std::runtime_error("opxml " + lstArgument.front() + " failed");
    return stChild.dCpu;
}

std::string batchFile(std::size_t nQuestions)
{
    constexpr const char* LINES[] = {
        R"(["isDeviceOpSupported","LX 2400/S","V3.7","Backup"])",
        R"(["isDeviceOpSupported","RX 7600+","R12","NoSuchOperation"])",
        R"(["isOtherOpSupported","OLT-880","A2.4","SAM"])",
        R"(["getSAMContentTypeID","LX 2400/S","V3.7",101])",
        R"(["isDeviceOpParaSupported","Fjord-DC 32","F2.1","Backup","ContentType"])",
        R"(["getContentTypeId",101,1])",
    };
    const std::string strPath = (workFolder() / (std::to_string(nQuestions) + ".jsonl")).string();
    std::ofstream     oFile(strPath);
    for (std::size_t nQuestion = 0; nQuestion < nQuestions; ++nQuestion)
        oFile << LINES[nQuestion % std::size(LINES)] << '\n';
    return strPath;
}

void measureBatch(benchmark::State& oState)
{
    const std::string  strFew       = batchFile(1); // what the start takes
    const std::string  strMany      = batchFile(QUESTIONS);
    const StComparison stComparison = alternate(
        [&] {
            return cpuOfTool({"query", "--batch", strMany});
        },
        [&] {
            return cpuOfTool({"query", "--batch", strFew});
        });
    const double dSeconds = stComparison.dOne - stComparison.dOther;
    oState.SetIterationTime(dSeconds);
    answer(oState, BATCH_TARGET, QUESTIONS / dSeconds, fmt::format("{:.2f} million", QUESTIONS / dSeconds / 1e6));
}

void measureStart(benchmark::State& oState)
{
    const auto fnAsk  = [] { return cpuOfTool({"query", "isDeviceOpSupported", "LX 2400/S", "V3.7", "Backup"}); };
    const auto fnLoad = [] { return cpuOfTool({"load"}, 1); }; // two types are broken on purpose
    const StComparison stComparison = alternate(fnAsk, fnLoad);
    oState.SetIterationTime(stComparison.dOne);
    answer(oState, START_TARGET, stComparison.dRatio,
           fmt::format("{:.2f} ({:.0f} ms ÷ {:.0f} ms)", stComparison.dRatio, stComparison.dOne * 1e3,
                       stComparison.dOther * 1e3));
}

void measureQuestion(benchmark::State& oState)
{
    constexpr std::size_t TYPES   = 10000;
    const std::string     strRoot = rootOf(TYPES).string();
    std::vector<double>   lstWall;
    for (std::size_t nType = 0; nType < ROUNDS; ++nType) // one anywhere among them
        lstWall.push_back(runChild({OPXML_PROGRAM, "--root", strRoot, "query", "isDeviceOpSupported",
                                    deviceTypeName(nType * TYPES / ROUNDS), TYPE_VERSION, "Backup"})
                              .dWall);
    const double dWall = median(lstWall);
    const double dLoad = runChild({OPXML_PROGRAM, "--root", strRoot, "--jobs", "2", "load"}).dWall;
    oState.SetIterationTime(dWall);
    answer(oState, QUESTION_TARGET, dWall, fmt::format("{:.3f} s", dWall));
    answer(oState, SHARE_TARGET, dWall / dLoad, fmt::format("{:.1f} % ({:.1f} s)", dWall / dLoad * 100, dLoad));
}

// A command that loads nothing does not miss the root either.
void measureNoRoot(benchmark::State& oState)
{
    const std::string strNoRoot = (workFolder() / "no-such-root").string();
    std::string       strWant;
    double            dWant = 0;
    const double      dCpu  = cpuSeconds();
    for (const std::vector<std::string>& lstArgument :
         {std::vector<std::string>{"--help"}, {"filecheck", EXAMPLE_SERVER + "/file_check.xml"}})
    {
        std::vector<std::string> lstWhole = {OPXML_PROGRAM, "--root", strNoRoot};
        lstWhole.insert(lstWhole.end(), lstArgument.begin(), lstArgument.end());
        if (runChild(lstWhole).nExit == 0)
            continue;
        strWant += (dWant > 0 ? ", " : "") + lstArgument.front();
        dWant += 1;
    }
    oState.SetIterationTime(cpuSeconds() - dCpu);
    answer(oState, ROOT_TARGET, dWant, dWant > 0 ? strWant : "none");
}
} // namespace

void addToolBenchmarks()
{
    measureOnce("tool/batch", measureBatch, {BATCH_TARGET});
    measureOnce("tool/start", measureStart, {START_TARGET});
    measureOnce("tool/question", measureQuestion, {QUESTION_TARGET, SHARE_TARGET});
    measureOnce("tool/no-load", measureNoRoot, {ROOT_TARGET});
}
