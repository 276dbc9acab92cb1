// What the configuration of a subject is made of: the file and why that one, check files,
// capacity documents, modules.
#ifndef OPERATIONXML_TOOLS_OPXML_EXPLAIN_CONFIGURATIONSTEPS_H
#define OPERATIONXML_TOOLS_OPXML_EXPLAIN_CONFIGURATIONSTEPS_H

#include "tools/opxml/explain/Subject.h"

// Adds the steps, and chooses among the configurations of a type with capacity.
void addConfigurationSteps(const CServedKeys& oKeys, StSubject& stSubject);

#endif
