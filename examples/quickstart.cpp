// Asks one question outside a server: can an "LX 2400/S" be backed up?
//   quickstart [SERVER-ROOT]      exit status 0 when it was answered
// Shown in README.md; the tests build it against the installed library and run it.
#include "database/CXMLConfigDatabase.h"
#include "standalone/ServerRoot.h"

#include <iostream>

int main(int argc, char** argv)
{
    std::string strError;
    if (!standalone::openServerRoot(argc > 1 ? argv[1] : "examples/server", strError))
    {
        std::cerr << strError << '\n';
        return 2;
    }

    // The first use reads the configuration of every installed device type.
    CXMLConfigDatabase* pDatabase    = CXMLConfigDatabase::getInstance();
    bool                bIsSupported = false;
    const std::uint32_t ulResult     = pDatabase->isDeviceOpSupported("LX 2400/S", "V3.7", "Backup", bIsSupported);
    if (ulResult != 0)
    {
        std::cerr << "no configuration for LX 2400/S, code " << ulResult << '\n';
        return 2;
    }
    std::cout << "Backup of LX 2400/S V3.7: " << (bIsSupported ? "yes" : "no") << '\n';
    return 0;
}
