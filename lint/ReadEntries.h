// The elements that the readers came to, each with the one whose reader looked for
// it: what the rules about ids, definitions and steps of one document walk.
// Values that point into the document. One thread.
#ifndef OPERATIONXML_LINT_READENTRIES_H
#define OPERATIONXML_LINT_READENTRIES_H

#include "lint/DocumentRules.h"

#include <string>
#include <vector>

namespace lint
{
struct StReadEntry
{
    const xercesc::DOMElement* pElement = nullptr;
    const xercesc::DOMElement* pOwner   = nullptr; // whose reader looked for it; null: looked for in the whole document
    const xercesc::DOMElement* pAround  = nullptr; // takes what stands in it as its own, too; null: as it should be
    bool                       bInside  = false;   // it, or one around it, stands in such an element
    bool                       bSpoilt  = false;   // has an attribute that nobody reads
};

// In the order of the document.
std::vector<StReadEntry> readEntries(const StReadDocument& stRead);

// The attribute if the readers asked for it, or null.
const StAskedAttribute* findAsked(const StReadDocument& stRead, const xercesc::DOMElement& oElement,
                                  const char16_t* pszName);

// Asked for by a word of this table.
bool isWordOf(const StAskedAttribute& stAsked, std::string_view strWord);

// The value, empty when it is not there.
std::string valueOf(const StAskedAttribute* pAsked);

// For messages.
std::string tagOf(const xercesc::DOMElement& oElement);
std::string inQuotes(std::string_view strText);
} // namespace lint

#endif
