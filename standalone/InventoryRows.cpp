// See InventoryRows.h. Exceptions end here.
#include "standalone/InventoryRows.h"

#include "standalone/InventoryReader.h"
#include "standalone/InventoryTables.h"

#include <exception>

namespace standalone
{
namespace
{
void addRows(CInventoryRow& oRow, const StInventoryTable& stTable, std::vector<InventoryRow>& lstRow)
{
    while (oRow.next())
    {
        InventoryRow& mapValue = lstRow.emplace_back();
        for (const char* pszColumn : stTable.lstColumn)
        {
            if (!oRow.isNull())
                mapValue.emplace(pszColumn, oRow.anyText());
        }
    }
}
} // namespace

StInventoryRows readInventoryRows(const std::string& strFolder, std::string& strError)
{
    StInventoryRows stRows;
    try
    {
        stRows.strFile = readInventoryTables(strFolder,
                                             [&](CInventoryRow& oRow, const StInventoryTable& stTable)
                                             {
                                                 stRows.mapColumn[stTable.pszName].assign(stTable.lstColumn.begin(),
                                                                                          stTable.lstColumn.end());
                                                 addRows(oRow, stTable, stRows.mapTable[stTable.pszName]);
                                             });
        return stRows;
    }
    catch (const std::exception& oProblem) // what is wrong with the inventory, or out of memory
    {
        strError = oProblem.what();
    }
    return {};
}
} // namespace standalone
