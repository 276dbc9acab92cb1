// The search behind opxml find: which device types have an entry, and which lack it.
// Takes one catalog after the other and keeps what it found as plain values; prints
// nothing.
#ifndef OPERATIONXML_TOOLS_OPXML_FIND_ENTRYSEARCH_H
#define OPERATIONXML_TOOLS_OPXML_FIND_ENTRYSEARCH_H

#include "tools/opxml/catalog/EntryWalk.h"

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <vector>

struct StFindWish
{
    std::vector<std::string> lstWord;         // ids, or ends of paths of ids; none: all that strModule adds
    bool                     bLike = false;   // they are patterns
    const StEntryKind*       pKind = nullptr; // null: any
    std::string              strModule;       // only what this one adds; empty: all
};

// A registry entry, or some software versions of it.
struct StFindType
{
    std::string              strDevType;
    std::string              strDevTypeVer;
    std::vector<std::string> lstSoftware; // empty: all that there are
};

struct StFoundEntry
{
    std::size_t        nWord = 0; // of the wish
    StFindType         stType;
    const StEntryKind* pKind = nullptr;
    std::string        strPath;
    std::string        strSays;
    std::string        strOrigin;
    std::string        strPlace;
    std::string        strShadow; // the place of the entry that answers in its stead; empty when this one does
};

// A type that lacks it, or could not be read.
struct StFoundNot
{
    std::size_t nWord = 0;
    StFindType  stType;
    std::string strWhy; // what took it out, where it stands; empty: it stands nowhere
};

// For one word.
struct StFindCount
{
    std::size_t                        nHave = 0; // registry entries, with at least one configuration
    std::size_t                        nLack = 0; // the same
    std::map<EnEntryKind, std::size_t> mapByKind; // that have it as this kind, be it wished for or not
};

struct StFindResult
{
    std::vector<StFoundEntry> lstFound;
    std::vector<StFoundNot>   lstLacking;
    std::vector<StFoundNot>   lstUnread;
    std::vector<StFindCount>  lstCount;   // one for each word, or one for all
    std::size_t               nTypes = 0; // registry entries that could be read
    std::set<std::string>     setId;      // all that there are, for suggestions
};

class CEntrySearch
{
public:
    explicit CEntrySearch(StFindWish stWish);

    void take(const catalog::StTypeCatalog& stType);

    const StFindResult& result() const { return m_stResult; }

private:
    class CTypeSearch;

    StFindWish   m_stWish;
    StFindResult m_stResult;
};

#endif
