// What is read of the device types: rows, columns and details, from the catalog of
// one type after the other, in any order. Keeps rows and cells; details are handed on
// when they are packed and it is clear that the type's configuration is the one in effect.
// One thread; the server root is open.
#ifndef OPERATIONXML_TOOLS_OPXML_REPORT_TYPEREADER_H
#define OPERATIONXML_TOOLS_OPXML_REPORT_TYPEREADER_H

#include "catalog/Catalog.h"
#include "tools/opxml/report/Detail.h"
#include "tools/opxml/report/DetailPacker.h"
#include "tools/opxml/report/ReportData.h"

#include <cstddef>
#include <deque>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

// Gets the packed detail of a number.
using DetailSink = std::function<void(std::size_t nDetail, const std::string& strPacked)>;

class CTypeReader
{
public:
    // Without a sink details are left out.
    CTypeReader(StReport& stReport, DetailSink fnDetail);

    // Before the types.
    void takeModules(const std::vector<catalog::StModuleCatalog>& lstModule);

    // Once for every registered type.
    void take(const catalog::StTypeCatalog& stType);

    // After the last one: the rows go to the report.
    void finish();

private:
    // What came of one entry of the registry.
    struct StEntryRows
    {
        bool                      bTaken = false;
        std::vector<StReportRow>  lstRow;
        std::vector<PackedDetail> lstDetail; // of each row, while it may still be replaced
    };

    std::vector<StReportRow>  configuredRows(const catalog::StTypeCatalog& stType);
    std::vector<PackedDetail> details(const catalog::StTypeCatalog& stType);
    void                      handOn(StEntryRows& stRows);
    void                      writeAllBut(std::size_t nLast);
    void                      replaceEarlier(std::vector<std::size_t>& lstEntry);

    StReport&                                                  m_stReport;
    DetailSink                                                 m_fnDetail;
    CDetailMaker                                               m_oDetails;
    CDetailPacker                                              m_oPacker;
    std::deque<PackedDetail>                                   m_lstHandedOn; // and not yet written
    std::vector<StEntryRows>                                   m_lstEntry;    // in the order of a load
    std::map<std::pair<std::string, std::string>, std::size_t> m_mapEntry;    // by type and version
    std::map<std::string, std::vector<std::size_t>>            m_mapKey;      // entries that share a storage key
    std::map<std::string, std::vector<std::string>>            m_mapModules;  // by type, in the order of the merge
    std::size_t                                                m_nDetails = 0;
};

#endif
