// Which elements and attributes the readers of a kind of file know, and where. Found
// by having them read a document that grows by what they ask for, so that it is
// never another list than theirs.
#ifndef OPERATIONXML_LINT_GRAMMAR_H
#define OPERATIONXML_LINT_GRAMMAR_H

#include "common/ReadObserver.h"
#include "lint/Lint.h"

#include <map>
#include <set>
#include <string>
#include <vector>

namespace lint
{
struct StGrammarAttribute
{
    std::string              strName;
    EnReadAs                 enReadAs = EnReadAs::Text;
    std::vector<std::string> lstWord;
};

// One element where it is read.
struct StGrammarElement
{
    std::string                               strPath; // "DeviceOperation/Operation", below the root
    std::map<std::string, StGrammarElement>   mapChild;
    std::map<std::string, StGrammarAttribute> mapAttribute;
};

struct StGrammar
{
    StGrammarElement                             stRoot;   // the document
    std::map<std::string, std::set<std::string>> mapPlace; // of each element name: the elements below which it is read
};

// Found on first use, then kept. Listens to this thread's readers meanwhile.
const StGrammar& grammarOf(EnFileKind enKind);
} // namespace lint

#endif
