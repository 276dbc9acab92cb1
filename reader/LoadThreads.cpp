// See LoadThreads.h.
#include "reader/LoadThreads.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <fstream>
#include <sched.h>
#include <string_view>
#include <thread>

namespace
{
constexpr std::size_t MOST_UNASKED = 8;

// What OPERATIONXML_LOAD_THREADS asks for, or 0.
std::size_t asked()
{
    const char* pszValue = std::getenv(loadThreads::VARIABLE); // NOLINT(concurrency-mt-unsafe): see the header
    if (pszValue == nullptr)
        return 0;
    const std::string_view strValue = pszValue;
    std::size_t            nThreads = 0;
    const auto [pEnd, enError]      = std::from_chars(strValue.data(), strValue.data() + strValue.size(), nThreads);
    const bool bWhole               = enError == std::errc() && pEnd == strValue.data() + strValue.size();
    return bWhole && nThreads <= loadThreads::MOST ? nThreads : 0;
}

// The processors that the thread may run on.
std::size_t processors()
{
    cpu_set_t stSet;
    CPU_ZERO(&stSet);
    if (::sched_getaffinity(0, sizeof(stSet), &stSet) == 0)
        return static_cast<std::size_t>(CPU_COUNT(&stSet));
    return std::thread::hardware_concurrency(); // more than the set can hold
}

// Processors begun by a quota of so much time in each period; 0 for no limit.
std::size_t begun(double dQuota, double dPeriod)
{
    return dQuota > 0 && dPeriod > 0 ? static_cast<std::size_t>((dQuota + dPeriod - 1) / dPeriod) : 0;
}

// The limit of one group: "200000 100000" of version 2, or a file for each number.
std::size_t limitOf(const std::string& strFolder)
{
    double dQuota  = 0;
    double dPeriod = 0;
    if (std::ifstream(strFolder + "/cpu.max") >> dQuota >> dPeriod) // "max" is no number
        return begun(dQuota, dPeriod);
    std::ifstream(strFolder + "/cpu.cfs_quota_us") >> dQuota; // -1 without a limit
    std::ifstream(strFolder + "/cpu.cfs_period_us") >> dPeriod;
    return begun(dQuota, dPeriod);
}
} // namespace

std::size_t loadThreads::count()
{
    if (const std::size_t nAsked = asked())
        return nAsked;
    std::size_t nThreads = std::clamp<std::size_t>(processors(), 1, MOST_UNASKED);
    if (const std::size_t nAllowed = allowedByGroups("/proc/self/cgroup", "/sys/fs/cgroup"))
        nThreads = std::min(nThreads, nAllowed);
    return nThreads;
}

std::size_t loadThreads::allowedByGroups(const std::string& strGroups, const std::string& strMount)
{
    std::size_t   nLeast = 0;
    std::ifstream oGroups(strGroups);
    for (std::string strLine; std::getline(oGroups, strLine);)
    {
        // "0::/path" of version 2, "4:cpu,cpuacct:/path" of version 1.
        const std::size_t nKinds = strLine.find(':');
        const std::size_t nPath  = strLine.find(':', nKinds + 1);
        if (nKinds == std::string::npos || nPath == std::string::npos)
            continue;
        const std::string strKinds = strLine.substr(nKinds + 1, nPath - nKinds - 1);
        if (!strKinds.empty() && ("," + strKinds + ",").find(",cpu,") == std::string::npos)
            continue;
        const std::string strRoot = strKinds.empty() ? strMount : strMount + "/cpu";
        // A group has no more than those that it is in.
        for (std::string strPath = strLine.substr(nPath + 1);; strPath.resize(strPath.rfind('/')))
        {
            const std::size_t nLimit = limitOf(strRoot + strPath);
            nLeast                   = nLimit == 0 || (nLeast != 0 && nLeast < nLimit) ? nLeast : nLimit;
            if (strPath.find('/') == std::string::npos)
                break;
        }
    }
    return nLeast;
}
