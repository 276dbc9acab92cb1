// See OptionNumbers.h.
#include "tools/opxml/diff/OptionNumbers.h"

#include "tools/opxml/diff/EntryPairs.h"

std::string_view numberOf(const catalog::StEntry& stOption)
{
    const catalog::StField* pNumber = stOption.field("ulValue");
    return pNumber == nullptr ? std::string_view() : std::string_view(pNumber->strValue);
}

COptionNumbers::COptionNumbers(const catalog::StEntry& stParameter)
{
    for (const catalog::StEntry* pOption : entriesOf(stParameter.lstChild, catalog::EnEntryFate::Counts))
    {
        const std::string_view strNumber = numberOf(*pOption);
        if (strNumber.empty()) // something else that the parameter holds
            continue;
        m_mapFirst.emplace(strNumber, pOption);
        m_setOption.emplace(pOption->strId, strNumber);
    }
}
