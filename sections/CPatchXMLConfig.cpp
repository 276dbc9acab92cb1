// Patch states: patch type, state, offered operations.
#include "sections/CPatchXMLConfig.h"

#include "sections/ItemRead.h"
#include "sections/SectionRead.h"

using namespace xercesc;

namespace
{
constexpr const char* DC_SOURCE = "CPatchXMLConfig";

constexpr StSection PATCH_STATE_SECTION = {
    u"PatchStateConfiguration",
    "Invalid para. NULL pointer.pDOMParser",
    "Invalid para. NULL pointer. pAsnPatchStateConfigLst",
    "XercesDOMParser::getDocument failed :",
};
} // namespace

std::uint32_t CPatchXMLConfig::setPatchStateConfiguraion(XercesDOMParser* pDOMParser, std::list<StAsnPatchDef>* pLstOut)
{
    return readSections(DC_HERE, PATCH_STATE_SECTION, pDOMParser, pLstOut,
                        [&](const DOMElement& oSection) { fillPatchType(&oSection, pLstOut); });
}

std::uint32_t CPatchXMLConfig::fillPatchType(const DOMElement* pSection, std::list<StAsnPatchDef>* pLstOut)
{
    if (pSection == nullptr)
        return logFail(DC_HERE, DC_RESULT_XML_ERROR, "DOMElement::getElementsByTagName failed :");
    if (pLstOut == nullptr)
        return logFail(DC_HERE, DC_RESULT_XML_ERROR, "Invalid para. NULL pointer. pAsnPatchStateConfigLst");
    return readRecords(DC_HERE, CElements(pSection, u"Patch"), "Invalid para. NULL pointer. pParaLst1", pLstOut,
                       [this](const CAttributes& oPatch, StAsnPatchDef& stPatch)
                       {
                           stPatch.enPatchType = readPatchType(oPatch);
                           fillPatchState(oPatch.element(), &stPatch.lstPatchState);
                       });
}

std::uint32_t CPatchXMLConfig::fillPatchState(const DOMElement* pPatch, std::list<StAsnPatchStateDef>* pLstOut)
{
    if (pPatch == nullptr || pLstOut == nullptr)
        return logFail(DC_HERE, DC_RESULT_XML_ERROR, "DOMElement::getElementsByTagName failed :");
    readRecords(DC_HERE, CElements(pPatch, u"State"), "DOMElement::getElementsByTagName failed :", pLstOut,
                [this](const CAttributes& oState, StAsnPatchStateDef& stState)
                {
                    stState.strName = attrText(oState, u"name");
                    fillPatchItem(oState.element(), &stState.lstPatchItem);
                });
    return DC_RESULT_OK; // also when the lookup failed: a patch without states is no failure
}

std::uint32_t CPatchXMLConfig::fillPatchItem(const DOMElement* pState, std::list<StAsnPatchItem>* pLstOut)
{
    if (pState == nullptr || pLstOut == nullptr)
        return logFail(DC_HERE, DC_RESULT_XML_ERROR, "DOMElement::getElementsByTagName failed :");
    readRecords(DC_HERE, CElements(pState, u"Item"), "DOMElement::getElementsByTagName failed :", pLstOut,
                readReference<StAsnPatchItem>);
    return DC_RESULT_OK; // likewise for a state without items
}
