// Attributes that mean the same in several sections: the reference to an
// operation, the operation level, the patch type, a capability, an option.
// Called by the section parsers only. Stateless.
#ifndef OPERATIONXML_SECTIONS_ITEMREAD_H
#define OPERATIONXML_SECTIONS_ITEMREAD_H

#include "common/XmlRead.h"
#include "records/OperationRecords.h"
#include "records/WordTables.h"

// "type" and "id": which kind of operation, and which one. The table holds the
// kinds that the section knows; any other is kept as unknown.
template <typename Item, std::size_t nWords>
void readReference(const CAttributes& oElement, const StWord<DCAsn1ClientToServer::AsnTypeRefEnum> (&arWords)[nWords],
                   Item&              stItem)
{
    stItem.enType = wordValue(attrText(oElement, u"type"), arWords, DCAsn1ClientToServer::UnknownOperation);
    stItem.strId  = attrText(oElement, u"id");
}

// The same with the kinds that all sections but the isolation view know.
template <typename Item>
void readReference(const CAttributes& oElement, Item& stItem)
{
    readReference(oElement, TYPE_REF_WORDS, stItem);
}

// "operationLevel".
inline DCAsn1ClientToServer::AsnOperationLevelEnum readLevel(const CAttributes& oElement)
{
    return wordValue(attrText(oElement, u"operationLevel"), OPERATION_LEVEL_WORDS, DCAsn1ClientToServer::DeviceLevel);
}

// "type" of a "Patch".
inline DCAsn1ClientToServer::AsnPatchTypeEnum readPatchType(const CAttributes& oPatch)
{
    return wordValue(attrText(oPatch, u"type"), PATCH_TYPE_WORDS, DCAsn1ClientToServer::HotPatch);
}

// "id" and "isSupported" of another operation or a task feature.
inline void readCapability(const CAttributes& oElement, StAsnOtherOperationDef& stCapability)
{
    stCapability.strId        = attrText(oElement, u"id");
    stCapability.bIsSupported = attrFlag(oElement, u"isSupported");
}

// "id" and "value" of an option; its "target" is left to the section that knows one.
inline void readOption(const CAttributes& oOption, StAsnOptionInfo& stOption)
{
    stOption.strId   = attrText(oOption, u"id");
    stOption.ulValue = attrNumber(oOption, u"value");
}

#endif
