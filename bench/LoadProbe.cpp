#include "LoadProbe.h"

#include "Measure.h"
#include "Roots.h"

#include "database/CXMLConfigDatabase.h"

#include <chrono>
#include <cstdio>
#include <fstream>
#include <malloc.h>
#include <sstream>
#include <stdexcept>
#include <stdlib.h>

namespace
{
// A line of /proc/self/status ("VmRSS"), in megabytes.
double statusMegabytes(const std::string& strName)
{
    std::ifstream oStatus("/proc/self/status");
    for (std::string strLine; std::getline(oStatus, strLine);)
    {
        if (strLine.rfind(strName + ":", 0) == 0)
            return std::stod(strLine.substr(strName.size() + 1)) * 1024 / 1e6;
    }
    throw std::runtime_error("/proc/self/status has no " + strName);
}
} // namespace

StLoadProbe probeLoad(const std::filesystem::path& oRoot, unsigned uThreads)
{
    ::setenv("OPERATIONXML_LOAD_THREADS", std::to_string(uThreads).c_str(),
             1); // one thread. NOLINT(concurrency-mt-unsafe)
    const StChild      stChild = runChild({"/proc/self/exe", "--probe", oRoot.string()});
    std::istringstream oFigures(stChild.strOutput);
    StLoadProbe        stProbe;
    if (stChild.nExit != 0 ||
        !(oFigures >> stProbe.dCpu >> stProbe.dUser >> stProbe.dWall >> stProbe.dHeld >> stProbe.dPeak))
        throw std::runtime_error("the load of " + oRoot.string() + " failed");
    return stProbe;
}

int runLoadProbe(const std::filesystem::path& oRoot)
{
    openRoot(oRoot);
    std::ofstream("/proc/self/clear_refs") << "5"; // the peak starts anew: opening the root is no part of the load
    const double        dBefore = statusMegabytes("VmRSS");
    const double        dCpu    = cpuSeconds();
    const double        dUser   = userSeconds();
    const auto          oStart  = std::chrono::steady_clock::now();
    CXMLConfigDatabase* pLoaded = CXMLConfigDatabase::getInstance();

    const std::chrono::duration<double> oWall     = std::chrono::steady_clock::now() - oStart;
    const double                        dTook     = cpuSeconds() - dCpu;
    const double                        dTookUser = userSeconds() - dUser;
    const double                        dAfter    = statusMegabytes("VmRSS");
    const double                        dPeak     = statusMegabytes("VmHWM");
    ::malloc_trim(0); // what is free but not given back is part of the peak, not of what is held
    const double dInUse = statusMegabytes("VmRSS");
    std::printf("%.6f %.6f %.6f %.3f %.3f\n", dTook, dTookUser, oWall.count(), dAfter - dBefore, dPeak - dInUse);
    for (const StDevTypeLoad& stLoad : pLoaded->getLoadReport().lstDevType)
    {
        if (stLoad.ulResult != 0)
            return 1;
    }
    return 0;
}
