// See PageFile.h.
#include "tools/opxml/report/PageFile.h"

#include "tools/opxml/output/Exit.h"
#include "tools/opxml/output/Text.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace
{
constexpr const char* OPEN_FILES = "/proc/self/fd"; // where a file without a name can be found

std::FILE* opened(const std::string& strPath, int nHow)
{
    const int nFile = ::open(strPath.c_str(), O_WRONLY | O_CLOEXEC | nHow, 0666); // as far as the umask lets
    return nFile < 0 ? nullptr : ::fdopen(nFile, "wb");
}
} // namespace

CPageFile::CPageFile(std::string strPath) : m_strPath(std::move(strPath)), m_strTemporary(m_strPath + ".new")
{
    // The final name is given by renaming: a device would be replaced by a file.
    std::error_code oIgnored;
    const auto      stStatus = std::filesystem::status(m_strPath, oIgnored);
    if (std::filesystem::exists(stStatus) && !std::filesystem::is_regular_file(stStatus))
        throw CTrouble(printable(m_strPath) + ": not a regular file");
    const std::string strFolder = std::filesystem::path(m_strPath).parent_path();
    if (std::filesystem::exists(OPEN_FILES, oIgnored))
        m_pFile = opened(strFolder.empty() ? "." : strFolder, O_TMPFILE);
    if (m_pFile != nullptr)
        return;
    m_pFile = opened(m_strTemporary, O_CREAT | O_TRUNC);
    if (m_pFile == nullptr)
        fail(m_strTemporary);
    m_bNamed = true;
}

CPageFile::~CPageFile()
{
    if (m_pFile != nullptr)
        static_cast<void>(std::fclose(m_pFile));
    if (m_bNamed)
        std::remove(m_strTemporary.c_str());
}

void CPageFile::write(std::string_view strText)
{
    if (std::fwrite(strText.data(), 1, strText.size(), m_pFile) != strText.size())
        fail(m_strTemporary);
    m_nBytes += strText.size();
}

void CPageFile::finish()
{
    if (std::fflush(m_pFile) != 0)
        fail(m_strTemporary);
    if (!m_bNamed)
        giveName();
    if (std::fclose(std::exchange(m_pFile, nullptr)) != 0)
        fail(m_strTemporary);
    if (std::rename(m_strTemporary.c_str(), m_strPath.c_str()) != 0)
        fail(m_strPath);
    m_bNamed = false;
}

// A temporary one, too: only renaming replaces the page of the last time.
void CPageFile::giveName()
{
    const std::string strOpen = OPEN_FILES + ("/" + std::to_string(::fileno(m_pFile)));
    std::remove(m_strTemporary.c_str());
    if (::linkat(AT_FDCWD, strOpen.c_str(), AT_FDCWD, m_strTemporary.c_str(), AT_SYMLINK_FOLLOW) != 0)
        fail(m_strTemporary);
    m_bNamed = true;
}

void CPageFile::fail(const std::string& strPath) const
{
    throw CTrouble(printable(strPath) + ": " + std::generic_category().message(errno));
}
