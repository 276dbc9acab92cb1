// opxml explain: how a device or type resolves, and why something is offered there or
// is not.
#include "standalone/TypeList.h"
#include "tools/opxml/commands/Command.h"
#include "tools/opxml/explain/Explanation.h"
#include "tools/opxml/output/Terminal.h"
#include "tools/opxml/query/QuestionsAbout.h"

#include <memory>
#include <utility>

namespace
{
struct StExplainOptions
{
    std::string              strName;
    std::vector<std::string> lstId; // operation, parameter, option
    bool                     bJson = false;
};

int runExplain(const StGlobalOptions& stGlobal, StExplainOptions stOptions)
{
    openRoot(stGlobal);
    CServedKeys& oKeys = CServedKeys::instance();
    StSubject    stSubject;
    std::string  strError;
    if (!findSubject(oKeys, stOptions.strName, stSubject, strError))
    {
        remark(strError);
        return EXIT_NO;
    }
    standalone::listOnlyTypes({stSubject.strDevType}); // the questions need no other type loaded
    while (!stOptions.lstId.empty() && stOptions.lstId.back().empty())
        stOptions.lstId.pop_back();
    StExplanation stExplanation = explain(oKeys, std::move(stSubject), stOptions.lstId);
    stExplanation.lstQuestion   = askAbout(stExplanation);
    print(stOptions.bJson ? explanationJson(stExplanation) : explanationText(stExplanation));
    return stExplanation.bOffered ? EXIT_YES : EXIT_NO;
}
} // namespace

void addExplainCommand(CLI::App& oApp, StTool& stTool)
{
    CLI::App* pCommand = oApp.add_subcommand("explain", "Say why a device or type offers something, or does not");
    auto      pOptions = std::make_shared<StExplainOptions>();
    pOptions->lstId.resize(3);
    pCommand
        ->add_option(
            "DEVICE|TYPE", pOptions->strName,
            "A device by id, name or address; or a type, with TYPE:VERSION:SOFTWARE:PATCH one version in service")
        ->required();
    pCommand->add_option("OPERATION", pOptions->lstId[0], "What is asked for; without it, how the device resolves");
    pCommand->add_option("PARAMETER", pOptions->lstId[1], "A parameter of it, or an item of a check");
    pCommand->add_option("OPTION", pOptions->lstId[2], "An option of that, by name or number");
    pCommand->add_flag("--json", pOptions->bJson, "Print JSON");
    pCommand->footer("Exit status: 0 offered, or a configuration found; 1 not; 2 trouble.");
    pCommand->callback([&stTool, pOptions]
                       { stTool.fnRun = [&stTool, pOptions] { return runExplain(stTool.stOptions, *pOptions); }; });
}
