// The sections of a configuration as people see them: titles, short names and
// how many records each holds, in the order in which they are read.
#ifndef OPERATIONXML_TOOLS_OPXML_OUTPUT_SECTIONS_H
#define OPERATIONXML_TOOLS_OPXML_OUTPUT_SECTIONS_H

#include "reader/SectionTable.h"
#include "records/ModuleRecords.h"

#include <array>
#include <cstddef>
#include <string>
#include <vector>

struct StSectionTitle
{
    const char* pszShort; // column of a table
    const char* pszField; // field of the record
    const char* pszTitle; // for people
};
extern const std::array<StSectionTitle, SECTION_COUNT> SECTION_TITLES;

// How many records each section of a configuration holds, in that order.
using SectionCounts = std::array<std::size_t, SECTION_COUNT>;
SectionCounts countSections(const StAsnDevTypeVerXMLInfo& stInfo);
SectionCounts countSections(const StAsnModuleInfoVerXMLInfo& stModule);

// How many of a module's records are added to a type: menus and tabs are not.
SectionCounts countAdded(const StAsnModuleInfoVerXMLInfo& stModule);

// One contribution of a module to a device type. A module that names the type
// twice contributes twice.
struct StContribution
{
    std::string   strModule;
    SectionCounts arCount; // menus are not merged: 0 there
};

// What modules contributed to a device type, in the order in which it was
// appended to the type's first record.
std::vector<StContribution> findContributions(const std::string& strDevType);

// "A, B (again)" for a module that names the type twice.
std::string contributionText(const std::vector<StContribution>& lstContribution);

#endif
