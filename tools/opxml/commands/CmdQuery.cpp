// opxml query: asks one operation of the library by its name, or a whole file of
// questions, and says why an answer is no.
#include "standalone/TypeList.h"
#include "tools/opxml/commands/Command.h"
#include "tools/opxml/output/Names.h"
#include "tools/opxml/output/Table.h"
#include "tools/opxml/output/Terminal.h"
#include "tools/opxml/output/Text.h"
#include "tools/opxml/query/QueryBatch.h"
#include "tools/opxml/query/QueryOperations.h"

#include <fmt/format.h>

#include <memory>

namespace
{
struct StQueryOptions
{
    std::vector<std::string> lstWord; // operation and arguments
    std::string              strBatch;
    bool                     bList = false;
    bool                     bJson = false;
};

std::string listText()
{
    CTable oTable({{"OPERATION"}, {"ARGUMENTS"}, {"ANSWER"}});
    for (const StQueryOperation& stOperation : queryOperations())
        oTable.addRow({stOperation.pszName, parameterNames(stOperation), stOperation.pszAnswer});
    return oTable.text();
}

std::string listJson()
{
    Json oList = Json::array();
    for (const StQueryOperation& stOperation : queryOperations())
    {
        Json oArguments = Json::array();
        for (const StQueryParameter& stParameter : stOperation.lstParameter)
            oArguments.push_back({{"name", stParameter.pszName}, {"kind", kindName(stParameter.enKind)}});
        oList.push_back(
            {{"op", stOperation.pszName}, {"arguments", std::move(oArguments)}, {"answer", stOperation.pszAnswer}});
    }
    return jsonText(oList) + "\n";
}

void printAnswer(const StQueryOperation& stOperation, const QueryArguments& lstArgument, const StQueryAnswer& stAnswer)
{
    print(answerText(stAnswer) + "\nresult: " + resultText(stAnswer.ulResult) + "\n");
    const StQueryReason stReason = reasonOf(stOperation, lstArgument, stAnswer);
    if (!stReason.strWhy.empty())
        printLine("why: " + stReason.strWhy);
    if (!stReason.strOffer.empty())
        printLine(stReason.strOffer);
}

int runQuestion(const StGlobalOptions& stGlobal, const StQueryOptions& stOptions)
{
    QueryArguments lstArgument;
    for (std::size_t nAt = 1; nAt < stOptions.lstWord.size(); ++nAt)
        lstArgument.push_back({stOptions.lstWord[nAt]});
    std::string             strError;
    const StQueryOperation* pOperation = findOperation(stOptions.lstWord.front(), lstArgument, strError);
    if (pOperation == nullptr)
        throw CTrouble(printable(strError));
    openRoot(stGlobal);
    standalone::listOnlyTypes(typesAsked(*pOperation, lstArgument));
    const std::string strUnknown = unknownVersion(*pOperation, lstArgument);
    if (!strUnknown.empty())
        remark(strUnknown);
    const StQueryAnswer stAnswer = pOperation->pfnAsk(lstArgument);
    if (stOptions.bJson)
        print(answerLine(*pOperation, stAnswer, reasonOf(*pOperation, lstArgument, stAnswer)));
    else
        printAnswer(*pOperation, lstArgument, stAnswer);
    return stAnswer.bFound ? EXIT_YES : EXIT_NO;
}

int runQuery(const StGlobalOptions& stGlobal, const StQueryOptions& stOptions)
{
    if ((stOptions.lstWord.empty() ? 0 : 1) + (stOptions.strBatch.empty() ? 0 : 1) + (stOptions.bList ? 1 : 0) != 1)
        throw CTrouble("query takes an operation with its arguments, or --batch FILE, or --list");
    if (stOptions.bList)
    {
        print(stOptions.bJson ? listJson() : listText());
        return EXIT_YES;
    }
    if (!stOptions.lstWord.empty())
        return runQuestion(stGlobal, stOptions);
    openRoot(stGlobal);
    return answerBatch(stOptions.strBatch) ? EXIT_YES : EXIT_NO;
}
} // namespace

void addQueryCommand(CLI::App& oApp, StTool& stTool)
{
    CLI::App* pCommand = oApp.add_subcommand("query", "Ask the library one question, or a file of questions");
    auto      pOptions = std::make_shared<StQueryOptions>();
    pCommand->add_option("OPERATION", pOptions->lstWord, "An operation and its arguments")->type_name("[ARGUMENT…]");
    pCommand->add_flag("--list", pOptions->bList, "List all operations with their arguments");
    pCommand->add_option("--batch", pOptions->strBatch, "Answer a file with one JSON array a line; - reads stdin")
        ->type_name("FILE");
    pCommand->add_flag("--json", pOptions->bJson, "Print JSON");
    // Two footers would be printed one after the other: the text of all commands
    // goes, and the list is made when it is asked for.
    pCommand->footer("");
    pCommand->footer(
        []
        {
            return "Operations:\n" + listText() +
                   "Exit status: 0 yes or found; 1 no, nothing, or a result that is not 0; 2 trouble.\n"
                   "A batch ends with 1 when a line of it was no question.";
        });
    pCommand->callback([&stTool, pOptions]
                       { stTool.fnRun = [&stTool, pOptions] { return runQuery(stTool.stOptions, *pOptions); }; });
}
