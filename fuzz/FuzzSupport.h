// What the fuzz targets share: a check that ends the run, a server root of the
// target's own, the input as text. A target is one source with the function
// LLVMFuzzerTestOneInput; the fuzzer calls it without end, FuzzReplay.cpp once for
// each file of its corpus. One thread.
#ifndef OPERATIONXML_FUZZ_FUZZSUPPORT_H
#define OPERATIONXML_FUZZ_FUZZSUPPORT_H

#include "records/RootRecords.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize);

// Prints the rule that does not hold and aborts: the fuzzer keeps the input.
[[noreturn]] void broken(const char* pszRule);
inline void       require(bool bHolds, const char* pszRule)
{
    if (!bHolds)
        broken(pszRule);
}

// The rules that every record keeps: it equals itself, its copy, and what a
// second read of the same input gave; the last also in the fields that equality
// leaves out.
void requireSame(const StAsnDevTypeVerXMLInfo& stFirst, const StAsnDevTypeVerXMLInfo& stSecond);

// Every record below a root, the root included.
std::size_t countRecords(const StAsnDevTypeVerXMLInfo& stInfo);

// A folder in memory where the system has one, gone when the program ends.
class CFuzzRoot
{
public:
    CFuzzRoot();
    ~CFuzzRoot();
    CFuzzRoot(const CFuzzRoot&)            = delete;
    CFuzzRoot& operator=(const CFuzzRoot&) = delete;

    // Writes a file below the folder, making its folders. False when the path
    // is taken by something else.
    bool write(const std::string& strPath, std::string_view strContent) const;

    // Writes server.sql and opens the folder as the server root.
    void open(std::string_view strInventory) const;

    std::string                  path() const { return m_oPath.string(); }
    const std::filesystem::path& folder() const { return m_oPath; }

private:
    std::filesystem::path m_oPath;
};

#endif
