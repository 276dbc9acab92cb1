// CLoadPlan: which files a start-up load is going to want and how long, known before
// it reads the first one; the same of a recorded read. Made and asked by its documents
// (LoadDocuments.h).
// Hints, not promises: only the adapter is asked, for the paths that it will be asked
// for again; what else decides about a file is left to the read. A value.
#ifndef OPERATIONXML_READER_LOADPLAN_H
#define OPERATIONXML_READER_LOADPLAN_H

#include "reader/ConfigOrigin.h"

#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

// An entry of the registry, or whatever else is read as one.
struct StLoadType
{
    std::string              strKey; // its storage key; with the same one, the same files are read
    bool                     bCommon   = false;
    bool                     bCapacity = false;
    std::vector<std::string> lstFile   = {}; // where they are known; else the adapter is asked
};

class CLoadPlan
{
public:
    CLoadPlan() = default; // knows nothing

    // The types in the order in which they are read. What is thrown over one type's
    // files costs that type its hints.
    explicit CLoadPlan(const std::vector<StLoadType>& lstType);

    // The files in the order in which they are first wanted, each once.
    const std::vector<std::string>& files() const { return m_lstFile; }

    // The last type that may want this file, which type nType wants.
    std::size_t lastUser(const std::string& strFile, EnConfigSource enSource, std::size_t nType) const;

private:
    void addFiles(const StLoadType& stType, std::size_t nType);
    void addFile(const std::string& strFile, std::size_t nType);

    std::vector<std::string>                     m_lstFile;
    std::unordered_map<std::string, std::size_t> m_mapLastUser;  // of each of these files
    std::vector<std::size_t>                     m_lstLastOfKey; // for each type, the last one of its key
    std::size_t                                  m_nLastCommon = 0;
};

#endif
