// What the tool says about the rules themselves: the list, and one rule with its
// examples. The examples are the files of tests/lint, compiled in, so that what is
// shown is what is tested.
#ifndef OPERATIONXML_TOOLS_OPXML_LINT_RULETEXT_H
#define OPERATIONXML_TOOLS_OPXML_LINT_RULETEXT_H

#include <string>
#include <vector>

// One file of a rule's examples.
struct StRuleExample
{
    const char* pszRule;
    const char* pszFile; // below the rule's folder: "wrong.xml", "wrong.txt", "right/server.sql"
    const char* pszText;
};
extern const std::vector<StRuleExample> RULE_EXAMPLES; // made at build time

// Throws CTrouble, with near names, when there is no such rule.
void requireRule(const std::string& strRule);

// Print, and give the exit status.
int printRules();
int printExplanation(const std::string& strRule);

#endif
