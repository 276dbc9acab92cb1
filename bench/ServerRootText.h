// Writes a server root of any size: inventory, configuration files, alarm table.
// The generator program and the benchmarks call it. Throws std::exception with a
// message when the disk does not take it.
#ifndef OPERATIONXML_BENCH_SERVERROOTTEXT_H
#define OPERATIONXML_BENCH_SERVERROOTTEXT_H

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

struct StRootWish
{
    std::filesystem::path oFolder;
    std::size_t           nTypes    = 0;
    std::size_t           nBytes    = 96000; // of each configuration file
    std::size_t           nAlarms   = 0;     // records of the alarm table; 0: no table
    std::uint64_t         ulSeed    = 1;
    bool                  bCheck    = true;  // files with "CheckOperations"
    std::size_t           nVersions = 1;     // of each type; all are served by one file
    bool                  bCommon   = false; // one common file instead of a file for each type
    std::filesystem::path oFilesOf  = {};    // take the files of this root (at least as many, same seed and size)
};

// Makes one device type for each number, with a file of its own or served by the
// common file, and one device of each type, whose id is that number plus 1.
void writeServerRoot(const StRootWish& stWish);

// Where the configuration file of a type lies in the root.
std::filesystem::path configFile(const std::filesystem::path& oFolder, std::size_t nType);

inline constexpr const char* TYPE_VERSION = "V3.7"; // the first version of every type

#endif
