// See TextFile.h.
#include "standalone/TextFile.h"

#include "standalone/Sqlite.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace standalone
{
namespace
{
constexpr std::size_t SIZE_LIMIT = 64u << 20;
constexpr std::size_t CHUNK      = 1u << 20;

class CDescriptor
{
public:
    explicit CDescriptor(int nDescriptor) : m_nDescriptor(nDescriptor) {}
    ~CDescriptor()
    {
        if (m_nDescriptor >= 0)
            ::close(m_nDescriptor);
    }
    CDescriptor(const CDescriptor&)            = delete;
    CDescriptor& operator=(const CDescriptor&) = delete;
    int          get() const { return m_nDescriptor; }

private:
    int m_nDescriptor;
};

[[noreturn]] void failRead(const std::string& strPath)
{
    throw CInventoryError(strPath + ": cannot be read: " + std::generic_category().message(errno));
}
} // namespace

std::string readTextFile(const std::string& strPath)
{
    const CDescriptor oFile(::open(strPath.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct ::stat     stStatus = {};
    if (oFile.get() < 0 || ::fstat(oFile.get(), &stStatus) != 0)
        failRead(strPath);
    if (!S_ISREG(stStatus.st_mode))
        throw CInventoryError(strPath + ": not a file");
    std::string strText;
    // Counted while reading: the file may grow meanwhile.
    while (strText.size() <= SIZE_LIMIT)
    {
        const std::size_t nBefore = strText.size();
        strText.resize(nBefore + CHUNK);
        const ssize_t nRead = ::read(oFile.get(), strText.data() + nBefore, CHUNK);
        if (nRead < 0 && errno != EINTR)
            failRead(strPath);
        strText.resize(nBefore + static_cast<std::size_t>(nRead < 0 ? 0 : nRead));
        if (nRead == 0)
            return strText;
    }
    throw CInventoryError(strPath + ": larger than 64 MB");
}
} // namespace standalone
