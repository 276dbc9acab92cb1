// Menu of the patch view: one list of entries for each patch type.
#include "sections/CPatchViewPopupMenuConfig.h"

#include "sections/ItemRead.h"

using namespace xercesc;

namespace
{
constexpr const char* DC_SOURCE = "CPatchViewPopupMenuConfig";

constexpr StSection PATCH_VIEW_SECTION = {
    {DC_SOURCE, "setPatchViewPopupMenuConfig", __LINE__},
    u"PatchViewPopupMenu",
    "Invalid para. NULL pointer.pDOMParser",
    "Invalid para. NULL pointer. pAsnPatchViewMenuOpList",
    "XercesDOMParser::getDocument failed :",
};

constexpr StRecordReader<StAsnMenuOpDef> ITEMS = {
    lookupReader({DC_SOURCE, "fillMenuOperLst", __LINE__}, "DOMElement::getElementsByTagName failed :",
                 DC_RESULT_OK), // a patch type without entries is no failure
    u"Item",
    fillReference,
};

EnFate fillPatch(const CAttributes& oPatch, StAsnPatchTypeMenuDef& stMenu)
{
    stMenu.enPatchType = readPatchType(oPatch);
    readRecords(ITEMS, oPatch.element(), &stMenu.lstMenuOp);
    return EnFate::Kept;
}

constexpr StRecordReader<StAsnPatchTypeMenuDef> PATCHES = {
    {{DC_SOURCE, "fillPatchTypeInfo", __LINE__},
     "Invalid para. NULL pointer. pOperElm.",
     "Invalid para. NULL pointer. pAsnPatchViewMenuOpList",
     "Invalid para. NULL pointer. pParaLst"},
    u"Patch",
    fillPatch,
};
} // namespace

std::uint32_t CPatchViewPopupMenuConfig::setPatchViewPopupMenuConfig(XercesDOMParser*                  pDOMParser,
                                                                     std::list<StAsnPatchTypeMenuDef>* pLstOut)
{
    return readSections(PATCH_VIEW_SECTION, PATCHES, pDOMParser, pLstOut);
}

std::uint32_t CPatchViewPopupMenuConfig::fillPatchTypeInfo(const DOMElement*                 pSection,
                                                           std::list<StAsnPatchTypeMenuDef>* pLstOut)
{
    return guarded(PATCHES, [&] { return readRecords(PATCHES, pSection, pLstOut); });
}

std::uint32_t CPatchViewPopupMenuConfig::fillMenuOperLst(const DOMElement* pPatch, std::list<StAsnMenuOpDef>* pLstOut)
{
    return guarded(ITEMS, [&] { return readRecords(ITEMS, pPatch, pLstOut); });
}
