// What is asked for at the end of a line: a command, an option, the value of an
// option, or an argument. See Completion.h.
#include "tools/opxml/completion/Completion.h"

#include "standalone/ServerRoot.h"
#include "tools/opxml/completion/CompletionNames.h"
#include "tools/opxml/query/QueryOperations.h"

#include <algorithm>
#include <cstdlib>

namespace
{
// The line up to the word that is to be completed.
struct StLine
{
    const CLI::App*          pCommand       = nullptr; // null: none yet
    const CLI::Option*       pPending       = nullptr; // the option whose value comes next
    bool                     bNoMoreOptions = false;
    std::string              strRoot;
    std::vector<std::string> lstArgument; // of the command
};

bool beginsWith(const std::string& strText, const std::string& strBegin)
{
    return strText.compare(0, strBegin.size(), strBegin) == 0;
}

bool isShown(const CLI::App* pCommand)
{
    return !pCommand->get_group().empty();
}

// The command's own options, then those of all commands.
std::vector<const CLI::Option*> optionsOf(const CLI::App& oApp, const CLI::App* pCommand)
{
    const auto fnShown = [](const CLI::Option* pOption)
    { return pOption->nonpositional() && !pOption->get_group().empty(); };
    std::vector<const CLI::Option*> lstOption;
    if (pCommand != nullptr)
        lstOption = pCommand->get_options(fnShown);
    const std::vector<const CLI::Option*> lstGlobal = oApp.get_options(fnShown);
    lstOption.insert(lstOption.end(), lstGlobal.begin(), lstGlobal.end());
    return lstOption;
}

const CLI::Option* findOption(const CLI::App& oApp, const CLI::App* pCommand, const std::string& strName)
{
    for (const CLI::Option* pOption : optionsOf(oApp, pCommand))
    {
        if (pOption->check_name(strName))
            return pOption;
    }
    return nullptr;
}

const CLI::App* findCommand(const CLI::App& oApp, const std::string& strName)
{
    for (const CLI::App* pCommand : oApp.get_subcommands(isShown))
    {
        if (pCommand->get_name() == strName)
            return pCommand;
    }
    return nullptr;
}

void takeOption(const CLI::App& oApp, const std::string& strWord, StLine& stLine)
{
    const std::size_t nEqual = strWord.find('=');
    if (nEqual != std::string::npos)
    {
        if (strWord.substr(0, nEqual) == "--root")
            stLine.strRoot = strWord.substr(nEqual + 1);
        return;
    }
    const CLI::Option* pOption = findOption(oApp, stLine.pCommand, strWord);
    if (pOption != nullptr && pOption->get_items_expected_max() > 0)
        stLine.pPending = pOption;
}

StLine readLine(const CLI::App& oApp, const StGlobalOptions& stDefaults, const std::vector<std::string>& lstWord)
{
    StLine stLine;
    stLine.strRoot = stDefaults.strRoot;
    if (const char* pszRoot = std::getenv("OPXML_ROOT"); pszRoot != nullptr) // NOLINT(concurrency-mt-unsafe)
        stLine.strRoot = pszRoot;
    for (std::size_t nWord = 0; nWord + 1 < lstWord.size(); ++nWord)
    {
        const std::string& strWord = lstWord[nWord];
        if (stLine.pPending != nullptr)
        {
            if (stLine.pPending->check_name("--root"))
                stLine.strRoot = strWord;
            stLine.pPending = nullptr;
        }
        else if (strWord == "--")
            stLine.bNoMoreOptions = true;
        else if (!stLine.bNoMoreOptions && strWord.size() > 1 && strWord[0] == '-')
            takeOption(oApp, strWord, stLine);
        else if (stLine.pCommand == nullptr)
            stLine.pCommand = findCommand(oApp, strWord);
        else
            stLine.lstArgument.push_back(strWord);
    }
    return stLine;
}

void addCommands(const CLI::App& oApp, StCompletion& stCompletion)
{
    for (const CLI::App* pCommand : oApp.get_subcommands(isShown))
        stCompletion.lstCandidate.push_back({pCommand->get_name(), pCommand->get_description()});
}

void addOptions(const CLI::App& oApp, const CLI::App* pCommand, StCompletion& stCompletion)
{
    std::vector<StCandidate>& lstCandidate = stCompletion.lstCandidate;
    for (const CLI::Option* pOption : optionsOf(oApp, pCommand))
    {
        for (const std::string& strName : pOption->get_lnames())
        {
            const std::string strWord = "--" + strName;
            if (std::none_of(lstCandidate.begin(), lstCandidate.end(),
                             [&strWord](const StCandidate& stCandidate) { return stCandidate.strWord == strWord; }))
                lstCandidate.push_back({strWord, pOption->get_description()});
        }
    }
}

// "TEXT:{text,json}" lists the words that an option takes.
void addListedWords(const std::string& strKind, StCompletion& stCompletion)
{
    std::size_t       nBegin = strKind.find('{');
    const std::size_t nEnd   = strKind.find('}');
    while (nBegin < nEnd && nEnd != std::string::npos)
    {
        const std::size_t nNext = std::min(strKind.find(',', nBegin + 1), nEnd);
        stCompletion.lstCandidate.push_back({strKind.substr(nBegin + 1, nNext - nBegin - 1), ""});
        nBegin = nNext;
    }
}

// Calls fnPart for each part of a name of the help: "DEVICE|TYPE" has two.
template <typename Part>
void forEachPart(const std::string& strName, Part fnPart)
{
    const std::string strParts = strName.substr(0, strName.find('['));
    for (std::size_t nBegin = 0; nBegin <= strParts.size();)
    {
        const std::size_t nEnd = std::min(strParts.find('|', nBegin), strParts.size());
        fnPart(strParts.substr(nBegin, nEnd - nBegin));
        nBegin = nEnd + 1;
    }
}

// A name of the help: a file, words that are listed, or names of the root, where
// "DEVICE|TYPE[:VERSION]" takes those of all its parts that may come first.
void addNames(const StLine& stLine, const std::string& strKind, const ArgumentValues& mapValue,
              StCompletion& stCompletion)
{
    if (strKind == "FILE" || strKind == "DIR" || strKind == "OLD" || strKind == "NEW")
    {
        stCompletion.bFiles  = true;
        stCompletion.bFolder = strKind == "DIR";
        return;
    }
    addListedWords(strKind, stCompletion);
    if (!stCompletion.lstCandidate.empty())
        return;
    std::string strIgnored;
    const auto  itOld = mapValue.find("OLD"); // a command that compares two roots
    standalone::openServerRoot(itOld == mapValue.end() ? stLine.strRoot : itOld->second,
                               strIgnored); // without one, rules have names still
    forEachPart(strKind,
                [&](const std::string& strPart)
                {
                    const std::vector<StCandidate> lstName = namesFor(strPart, mapValue);
                    stCompletion.lstCandidate.insert(stCompletion.lstCandidate.end(), lstName.begin(), lstName.end());
                });
}

void addQuestions(StCompletion& stCompletion)
{
    for (const StQueryOperation& stOperation : queryOperations())
        stCompletion.lstCandidate.push_back({stOperation.pszName, parameterNames(stOperation)});
}

// The arguments of a question are named by its row, not by the command.
void addQuestionArgument(const StLine& stLine, StCompletion& stCompletion)
{
    const std::size_t nAt = stLine.lstArgument.size() - 1;
    for (const StQueryOperation& stOperation : queryOperations())
    {
        if (stOperation.pszName != stLine.lstArgument[0] || stOperation.lstParameter.size() <= nAt)
            continue;
        ArgumentValues mapValue;
        for (std::size_t nArgument = 0; nArgument < nAt; ++nArgument)
            mapValue[stOperation.lstParameter[nArgument].pszName] = stLine.lstArgument[nArgument + 1];
        addNames(stLine, stOperation.lstParameter[nAt].pszName, mapValue, stCompletion);
        return;
    }
}

void addArgument(const StLine& stLine, StCompletion& stCompletion)
{
    const bool bQuestion = stLine.pCommand->get_name() == "query";
    if (bQuestion && !stLine.lstArgument.empty())
        return addQuestionArgument(stLine, stCompletion);
    if (bQuestion)
        return addQuestions(stCompletion);
    const std::vector<const CLI::Option*> lstPositional = stLine.pCommand->get_options(
        [](const CLI::Option* pOption) { return pOption->get_positional() && !pOption->nonpositional(); });
    ArgumentValues mapValue;
    for (std::size_t nAt = 0; nAt < lstPositional.size(); ++nAt)
    {
        const CLI::Option& oPositional = *lstPositional[nAt];
        const std::string  strName     = oPositional.get_name(true);
        if (nAt >= stLine.lstArgument.size() || oPositional.get_items_expected_max() > 1)
            return addNames(stLine, strName, mapValue, stCompletion);
        forEachPart(strName, [&](const std::string& strPart) { mapValue[strPart] = stLine.lstArgument[nAt]; });
    }
}
} // namespace

StCompletion complete(const CLI::App& oApp, const StGlobalOptions& stDefaults, const std::vector<std::string>& lstWord)
{
    const StLine      stLine     = readLine(oApp, stDefaults, lstWord);
    const std::string strCurrent = lstWord.empty() ? "" : lstWord.back();
    StCompletion      stCompletion;
    if (stLine.pPending != nullptr)
        addNames(stLine, stLine.pPending->get_type_name(), {}, stCompletion);
    else if (!stLine.bNoMoreOptions && beginsWith(strCurrent, "-"))
        addOptions(oApp, stLine.pCommand, stCompletion);
    else if (stLine.pCommand == nullptr)
        addCommands(oApp, stCompletion);
    else
        addArgument(stLine, stCompletion);
    std::vector<StCandidate>& lstCandidate = stCompletion.lstCandidate;
    lstCandidate.erase(std::remove_if(lstCandidate.begin(), lstCandidate.end(),
                                      [&strCurrent](const StCandidate& stCandidate)
                                      { return !beginsWith(stCandidate.strWord, strCurrent); }),
                       lstCandidate.end());
    return stCompletion;
}
