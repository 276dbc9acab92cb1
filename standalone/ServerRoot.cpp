// See ServerRoot.h. The only place where the reader's exceptions end.
#include "standalone/ServerRoot.h"

#include "standalone/InventoryReader.h"
#include "standalone/Sqlite.h"

#include <cerrno>
#include <exception>
#include <memory>
#include <sys/stat.h>
#include <system_error>
#include <utility>

namespace standalone
{
namespace
{
// Why the folder cannot be a root at all; empty when it can.
std::string folderProblem(const std::string& strFolder)
{
    struct ::stat stStatus = {};
    if (strFolder.empty())
        return "no server root given";
    if (::stat(strFolder.c_str(), &stStatus) != 0)
        return strFolder + ": cannot be opened: " + std::generic_category().message(errno);
    return S_ISDIR(stStatus.st_mode) ? std::string() : strFolder + ": not a folder";
}
} // namespace

bool openServerRoot(const std::string& strFolder, std::string& strError)
{
    try
    {
        strError = folderProblem(strFolder);
        if (!strError.empty())
            return false;
        setCurrentInventory(std::make_shared<const StInventory>(readInventory(strFolder)));
        return true;
    }
    catch (const CInventoryError& oProblem)
    {
        strError = oProblem.what();
    }
    catch (const std::exception& oProblem) // out of memory
    {
        strError = strFolder + ": cannot be read: " + oProblem.what();
    }
    return false;
}

OpenRoot openedServerRoot()
{
    return currentInventory();
}

void resumeServerRoot(OpenRoot pRoot)
{
    setCurrentInventory(std::move(pRoot));
}

void closeServerRoot()
{
    setCurrentInventory(nullptr);
}

void setEnvironmentValue(const std::string& strName, const std::string& strValue)
{
    const auto pInventory = currentInventory();
    if (pInventory == nullptr)
        return;
    auto pChanged                     = std::make_shared<StInventory>(*pInventory);
    pChanged->mapEnvironment[strName] = strValue;
    setCurrentInventory(std::move(pChanged));
}
} // namespace standalone
