// What the project promises about speed and memory, and the place where each
// benchmark puts its answer. main() prints the table at the end.
#ifndef OPERATIONXML_BENCH_TARGETS_H
#define OPERATIONXML_BENCH_TARGETS_H

#include <benchmark/benchmark.h>

#include <string>

struct StTarget
{
    const char* pszWhat;
    const char* pszMeasuredAs;
    const char* pszTarget; // as people read it
    double      dLimit;
    bool        bAtLeast = false; // true: reached from dLimit upwards
};

// Reports a figure: strFigure as people read it, dFigure to compare with the limit.
void answer(benchmark::State& oState, const StTarget& stTarget, double dFigure, const std::string& strFigure);

// The table in Markdown: a row for each answer, in the order they came.
std::string targetTable();

// A benchmark that measures for itself and runs once. What it throws ends only
// that benchmark; its targets then say that they were not measured.
benchmark::internal::Benchmark* measureOnce(const char* pszName, void (*fnMeasure)(benchmark::State&),
                                            const std::initializer_list<StTarget>& lstTarget);

// One group of benchmarks each; they register what they measure.
void addLoadBenchmarks();
void addThreadBenchmarks();
void addGrowthBenchmarks();
void addAlarmBenchmarks();
void addToolBenchmarks();
void addCommandBenchmarks();
void addQueryBenchmarks();

#endif
