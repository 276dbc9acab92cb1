// What means the same in several sections: the reference to an operation, the
// operation level, the patch type, a capability, parameters and their options.
// Called by the parsers of sections, check files and capacity documents. Stateless.
#ifndef OPERATIONXML_SECTIONS_ITEMREAD_H
#define OPERATIONXML_SECTIONS_ITEMREAD_H

#include "records/OperationRecords.h"
#include "records/WordTables.h"
#include "sections/SectionRead.h"

// "type" and "id": which kind of operation, and which one. The table holds the
// kinds that the section knows; any other is kept as unknown.
template <typename Item, std::size_t nWords>
void readReference(const CAttributes& oElement, const StWord<DCAsn1ClientToServer::AsnTypeRefEnum> (&arWords)[nWords],
                   Item&              stItem)
{
    stItem.enType = attrWord(oElement, u"type", arWords, DCAsn1ClientToServer::UnknownOperation);
    stItem.strId  = attrText(oElement, u"id");
}

// The same with the kinds that all sections but the isolation view know.
template <typename Item>
EnFate fillReference(const CAttributes& oElement, Item& stItem)
{
    readReference(oElement, TYPE_REF_WORDS, stItem);
    return EnFate::Kept;
}

// "operationLevel".
inline DCAsn1ClientToServer::AsnOperationLevelEnum readLevel(const CAttributes& oElement)
{
    return attrWord(oElement, u"operationLevel", OPERATION_LEVEL_WORDS, DCAsn1ClientToServer::DeviceLevel);
}

// "type" of a "Patch".
inline DCAsn1ClientToServer::AsnPatchTypeEnum readPatchType(const CAttributes& oPatch)
{
    return attrWord(oPatch, u"type", PATCH_TYPE_WORDS, DCAsn1ClientToServer::HotPatch);
}

// "id" and "isSupported" of another operation or a task feature.
inline EnFate fillCapability(const CAttributes& oElement, StAsnOtherOperationDef& stCapability)
{
    stCapability.strId        = attrText(oElement, u"id");
    stCapability.bIsSupported = attrFlag(oElement, u"isSupported");
    return EnFate::Kept;
}

// What tells the options of one section from those of another.
struct StOptionReader : StReader
{
    bool bTarget;                                              // reads "target"
    EnFate (*pfnJudge)(const StAsnOptionInfo&) = nullptr;      // what becomes of an option; null: all are kept
    EnFate enWithoutOptions                    = EnFate::Kept; // of a parameter whose options cannot be looked up
};

// Reads the options of a parameter.
std::uint32_t readOptions(const StOptionReader& stOptions, const xercesc::DOMElement* pParameter,
                          std::list<StAsnOptionInfo>& lstOut);

// What tells the parameters of one section from those of another.
struct StParameterReader : StReader
{
    bool                  bValue;    // reads "value"
    bool                  bSelected; // reads "selected"
    const StOptionReader& stOptions;
};

// Reads one parameter with its options: of an operation, or of a task type.
template <typename Parameter>
EnFate readParameter(const StParameterReader& stParameters, const CAttributes& oParameter, Parameter& stParam)
{
    stParam.bIsRequired = attrFlag(oParameter, u"isRequired");
    stParam.strId       = attrText(oParameter, u"id");
    if (stParameters.bValue)
        stParam.strValue = attrText(oParameter, u"value");
    if (stParameters.bSelected)
        stParam.strSelected = attrText(oParameter, u"selected");
    const StOptionReader& stOptions = stParameters.stOptions;
    if (readOptions(stOptions, oParameter.element(), stParam.lstOption) != DC_RESULT_OK)
        return stOptions.enWithoutOptions;
    return EnFate::Kept;
}

// Reads the parameters of an operation: its elements of the name.
std::uint32_t readParameters(const StParameterReader& stParameters, const xercesc::DOMElement* pOperation,
                             std::list<StAsnOperParamDef>& lstOut, const char16_t* pszName = u"Parameter");

#endif
