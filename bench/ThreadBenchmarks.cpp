// What a load gains from a second thread, and from reading each file once. Each load
// is a process of its own.
#include "LoadProbe.h"
#include "Measure.h"
#include "Roots.h"
#include "Targets.h"

#include "ConfigText.h"
#include "ServerRootText.h"
#include "reader/CDevTypeXMLResReader.h"

#include <fmt/format.h>

#include <chrono>
#include <stdexcept>

namespace
{
constexpr std::size_t TYPES = 1000;

constexpr StTarget ELAPSED_TARGET = {
    "two threads, elapsed", "elapsed with 2 threads ÷ with 1, 1,000 types with files of their own", "≤ 0.58", 0.58};
constexpr StTarget BARE_TARGET   = {"two threads, against the bare parse",
                                    "elapsed with 2 threads ÷ bare parse of the same files on one thread", "≤ 0.70",
                                    0.70};
constexpr StTarget CPU_TARGET    = {"two threads, CPU", "CPU with 2 threads ÷ with 1", "≤ 1.05", 1.05};
constexpr StTarget COMMON_TARGET = {
    "common file", "CPU of a load of 1,000 types on one common file of 96 KB ÷ parsing it for each", "≤ 0.20", 0.20};
constexpr StTarget VERSIONS_TARGET = {
    "versions", "CPU of a load of 1,000 types, each in three versions ÷ three loads of one version", "≤ 0.45", 0.45};

double elapsed(const std::function<void()>& fnWork)
{
    const auto oStart = std::chrono::steady_clock::now();
    fnWork();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - oStart).count();
}

void measureTwoThreads(benchmark::State& oState)
{
    const std::filesystem::path oRoot   = rootOf(TYPES);
    const auto                  lstFile = filesOf(TYPES);
    std::vector<double>         lstElapsed;
    std::vector<double>         lstBare;
    std::vector<double>         lstCpu;
    std::vector<double>         lstWall;
    for (int nRound = 0; nRound < ROUNDS; ++nRound)
    {
        const StLoadProbe stOne = probeLoad(oRoot, 1);
        const StLoadProbe stTwo = probeLoad(oRoot, 2);
        const double      dBare = elapsed([&lstFile] { bareParse(lstFile); });
        lstElapsed.push_back(stTwo.dWall / stOne.dWall);
        lstBare.push_back(stTwo.dWall / dBare);
        lstCpu.push_back(stTwo.dCpu / stOne.dCpu);
        lstWall.push_back(stTwo.dWall);
    }
    oState.SetIterationTime(median(lstWall));
    answer(oState, ELAPSED_TARGET, median(lstElapsed),
           fmt::format("{:.2f} ({:.2f} s)", median(lstElapsed), median(lstWall)));
    answer(oState, BARE_TARGET, median(lstBare), fmt::format("{:.2f}", median(lstBare)));
    answer(oState, CPU_TARGET, median(lstCpu), fmt::format("{:.2f}", median(lstCpu)));
}

// What a load without a memory does: every type by itself.
double readEachType()
{
    const double                       dStart = cpuSeconds();
    std::list<StAsnDevTypeVerXMLInfo*> lstAll;
    for (std::size_t nType = 0; nType < TYPES; ++nType)
    {
        std::list<StAsnDevTypeVerXMLInfo*> lstInfo;
        if (CDevTypeXMLResReader(deviceTypeName(nType), TYPE_VERSION, false).readDevTypeVerXMLFile(lstInfo) != 0)
            throw std::runtime_error("cannot read " + deviceTypeName(nType));
        lstAll.splice(lstAll.end(), lstInfo);
    }
    const double dTook = cpuSeconds() - dStart;
    for (const StAsnDevTypeVerXMLInfo* pInfo : lstAll)
        delete pInfo;
    return dTook;
}

std::string figureText(const StComparison& stComparison)
{
    return fmt::format("{:.2f} ({:.2f} s ÷ {:.2f} s)", stComparison.dRatio, stComparison.dOne, stComparison.dOther);
}

void measureCommon(benchmark::State& oState)
{
    StRootWish stWish;
    stWish.oFolder = workFolder() / "common";
    stWish.nTypes  = TYPES;
    stWish.bCommon = true;
    writeServerRoot(stWish);
    openRoot(stWish.oFolder);
    const StComparison stComparison = alternate([&] { return probeLoad(stWish.oFolder, 1).dCpu; }, readEachType);
    oState.SetIterationTime(stComparison.dOne);
    answer(oState, COMMON_TARGET, stComparison.dRatio, figureText(stComparison));
}

void measureVersions(benchmark::State& oState)
{
    const std::filesystem::path oOneVersion = rootOf(TYPES);
    StRootWish                  stWish;
    stWish.oFolder   = workFolder() / "versions";
    stWish.nTypes    = TYPES;
    stWish.nVersions = 3;
    stWish.oFilesOf  = oOneVersion;
    writeServerRoot(stWish);
    const StComparison stComparison = alternate([&] { return probeLoad(stWish.oFolder, 1).dCpu; },
                                                [&] { return 3 * probeLoad(oOneVersion, 1).dCpu; });
    oState.SetIterationTime(stComparison.dOne);
    answer(oState, VERSIONS_TARGET, stComparison.dRatio, figureText(stComparison));
}
} // namespace

void addThreadBenchmarks()
{
    measureOnce("threads/two", measureTwoThreads, {ELAPSED_TARGET, BARE_TARGET, CPU_TARGET});
    measureOnce("once/common", measureCommon, {COMMON_TARGET});
    measureOnce("once/versions", measureVersions, {VERSIONS_TARGET});
}
