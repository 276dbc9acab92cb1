// See SparePartSection.h.
#include "examples/new-section/SparePartSection.h"

#include "sections/SectionRead.h"

using namespace xercesc;

namespace example
{
bool operator==(const StAsnSparePart& stLeft, const StAsnSparePart& stRight)
{
    return stLeft.strId == stRight.strId && stLeft.ulShelf == stRight.ulShelf &&
           stLeft.bIsHotSwap == stRight.bIsHotSwap;
}

namespace
{
constexpr const char* DC_SOURCE = "CSparePartXMLConfig";

constexpr StSection SPARE_PARTS = {
    {DC_SOURCE, "setSparePartConfig", __LINE__}, u"SpareParts", "pDOMParser is NULL.", "pLstOut is NULL.",
    "XercesDOMParser::getDocument failed :",
};

EnFate fillPart(const CAttributes& oPart, StAsnSparePart& stPart)
{
    stPart.strId      = attrText(oPart, u"id");
    stPart.ulShelf    = attrNumber(oPart, u"shelf");
    stPart.bIsHotSwap = attrFlag(oPart, u"isHotSwap");
    return EnFate::Kept;
}

constexpr StRecordReader<StAsnSparePart> PARTS = {
    lookupReader({DC_SOURCE, "fillParts", __LINE__}, "DOMElement::getElementsByTagName failed :"),
    u"Part",
    fillPart,
};
} // namespace

std::uint32_t CSparePartXMLConfig::setSparePartConfig(XercesDOMParser* pDOMParser, std::list<StAsnSparePart>* pLstOut)
{
    return readSections(SPARE_PARTS, PARTS, pDOMParser, pLstOut);
}

std::uint32_t CSparePartXMLConfig::fillParts(const DOMElement* pSection, std::list<StAsnSparePart>* pLstOut)
{
    return guarded(PARTS, [&] { return readRecords(PARTS, pSection, pLstOut); });
}
} // namespace example
