// The sections of a server configuration file in the order in which they are
// read. The first failing section ends the read; what was filled before it stays
// in the lists, and the caller discards the record.
#ifndef OPERATIONXML_READER_SECTIONCHAIN_H
#define OPERATIONXML_READER_SECTIONCHAIN_H

#include "records/RootRecords.h"

#include <xercesc/parsers/XercesDOMParser.hpp>

#include <cstdint>
#include <functional>
#include <list>

// The lists that a document's sections fill.
struct StSectionLists
{
    StAsnOperationConfig&                    stOperationConfig;
    StAsnViewConfig&                         stViewConfig;
    std::list<StAsnTaskConfigInfoOperation>& lstTaskConfigInfoOperation;
    bool                                     bReadsIsolationMenu; // module files have none
};

// Where the check operations come from differs between device types and modules.
using CheckSectionReader = std::function<std::uint32_t(std::list<StAsnCheckOperationDef>&)>;

// Runs every section parser on the document; returns the first non-zero result.
std::uint32_t runSectionChain(xercesc::XercesDOMParser* pDOMParser, const StSectionLists& stLists,
                              const CheckSectionReader& fnReadChecks);

#endif
