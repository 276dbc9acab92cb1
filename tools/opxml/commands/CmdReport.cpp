// opxml report: writes one page that shows, in any browser, what every device type of
// a server root offers, and what is wrong with its files.
#include "tools/opxml/commands/Command.h"
#include "tools/opxml/output/Terminal.h"
#include "tools/opxml/report/Report.h"

#include <memory>

namespace
{
int runReport(const StGlobalOptions& stGlobal, StReportWish stWish)
{
    openRoot(stGlobal);
    stWish.strRoot = stGlobal.strRoot;
    stWish.strTool = "opxml " OPXML_VERSION;
    remark(writeReport(stWish));
    return EXIT_YES;
}
} // namespace

void addReportCommand(CLI::App& oApp, StTool& stTool)
{
    CLI::App* pCommand = oApp.add_subcommand("report", "Write one page to look at: every type, every operation");
    auto      pWish    = std::make_shared<StReportWish>();
    pCommand->add_option("--output", pWish->strOutput, "The page; written whole or not at all")
        ->type_name("FILE.html")
        ->required();
    pCommand
        ->add_option("--compare", pWish->strCompare,
                     "Show as well what changed since this server root, as opxml diff does")
        ->type_name("OLDROOT");
    pCommand->add_option("--title", pWish->strTitle, "Heading of the page; else the name of the root's folder")
        ->type_name("TEXT");
    pCommand->add_flag_callback(
        "--no-details", [pWish] { pWish->bDetails = false; },
        "Leave out the trees of the types: the page is a tenth of the size");
    pCommand->add_flag_callback(
        "--no-lint", [pWish] { pWish->bLint = false; }, "Leave out what opxml lint finds: the page is made faster");
    pCommand->footer("The page needs no server, no network and no other file.\n"
                     "Exit status: 0 it is written, 2 trouble.");
    pCommand->callback([&stTool, pWish]
                       { stTool.fnRun = [&stTool, pWish] { return runReport(stTool.stOptions, *pWish); }; });
}
