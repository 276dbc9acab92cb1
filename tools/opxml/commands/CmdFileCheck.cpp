// opxml filecheck: the rules of a file-check file, what makes it invalid, and
// what is passed over. Needs no server root and loads nothing else.
#include "common/ReadProblem.h"
#include "filecheck/ParseXMLFile.h"
#include "standalone/LogSink.h"
#include "tools/opxml/commands/Command.h"
#include "tools/opxml/lint/CheckFile.h"
#include "tools/opxml/output/RecordJson.h"
#include "tools/opxml/output/Table.h"
#include "tools/opxml/output/Terminal.h"
#include "tools/opxml/output/Text.h"

#include <fmt/format.h>

#include <cerrno>
#include <memory>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace
{
struct StFileCheckOptions
{
    std::string strFile;
    bool        bCheck = false;
    bool        bJson  = false;
};

struct StRules
{
    ParseXMLFile::TypeMap    mapType; // up to the first failure
    std::uint32_t            ulResult = 0;
    std::vector<std::string> lstFailure; // the error lines of the log
};

struct StRuleField
{
    const char* pszHeading;
    const char* pszField;
    std::string UncompressedType::*pField;
};

// Headings are the element names of the file.
constexpr StRuleField RULE_FIELDS[] = {
    {"UNCOMPRESSED_SUFFIX", "strUncompressedSuffix", &UncompressedType::strUncompressedSuffix},
    {"MAX_SIZE", "strMaxSize", &UncompressedType::strMaxSize},
    {"FILE_MAX_SIZE", "strFileMaxSize", &UncompressedType::strFileMaxSize},
    {"WHOLE_FILE_MAX_SIZE", "strWholeFileMaxSize", &UncompressedType::strWholeFileMaxSize},
    {"MAX_COUNT", "strMaxCount", &UncompressedType::strMaxCount},
    {"FILE_SUFFIX", "strFileSuffix", &UncompressedType::strFileSuffix},
};

// A file that is not there is trouble of the caller, not a bad rule file.
void requireFile(const std::string& strFile)
{
    struct ::stat stStatus = {};
    if (::stat(strFile.c_str(), &stStatus) != 0 || ::access(strFile.c_str(), R_OK) != 0)
        throw CTrouble(printable(strFile) + ": " + std::generic_category().message(errno));
    if (!S_ISREG(stStatus.st_mode))
        throw CTrouble(printable(strFile) + ": not a regular file");
}

StRules readRules(const std::string& strFile)
{
    StRules stRules;
    standalone::setLogListener(
        [&stRules](const standalone::StLogLine& stLine)
        {
            if (stLine.bError)
                stRules.lstFailure.push_back(stLine.strText);
        });
    stRules.ulResult = ParseXMLFile::GetXMLInfo(strFile, stRules.mapType);
    standalone::setLogListener({});
    return stRules;
}

std::string rulesTable(const ParseXMLFile::TypeMap& mapType)
{
    std::vector<StColumn> lstColumn = {{"TYPE"}};
    for (const StRuleField& stField : RULE_FIELDS)
        lstColumn.push_back({stField.pszHeading});
    CTable oTable(lstColumn);
    for (const auto& [strType, stType] : mapType)
    {
        std::vector<std::string> lstCell = {strType};
        for (const StRuleField& stField : RULE_FIELDS)
            lstCell.push_back((stType.*stField.pField).empty() ? "-" : stType.*stField.pField);
        oTable.addRow(lstCell);
    }
    return oTable.text();
}

// "line 3, column 5: MESSAGE", as other mistakes of a file are told.
std::vector<std::string> mistakesOf(const std::string& strFile)
{
    std::vector<std::string> lstMistake;
    for (const lint::StFinding& stFinding : findMistakes(strFile, strFile, lint::EnFileKind::FileCheck))
        lstMistake.push_back(problemText({"", stFinding.ulLine, stFinding.ulColumn, stFinding.strMessage}));
    return lstMistake;
}

std::string rulesJson(const std::string& strFile, const StRules& stRules)
{
    Json oTypes = Json::object();
    for (const auto& [strType, stType] : stRules.mapType)
    {
        for (const StRuleField& stField : RULE_FIELDS)
            oTypes[strType][stField.pszField] = stType.*stField.pField;
    }
    return jsonText({{"file", strFile},
                     {"result", stRules.ulResult},
                     {"types", oTypes},
                     {"failures", stRules.lstFailure},
                     {"mistakes", mistakesOf(strFile)}}) +
           "\n";
}

int runFileCheck(const StGlobalOptions& stGlobal, const StFileCheckOptions& stOptions)
{
    applyOptions(stGlobal);
    requireFile(stOptions.strFile);
    if (stOptions.bCheck)
        return printMistakes(stOptions.strFile, stOptions.strFile, lint::EnFileKind::FileCheck, stOptions.bJson);
    const StRules stRules = readRules(stOptions.strFile);
    const int     nExit   = stRules.ulResult == 0 ? EXIT_YES : EXIT_NO;
    if (stOptions.bJson)
    {
        print(rulesJson(stOptions.strFile, stRules));
        return nExit;
    }
    if (!stRules.mapType.empty())
        print(rulesTable(stRules.mapType));
    for (const std::string& strFailure : stRules.lstFailure)
        remark(stOptions.strFile + ": " + strFailure);
    for (const std::string& strMistake : mistakesOf(stOptions.strFile))
        remark(stOptions.strFile + ": " + strMistake);
    return nExit;
}
} // namespace

void addFileCheckCommand(CLI::App& oApp, StTool& stTool)
{
    CLI::App* pCommand =
        oApp.add_subcommand("filecheck", "Show the rules of a file-check file and what is wrong with it");
    auto pOptions = std::make_shared<StFileCheckOptions>();
    pCommand->add_option("FILE", pOptions->strFile, "The rule file; no server root is needed")->required();
    pCommand->add_flag("--check", pOptions->bCheck,
                       "Name the mistakes only, as opxml lint does; status 1 when there are any");
    pCommand->add_flag("--json", pOptions->bJson, "Print JSON");
    pCommand->footer("Exit status: 0 valid (--check: no mistakes), 1 invalid, 2 trouble (no such file).");
    pCommand->callback([&stTool, pOptions]
                       { stTool.fnRun = [&stTool, pOptions] { return runFileCheck(stTool.stOptions, *pOptions); }; });
}
