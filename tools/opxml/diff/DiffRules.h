// What a change means for those who ask the server: one table of rules, which
// docs/diff.md shows. Constants.
#ifndef OPERATIONXML_TOOLS_OPXML_DIFF_DIFFRULES_H
#define OPERATIONXML_TOOLS_OPXML_DIFF_DIFFRULES_H

#include <cstdint>
#include <string>
#include <vector>

enum class EnImpact : std::int32_t
{
    Breaking,   // an answer that was yes becomes no, or a number or name that devices were sent changes
    Compatible, // whoever asked before gets the same answer; others may get more
    Cosmetic,   // no answer changes, only what people see
};

struct StDiffRule
{
    const char* pszId;
    EnImpact    enImpact;
    const char* pszTitle; // what happened, without a full stop
    const char* pszWhy;   // whom it concerns
};

// In the order of the page.
const std::vector<StDiffRule>& diffRules();

// The rule of an id; there must be one.
const StDiffRule& diffRule(const std::string& strId);

// "breaking", …
const char* impactWord(EnImpact enImpact);

#endif
