// opxml-bench: measures what the project promises about speed and memory and
// prints target, figure and verdict. Takes Google Benchmark's options (a filter
// above all); "--table FILE" writes the table to a file as well.
#include "LoadProbe.h"
#include "Roots.h"
#include "Targets.h"

#include <xercesc/util/PlatformUtils.hpp>

#include <cstdio>
#include <exception>
#include <fstream>
#include <string_view>

namespace
{
int run(int nArguments, char** ppszArguments)
{
    if (nArguments == 3 && std::string_view(ppszArguments[1]) == "--probe")
        return runLoadProbe(ppszArguments[2]);
    benchmark::Initialize(&nArguments, ppszArguments); // takes out what it knows
    const bool bTable = nArguments == 3 && std::string_view(ppszArguments[1]) == "--table";
    if (!bTable && benchmark::ReportUnrecognizedArguments(nArguments, ppszArguments))
        return 2;

    const CWorkFolder oFolder;
    xercesc::XMLPlatformUtils::Initialize();
    addLoadBenchmarks();
    addThreadBenchmarks();
    addGrowthBenchmarks();
    addAlarmBenchmarks();
    addToolBenchmarks();
    addCommandBenchmarks();
    addQueryBenchmarks();
    benchmark::RunSpecifiedBenchmarks();
    std::printf("\n%s", targetTable().c_str());
    if (bTable && !(std::ofstream(ppszArguments[2]) << targetTable()).flush())
        throw std::runtime_error(std::string("cannot write ") + ppszArguments[2]);
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
        static_cast<void>(std::fprintf(stderr, "opxml-bench: %s\n", oProblem.what()));
        return 2;
    }
}
