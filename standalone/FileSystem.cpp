// The file system wrappers, straight on the POSIX calls. Paths are UTF-8, as
// the file system has them: the encoding changes nothing here.
#include "platform/FileSystem.h"

#include "standalone/Fault.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

using namespace standalone;

DIR* KIVO_OS::opendir(const char* pszPath, const char* /*pszEncoding*/)
{
    if (const auto oFault = armedFault<operation("KIVO_OS::opendir")>())
    {
        errno = static_cast<int>(*oFault);
        return nullptr;
    }
    return ::opendir(pszPath);
}

int KIVO_OS::readdir_r(DIR* pDir, dirent* pEntry, dirent** ppResult, const char* /*pszEncoding*/)
{
    *ppResult = nullptr;
    if (const auto oFault = armedFault<operation("KIVO_OS::readdir_r")>())
        return static_cast<int>(*oFault);
    errno = 0;
    // The C library's own readdir_r is deprecated; readdir is safe as long as no
    // two threads share a folder handle, and no caller does.
    const dirent* pRead = ::readdir(pDir); // NOLINT(concurrency-mt-unsafe)
    if (pRead == nullptr)
        return errno;
    std::memcpy(pEntry, pRead, std::min<std::size_t>(pRead->d_reclen, sizeof(dirent)));
    *ppResult = pEntry;
    return 0;
}

int KIVO_OS::stat(const char* pszPath, struct ::stat* pStatbuf, const char* /*pszEncoding*/)
{
    if (const auto oFault = armedFault<operation("KIVO_OS::stat")>())
    {
        errno = static_cast<int>(*oFault);
        return -1;
    }
    return ::stat(pszPath, pStatbuf);
}

// A fault is reported after the folder is closed: nobody closes it again.
int KIVO_OS::closedir(DIR* pDir)
{
    const int nResult = ::closedir(pDir);
    if (const auto oFault = armedFault<operation("KIVO_OS::closedir")>())
    {
        errno = static_cast<int>(*oFault);
        return -1;
    }
    return nResult;
}
