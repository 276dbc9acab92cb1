// Attributes that mean the same in several sections: the reference to an
// operation, the operation level, an option of two attributes.
// Called by the section parsers only. Stateless.
#ifndef OPERATIONXML_SECTIONS_ITEMREAD_H
#define OPERATIONXML_SECTIONS_ITEMREAD_H

#include "common/XmlRead.h"
#include "records/OperationRecords.h"
#include "records/WordTables.h"

// "type" and "id": which kind of operation, and which one. A kind that the table
// does not hold is kept as unknown.
template <typename Item, std::size_t nWords>
void readReference(const xercesc::DOMElement& oElement,
                   const StWord<DCAsn1ClientToServer::AsnTypeRefEnum> (&arWords)[nWords], Item& stItem)
{
    stItem.enType = wordValue(attrText(oElement, u"type"), arWords, DCAsn1ClientToServer::UnknownOperation);
    stItem.strId = attrText(oElement, u"id");
}

// "operationLevel".
inline DCAsn1ClientToServer::AsnOperationLevelEnum readLevel(const xercesc::DOMElement& oElement)
{
    return wordValue(attrText(oElement, u"operationLevel"), OPERATION_LEVEL_WORDS, DCAsn1ClientToServer::DeviceLevel);
}

// "id" and "value" of an option; its "target" is left to the sections that know one.
inline void readOption(const xercesc::DOMElement& oOption, StAsnOptionInfo& stOption)
{
    stOption.strId = attrText(oOption, u"id");
    stOption.ulValue = attrNumber(oOption, u"value");
}

#endif
