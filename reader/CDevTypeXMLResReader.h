// CDevTypeXMLResReader: finds and reads the files of one device type. The
// configuration database makes one per device type and stores what it hands out;
// the capacity path reuses it for one version at a time.
// Takes no lock; one reader belongs to one thread, and several may read at once.
// Records handed out through a
// list or pointer belong to the caller; a read that fails hands out none.
// Failures are logged where they arise; codes of the device adapter and of the
// section parsers are passed up unchanged. An exception (memory that runs out, a
// platform call that throws) ends in the operation as DC_RESULT_XML_ERROR.
//
// Every read has two halves: the plan names its files (ConfigPlan.h), and records
// are filled from their documents, which come through a source (DocumentSource.h).
#ifndef OPERATIONXML_READER_CDEVTYPEXMLRESREADER_H
#define OPERATIONXML_READER_CDEVTYPEXMLRESREADER_H

#include "platform/DeviceAdapter.h"
#include "platform/Export.h"
#include "reader/ConfigPlan.h"
#include "reader/DocumentSource.h"
#include "records/RootRecords.h"

#include <cstdint>
#include <list>
#include <memory>
#include <string>

struct LocationInfo;
struct StCapacityInfo;

class OPERATIONXML_API CDevTypeXMLResReader
{
public:
    // strDevType is the storage key. In capacity mode the versions in service
    // are read one by one, otherwise the type's one file.
    CDevTypeXMLResReader(const std::string& strDevType, const std::string& strDevTypeVer, bool bCapacityMode);
    ~CDevTypeXMLResReader();
    CDevTypeXMLResReader(const CDevTypeXMLResReader&)            = delete;
    CDevTypeXMLResReader& operator=(const CDevTypeXMLResReader&) = delete;

    // The entry used by the database: appends the records of the device type to
    // the list, which must come in empty (DC_RESULT_INVALID_PARA otherwise).
    std::uint32_t readDevTypeVerXMLFile(std::list<StAsnDevTypeVerXMLInfo*>& lstInfo);

    // Capacity mode: one record for each distinct configuration among the
    // versions in service, each naming all its versions. A version that cannot be
    // read is named in the log and left out; the result is not 0 when one failed
    // and none gave a record, and the list is then as it came. No version with a
    // capacity record is no failure: 0, and nothing is appended.
    std::uint32_t parseCapacityXML(std::list<StAsnDevTypeVerXMLInfo*>& lstInfo);

    // Finds and parses the separate (telnet) check file, which then replaces the
    // "CheckOperations" section. DC_RESULT_FILE_NOT_EXIST when the type has none.
    std::uint32_t initializeCheck();

    // Appends the check operations alone.
    std::uint32_t getCheckOperFromXml(std::list<StAsnCheckOperationDef>* pLstOut);

    // Finds and parses the server configuration file. Two empty versions mean the
    // type's own file (or, with bUseCommon, the common file if the type is
    // registered for it), otherwise the file of that version. A missing file is
    // replaced by that of the "_telnet" twin.
    std::uint32_t initialize(const std::string& strSoftVersion, const std::string& strPatchVersion, bool bUseCommon);

    // Makes an empty record for one version; pInfo must come in null
    // (DC_RESULT_INVALID_PARA otherwise). The record is the caller's.
    std::uint32_t initializeXMLInfo(const StAsnDevVersion& stVersion, StAsnDevTypeVerXMLInfo*& pInfo);

    // Read the type's own file, or the common file, into a record: the one handed
    // in, or a new one when pInfo is null. When a section fails the record is
    // destroyed and pInfo is null; when no file is found pInfo is as it came.
    std::uint32_t parseNormalXML(StAsnDevTypeVerXMLInfo*& pInfo);
    std::uint32_t parseCommonXML(StAsnDevTypeVerXMLInfo*& pInfo);

    // Runs the section parsers in their order on the parser's document.
    std::uint32_t setDevXMLConfig(xercesc::XercesDOMParser* pDOMParser, StAsnDevTypeVerXMLInfo* pInfo);

    // The check operations of a type without a telnet check file: from the
    // fixed-check file where those are switched on, else from the document.
    std::uint32_t SetCheckOpConfiguration(xercesc::XercesDOMParser* pDOMParser, StAsnDevTypeVerXMLInfo* pInfo);

    // Adds a record to the list, which owns it from then on; when the list holds
    // an equal one, that one gets the version and pInfo is destroyed and nulled.
    void compareAndAdd(std::list<StAsnDevTypeVerXMLInfo*>& lstInfo, StAsnDevTypeVerXMLInfo*& pInfo,
                       const StAsnDevVersion& stVersion);

    // Where the last read took its configuration from, or why there is none.
    StConfigOrigin origin() const;

    // From now on documents come from this source, which must outlive the reader.
    void readFrom(CDocumentSource& oSource) { m_pSource = &oSource; }

private:
    friend class CCapacityXMLConfig; // its common file is read by a reader of its own

    // These log under the name of the operation that calls them.
    std::uint32_t parseConfig(const LocationInfo& stWhere);
    std::uint32_t fillRecord(StAsnDevTypeVerXMLInfo*& pInfo);
    StReadProblem problem() const;

    std::uint32_t readUnversioned(const StDeviceType& oStDeviceType, std::list<StAsnDevTypeVerXMLInfo*>& lstInfo);
    std::uint32_t readVersions(const LocationInfo& stWhere, const StDeviceType& oStDeviceType,
                               const std::list<StAsnDevVersion>&   lstVersion,
                               std::list<StAsnDevTypeVerXMLInfo*>& lstInfo);
    std::uint32_t readVersion(const LocationInfo& stWhere, const StDeviceType& oStDeviceType, bool bFullConfig,
                              const StAsnDevVersion& stAsnDevVersion, StAsnDevTypeVerXMLInfo*& pInfo,
                              StVersionLoad& stLoad);
    void          raiseCapacityMissing(const LocationInfo& stWhere, const StAsnDevVersion& stAsnDevVersion);

    std::shared_ptr<CXmlParser> m_pXmlParser;           // the server configuration file; reused by every parse
    std::shared_ptr<CXmlParser> m_pCheckXmlParser;      // the telnet check file; once set, it stays
    std::shared_ptr<CXmlParser> m_pFixedCheckXmlParser; // the fixed-check file, parsed afresh for each record
    EnCheckReportType           m_enReportType = EnCheckReportNone;
    std::string                 m_strDevType;
    std::string                 m_strDevTypeVer;
    bool                        m_bCapacityMode;
    bool                        m_bCheckUnknown = false; // looking for the check file ended in an exception
    StPlannedFile               m_stConfig;              // the plan of the read that runs, or ran last
    StPlannedFile               m_stCheck;
    StPlannedFile               m_stFixedCheck;
    StConfigOrigin              m_stCapacity; // of the last capacity read; no source before one
    CDocumentSource*            m_pSource = &CDocumentSource::plain();
};

#endif
