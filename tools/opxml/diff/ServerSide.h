// One of the two roots of a comparison: what it registers, how its files are read, and
// taking its turn as the root that is open. One thread.
#ifndef OPERATIONXML_TOOLS_OPXML_DIFF_SERVERSIDE_H
#define OPERATIONXML_TOOLS_OPXML_DIFF_SERVERSIDE_H

#include "catalog/CatalogMaker.h"
#include "platform/DeviceAdapter.h"
#include "standalone/ServerRoot.h"
#include "tools/opxml/catalog/ServerCatalogs.h"

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

// A registry entry with what its configuration is read from.
struct StSideType
{
    StRegisteredType                             stName;
    std::string                                  strSysOid;
    bool                                         bCapacity = false;
    std::vector<catalog::StModuleCatalog const*> lstModule; // that name it, in the order in which they are merged
};

class CServerSide
{
public:
    // Opens the root and reads its registry and modules; throws CTrouble.
    explicit CServerSide(const std::string& strRoot);

    // Makes it the root that is open.
    void resume() const { standalone::resumeServerRoot(m_pRoot); }

    const std::vector<StRegisteredType>& types() const { return m_lstType; }

    // The entry of a name and version, or null.
    const StSideType* find(const StRegisteredType& stName) const;

    // These while it is the open one.
    StConfigPlan           plan(const StSideType& stType) const;
    catalog::StTypeCatalog make(const StSideType& stType);

    const std::vector<catalog::StModuleCatalog>& modules() const { return m_pMaker->modules(); }

    // What the readers ask the platform for beside files; where it differs, the same
    // files may read differently.
    const std::string& settings() const { return m_strSettings; }

    // A file below the root, without the root.
    std::string belowRoot(const std::string& strFile) const;

private:
    std::string                                               m_strRoot;
    standalone::OpenRoot                                      m_pRoot;
    std::unique_ptr<catalog::CCatalogMaker>                   m_pMaker;
    std::string                                               m_strSettings;
    std::vector<StRegisteredType>                             m_lstType; // each name and version once
    std::map<std::pair<std::string, std::string>, StSideType> m_mapType; // by name and version
};

#endif
