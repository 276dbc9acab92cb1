// The alarm dictionary against the bare parse of its file.
#include "Measure.h"
#include "Roots.h"
#include "Targets.h"

#include "alarm/InitAlarmInfo.h"

#include <fmt/format.h>

#include <stdexcept>

namespace
{
constexpr std::size_t ALARMS = 50000;

constexpr StTarget ALARM_TARGET = {"alarm dictionary", "CPU of a load of 50,000 records ÷ bare parse of the same file",
                                   "≤ 1.5", 1.5};

double loadAlarms()
{
    const double      dStart = cpuSeconds();
    const std::size_t nRead  = InitAlarmInfo::Instance()->alarms().size();
    const double      dTook  = cpuSeconds() - dStart;
    InitAlarmInfo::Destroy();
    if (nRead != ALARMS)
        throw std::runtime_error("the alarm table was not read");
    return dTook;
}

void measureAlarms(benchmark::State& oState)
{
    const std::filesystem::path oRoot = alarmRootOf(ALARMS);
    openRoot(oRoot);
    const StComparison stComparison =
        alternate(loadAlarms, [&] { return bareParse({oRoot / "pub/i18n/en_US/kivo/fm/dc_tbl_alm_exp_info.xml"}); });
    oState.SetIterationTime(stComparison.dOne);
    answer(oState, ALARM_TARGET, stComparison.dRatio,
           fmt::format("{:.2f} ({:.0f} ms ÷ {:.0f} ms)", stComparison.dRatio, stComparison.dOne * 1e3,
                       stComparison.dOther * 1e3));
}
} // namespace

void addAlarmBenchmarks()
{
    measureOnce("alarms", measureAlarms, {ALARM_TARGET});
}
