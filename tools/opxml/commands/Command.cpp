// See Command.h.
#include "tools/opxml/commands/Command.h"

#include "common/ReadProblem.h"
#include "reader/LoadThreads.h"
#include "standalone/LogSink.h"
#include "standalone/ServerRoot.h"

#include <stdlib.h>

void applyOptions(const StGlobalOptions& stOptions)
{
    if (!stOptions.strLogFile.empty() || stOptions.bVerbose)
        setReadListener([](const StReadProblem& stProblem) { standalone::setLogNote(problemWithFile(stProblem)); });
    std::string strError;
    if (!stOptions.strLogFile.empty() && !standalone::setJsonLog(stOptions.strLogFile, strError))
        throw CTrouble(strError);
    if (stOptions.bVerbose)
        standalone::setConsoleLog(standalone::EnConsoleLevel::All);
    if (stOptions.uJobs != 0) // no other thread is about yet. NOLINTNEXTLINE(concurrency-mt-unsafe)
        ::setenv(loadThreads::VARIABLE, std::to_string(stOptions.uJobs).c_str(), 1);
}

void openRoot(const StGlobalOptions& stOptions)
{
    applyOptions(stOptions);
    std::string strError;
    if (!standalone::openServerRoot(stOptions.strRoot, strError))
        throw CTrouble(strError);
}
