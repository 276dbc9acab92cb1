// See FileBytes.h.
#include "common/FileBytes.h"

#include "common/XmlLimits.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace
{
std::string errnoText(int nErrno)
{
    return std::generic_category().message(nErrno);
}

std::int64_t nanos(const timespec& stTime)
{
    return std::int64_t{stTime.tv_sec} * 1'000'000'000 + stTime.tv_nsec;
}

// Closes a file descriptor on every path.
class CFile
{
public:
    explicit CFile(const std::string& strPath) : m_nFd(::open(strPath.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)) {}
    ~CFile()
    {
        if (m_nFd >= 0)
            ::close(m_nFd);
    }
    CFile(const CFile&)            = delete;
    CFile& operator=(const CFile&) = delete;

    std::string read(std::string& strBytes) const
    {
        struct stat stStatus = {};
        if (m_nFd < 0 || ::fstat(m_nFd, &stStatus) != 0)
            return errnoText(errno);
        if (!S_ISREG(stStatus.st_mode))
            return "not a regular file";
        if (static_cast<std::size_t>(stStatus.st_size) > XmlLimits::MAX_FILE_BYTES)
            return "the file is larger than " + std::to_string(XmlLimits::MAX_FILE_BYTES >> 20) + " MB";
        strBytes.resize(static_cast<std::size_t>(stStatus.st_size));
        std::size_t nRead = 0;
        while (nRead < strBytes.size())
        {
            const ssize_t nChunk = ::read(m_nFd, strBytes.data() + nRead, strBytes.size() - nRead);
            if (nChunk < 0 && errno == EINTR)
                continue;
            if (nChunk < 0)
                return errnoText(errno);
            if (nChunk == 0)
                return "the file became shorter while it was read";
            nRead += static_cast<std::size_t>(nChunk);
        }
        return {};
    }

private:
    int m_nFd;
};
} // namespace

bool operator==(const StFileState& stLeft, const StFileState& stRight)
{
    return stLeft.nDevice == stRight.nDevice && stLeft.nInode == stRight.nInode && stLeft.nSize == stRight.nSize &&
           stLeft.nModifiedNanos == stRight.nModifiedNanos && stLeft.nChangedNanos == stRight.nChangedNanos;
}

std::optional<StFileState> fileState(const std::string& strPath)
{
    struct stat stStatus = {};
    if (::stat(strPath.c_str(), &stStatus) != 0)
        return std::nullopt;
    return StFileState{stStatus.st_dev, stStatus.st_ino, stStatus.st_size, nanos(stStatus.st_mtim),
                       nanos(stStatus.st_ctim)};
}

std::string readFileBytes(const std::string& strPath, std::string& strBytes)
{
    return CFile(strPath).read(strBytes);
}
