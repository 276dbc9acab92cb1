// The room explain/: why something is offered on a device or type, or is not. What is
// asked about is resolved to the configuration that serves it (Subject.h), found there
// by its ids (Stands.h), or else what stands in its way is found (Obstacles.h); all of
// that is one plain value (Explanation.h), which is then printed as a tree or as JSON.
// opxml explain shows it whole; the reasons of opxml query are the same obstacles, so
// that the two never disagree. On the room catalog/; knows no question of the server.
//
// The catalogs of an open root by storage key, as the store keeps configurations: each
// is read when it is first asked for, and stays.
#ifndef OPERATIONXML_TOOLS_OPXML_EXPLAIN_SERVEDKEYS_H
#define OPERATIONXML_TOOLS_OPXML_EXPLAIN_SERVEDKEYS_H

#include "catalog/CatalogMaker.h"
#include "tools/opxml/output/DevTypes.h"

#include <map>
#include <string>
#include <vector>

// What a storage key stands for.
struct StServedKey
{
    std::string                   strKey;
    std::vector<StRegisteredType> lstType; // the entries that share it, in the order of a load
    catalog::StTypeCatalog stCatalog;      // of the last one that can be read, which the store keeps; else of the last
    std::string            strProblem;     // why there is no configuration; empty: there is one
};

class CServedKeys
{
public:
    // Reads all modules of the open root.
    CServedKeys();

    // Of the root that is open when it is first called.
    static CServedKeys& instance();

    // What a type of this version, or a version that is not registered, is looked up as.
    // Stays where it is.
    const StServedKey& find(const std::string& strDevType, const std::string& strDevTypeVer);

    const std::vector<StRegisteredType>&         types() const { return m_lstType; }
    const std::vector<catalog::StModuleCatalog>& modules() const { return m_oMaker.modules(); }

private:
    void read(const std::string& strDevType, StServedKey& stServed);

    std::vector<StRegisteredType>      m_lstType; // in the order of a load
    catalog::CCatalogMaker             m_oMaker;
    std::map<std::string, StServedKey> m_mapKey;
};

#endif
