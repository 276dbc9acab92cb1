// The detail of one configuration: every entry with what it says and its place, as
// compact JSON. The page makes the lines of it (page/words.js). What is alike stands
// together, field by field: that takes half the time to compress, and less room.
//
//   {"files": [the type's own, ...], "sections": [[row, entries], ...],
//    "record": [...], "children": [...], "down": [...], "column": [...],
//    "values": [[[first field of all entries of record 0], ...], ...], "more": {...}}
// Of each entry, one before those in it: its record, as a number in records(); how many
// entries stand in it; its place, in lines down from the entry before it. An entry that
// was taken out has its id alone, and is of a record of its own. "more" has by the number
// of the entry: f, another file from here on (lines count from 0 then); m, its module
// where that of the entry around it is another; t, why it does not count ("shadowed",
// "dropped", "cut"); b, [file, line, column] of what made it so; r, the reason.
#ifndef OPERATIONXML_TOOLS_OPXML_REPORT_DETAIL_H
#define OPERATIONXML_TOOLS_OPXML_REPORT_DETAIL_H

#include "catalog/Catalog.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

// By number: the name of each record, then those of its fields.
using DetailRecords = std::vector<std::vector<std::string>>;

// Makes one after the other; what it works with is kept. One thread.
class CDetailMaker
{
public:
    // Valid until the next one is made.
    const std::string& make(const catalog::StTypeCatalog& stType, std::size_t nConfiguration);

    // Those that were met so far.
    DetailRecords records() const;

private:
    // What entries of one record say, each field by itself.
    struct StValues
    {
        const char*              pszRecord = nullptr;
        bool                     bIdAlone  = false;
        std::vector<const char*> lstField;
        std::vector<std::string> lstText; // in the order of the fields
    };

    void          begin(const catalog::StTypeCatalog& stType);
    void          addEntry(const catalog::StEntry& stEntry, const catalog::StEntry* pParent);
    void          addValues(const catalog::StEntry& stEntry);
    void          addMore(const catalog::StEntry& stEntry, const catalog::StEntry* pParent);
    std::size_t   recordNumber(const catalog::StEntry& stEntry);
    std::uint32_t fileNumber(std::uint32_t ulFile);
    void          join();
    void          joinValues();
    void          addList(std::string_view strBefore, std::string_view strElements);

    std::vector<StValues> m_lstValues; // by the number of the record

    // Of the detail that is being made. Elements of arrays, each behind a comma.
    const catalog::StTypeCatalog*          m_pType = nullptr;
    std::map<std::uint32_t, std::uint32_t> m_mapFile; // number in the detail by that in the catalog
    std::uint32_t                          m_ulFile   = 0;
    std::uint32_t                          m_ulLine   = 0;
    std::size_t                            m_nEntries = 0;
    std::string                            m_strFiles;
    std::string                            m_strSections;
    std::string                            m_strRecord;
    std::string                            m_strChildren;
    std::string                            m_strDown;
    std::string                            m_strColumn;
    std::string                            m_strMore;
    std::string                            m_strJson;
};

#endif
