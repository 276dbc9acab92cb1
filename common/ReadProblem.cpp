// How a problem is told to people.
#include "common/ReadProblem.h"

#include <atomic>

namespace
{
std::atomic<ReadListener> g_pfnListener{nullptr};
} // namespace

std::string problemText(const StReadProblem& stProblem)
{
    std::string strPlace;
    if (stProblem.isSet() && stProblem.ulLine != 0)
    {
        strPlace = "line " + std::to_string(stProblem.ulLine);
        if (stProblem.ulColumn != 0)
            strPlace += ", column " + std::to_string(stProblem.ulColumn);
        strPlace += ": ";
    }
    return strPlace + stProblem.strText;
}

std::string problemWithFile(const StReadProblem& stProblem)
{
    if (!stProblem.isSet() || stProblem.strFile.empty())
        return problemText(stProblem);
    return stProblem.strFile + ": " + problemText(stProblem);
}

void setReadListener(ReadListener pfnListener)
{
    g_pfnListener.store(pfnListener);
}

void tellReadListener(const StReadProblem& stProblem)
{
    if (const ReadListener pfnListener = g_pfnListener.load())
        pfnListener(stProblem);
}
