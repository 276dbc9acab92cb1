// What the rules about whole device types have to say about files, of which several
// types may be made: each mistake once for all of them, with the types named where
// not all that are made of the file are concerned. One thread at a time.
#ifndef OPERATIONXML_LINT_TYPEFINDINGS_H
#define OPERATIONXML_LINT_TYPEFINDINGS_H

#include "catalog/Catalog.h"
#include "lint/FileReport.h"

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <tuple>
#include <vector>

namespace lint
{
// One mistake as one type sees it. The message is strWhat, the types if need be, and
// strSo.
struct StTypeFinding
{
    const char*              pszRule = nullptr;
    catalog::StPlace         stPlace;
    std::string              strWhat;
    std::string              strSo; // begins with ": "; may be empty
    std::string              strSubject;
    std::vector<std::string> lstHelp;
    std::string              strMeant; // the name that is surely meant; may be empty
};

class CTypeFindings
{
public:
    // A type, its catalog being looked at from here on, is made of these files.
    void begin(const catalog::StTypeCatalog& stType);

    void add(const catalog::StTypeCatalog& stType, StTypeFinding stFinding);

    // Hands over what was found about a file and forgets it: when all types that are
    // made of it have been looked at.
    void tell(const std::string& strFile, CFileReport& oReport);

    // The files about which there is something to tell.
    std::vector<std::string> files() const;

private:
    struct StShared
    {
        StTypeFinding         stFinding;
        std::set<std::string> setKey; // types that see it
    };
    using Place = std::tuple<std::uint32_t, std::uint32_t, std::string, std::string>; // line, column, rule, what

    std::map<std::string, std::set<std::string>>     m_mapUser; // of each file: types that are made of it
    std::map<std::string, std::map<Place, StShared>> m_mapFile;
};
} // namespace lint

#endif
