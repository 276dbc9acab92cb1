// How the benchmarks measure: CPU seconds of this process or of a child, the
// alternating comparison of two ways, and the bare parse that the load is
// compared with. One thread only; a load with more is a child.
#ifndef OPERATIONXML_BENCH_MEASURE_H
#define OPERATIONXML_BENCH_MEASURE_H

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

constexpr int ROUNDS = 7;

// What this process has used so far, user and system, and user alone.
double cpuSeconds();
double userSeconds();

double median(std::vector<double> lstValue);

// Both ways in turn, ROUNDS times, each answering with its seconds. The ratio is
// the median of the rounds, so that a slow moment of the machine falls on both.
struct StComparison
{
    double dRatio = 0;
    double dOne   = 0; // medians, seconds
    double dOther = 0;
};
StComparison alternate(const std::function<double()>& fnOne, const std::function<double()>& fnOther);

// The same in slices of the work, each way called with the number of the slice: a
// slow moment that is shorter than a round falls on both as well.
StComparison alternateSlices(std::size_t nSlices, const std::function<double(std::size_t)>& fnOne,
                             const std::function<double(std::size_t)>& fnOther);

// The bare parse: what a textbook does, a new parser with default settings for
// each file, and no look at the document. Throws when a file cannot be parsed.
double bareParse(const std::vector<std::filesystem::path>& lstFile);

struct StChild
{
    int         nExit = -1;
    double      dCpu  = 0; // user and system
    double      dWall = 0;
    std::string strOutput;
};

// Runs a program to its end with stdout and stderr kept from the terminal.
// Throws when it cannot be started or was killed.
StChild runChild(const std::vector<std::string>& lstArgument);

#endif
