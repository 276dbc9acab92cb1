// The room report/: one self-contained page about a server root, for people who
// rather look than read. ReadReport gathers what is below as plain values, type by
// type, and TypeReader has the tree of each made (Detail) and packed (DetailPacker);
// PageJson makes the page's data of them; PageFile writes it. page/ has the page
// itself: markup, style and script, joined at build time (EmbedPage.cmake).
// Called by opxml report. Here: what the page is about, as plain values.
#ifndef OPERATIONXML_TOOLS_OPXML_REPORT_REPORTDATA_H
#define OPERATIONXML_TOOLS_OPXML_REPORT_REPORTDATA_H

#include "tools/opxml/report/Cells.h"
#include "tools/opxml/report/Detail.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

// One version in service of a capacity-capable type.
struct StReportVersion
{
    std::string strVersion; // "V4.2 P03"
    std::string strOutcome; // "narrowed"
    std::string strFile;    // its capacity document, or the configuration it has whole
    std::string strProblem; // empty: it is served
};

// One configuration of a type, or the reason why there is none.
struct StReportRow
{
    std::string                  strDevType;
    std::string                  strDevTypeVer;
    std::string                  strKey;
    std::string                  strSource; // "own file"
    std::string                  strFile;
    std::string                  strProblem;          // why there is no configuration
    std::string                  strReplacedBy;       // version of the later entry that has the key
    std::vector<std::string>     lstServed;           // the versions in service that it is for; none: all
    bool                         bFirst = true;       // of its type: the one that answers questions without a version
    bool                         bGone  = false;      // it was registered in the root that this one is compared with
    std::vector<std::string>     lstModule;           // what is merged into it, a module once for each time
    std::vector<StReportVersion> lstVersion;          // of the type, with its first row
    Cells                        lstCell;             // by column
    std::size_t                  nDetail = NO_DETAIL; // number of its packed detail in the page

    static constexpr std::size_t NO_DETAIL = static_cast<std::size_t>(-1);
};

struct StReportDevice
{
    std::uint32_t ulId = 0;
    std::string   strName;
    std::string   strAddress;
    std::string   strDevType; // empty when it is not installed
    std::string   strDevTypeVer;
    std::string   strVersion; // what it runs
    std::string   strKey;     // of the configuration that serves it
    bool          bTelnet = false;
    std::string   strProblem;
};

struct StReportModule
{
    std::string              strName;
    std::string              strFile;
    std::string              strProblem;
    std::vector<std::string> lstSupported;
    std::string              strAdds; // "Device operations 1, Check operations 2"
};

struct StReportFinding
{
    std::size_t   nRule    = 0; // in StReport::lstRule
    std::size_t   nFile    = 0; // in StReport::lstFindingFile
    std::uint32_t ulLine   = 0;
    std::uint32_t ulColumn = 0;
    std::string   strMessage;
};

struct StReportRule
{
    std::string strId;
    std::string strTitle;
    std::string strSeverity;
    std::size_t nFindings = 0;
};

// How many findings a file has, by severity: note, warning, error.
struct StReportFile
{
    std::string                strFile;
    std::array<std::size_t, 3> arCount = {};
};

struct StReportAlarmTable
{
    std::string strLanguage;
    std::string strFile;
    std::string strProblem;
    std::string strHolds; // "12 alarms"
};

struct StReport
{
    std::string                     strTitle;
    std::string                     strRoot;
    std::string                     strMade; // "2031-05-09T07:30:00Z"
    std::string                     strTool; // "opxml 0.2.0"
    CColumns                        oColumns;
    DetailRecords                   lstRecord;
    std::vector<StReportRow>        lstRow; // in the order of a load
    std::vector<StReportDevice>     lstDevice;
    std::vector<StReportModule>     lstModule;
    std::vector<std::string>        lstModuleProblem; // folders that could not be looked into
    bool                            bLint = true;     // the next three were looked for
    std::vector<StReportRule>       lstRule;          // those with findings
    std::vector<StReportFile>       lstFindingFile;
    std::vector<StReportFinding>    lstFinding; // MOST_FINDINGS of them at most; the numbers count all
    std::vector<StReportAlarmTable> lstAlarmTable;
};

#endif
