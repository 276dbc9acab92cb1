// See RuleText.h.
#include "tools/opxml/lint/RuleText.h"

#include "tools/opxml/lint/FindingPrinter.h"
#include "tools/opxml/output/Exit.h"
#include "tools/opxml/output/Names.h"
#include "tools/opxml/output/Table.h"
#include "tools/opxml/output/Terminal.h"
#include "tools/opxml/output/Text.h"

#include <fmt/format.h>

#include <algorithm>
#include <string_view>

namespace
{
// The lines of a text, moved right.
std::string indented(std::string_view strText)
{
    std::string strOut;
    while (!strText.empty())
    {
        const std::size_t nEnd = std::min(strText.find('\n'), strText.size());
        strOut.append(nEnd == 0 ? "" : "    ").append(strText.substr(0, nEnd)).append("\n");
        strText.remove_prefix(std::min(nEnd + 1, strText.size()));
    }
    return strOut;
}

// The example files of a rule whose names begin with "wrong" or "right". What the
// tool prints for them stands in the ".txt" file.
std::string exampleText(const std::string& strRule, std::string_view strBegin)
{
    std::string strFiles;
    std::string strPrinted;
    for (const StRuleExample& stExample : RULE_EXAMPLES)
    {
        const std::string_view strFile = stExample.pszFile;
        if (strRule != stExample.pszRule || strFile.substr(0, strBegin.size()) != strBegin)
            continue;
        if (strFile == std::string(strBegin) + ".txt")
        {
            strPrinted = indented(stExample.pszText);
            continue;
        }
        const bool bOfRoot = strFile.find('/') != std::string_view::npos;
        strFiles += (bOfRoot ? fmt::format("  {}\n", strFile) : "") + indented(stExample.pszText);
    }
    return strFiles + (strPrinted.empty() ? "" : "  gives\n" + strPrinted);
}
} // namespace

void requireRule(const std::string& strRule)
{
    if (lint::findRule(strRule) != nullptr)
        return;
    std::vector<std::string> lstName;
    for (const lint::StRule& stRule : lint::rules())
        lstName.emplace_back(stRule.pszId);
    throw CTrouble("no rule \"" + printable(strRule) + "\"" + nearestNames(strRule, lstName));
}

int printRules()
{
    CTable oTable({{"GROUP"}, {"RULE"}, {"SEVERITY"}, {"WHAT IT FINDS"}});
    for (const lint::StRule& stRule : lint::rules())
        oTable.addRow({stRule.pszGroup, stRule.pszId, severityName(stRule.enSeverity), stRule.pszTitle});
    print(oTable.text());
    return EXIT_YES;
}

int printExplanation(const std::string& strRule)
{
    requireRule(strRule);
    const lint::StRule& stRule = *lint::findRule(strRule);
    print(inBold(fmt::format("{} ({}, {})", stRule.pszId, stRule.pszGroup, severityName(stRule.enSeverity))) +
          fmt::format("\n{}.\n{}\n\nWrong:\n{}\nRight:\n{}", stRule.pszTitle, stRule.pszWhy,
                      exampleText(strRule, "wrong"), exampleText(strRule, "right")));
    return EXIT_YES;
}
