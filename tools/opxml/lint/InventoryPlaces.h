// Where the values of a server.sql stand: the literals of its INSERT statements. Only
// reads what SQLite has accepted; a row that other statements made has no place.
#ifndef OPERATIONXML_TOOLS_OPXML_LINT_INVENTORYPLACES_H
#define OPERATIONXML_TOOLS_OPXML_LINT_INVENTORYPLACES_H

#include "catalog/SourceText.h"
#include "standalone/InventoryRows.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

class CInventoryPlaces
{
public:
    // The columns are those of the tables, for a statement that names none.
    CInventoryPlaces(std::string strScript, const std::map<std::string, std::vector<std::string>>& mapColumn);

    // The value of a row, or the row where the value is a default; line 0 when the
    // row is not found.
    catalog::StSpot spot(const std::string& strTable, const standalone::InventoryRow& stRow,
                         const std::string& strColumn) const;

    std::string line(std::uint32_t ulLine) const { return m_oText.shownLine(ulLine); }

private:
    struct StLiteral
    {
        std::string strValue;
        std::size_t nBegin = 0;
        std::size_t nEnd   = 0;
        bool        bKnown = false; // a plain text or number
    };

    struct StTuple
    {
        std::size_t                      nBegin = 0;
        std::map<std::string, StLiteral> mapLiteral; // by column
    };

    void             readStatement();
    void             readTuples(const std::string& strTable, const std::vector<std::string>& lstColumn);
    StLiteral        readValue();
    std::string_view peek(); // the next word, text or character, behind blanks and comments
    std::string      take();
    void             skipStatement();

    static bool isRow(const StTuple& stTuple, const standalone::InventoryRow& stRow);

    catalog::CSourceText                                   m_oText;
    const std::map<std::string, std::vector<std::string>>& m_mapColumn;
    std::size_t                                            m_nAt = 0;
    std::map<std::string, std::vector<StTuple>>            m_mapTuple; // by table
    mutable std::map<std::string, std::size_t>             m_mapLast;  // the tuple found last: rows come in their order
};

#endif
