// opxml dump: the store as JSON, an object from storage key to the list of root
// records, in store order. Written key by key: a large store is never held as
// JSON as a whole.
#include "database/CXMLConfigDatabase.h"
#include "tools/opxml/commands/Command.h"
#include "tools/opxml/output/DevTypes.h"
#include "tools/opxml/output/Output.h"
#include "tools/opxml/output/RecordJson.h"

#include <fmt/format.h>

#include <memory>
#include <vector>

namespace
{
// The keys that are asked for; every unknown name is told on stderr.
std::set<std::string> selectKeys(const StLoadReport& stReport, const std::vector<std::string>& lstName, bool& bAllKnown)
{
    std::set<std::string> setKey;
    for (const std::string& strName : lstName)
    {
        const std::set<std::string> setFound = findKeys(stReport, strName);
        setKey.insert(setFound.begin(), setFound.end());
        if (!setFound.empty())
            continue;
        bAllKnown = false;
        fmt::print(stderr, "opxml: {}\n", unknownTypeText(stReport, strName));
    }
    return setKey;
}

int runDump(const StGlobalOptions& stOptions, const std::vector<std::string>& lstName)
{
    openRoot(stOptions);
    CXMLConfigDatabase*   pDatabase = CXMLConfigDatabase::getInstance();
    bool                  bAllKnown = true;
    std::set<std::string> setKey    = selectKeys(pDatabase->getLoadReport(), lstName, bAllKnown);
    std::size_t           nWritten  = 0;
    pDatabase->visitDevTypes(
        [&](const std::string& strKey, const std::list<StAsnDevTypeVerXMLInfo*>& lstInfo)
        {
            if (!lstName.empty() && setKey.erase(strKey) == 0)
                return;
            print(nWritten == 0 ? "{\n  " : ",\n  ");
            print(jsonLine(Json(strKey)) + ": " + jsonText(toJson(lstInfo), 2));
            ++nWritten;
        });
    print(nWritten == 0 ? "{}\n" : "\n}\n");
    for (const std::string& strKey : setKey)
        fmt::print(stderr, "opxml: \"{}\" is not loaded; opxml load says why\n", strKey);
    return bAllKnown && setKey.empty() ? EXIT_YES : EXIT_NO;
}
} // namespace

void addDumpCommand(CLI::App& oApp, StTool& stTool)
{
    CLI::App* pCommand =
        oApp.add_subcommand("dump", "Print the loaded configurations as JSON, every field of every record");
    auto pNames = std::make_shared<std::vector<std::string>>();
    pCommand->add_option("TYPE", *pNames, "Device types or storage keys; all when none is named");
    pCommand->callback([&stTool, pNames]
                       { stTool.fnRun = [&stTool, pNames] { return runDump(stTool.stOptions, *pNames); }; });
}
