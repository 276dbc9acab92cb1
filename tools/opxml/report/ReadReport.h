// Reads everything that the page shows, from a server root that is open: the device
// types with what lint says of their files, devices, modules, alarm tables. Reads each
// file once. One thread; throws CTrouble.
#ifndef OPERATIONXML_TOOLS_OPXML_REPORT_READREPORT_H
#define OPERATIONXML_TOOLS_OPXML_REPORT_READREPORT_H

#include "tools/opxml/report/TypeReader.h"

// Findings beyond these are counted and not listed.
constexpr std::size_t MOST_FINDINGS = 5000;

// Fills all but title, root, time and tool. With bLint the findings, too.
void readReport(const std::string& strRoot, bool bLint, const DetailSink& fnDetail, StReport& stReport);

#endif
