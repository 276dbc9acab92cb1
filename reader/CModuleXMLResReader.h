// CModuleXMLResReader: walks a folder tree and reads every module configuration
// file in it into one record per module.
// Used once, by the start-up load, under the database's mutex; takes no lock
// itself: a reader, its map and a parser handed in belong to one thread. The map
// is the caller's. A bad file or folder is logged and costs
// nothing else; one that memory runs out over, or a platform call that throws, is a
// bad one (DC_RESULT_XML_ERROR).
#ifndef OPERATIONXML_READER_CMODULEXMLRESREADER_H
#define OPERATIONXML_READER_CMODULEXMLRESREADER_H

#include "platform/Export.h"
#include "reader/ConfigOrigin.h"
#include "reader/DocumentSource.h"
#include "records/ModuleRecords.h"

#include <cstdint>
#include <set>
#include <string>
#include <utility>
#include <vector>

struct LocationInfo;

class OPERATIONXML_API CModuleXMLResReader
{
public:
    // Reads the tree below a folder, in byte order of the entries' names, so that
    // the result does not depend on the disk. A folder that was walked already is
    // not entered again, whatever link leads to it. DC_RESULT_INVALID_PARA when
    // the folder itself cannot be opened.
    std::uint32_t parseXMLOfDirs(const std::string& strFolder, ModuleInfoMap& mapModule);

    // Reads one file into the map. A name that another file has taken is refused:
    // the first one met is kept.
    std::uint32_t parseModuleXML(const std::string& strPath, ModuleInfoMap& mapModule);

    // Parses a file into the parser. DC_RESULT_FILE_NOT_EXIST when it is not there.
    std::uint32_t initialize(const std::string& strPath, CXmlParser* pXmlParser);

    // Reads all sections of the parsed file and adds the module to the map.
    std::uint32_t setDevXMLConfig(xercesc::XercesDOMParser* pDOMParser, ModuleInfoMap& mapModule);

    // Every file met so far, and what came of it.
    const std::vector<StModuleLoad>& files() const { return m_lstFile; }

    // Every folder and entry so far that could not be looked into.
    const std::vector<StReadProblem>& problems() const { return m_lstProblem; }

    // As CDevTypeXMLResReader::readFrom.
    void readFrom(CDocumentSource& oSource) { m_pSource = &oSource; }

private:
    std::uint32_t initialize(const std::string& strPath, std::shared_ptr<CXmlParser>& pXmlParser);
    void          readEntry(const LocationInfo& stWhere, const std::string& strFilePath, ModuleInfoMap& mapModule);
    bool          isFirstVisit(const std::string& strFolder);

    std::set<std::pair<unsigned long, unsigned long>> m_setFolder; // device and inode of every folder entered
    std::vector<StModuleLoad>                         m_lstFile;
    std::vector<StReadProblem>                        m_lstProblem;
    std::string                                       m_strName; // of the file being read
    std::string                                       m_strWhy;  // why its records are not taken
    CDocumentSource*                                  m_pSource = &CDocumentSource::plain();
};

#endif
