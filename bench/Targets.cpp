#include "Targets.h"

#include <exception>
#include <vector>

namespace
{
std::vector<std::string>& tableRows()
{
    static std::vector<std::string> s_lstRow;
    return s_lstRow;
}

void addRow(const StTarget& stTarget, const std::string& strFigure, const char* pszVerdict)
{
    tableRows().push_back(std::string("| ") + stTarget.pszWhat + " | " + stTarget.pszMeasuredAs + " | " +
                          stTarget.pszTarget + " | " + strFigure + " | " + pszVerdict + " |\n");
}
} // namespace

void answer(benchmark::State& oState, const StTarget& stTarget, double dFigure, const std::string& strFigure)
{
    const bool bReached       = stTarget.bAtLeast ? dFigure >= stTarget.dLimit : dFigure <= stTarget.dLimit;
    oState.counters["target"] = stTarget.dLimit;
    oState.counters["figure"] = dFigure;
    addRow(stTarget, strFigure, bReached ? "reached" : "**missed**");
}

std::string targetTable()
{
    std::string strTable = "| what | measured as | target | figure | |\n|---|---|---|---|---|\n";
    for (const std::string& strRow : tableRows())
        strTable += strRow;
    return strTable;
}

benchmark::internal::Benchmark* measureOnce(const char* pszName, void (*fnMeasure)(benchmark::State&),
                                            const std::initializer_list<StTarget>& lstTarget)
{
    const std::vector<StTarget> lstPromised = lstTarget;
    const auto                  fnRun       = [fnMeasure, lstPromised](benchmark::State& oState)
    {
        try
        {
            for ([[maybe_unused]] auto oOnce : oState)
                fnMeasure(oState);
        }
        catch (const std::exception& oProblem)
        {
            oState.SkipWithError(oProblem.what());
            for (const StTarget& stTarget : lstPromised)
                addRow(stTarget, "-", "not measured");
        }
    };
    return benchmark::RegisterBenchmark(pszName, fnRun)->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);
}
