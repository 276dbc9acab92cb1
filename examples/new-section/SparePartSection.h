// The section of docs/adding-a-section.md: a record, its parser and its row, in one
// file here and in the folders named there in the library. Nobody calls it; the tests
// build it, read with it what the page shows, and compare the page with these lines.
#ifndef OPERATIONXML_EXAMPLES_SPAREPARTSECTION_H
#define OPERATIONXML_EXAMPLES_SPAREPARTSECTION_H

#include "reader/SectionTable.h"
#include "records/RecordFields.h"

namespace example
{
struct StAsnSparePart
{
    std::string   strId;              // "id"
    std::uint32_t ulShelf    = 0;     // "shelf"
    bool          bIsHotSwap = false; // "isHotSwap"
};
bool operator==(const StAsnSparePart& stLeft, const StAsnSparePart& stRight);

// In the library the list is one line more in the struct itself.
struct StAsnOperationConfig : ::StAsnOperationConfig
{
    std::list<StAsnSparePart> lstSparePart;
};

// clang-format off
OPERATIONXML_RECORD(StAsnSparePart,
    OPERATIONXML_FIELD(strId, StText),
    OPERATIONXML_FIELD(ulShelf, StNumber),
    OPERATIONXML_FIELD(bIsHotSwap, StFlag))
// clang-format on

class CSparePartXMLConfig
{
public:
    // Reads every section.
    std::uint32_t setSparePartConfig(xercesc::XercesDOMParser* pDOMParser, std::list<StAsnSparePart>* pLstOut);

    // Reads the parts of one section.
    std::uint32_t fillParts(const xercesc::DOMElement* pSection, std::list<StAsnSparePart>* pLstOut);
};

inline constexpr std::tuple SECTIONS = {
    // clang-format off
    StSectionRow{u"SpareParts", &StAsnOperationConfig::lstSparePart, &CSparePartXMLConfig::setSparePartConfig,
              StByFirst{}, EnModuleUse::Appends, &StAsnSparePart::strId, "spare", "lstSparePart", "Spare parts"},
    // clang-format on
};
} // namespace example

#endif
