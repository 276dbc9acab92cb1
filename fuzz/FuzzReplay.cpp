// Runs one fuzz target over the files of its corpus without a fuzzer, so that
// the test suite of every build meets what was once found. Exits with 1 when
// there is nothing to replay; a broken rule aborts.
#include "FuzzSupport.h"

#include <algorithm>
#include <cstdio>
#include <exception>
#include <fstream>
#include <iterator>

namespace
{
std::vector<std::filesystem::path> filesBelow(const char* pszFolder)
{
    std::vector<std::filesystem::path> lstPath;
    for (const auto& oEntry : std::filesystem::recursive_directory_iterator(pszFolder))
    {
        if (oEntry.is_regular_file())
            lstPath.push_back(oEntry.path());
    }
    std::sort(lstPath.begin(), lstPath.end());
    return lstPath;
}

int replay(int nFolders, char** ppszFolder)
{
    std::size_t nReplayed = 0;
    for (int nAt = 0; nAt < nFolders; ++nAt)
    {
        for (const std::filesystem::path& oPath : filesBelow(ppszFolder[nAt]))
        {
            std::printf("%s\n", oPath.c_str());
            std::fflush(stdout); // the last line names the file that aborts
            std::ifstream     oStream(oPath, std::ios::binary);
            const std::string strInput{std::istreambuf_iterator<char>(oStream), {}};
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(strInput.data()), strInput.size());
            ++nReplayed;
        }
    }
    std::printf("%zu inputs replayed\n", nReplayed);
    return nReplayed == 0 ? 1 : 0;
}
} // namespace

int main(int argc, char** argv)
{
    try
    {
        return replay(argc - 1, argv + 1);
    }
    catch (const std::exception& oProblem)
    {
        std::fprintf(stderr, "%s\n", oProblem.what());
        return 1;
    }
}
