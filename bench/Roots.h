// The server roots that the benchmarks read: generated on first use below the
// work folder, gone when the program ends. Files are the same for every size: a
// root has the first types of each larger one.
#ifndef OPERATIONXML_BENCH_ROOTS_H
#define OPERATIONXML_BENCH_ROOTS_H

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

// Makes the work folder empty, and removes it at the end.
class CWorkFolder
{
public:
    CWorkFolder();
    ~CWorkFolder();
    CWorkFolder(const CWorkFolder&)            = delete;
    CWorkFolder& operator=(const CWorkFolder&) = delete;
};

std::filesystem::path workFolder();

// A root with so many types.
std::filesystem::path rootOf(std::size_t nTypes);

// A root without types, with an alarm table of so many records.
std::filesystem::path alarmRootOf(std::size_t nAlarms);

// The configuration files of the first types, and their size in megabytes.
std::vector<std::filesystem::path> filesOf(std::size_t nTypes);
double                             megabytesOf(std::size_t nTypes);

// Opens a root for this process; throws with the reason when it cannot be.
void openRoot(const std::filesystem::path& oRoot);

#endif
