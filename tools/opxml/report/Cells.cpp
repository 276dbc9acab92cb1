// See Cells.h.
#include "tools/opxml/report/Cells.h"

#include <algorithm>
#include <string_view>

namespace
{
// Digits count empty cells, and the page stands in HTML: neither is among these.
constexpr std::string_view CELL_CHARACTERS = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz!#$%()*+,-./";
static_assert(CELL_CHARACTERS.size() == 64);

std::string_view fieldValue(const catalog::StEntry& stEntry, const char* pszName)
{
    const catalog::StField* pField = stEntry.field(pszName);
    return pField == nullptr ? std::string_view() : std::string_view(pField->strValue);
}

EnCellLevel levelOf(const catalog::StEntry& stEntry)
{
    const std::string_view strLevel = fieldValue(stEntry, "enOperationLevel");
    if (strLevel == "DeviceLevel")
        return EnCellLevel::Device;
    if (strLevel == "BoardLevel")
        return EnCellLevel::Board;
    return strLevel == "Both" ? EnCellLevel::Both : EnCellLevel::None;
}

bool hasPruned(const catalog::StEntry& stEntry)
{
    return std::any_of(stEntry.lstChild.begin(), stEntry.lstChild.end(),
                       [](const catalog::StEntry& stChild)
                       { return stChild.enFate == catalog::EnEntryFate::Pruned || hasPruned(stChild); });
}

StCell cellOf(const catalog::StEntry& stEntry)
{
    StCell stCell;
    if (stEntry.enFate == catalog::EnEntryFate::Pruned)
    {
        stCell.enState = EnCellState::Cut;
        return stCell;
    }
    if (fieldValue(stEntry, "bIsSupported") == "0" && stEntry.pszRecord == std::string_view("StAsnOtherOperationDef"))
        stCell.enState = EnCellState::NotSupported;
    else if (stEntry.enOrigin == catalog::EnOrigin::Module)
        stCell.enState = EnCellState::OfferedByModule;
    stCell.enLevel     = levelOf(stEntry);
    stCell.bCancelable = fieldValue(stEntry, "bIsCancelable") == "1";
    stCell.bNarrowed   = hasPruned(stEntry);
    return stCell;
}

class CCellMaker
{
public:
    explicit CCellMaker(CColumns& oColumns) : m_oColumns(oColumns) {}

    void add(const StEntryKind& stKind, const std::string& strName, const catalog::StEntry& stEntry)
    {
        if (stEntry.enFate == catalog::EnEntryFate::Dropped)
            return;
        const StCell stCell         = cellOf(stEntry);
        const auto [itCell, bFirst] = m_mapCell.try_emplace(m_oColumns.numberOf({stKind.enKind, strName}), stCell);
        // The first entry of an id answers for it; one that was cut answers nothing.
        if (!bFirst && itCell->second.enState == EnCellState::Cut)
            itCell->second = stCell;
    }

    Cells take() const { return {m_mapCell.begin(), m_mapCell.end()}; }

private:
    CColumns&                       m_oColumns;
    std::map<std::uint32_t, StCell> m_mapCell;
};
} // namespace

std::uint8_t StCell::code() const
{
    return static_cast<std::uint8_t>(static_cast<unsigned>(enState) | static_cast<unsigned>(enLevel) << 2U |
                                     (bCancelable ? 16U : 0U) | (bNarrowed ? 32U : 0U));
}

char StCell::character() const
{
    return CELL_CHARACTERS[code()];
}

std::uint32_t CColumns::numberOf(const ColumnId& stColumn)
{
    return m_mapNumber.try_emplace(stColumn, static_cast<std::uint32_t>(m_mapNumber.size())).first->second;
}

Cells makeCells(const catalog::StConfiguration& stConfiguration, CColumns& oColumns)
{
    CCellMaker oMaker(oColumns);
    for (const catalog::StSection& stSection : stConfiguration.lstSection)
    {
        for (const catalog::StEntry& stEntry : stSection.lstEntry)
        {
            const StEntryKind& stKind = kindOf(stSection.nRow, stEntry);
            if (stKind.enKind != EnEntryKind::PatchType)
            {
                oMaker.add(stKind, stEntry.strId, stEntry);
                continue;
            }
            // Hot and cold patches have states and menu entries of their own.
            for (const catalog::StEntry& stChild : stEntry.lstChild)
                oMaker.add(kindOf(stSection.nRow, stChild), stEntry.strId + ": " + stChild.strId, stChild);
        }
    }
    return oMaker.take();
}
