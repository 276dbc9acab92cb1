// The table of rules: for people, for docs/diff.md, for programs.
#include "tools/opxml/difftext/DiffPrinter.h"
#include "tools/opxml/output/RecordJson.h"
#include "tools/opxml/output/Table.h"

#include <fmt/format.h>

std::string diffRulesText()
{
    CTable oTable({{"IMPACT"}, {"RULE"}, {"WHAT HAPPENED"}, {"WHOM IT CONCERNS", 1}});
    for (const StDiffRule& stRule : diffRules())
        oTable.addRow({impactWord(stRule.enImpact), stRule.pszId, stRule.pszTitle, stRule.pszWhy});
    return oTable.text();
}

std::string diffRulesMarkdown()
{
    std::string strText = "| impact | rule | what happened | whom it concerns |\n|---|---|---|---|\n";
    for (const StDiffRule& stRule : diffRules())
        strText += fmt::format("| {} | `{}` | {} | {} |\n", impactWord(stRule.enImpact), stRule.pszId, stRule.pszTitle,
                               stRule.pszWhy);
    return strText;
}

std::string diffRulesJson()
{
    Json oRules = Json::array();
    for (const StDiffRule& stRule : diffRules())
        oRules.push_back({{"rule", stRule.pszId},
                          {"impact", impactWord(stRule.enImpact)},
                          {"title", stRule.pszTitle},
                          {"why", stRule.pszWhy}});
    return jsonText(oRules) + "\n";
}
