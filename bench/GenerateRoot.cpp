// opxml-generate-root: writes a server root of any size, to measure with or to
// try things out on. The same arguments give the same root on every machine.
#include "ServerRootText.h"

#include <CLI/CLI.hpp>

#include <cstdio>
#include <exception>

namespace
{
int run(int nArguments, char** ppszArguments)
{
    CLI::App    oApp("Writes a server root of any size: inventory, configuration files, alarm table.",
                     "opxml-generate-root");
    StRootWish  stWish;
    std::size_t nKilobytes = 96;
    std::string strFolder;
    std::string strCheck = "yes";
    oApp.add_option("DIR", strFolder, "Folder of the root; made when missing")->required();
    oApp.add_option("--types", stWish.nTypes, "Number of device types")->default_val(100)->check(CLI::Range(0, 60000));
    oApp.add_option("--kilobytes", nKilobytes, "Size of each file; below 10 the sections set the size")
        ->capture_default_str()
        ->check(CLI::Range(1, 200000));
    oApp.add_option("--seed", stWish.ulSeed, "Another seed, other files")->capture_default_str();
    oApp.add_option("--alarms", stWish.nAlarms, "Number of records in the alarm table")->capture_default_str();
    oApp.add_option("--versions", stWish.nVersions, "Registered versions of each type, served by one file")
        ->capture_default_str()
        ->check(CLI::Range(1, 100));
    oApp.add_flag("--common", stWish.bCommon, "One common file of that size for all types");
    oApp.add_option("--check", strCheck, "'no': no CheckOperations; other operations fill the files instead")
        ->capture_default_str()
        ->check(CLI::IsMember({"yes", "no"}));
    CLI11_PARSE(oApp, nArguments, ppszArguments);

    stWish.oFolder = strFolder;
    stWish.nBytes  = nKilobytes * 1000;
    stWish.bCheck  = strCheck == "yes";
    writeServerRoot(stWish);
    return 0;
}
} // namespace

int main(int nArguments, char** ppszArguments)
{
    try
    {
        return run(nArguments, ppszArguments);
    }
    catch (const std::exception& oProblem)
    {
        static_cast<void>(std::fprintf(stderr, "opxml-generate-root: %s\n", oProblem.what()));
        return 2;
    }
}
