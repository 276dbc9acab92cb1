// CCapacityXMLConfig: narrows a configuration read from the common file to what
// one device model supports, as its capacity document says.
// Stateless; called by the capacity mode of the device-type reader, on the
// thread that owns the parser and the record: calls may run at once, each with its
// own. Failures are logged where they arise.
#ifndef OPERATIONXML_READER_CCAPACITYXMLCONFIG_H
#define OPERATIONXML_READER_CCAPACITYXMLCONFIG_H

#include "platform/Export.h"
#include "reader/DocumentSource.h"
#include "records/RootRecords.h"

#include <xercesc/parsers/XercesDOMParser.hpp>

#include <cstdint>
#include <list>
#include <string>

// How the common file that a narrowed version stands on is read, and what is told
// of it beside the record.
struct StCommonRead
{
    CDocumentSource& oSource;
    bool             bHasEntry = false; // the capacity document has an entry of the identifier
    StReadProblem    stProblem;         // of the common or the check file
};

class OPERATIONXML_API CCapacityXMLConfig
{
public:
    // Takes the entry of the identifier from the parser's capacity document, fills
    // the record (made by initializeXMLInfo) from the common file, and prunes it.
    // Without an entry the record keeps the unpruned configuration, and the log
    // names its version. DC_RESULT_XML_ERROR without a parser or document,
    // DC_RESULT_INVALID_PARA for a null record, else the common file's code; the
    // record of a common file that failed is destroyed and pInfo nulled.
    std::uint32_t parseCapacityXML(const std::string& strDevSysOid, xercesc::XercesDOMParser* pDOMParser,
                                   StAsnDevTypeVerXMLInfo*& pInfo);

    // Whether a capacity document of this path can be read and has an entry of the
    // identifier: 0, DC_RESULT_FILE_NOT_EXIST, or DC_RESULT_XML_ERROR.
    std::uint32_t parseCapacityXML(const std::string& strDevSysOid, const std::string& strFilePath);

    // Fills the record from the common file; on failure as parseCapacityXML.
    std::uint32_t parseCommonXML(StAsnDevTypeVerXMLInfo*& pInfo);

    // Read the operations of a capacity entry, their parameters and options.
    std::uint32_t fillOperInfo(const xercesc::DOMElement* pEntry, std::list<StAsnOperation>& lstOut);
    std::uint32_t fillOperParaInfo(const xercesc::DOMElement* pOperation, std::list<StAsnOperParamDef>& lstOut);
    std::uint32_t fillOperOptionInfo(const xercesc::DOMElement* pParameter, std::list<StAsnOptionInfo>& lstOut);

    // Prunes a whole record; does nothing for a null one. What a capacity list
    // does not name is kept.
    void combineXMLInfo(StAsnDevTypeVerXMLInfo* pInfo, const std::list<StAsnOperation>& lstCapacity);

    // The first capacity operation of an id decides, here and for other
    // operations and the views...
    void combineDevOperation(std::list<StAsnOperation>& lstOper, const std::list<StAsnOperation>& lstCapacity);
    void combineTaskOperation(std::list<StAsnOperation>& lstOper, const std::list<StAsnOperation>& lstCapacity);
    void combinePatchOperation(std::list<StAsnOperation>& lstOper, const std::list<StAsnOperation>& lstCapacity);
    void combineCheckOperation(std::list<StAsnCheckOperationDef>& lstOper,
                               const std::list<StAsnOperation>&   lstCapacity);
    void combineOtherOperation(std::list<StAsnOtherOperationDef>& lstOper,
                               const std::list<StAsnOperation>&   lstCapacity);
    void combineViewConfiguation(StAsnViewConfig& stView, const std::list<StAsnOperation>& lstCapacity);
    // ... and the last one for custom operations and task steps, on purpose.
    void combineCustomOperation(std::list<StAsnCustomOperationDef>& lstOper,
                                const std::list<StAsnOperation>&    lstCapacity);
    void combineTaskConfiguration(std::list<StAsnTaskConfigInfoOperation>& lstTask,
                                  const std::list<StAsnOperation>&         lstCapacity);

private:
    friend class CDevTypeXMLResReader;

    // The same as those above; these let exceptions through.
    std::uint32_t parseCapacityXML(const std::string& strDevSysOid, xercesc::XercesDOMParser* pDOMParser,
                                   StAsnDevTypeVerXMLInfo*& pInfo, StCommonRead& stRead);
    std::uint32_t parseCommonXML(StAsnDevTypeVerXMLInfo*& pInfo, StCommonRead& stRead);
};

#endif
