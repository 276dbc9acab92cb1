// See SectionChain.h. One read of a whole document, row by row of the section table,
// for the readers of device types and of modules, on their thread.
#include "reader/SectionChain.h"

#include "common/ReadObserver.h"
#include "reader/SectionTable.h"
#include "records/ResultCodes.h"

#include <type_traits>

namespace
{
// Reads one section into a list: a row's own parser, unless the caller has another.
template <typename Section, typename Record>
std::uint32_t readSection(const Section& stSection, xercesc::XercesDOMParser* pDOMParser, std::list<Record>& lstRecord,
                          const CheckSectionReader& fnReadChecks)
{
    if constexpr (std::is_same_v<Record, StAsnCheckOperationDef>)
    {
        if (fnReadChecks)
            return fnReadChecks(lstRecord);
    }
    return stSection.read(pDOMParser, lstRecord);
}

template <typename Root>
std::uint32_t readSections(xercesc::XercesDOMParser* pDOMParser, Root& stRoot, const CheckSectionReader& fnReadChecks)
{
    std::uint32_t ulResult = DC_RESULT_OK;
    std::size_t   nRow     = 0;
    forEachSection(
        [&](const auto& stSection)
        {
            auto&      lstRecord = listOf(stRoot, stSection.pList);
            const bool bIsRead =
                std::is_same_v<Root, StAsnDevTypeVerXMLInfo> || stSection.enModuleUse != EnModuleUse::None;
            if (CReadObserver* pObserver = ReadObserver::get())
                pObserver->sectionRead(nRow, &lstRecord);
            if (ulResult == DC_RESULT_OK && bIsRead)
                ulResult = readSection(stSection, pDOMParser, lstRecord, fnReadChecks);
            ++nRow;
        });
    return ulResult;
}
} // namespace

std::uint32_t runSectionChain(xercesc::XercesDOMParser* pDOMParser, StAsnDevTypeVerXMLInfo& stInfo,
                              const CheckSectionReader& fnReadChecks)
{
    return readSections(pDOMParser, stInfo, fnReadChecks);
}

std::uint32_t runSectionChain(xercesc::XercesDOMParser* pDOMParser, StAsnModuleInfoVerXMLInfo& stModule)
{
    return readSections(pDOMParser, stModule, {});
}
