// The matrix: what one configuration offers, as the cells of a row. A column is one
// thing that a type may offer: an operation of a section, a menu entry, a task type.
// Called while types are read; one thread.
#ifndef OPERATIONXML_TOOLS_OPXML_REPORT_CELLS_H
#define OPERATIONXML_TOOLS_OPXML_REPORT_CELLS_H

#include "tools/opxml/catalog/EntryKinds.h"

#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

enum class EnCellState : std::uint8_t
{
    Offered,
    OfferedByModule,
    Cut,          // a capacity document took it out
    NotSupported, // it stands there and says that it is not supported
};

enum class EnCellLevel : std::uint8_t
{
    None, // menus and task types have none
    Device,
    Board,
    Both,
};

struct StCell
{
    EnCellState enState     = EnCellState::Offered;
    EnCellLevel enLevel     = EnCellLevel::None;
    bool        bCancelable = false;
    bool        bNarrowed   = false; // a capacity document took out something in it

    // All of it as a number below 64, and as the character that stands for it in the page.
    std::uint8_t code() const;
    char         character() const;
};

// Columns are ordered by kind, then by name.
using ColumnId = std::pair<EnEntryKind, std::string>;

// Column numbers in the order in which the columns are met, with the cell.
using Cells = std::vector<std::pair<std::uint32_t, StCell>>;

// Gives each column its number. The names stand once, however many types there are.
class CColumns
{
public:
    std::uint32_t numberOf(const ColumnId& stColumn);

    const std::map<ColumnId, std::uint32_t>& all() const { return m_mapNumber; }

private:
    std::map<ColumnId, std::uint32_t> m_mapNumber;
};

// The cells of a configuration, by column.
Cells makeCells(const catalog::StConfiguration& stConfiguration, CColumns& oColumns);

#endif
