// What a load costs as the number of types grows: CPU per type, memory held, and
// memory needed on the way. Each load is a process of its own.
#include "LoadProbe.h"
#include "Measure.h"
#include "Roots.h"
#include "Targets.h"

#include "ServerRootText.h"

#include <fmt/format.h>

#include <algorithm>
#include <map>

namespace
{
constexpr std::size_t LARGEST = 10000;

constexpr StTarget GROWTH_TARGET = {"growth", "user CPU per type at 100, 1,000 and 10,000 types, one thread",
                                    "within ± 5 %", 0.05};
constexpr StTarget HELD_TARGET   = {"memory held", "resident growth per MB of XML, 10,000 types", "≤ 2.5 MB", 2.5};
constexpr StTarget PEAK_TARGET   = {"memory peak", "peak during the load − in use after it, 10,000 types, one thread",
                                    "≤ 16 MB", 16};
constexpr StTarget PEAK_OF_TWO_TARGET = {"memory peak, two threads", "the same with two threads", "≤ 28 MB", 28};

// The probes of each size; made once, for all benchmarks that look at them.
const std::vector<StLoadProbe>& probesOf(std::size_t nTypes)
{
    static std::map<std::size_t, std::vector<StLoadProbe>> s_mapProbe;
    if (s_mapProbe.empty())
    {
        rootOf(LARGEST); // first, so that the others share its files
        // Small loads are short: several of them, spread over the time that the large one takes.
        for (const std::size_t nSize : {100u, 1000u, 100u, 300u, 100u, 3000u, 10000u, 100u, 1000u, 100u, 300u, 3000u,
                                        1000u, 100u, 300u, 100u, 3000u})
            s_mapProbe[nSize].push_back(probeLoad(rootOf(nSize), 1));
    }
    return s_mapProbe.at(nTypes);
}

double secondsOf(std::size_t nTypes, double StLoadProbe::*pSeconds)
{
    std::vector<double> lstSeconds;
    for (const StLoadProbe& stProbe : probesOf(nTypes))
        lstSeconds.push_back(stProbe.*pSeconds);
    return median(lstSeconds);
}

// The largest load with two threads; made once.
const StLoadProbe& probeOfTwo()
{
    static const StLoadProbe s_stProbe = probeLoad(rootOf(LARGEST), 2);
    return s_stProbe;
}

void measureGrowth(benchmark::State& oState)
{
    std::vector<double> lstPerType; // ms
    for (const std::size_t nTypes : {100u, 1000u, 10000u})
        lstPerType.push_back(secondsOf(nTypes, &StLoadProbe::dUser) * 1e3 / static_cast<double>(nTypes));
    const auto [itLeast, itMost] = std::minmax_element(lstPerType.begin(), lstPerType.end());
    const double dSpread         = (*itMost - *itLeast) / (*itMost + *itLeast);
    oState.SetIterationTime(lstPerType.back() / 1e3);
    answer(oState, GROWTH_TARGET, dSpread,
           fmt::format("± {:.1f} % ({:.2f} ms)", dSpread * 100, fmt::join(lstPerType, ", ")));
}

void measureHeld(benchmark::State& oState)
{
    const StLoadProbe& stProbe = probesOf(LARGEST).front();
    oState.SetIterationTime(stProbe.dCpu);
    answer(oState, HELD_TARGET, stProbe.dHeld / megabytesOf(LARGEST),
           fmt::format("{:.2f} MB ({:.0f} MB for {:.0f} MB)", stProbe.dHeld / megabytesOf(LARGEST), stProbe.dHeld,
                       megabytesOf(LARGEST)));
}

void measurePeak(benchmark::State& oState)
{
    const StLoadProbe& stProbe = probesOf(LARGEST).front();
    oState.SetIterationTime(stProbe.dCpu);
    answer(oState, PEAK_TARGET, stProbe.dPeak, fmt::format("{:.1f} MB", stProbe.dPeak));
    answer(oState, PEAK_OF_TWO_TARGET, probeOfTwo().dPeak, fmt::format("{:.1f} MB", probeOfTwo().dPeak));
}

// A point of the curve: the load of so many types, and the bare parse of their files.
void measureCurve(benchmark::State& oState)
{
    const auto   nTypes = static_cast<std::size_t>(oState.range(0));
    const double dCpu   = secondsOf(nTypes, &StLoadProbe::dCpu);
    oState.SetIterationTime(dCpu);
    oState.counters["types"]     = static_cast<double>(nTypes);
    oState.counters["megabytes"] = megabytesOf(nTypes);
    oState.counters["load"]      = dCpu;
    oState.counters["bare"]      = bareParse(filesOf(nTypes));
    oState.counters["wall"]      = secondsOf(nTypes, &StLoadProbe::dWall);
    oState.counters["wall2"]     = nTypes == LARGEST ? probeOfTwo().dWall : probeLoad(rootOf(nTypes), 2).dWall;
}

// The same number of types, set up in other ways: what an operator can change.
void measureVariant(benchmark::State& oState)
{
    struct StVariant
    {
        const char* pszText;
        std::size_t nBytes;
        std::size_t nVersions;
        bool        bCommon;
    };
    constexpr StVariant VARIANTS[] = {{"a file of 96 KB each", 96000, 1, false},
                                      {"a file of 48 KB each", 48000, 1, false},
                                      {"all on a common file of 96 KB", 96000, 1, true},
                                      {"all on a common file of 24 KB", 24000, 1, true},
                                      {"a file of 96 KB each, registered in three versions", 96000, 3, false}};
    const auto          nVariant   = static_cast<std::size_t>(oState.range(0));
    const StVariant&    stVariant  = VARIANTS[nVariant];
    StRootWish          stWish;
    stWish.oFolder   = workFolder() / ("variant-" + std::to_string(nVariant));
    stWish.nTypes    = 1000;
    stWish.nBytes    = stVariant.nBytes;
    stWish.nVersions = stVariant.nVersions;
    stWish.bCommon   = stVariant.bCommon;
    writeServerRoot(stWish);
    const StLoadProbe stProbe = probeLoad(stWish.oFolder, 1);
    std::filesystem::remove_all(stWish.oFolder);
    oState.SetLabel(stVariant.pszText);
    oState.SetIterationTime(stProbe.dCpu);
    oState.counters["load"] = stProbe.dCpu;
    oState.counters["held"] = stProbe.dHeld;
}
} // namespace

void addGrowthBenchmarks()
{
    measureOnce("growth", measureGrowth, {GROWTH_TARGET});
    measureOnce("memory/held", measureHeld, {HELD_TARGET});
    measureOnce("memory/peak", measurePeak, {PEAK_TARGET, PEAK_OF_TWO_TARGET});
    measureOnce("curve", measureCurve, {})->Arg(100)->Arg(300)->Arg(1000)->Arg(3000)->Arg(10000);
    measureOnce("variant", measureVariant, {})->DenseRange(0, 4);
}
