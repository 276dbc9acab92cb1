// opxml-manual: writes the manual pages of opxml, opxml.1 and one for each command,
// from the description that opxml parses its command line with, so that no option
// can be missing. Runs in the build only.
//   opxml-manual FOLDER ADDITIONS
// ADDITIONS/PAGE.roff, where there is one, stands in the page before SEE ALSO.
#include "tools/opxml/commands/CommandLine.h"
#include "tools/opxml/output/Terminal.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <iostream>
#include <sstream>

namespace
{
// Text as roff takes it: no escapes, and minus signs that can be copied.
std::string roffText(const std::string& strText)
{
    std::string strRoff;
    bool        bLineStart = true;
    for (const char cChar : strText)
    {
        if (bLineStart && (cChar == '.' || cChar == '\''))
            strRoff += "\\&";
        if (cChar == '\\')
            strRoff += "\\e";
        else if (cChar == '-')
            strRoff += "\\-";
        else
            strRoff += cChar;
        bLineStart = cChar == '\n';
    }
    return strRoff;
}

std::string bold(const std::string& strText)
{
    return "\\fB" + roffText(strText) + "\\fR";
}

std::string italic(const std::string& strText)
{
    return "\\fI" + roffText(strText) + "\\fR";
}

std::string pageName(const CLI::App& oApp)
{
    return oApp.get_parent() == nullptr ? oApp.get_name() : oApp.get_parent()->get_name() + "-" + oApp.get_name();
}

// What is asked for in the group "" is no part of the help either.
std::vector<const CLI::App*> shownCommands(const CLI::App& oApp)
{
    return oApp.get_subcommands([](const CLI::App* pCommand) { return !pCommand->get_group().empty(); });
}

std::vector<const CLI::Option*> shownOptions(const CLI::App& oApp, bool bPositional)
{
    return oApp.get_options([bPositional](const CLI::Option* pOption)
                            { return !pOption->get_group().empty() && pOption->nonpositional() != bPositional; });
}

// "TEXT:{text,json}" without the words.
std::string valueOf(const CLI::Option& oOption)
{
    const std::string strKind = oOption.get_type_name();
    return oOption.get_items_expected_max() == 0 ? "" : " " + italic(strKind.substr(0, strKind.find(':')));
}

// ". One of: text, json" for an option with such words.
std::string listedWords(const CLI::Option& oOption)
{
    const std::string strKind = oOption.get_type_name();
    const std::size_t nBegin  = strKind.find('{');
    if (nBegin == std::string::npos)
        return "";
    std::string strWords = ". One of:";
    for (std::size_t nAt = nBegin + 1; nAt < strKind.size() && strKind[nAt] != '}'; ++nAt)
    {
        strWords += nAt == nBegin + 1 || strKind[nAt - 1] == ',' ? " " : "";
        strWords += strKind[nAt];
    }
    return strWords;
}

std::string positional(const CLI::Option& oOption)
{
    std::string strText = italic(oOption.get_name(true));
    if (oOption.get_items_expected_max() > 1)
        strText += " ...";
    return oOption.get_required() ? strText : "[" + strText + "]";
}

// "-v, --verbose" with what it takes, each name in bold.
std::string optionNames(const CLI::Option& oOption)
{
    std::string strNames;
    for (const std::string& strName : oOption.get_snames())
        strNames += (strNames.empty() ? "" : ", ") + bold("-" + strName);
    for (const std::string& strName : oOption.get_lnames())
        strNames += (strNames.empty() ? "" : ", ") + bold("--" + strName);
    return strNames + valueOf(oOption);
}

void writeSynopsis(std::ostream& oPage, const CLI::App& oApp)
{
    oPage << ".SH SYNOPSIS\n";
    if (oApp.get_parent() == nullptr)
    {
        oPage << bold(oApp.get_name()) << " [" << italic("options") << "] " << italic("command") << " ...\n";
        return;
    }
    oPage << bold(oApp.get_parent()->get_name() + " " + oApp.get_name());
    for (const CLI::Option* pOption : shownOptions(oApp, false))
    {
        if (pOption->get_lnames().empty() || pOption->get_lnames().front().compare(0, 4, "help") == 0)
            continue;
        oPage << "\n[" << bold("--" + pOption->get_lnames().front()) << valueOf(*pOption) << "]";
    }
    for (const CLI::Option* pOption : shownOptions(oApp, true))
        oPage << "\n" << positional(*pOption);
    oPage << "\n";
}

void writeTerm(std::ostream& oPage, const std::string& strTerm, const std::string& strText)
{
    oPage << ".TP\n" << strTerm << "\n" << roffText(strText) << "\n";
}

void writeArguments(std::ostream& oPage, const CLI::App& oApp)
{
    const std::vector<const CLI::Option*> lstPositional = shownOptions(oApp, true);
    if (!lstPositional.empty())
        oPage << ".SH ARGUMENTS\n";
    for (const CLI::Option* pOption : lstPositional)
        writeTerm(oPage, positional(*pOption), pOption->get_description());
    oPage << ".SH OPTIONS\n";
    for (const CLI::Option* pOption : shownOptions(oApp, false))
    {
        std::string strText = pOption->get_description() + listedWords(*pOption);
        if (!pOption->get_default_str().empty())
            strText += ". Default: \"" + pOption->get_default_str() + "\"";
        if (!pOption->get_envname().empty())
            strText += ". Environment: " + pOption->get_envname();
        writeTerm(oPage, optionNames(*pOption), strText);
    }
}

void writeCommands(std::ostream& oPage, const CLI::App& oApp)
{
    oPage << ".SH COMMANDS\n";
    for (const CLI::App* pCommand : shownCommands(oApp))
        writeTerm(oPage, bold(pCommand->get_name()), pCommand->get_description());
}

// "Exit status: 0 all" is a section with a text, "Columns:" one with lines as they
// stand. What has no title, or a sentence for one, belongs to what stands before it;
// at the beginning, to notes.
constexpr std::size_t LONGEST_TITLE = 40;

void writeFooter(std::ostream& oPage, const std::string& strFooter)
{
    std::istringstream oLines(strFooter);
    bool               bAsItStands = false;
    bool               bFirst      = true;
    for (std::string strLine; std::getline(oLines, strLine);)
    {
        const std::size_t nColon = strLine.find(':');
        const bool bTitle = nColon < LONGEST_TITLE && std::isupper(static_cast<unsigned char>(strLine[0])) != 0 &&
                            strLine.find_first_not_of("abcdefghijklmnopqrstuvwxyz ", 1) == nColon;
        if (!bTitle && bFirst)
            oPage << ".SH NOTES\n.EX\n";
        bAsItStands = bAsItStands || (!bTitle && bFirst);
        bFirst      = false;
        if (!bTitle)
        {
            oPage << (bAsItStands ? "" : ".br\n") << roffText(strLine) << "\n";
            continue;
        }
        std::string strTitle = strLine.substr(0, nColon);
        std::transform(strTitle.begin(), strTitle.end(), strTitle.begin(),
                       [](unsigned char cChar) { return static_cast<char>(std::toupper(cChar)); });
        const std::size_t nText = strLine.find_first_not_of(' ', nColon + 1);
        oPage << (bAsItStands ? ".EE\n" : "") << ".SH " << strTitle << "\n";
        bAsItStands = nText == std::string::npos;
        oPage << (bAsItStands ? ".EX" : roffText(strLine.substr(nText))) << "\n";
    }
    oPage << (bAsItStands ? ".EE\n" : "");
}

void writeSeeAlso(std::ostream& oPage, const CLI::App& oApp)
{
    oPage << ".SH SEE ALSO\n";
    if (oApp.get_parent() != nullptr)
        oPage << ".BR " << roffText(oApp.get_parent()->get_name()) << " (1)\nfor the options of all commands,\n";
    for (const CLI::App* pCommand : shownCommands(oApp))
        oPage << ".BR " << roffText(pageName(*pCommand)) << " (1),\n";
    oPage << ".BR operationxml\\-config (5)\n";
}

std::string pageText(const CLI::App& oApp, const std::string& strAdditions)
{
    const std::string strName        = pageName(oApp);
    std::string       strTitle       = strName;
    std::string       strDescription = oApp.get_description();
    for (char& cChar : strTitle)
        cChar = static_cast<char>(std::toupper(static_cast<unsigned char>(cChar)));
    std::ostringstream oPage;
    oPage << ".TH " << roffText(strTitle) << " 1 \"\" operationXml \"User Commands\"\n.SH NAME\n" << roffText(strName);
    oPage << " \\- " << roffText(strDescription) << "\n";
    writeSynopsis(oPage, oApp);
    if (oApp.get_parent() == nullptr)
        writeCommands(oPage, oApp);
    writeArguments(oPage, oApp);
    writeFooter(oPage, oApp.get_footer());
    const std::ifstream oAddition(strAdditions + "/" + strName + ".roff");
    if (oAddition)
        oPage << oAddition.rdbuf();
    writeSeeAlso(oPage, oApp);
    return oPage.str();
}

bool writePage(const CLI::App& oApp, const std::string& strFolder, const std::string& strAdditions)
{
    const std::string strFile = strFolder + "/" + pageName(oApp) + ".1";
    std::ofstream     oFile(strFile);
    oFile << pageText(oApp, strAdditions);
    oFile.close();
    if (!oFile)
        std::cerr << "opxml-manual: cannot write " << strFile << '\n';
    return static_cast<bool>(oFile);
}
} // namespace

int main(int nArguments, char** ppszArguments)
{
    if (nArguments != 3)
    {
        std::cerr << "usage: opxml-manual FOLDER ADDITIONS\n";
        return 2;
    }
    try
    {
        CLI::App oApp;
        StTool   stTool;
        describeTool(oApp, stTool);
        bool bWritten = writePage(oApp, ppszArguments[1], ppszArguments[2]);
        for (const CLI::App* pCommand : shownCommands(oApp))
            bWritten = writePage(*pCommand, ppszArguments[1], ppszArguments[2]) && bWritten;
        return bWritten ? 0 : 2;
    }
    catch (const std::exception& oProblem)
    {
        std::cerr << "opxml-manual: " << oProblem.what() << '\n';
        return 2;
    }
}
