// What a file holds, and the readers that would read it.
#ifndef OPERATIONXML_LINT_FILEKIND_H
#define OPERATIONXML_LINT_FILEKIND_H

#include "common/XmlParser.h"
#include "lint/Lint.h"

#include <string>

namespace lint
{
// The kind of a file by its name and, where that leaves a choice, by what stands in
// it; Unknown when neither tells.
EnFileKind kindOfFile(const std::string& strPath, const CXmlParser& oParser);

// Has a document read by the readers of its kind, for whoever listens. What they
// make of it is thrown away.
void readAs(EnFileKind enKind, CXmlParser& oParser);

// For messages: "a configuration file", "an alarm explanation table".
const char* kindText(EnFileKind enKind);
} // namespace lint

#endif
