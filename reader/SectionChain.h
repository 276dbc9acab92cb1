// The sections of a server configuration file in the order in which they are
// read: called by the readers of device types and of modules. The first failing
// section ends the read; what was filled before it stays in the lists, and the
// caller discards the record. Keeps nothing between calls.
#ifndef OPERATIONXML_READER_SECTIONCHAIN_H
#define OPERATIONXML_READER_SECTIONCHAIN_H

#include "records/ModuleRecords.h"

#include <xercesc/parsers/XercesDOMParser.hpp>

#include <cstdint>
#include <functional>
#include <list>

// Where the check operations of a device type come from is its reader's knowledge.
using CheckSectionReader = std::function<std::uint32_t(std::list<StAsnCheckOperationDef>&)>;

// Runs every section parser on the document; returns the first non-zero result.
std::uint32_t runSectionChain(xercesc::XercesDOMParser* pDOMParser, StAsnDevTypeVerXMLInfo& stInfo,
                              const CheckSectionReader& fnReadChecks);

// The same for a module: no isolation menu, and the document's own checks.
std::uint32_t runSectionChain(xercesc::XercesDOMParser* pDOMParser, StAsnModuleInfoVerXMLInfo& stModule);

#endif
