// Puts the changes of many types together: the same change in fifty types is one change
// with fifty sites. Keeps numbers of files and types, not their names. One thread.
#ifndef OPERATIONXML_TOOLS_OPXML_DIFF_DIFFCOLLECTOR_H
#define OPERATIONXML_TOOLS_OPXML_DIFF_DIFFCOLLECTOR_H

#include "tools/opxml/diff/TypeDiff.h"

#include <cstddef>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

class CDiffCollector
{
public:
    CDiffCollector()                                 = default;
    CDiffCollector(const CDiffCollector&)            = delete;
    CDiffCollector& operator=(const CDiffCollector&) = delete;

    // The next type that has changes; the files of its catalogs are those of the places.
    void add(const StRegisteredType& stType, const std::vector<StTypeChange>& lstChange,
             const std::vector<std::string>& lstOldFile, const std::vector<std::string>& lstNewFile);

    // All of it, sorted. The collector is empty afterwards.
    StDiff take();

private:
    // A change by its place in the list, so that its texts are kept once.
    struct StHash
    {
        const std::vector<StChange>* pChanges;
        std::size_t                  operator()(std::size_t nAt) const;
    };
    struct StEqual
    {
        const std::vector<StChange>* pChanges;
        bool                         operator()(std::size_t nLeft, std::size_t nRight) const;
    };

    StChange&     changeLike(const StChange& stChange);
    std::uint32_t numberOf(const std::vector<std::string>& lstSoftware);
    StDiffPlace   placeOf(const catalog::StPlace& stPlace, const std::vector<std::string>& lstFile);

    StDiff                                           m_stDiff;
    std::unordered_set<std::size_t, StHash, StEqual> m_setChange{16, {&m_stDiff.lstChange}, {&m_stDiff.lstChange}};
    std::unordered_map<std::string, std::uint32_t>   m_mapFile;
    std::unordered_map<std::string, std::uint32_t>   m_mapSoftware;
};

#endif
