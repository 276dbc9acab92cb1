// opxml dump: the store as JSON, an object from storage key to the list of root
// records, in store order. Written key by key: a large store is never held as
// JSON as a whole.
#include "database/CXMLConfigDatabase.h"
#include "standalone/TypeList.h"
#include "tools/opxml/commands/Command.h"
#include "tools/opxml/output/DevTypes.h"
#include "tools/opxml/output/RecordJson.h"
#include "tools/opxml/output/Terminal.h"

#include <fmt/format.h>

#include <list>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace
{
// The keys that are asked for; every unknown name is told on stderr.
std::set<std::string> selectKeys(const std::vector<std::string>& lstName, bool& bAllKnown)
{
    std::set<std::string>               setKey;
    const std::vector<StRegisteredType> lstType = registeredTypes();
    for (const std::string& strName : lstName)
    {
        const std::set<std::string> setFound = findKeys(lstType, strName);
        setKey.insert(setFound.begin(), setFound.end());
        if (!setFound.empty())
            continue;
        bAllKnown = false;
        remark(unknownTypeText(lstType, strName));
    }
    return setKey;
}

// One key of the store. The records stay where they are while nobody reads a type,
// and this process has no other thread.
struct StStoredKey
{
    std::string                        strKey;
    std::list<StAsnDevTypeVerXMLInfo*> lstInfo;
};

// The wanted keys in the order of the store; all of them when none is named.
std::vector<StStoredKey> gather(const std::set<std::string>& setKey, bool bAll)
{
    std::vector<StStoredKey> lstStored;
    CXMLConfigDatabase::getInstance()->visitDevTypes(
        [&](const std::string& strKey, const std::list<StAsnDevTypeVerXMLInfo*>& lstInfo)
        {
            if (bAll || setKey.count(strKey) != 0)
                lstStored.push_back({strKey, lstInfo});
        });
    return lstStored;
}

int runDump(const StGlobalOptions& stOptions, const std::vector<std::string>& lstName)
{
    openRoot(stOptions);
    bool                  bAllKnown = true;
    std::set<std::string> setKey    = selectKeys(lstName, bAllKnown);
    if (!lstName.empty())
        standalone::listOnlyTypes(setKey);
    const char* pszBefore = "{\n  ";
    for (const StStoredKey& stStored : gather(setKey, lstName.empty()))
    {
        print(pszBefore + jsonLine(Json(stStored.strKey)) + ": " + jsonText(toJson(stStored.lstInfo), 2));
        pszBefore = ",\n  ";
        if (!stStored.lstInfo.empty())
            setKey.erase(stStored.strKey);
    }
    print(*pszBefore == '{' ? "{}\n" : "\n}\n");
    for (const std::string& strKey : setKey)
        remark("\"" + strKey + "\" is not loaded; opxml load says why");
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
