// Menu of the patch view: one list of entries for each patch type.
#include "sections/CPatchViewPopupMenuConfig.h"

#include "sections/ItemRead.h"
#include "sections/SectionRead.h"

using namespace xercesc;

namespace
{
constexpr const char* DC_SOURCE = "CPatchViewPopupMenuConfig";

constexpr StSection PATCH_VIEW_SECTION = {
    u"PatchViewPopupMenu",
    "Invalid para. NULL pointer.pDOMParser",
    "Invalid para. NULL pointer. pAsnPatchViewMenuOpList",
    "XercesDOMParser::getDocument failed :",
};
} // namespace

std::uint32_t CPatchViewPopupMenuConfig::setPatchViewPopupMenuConfig(XercesDOMParser*                  pDOMParser,
                                                                     std::list<StAsnPatchTypeMenuDef>* pLstOut)
{
    return readSections(DC_HERE, PATCH_VIEW_SECTION, pDOMParser, pLstOut,
                        [&](const DOMElement& oSection) { fillPatchTypeInfo(&oSection, pLstOut); });
}

std::uint32_t CPatchViewPopupMenuConfig::fillPatchTypeInfo(const DOMElement*                 pSection,
                                                           std::list<StAsnPatchTypeMenuDef>* pLstOut)
{
    if (pSection == nullptr)
        return logFail(DC_HERE, DC_RESULT_XML_ERROR, "Invalid para. NULL pointer. pOperElm.");
    if (pLstOut == nullptr)
        return logFail(DC_HERE, DC_RESULT_XML_ERROR, "Invalid para. NULL pointer. pAsnPatchViewMenuOpList");
    return readRecords(DC_HERE, CElements(pSection, u"Patch"), "Invalid para. NULL pointer. pParaLst", pLstOut,
                       [this](const CAttributes& oPatch, StAsnPatchTypeMenuDef& stMenu)
                       {
                           stMenu.enPatchType = readPatchType(oPatch);
                           fillMenuOperLst(oPatch.element(), &stMenu.lstMenuOp);
                       });
}

std::uint32_t CPatchViewPopupMenuConfig::fillMenuOperLst(const DOMElement* pPatch, std::list<StAsnMenuOpDef>* pLstOut)
{
    if (pPatch == nullptr || pLstOut == nullptr)
        return logFail(DC_HERE, DC_RESULT_XML_ERROR, "DOMElement::getElementsByTagName failed :");
    readRecords(DC_HERE, CElements(pPatch, u"Item"), "DOMElement::getElementsByTagName failed :", pLstOut,
                readReference<StAsnMenuOpDef>);
    return DC_RESULT_OK; // also when the lookup failed: a patch type without entries is no failure
}
