#include "Measure.h"

#include "Roots.h"

#include <xercesc/dom/DOM.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>

#include <algorithm>
#include <chrono>
#include <ctime>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <spawn.h>
#include <stdexcept>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{
double seconds(const timeval& stTime)
{
    return static_cast<double>(stTime.tv_sec) + static_cast<double>(stTime.tv_usec) / 1e6;
}
} // namespace

double cpuSeconds()
{
    timespec stNow = {};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &stNow);
    return static_cast<double>(stNow.tv_sec) + static_cast<double>(stNow.tv_nsec) / 1e9;
}

double userSeconds()
{
    rusage stUsage = {};
    ::getrusage(RUSAGE_SELF, &stUsage);
    return seconds(stUsage.ru_utime);
}

double median(std::vector<double> lstValue)
{
    const auto itMiddle = lstValue.begin() + static_cast<std::ptrdiff_t>(lstValue.size() / 2);
    std::nth_element(lstValue.begin(), itMiddle, lstValue.end());
    return *itMiddle;
}

StComparison alternate(const std::function<double()>& fnOne, const std::function<double()>& fnOther)
{
    return alternateSlices(
        1, [&](std::size_t /*nSlice*/) { return fnOne(); }, [&](std::size_t /*nSlice*/) { return fnOther(); });
}

StComparison alternateSlices(std::size_t nSlices, const std::function<double(std::size_t)>& fnOne,
                             const std::function<double(std::size_t)>& fnOther)
{
    std::vector<double> lstOne(ROUNDS);
    std::vector<double> lstOther(ROUNDS);
    std::vector<double> lstRatio(ROUNDS);
    for (std::size_t nRound = 0; nRound < ROUNDS; ++nRound)
    {
        for (std::size_t nSlice = 0; nSlice < nSlices; ++nSlice)
        {
            lstOne[nRound] += fnOne(nSlice);
            lstOther[nRound] += fnOther(nSlice);
        }
        lstRatio[nRound] = lstOne[nRound] / lstOther[nRound];
    }
    return {median(lstRatio), median(lstOne), median(lstOther)};
}

double bareParse(const std::vector<std::filesystem::path>& lstFile)
{
    const double dStart = cpuSeconds();
    for (const std::filesystem::path& oFile : lstFile)
    {
        xercesc::XercesDOMParser oParser;
        oParser.parse(oFile.c_str());
        if (oParser.getErrorCount() != 0 || oParser.getDocument() == nullptr)
            throw std::runtime_error("cannot parse " + oFile.string());
    }
    return cpuSeconds() - dStart;
}

StChild runChild(const std::vector<std::string>& lstArgument)
{
    const std::string          strOutput = (workFolder() / "child.out").string();
    posix_spawn_file_actions_t stActions;
    ::posix_spawn_file_actions_init(&stActions);
    ::posix_spawn_file_actions_addopen(&stActions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    ::posix_spawn_file_actions_addopen(&stActions, STDOUT_FILENO, strOutput.c_str(), O_WRONLY | O_CREAT | O_TRUNC,
                                       0600);
    ::posix_spawn_file_actions_addopen(&stActions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    std::vector<char*> lstPointer;
    lstPointer.reserve(lstArgument.size() + 1);
    for (const std::string& strArgument : lstArgument)
        lstPointer.push_back(const_cast<char*>(strArgument.c_str()));
    lstPointer.push_back(nullptr);
    const auto oStart = std::chrono::steady_clock::now();
    pid_t      nChild = 0;
    const int  nError = ::posix_spawn(&nChild, lstPointer[0], &stActions, nullptr, lstPointer.data(), environ);
    ::posix_spawn_file_actions_destroy(&stActions);
    int    nStatus = 0;
    rusage stUsage = {};
    if (nError != 0 || ::wait4(nChild, &nStatus, 0, &stUsage) != nChild || !WIFEXITED(nStatus))
        throw std::runtime_error("cannot run " + lstArgument[0]);
    const std::chrono::duration<double> oWall = std::chrono::steady_clock::now() - oStart;
    std::ifstream                       oOutput(strOutput, std::ios::binary);
    return {WEXITSTATUS(nStatus), seconds(stUsage.ru_utime) + seconds(stUsage.ru_stime), oWall.count(),
            std::string(std::istreambuf_iterator<char>(oOutput), {})};
}
