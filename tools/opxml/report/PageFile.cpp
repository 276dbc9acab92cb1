// See PageFile.h.
#include "tools/opxml/report/PageFile.h"

#include "tools/opxml/output/Exit.h"
#include "tools/opxml/output/Text.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>
#include <utility>

CPageFile::CPageFile(std::string strPath) : m_strPath(std::move(strPath)), m_strTemporary(m_strPath + ".new")
{
    // The final name is given by renaming: a device would be replaced by a file.
    std::error_code oIgnored;
    const auto      stStatus = std::filesystem::status(m_strPath, oIgnored);
    if (std::filesystem::exists(stStatus) && !std::filesystem::is_regular_file(stStatus))
        throw CTrouble(printable(m_strPath) + ": not a regular file");
    m_oFile.open(m_strTemporary, std::ios::binary | std::ios::trunc);
    if (!m_oFile)
        fail(m_strTemporary);
    m_bOpen = true;
}

CPageFile::~CPageFile()
{
    if (!m_bOpen)
        return;
    m_oFile.close();
    std::remove(m_strTemporary.c_str());
}

void CPageFile::write(std::string_view strText)
{
    m_oFile.write(strText.data(), static_cast<std::streamsize>(strText.size()));
    m_nBytes += strText.size();
    if (!m_oFile)
        fail(m_strTemporary);
}

void CPageFile::finish()
{
    m_oFile.close();
    if (!m_oFile)
        fail(m_strTemporary);
    if (std::rename(m_strTemporary.c_str(), m_strPath.c_str()) != 0)
        fail(m_strPath);
    m_bOpen = false;
}

void CPageFile::fail(const std::string& strPath) const
{
    throw CTrouble(printable(strPath) + ": " + std::generic_category().message(errno));
}
