// Patch states: patch type, state, offered operations.
#include "sections/CPatchXMLConfig.h"

#include "sections/ItemRead.h"

using namespace xercesc;

namespace
{
constexpr const char* DC_SOURCE = "CPatchXMLConfig";

constexpr StSection PATCH_STATE_SECTION = {
    {DC_SOURCE, "setPatchStateConfiguraion", __LINE__},
    u"PatchStateConfiguration",
    "Invalid para. NULL pointer.pDOMParser",
    "Invalid para. NULL pointer. pAsnPatchStateConfigLst",
    "XercesDOMParser::getDocument failed :",
};

constexpr StRecordReader<StAsnPatchItem> ITEMS = {
    lookupReader({DC_SOURCE, "fillPatchItem", __LINE__},
                 "DOMElement::getElementsByTagName failed :", DC_RESULT_OK), // a state without items is no failure
    u"Item",
    fillReference,
};

EnFate fillState(const CAttributes& oState, StAsnPatchStateDef& stState)
{
    stState.strName = attrText(oState, u"name");
    readRecords(ITEMS, oState.element(), &stState.lstPatchItem);
    return EnFate::Kept;
}

constexpr StRecordReader<StAsnPatchStateDef> STATES = {
    lookupReader({DC_SOURCE, "fillPatchState", __LINE__},
                 "DOMElement::getElementsByTagName failed :", DC_RESULT_OK), // nor is a patch without states
    u"State",
    fillState,
};

EnFate fillPatch(const CAttributes& oPatch, StAsnPatchDef& stPatch)
{
    stPatch.enPatchType = readPatchType(oPatch);
    readRecords(STATES, oPatch.element(), &stPatch.lstPatchState);
    return EnFate::Kept;
}

constexpr StRecordReader<StAsnPatchDef> PATCHES = {
    {{DC_SOURCE, "fillPatchType", __LINE__},
     "DOMElement::getElementsByTagName failed :",
     "Invalid para. NULL pointer. pAsnPatchStateConfigLst",
     "Invalid para. NULL pointer. pParaLst1"},
    u"Patch",
    fillPatch,
};
} // namespace

std::uint32_t CPatchXMLConfig::setPatchStateConfiguraion(XercesDOMParser* pDOMParser, std::list<StAsnPatchDef>* pLstOut)
{
    return readSections(PATCH_STATE_SECTION, PATCHES, pDOMParser, pLstOut);
}

std::uint32_t CPatchXMLConfig::fillPatchType(const DOMElement* pSection, std::list<StAsnPatchDef>* pLstOut)
{
    return guarded(PATCHES, [&] { return readRecords(PATCHES, pSection, pLstOut); });
}

std::uint32_t CPatchXMLConfig::fillPatchState(const DOMElement* pPatch, std::list<StAsnPatchStateDef>* pLstOut)
{
    return guarded(STATES, [&] { return readRecords(STATES, pPatch, pLstOut); });
}

std::uint32_t CPatchXMLConfig::fillPatchItem(const DOMElement* pState, std::list<StAsnPatchItem>* pLstOut)
{
    return guarded(ITEMS, [&] { return readRecords(ITEMS, pState, pLstOut); });
}
