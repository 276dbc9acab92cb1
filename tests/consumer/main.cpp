// The smallest program on the installed library: lists the types of a rule file.
#include "filecheck/ParseXMLFile.h"

#include <iostream>

int main(int /*argc*/, char** argv)
{
    ParseXMLFile::TypeMap mapType;
    const std::uint32_t   ulResult = ParseXMLFile::GetXMLInfo(argv[1], mapType);
    for (const auto& [strType, stRules] : mapType)
        std::cout << strType << ": " << stRules.strMaxSize << '\n';
    return ulResult == 0 ? 0 : 1;
}
