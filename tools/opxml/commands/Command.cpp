// See Command.h.
#include "tools/opxml/commands/Command.h"

#include "common/ReadProblem.h"
#include "standalone/LogSink.h"
#include "standalone/ServerRoot.h"

void openLog(const StGlobalOptions& stOptions)
{
    if (!stOptions.strLogFile.empty() || stOptions.bVerbose)
        setReadListener([](const StReadProblem& stProblem) { standalone::setLogNote(problemWithFile(stProblem)); });
    std::string strError;
    if (!stOptions.strLogFile.empty() && !standalone::setJsonLog(stOptions.strLogFile, strError))
        throw CTrouble(strError);
    if (stOptions.bVerbose)
        standalone::setConsoleLog(standalone::EnConsoleLevel::All);
}

void openRoot(const StGlobalOptions& stOptions)
{
    openLog(stOptions);
    std::string strError;
    if (!standalone::openServerRoot(stOptions.strRoot, strError))
        throw CTrouble(strError);
}
