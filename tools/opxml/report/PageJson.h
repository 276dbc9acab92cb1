// The data of the page as compact JSON; page/data.js reads it. Stateless.
#ifndef OPERATIONXML_TOOLS_OPXML_REPORT_PAGEJSON_H
#define OPERATIONXML_TOOLS_OPXML_REPORT_PAGEJSON_H

#include "tools/opxml/output/RecordJson.h"
#include "tools/opxml/report/ReportData.h"

Json pageJson(const StReport& stReport);

#endif
