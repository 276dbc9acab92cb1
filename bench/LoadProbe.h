// A start-up load in a process of its own, measured from inside: this program
// starts itself with "--probe ROOT".
#ifndef OPERATIONXML_BENCH_LOADPROBE_H
#define OPERATIONXML_BENCH_LOADPROBE_H

#include <filesystem>

struct StLoadProbe
{
    double dCpu  = 0; // seconds, user and system
    double dUser = 0;
    double dWall = 0;
    double dHeld = 0; // megabytes resident after the load beyond those before it
    double dPeak = 0; // megabytes resident at the highest beyond those really in use after the load
};

// Starts a child that may use so many threads and returns what it measured.
StLoadProbe probeLoad(const std::filesystem::path& oRoot, unsigned uThreads);

// What the child does: loads the root and prints its figures.
int runLoadProbe(const std::filesystem::path& oRoot);

#endif
