// Writes the page of a server root that is open. Throws CTrouble; there is a page
// then, or nothing.
#ifndef OPERATIONXML_TOOLS_OPXML_REPORT_REPORT_H
#define OPERATIONXML_TOOLS_OPXML_REPORT_REPORT_H

#include <string>

struct StReportWish
{
    std::string strOutput;
    std::string strRoot;
    std::string strCompare; // root to compare with; empty: none
    std::string strTitle;
    std::string strTool; // name and version
    bool        bDetails = true;
    bool        bLint    = true;
};

// Answers what was written, in words.
std::string writeReport(const StReportWish& stWish);

#endif
