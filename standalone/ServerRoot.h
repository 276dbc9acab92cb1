// Opening a server root: the folder whose inventory (server.db or server.sql)
// answers for the platform when the library runs outside the server.
// One root is open at a time. It is read whole into memory before any of it is
// put to use, so a bad inventory leaves what was open before untouched. Open a
// root before the first use of the library and not while other threads use it;
// the services themselves only read and may be called from any thread.
#ifndef OPERATIONXML_STANDALONE_SERVERROOT_H
#define OPERATIONXML_STANDALONE_SERVERROOT_H

#include "platform/Export.h"

#include <cstdint>
#include <memory>
#include <string>

namespace standalone
{
struct StInventory;

// Codes that the stand-alone services answer with beside 0.
constexpr std::uint32_t RESULT_NOT_IN_INVENTORY = 0x3B0F0001; // no row for what was asked
constexpr std::uint32_t RESULT_NO_ROOT          = 0x3B0F0002; // no server root is open

// Opens the root at the folder. Every path handed out starts with the folder as
// it is given here, relative or not, without trailing separators. On failure returns false and puts one message
// into strError that names the file and, where one failed, the statement.
OPERATIONXML_PLATFORM_API bool openServerRoot(const std::string& strFolder, std::string& strError);

// A root as it was opened, inventory and all. Null: none.
using OpenRoot = std::shared_ptr<const StInventory>;

// The root that is open, and taking it up again later, when another one was opened
// meanwhile: for tools that go to and fro between two. Nothing is read again.
OPERATIONXML_PLATFORM_API OpenRoot openedServerRoot();
OPERATIONXML_PLATFORM_API void     resumeServerRoot(OpenRoot pRoot);

// Closes the root. Services that answer with a code then answer RESULT_NO_ROOT,
// lists and lookups find nothing, paths and environment values are empty.
OPERATIONXML_PLATFORM_API void closeServerRoot();

// Lets one environment value of the open root read differently from here on, as
// a process does that was started with another environment. Without a root
// nothing happens.
OPERATIONXML_PLATFORM_API void setEnvironmentValue(const std::string& strName, const std::string& strValue);
} // namespace standalone

#endif
