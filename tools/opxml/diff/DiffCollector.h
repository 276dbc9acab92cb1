// Puts the changes of many types together: the same change in fifty types is one change
// with fifty sites. Keeps numbers of files and types, not their names. One thread.
#ifndef OPERATIONXML_TOOLS_OPXML_DIFF_DIFFCOLLECTOR_H
#define OPERATIONXML_TOOLS_OPXML_DIFF_DIFFCOLLECTOR_H

#include "tools/opxml/diff/TypeDiff.h"

#include <map>
#include <string>
#include <tuple>
#include <unordered_map>
#include <vector>

class CDiffCollector
{
public:
    // The next type that has changes; the files of its catalogs are those of the places.
    void add(const StRegisteredType& stType, const std::vector<StTypeChange>& lstChange,
             const std::vector<std::string>& lstOldFile, const std::vector<std::string>& lstNewFile);

    // All of it, sorted. The collector is empty afterwards.
    StDiff take();

private:
    using Key = std::tuple<const StDiffRule*, EnChange, const StEntryKind*, std::string, std::string, std::string,
                           std::string, std::string>;

    std::uint32_t numberOf(const std::vector<std::string>& lstSoftware);
    StDiffPlace   placeOf(const catalog::StPlace& stPlace, const std::vector<std::string>& lstFile);

    StDiff                                         m_stDiff;
    std::map<Key, std::size_t>                     m_mapChange;
    std::unordered_map<std::string, std::uint32_t> m_mapFile;
    std::unordered_map<std::string, std::uint32_t> m_mapSoftware;
};

#endif
