// What each shell hands over and takes back: zsh and fish words, bash its line, with
// quotes and breaks of its own. See Completion.h.
#include "tools/opxml/completion/Completion.h"

#include <fmt/format.h>

#include <cstring>

namespace
{
// The words of a bash line up to the cursor.
struct StBashLine
{
    std::vector<std::string> lstWord;         // without quotes; the last one is open
    bool                     bQuoted = false; // the last word stands in quotes, which bash closes itself
    std::size_t              nKept   = 0;     // of the last word, what bash does not replace: all up to a break
};

// bash takes these for the end of a word that it completes, unless quoted.
constexpr const char* BASH_BREAKS = "=:@<>&|(;";

StBashLine readBashLine(const std::string& strLine)
{
    StBashLine stLine;
    stLine.lstWord.emplace_back();
    bool bInWord = false;
    char cQuote  = 0;
    for (std::size_t nAt = 0; nAt < strLine.size(); ++nAt)
    {
        const char   cChar   = strLine[nAt];
        std::string& strWord = stLine.lstWord.back();
        if (cQuote != 0 && cChar == cQuote)
            cQuote = 0;
        else if (cQuote == 0 && (cChar == '\'' || cChar == '"'))
        {
            cQuote       = cChar;
            bInWord      = true;
            stLine.nKept = strWord.size();
        }
        else if (cChar == '\\' && cQuote != '\'' && nAt + 1 < strLine.size())
        {
            strWord += strLine[++nAt];
            bInWord = true;
        }
        else if (cQuote == 0 && (cChar == ' ' || cChar == '\t'))
        {
            if (bInWord)
                stLine.lstWord.emplace_back();
            bInWord      = false;
            stLine.nKept = 0;
        }
        else
        {
            strWord += cChar;
            bInWord = true;
            if (cQuote == 0 && std::strchr(BASH_BREAKS, cChar) != nullptr)
                stLine.nKept = strWord.size();
        }
    }
    stLine.bQuoted = cQuote != 0;
    return stLine;
}

// A word as it may stand in a bash line outside quotes.
std::string bashQuoted(const std::string& strWord)
{
    std::string strQuoted;
    for (const char cChar : strWord)
    {
        if (std::strchr(" \t\\'\"`$&|;<>()*?[]{}#~!", cChar) != nullptr)
            strQuoted += '\\';
        strQuoted += cChar;
    }
    return strQuoted;
}

bool isOneLine(const StCandidate& stCandidate)
{
    return stCandidate.strWord.find_first_of("\n\t") == std::string::npos;
}

std::string firstLine(const std::string& strText)
{
    return strText.substr(0, strText.find('\n'));
}

void printFiles(const StCompletion& stCompletion)
{
    fmt::print("{}\n", stCompletion.bFolder ? ":folders" : ":files");
}

void printForBash(const CLI::App& oApp, const StGlobalOptions& stDefaults, const std::string& strText)
{
    StBashLine stLine = readBashLine(strText);
    stLine.lstWord.erase(stLine.lstWord.begin()); // opxml
    if (stLine.lstWord.empty())
        return;
    const StCompletion stCompletion = complete(oApp, stDefaults, stLine.lstWord);
    if (stCompletion.bFiles)
        printFiles(stCompletion);
    for (const StCandidate& stCandidate : stCompletion.lstCandidate)
    {
        const std::string strRest = stCandidate.strWord.substr(stLine.nKept);
        if (isOneLine(stCandidate))
            fmt::print("{}\n", stLine.bQuoted ? strRest : bashQuoted(strRest));
    }
}

void printWithDescriptions(const StCompletion& stCompletion)
{
    if (stCompletion.bFiles)
        printFiles(stCompletion);
    for (const StCandidate& stCandidate : stCompletion.lstCandidate)
    {
        if (isOneLine(stCandidate))
            fmt::print("{}\t{}\n", stCandidate.strWord, firstLine(stCandidate.strDescription));
    }
}
} // namespace

int runCompletion(const CLI::App& oApp, const StGlobalOptions& stDefaults, const std::vector<std::string>& lstArgument)
{
    if (lstArgument.size() < 2)
        return EXIT_TROUBLE;
    if (lstArgument[0] == "bash")
        printForBash(oApp, stDefaults, lstArgument[1]);
    else
        printWithDescriptions(complete(oApp, stDefaults, {lstArgument.begin() + 1, lstArgument.end()}));
    return EXIT_YES;
}
