// See Baseline.h. A baseline is text: a heading, then "FINGERPRINT RULE FILE" lines.
#include "tools/opxml/lint/Baseline.h"

#include "tools/opxml/output/Exit.h"
#include "tools/opxml/output/Terminal.h"
#include "tools/opxml/output/Text.h"

#include <fmt/format.h>

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <system_error>

namespace
{
constexpr const char* HEADING = "# opxml lint baseline 1";

// FNV-1a, 64 bits: the same on every machine and in every version.
std::uint64_t hashOf(const std::string& strText)
{
    std::uint64_t ulHash = 0xCBF29CE484222325U;
    for (const char cByte : strText)
        ulHash = (ulHash ^ static_cast<unsigned char>(cByte)) * 0x100000001B3U;
    return ulHash;
}

[[noreturn]] void fail(const std::string& strPath, int nErrno)
{
    throw CTrouble(printable(strPath) + ": " + std::generic_category().message(nErrno));
}
} // namespace

std::string CFingerprints::next(const lint::StFinding& stFinding, const std::string& strFile)
{
    const std::string strSubject = stFinding.strRule + '\n' + strFile + '\n' + stFinding.strSubject;
    const unsigned    nTimes     = ++m_mapTimes[strSubject];
    return fmt::format("{:016x}", hashOf(strSubject + '\n' + std::to_string(nTimes)));
}

void CBaseline::read(const std::string& strPath)
{
    std::ifstream oFile(strPath);
    if (!oFile)
        fail(strPath, errno);
    std::string strLine;
    if (!std::getline(oFile, strLine) || strLine != HEADING)
        throw CTrouble(printable(strPath) + ": no baseline: its first line is not \"" + HEADING + "\"");
    while (std::getline(oFile, strLine))
        m_setKnown.insert(strLine.substr(0, strLine.find(' ')));
}

void CBaseline::add(const std::string& strFingerprint, const std::string& strRule, const std::string& strFile)
{
    m_setLine.emplace(strFile + ' ' + strRule, fmt::format("{} {} {}", strFingerprint, strRule, printable(strFile)));
}

void CBaseline::write(const std::string& strPath) const
{
    const std::string strTemporary = strPath + ".new";
    {
        std::ofstream oFile(strTemporary, std::ios::trunc);
        oFile << HEADING << '\n';
        for (const auto& [strKey, strLine] : m_setLine)
            oFile << strLine << '\n';
        oFile.flush();
        if (!oFile)
            fail(strTemporary, errno);
    }
    if (std::rename(strTemporary.c_str(), strPath.c_str()) != 0)
        fail(strPath, errno);
}
