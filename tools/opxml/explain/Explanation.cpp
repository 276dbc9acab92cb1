// See Explanation.h.
#include "tools/opxml/explain/Explanation.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

namespace
{
void findStandsOf(StExplanation& stExplanation)
{
    const StLookedInto&           stServing = stExplanation.stSubject.stServing;
    const catalog::StTypeCatalog& stCatalog = stServing.pServed->stCatalog;
    if (stServing.nConfiguration < stCatalog.lstConfiguration.size())
        stExplanation.lstStand = findStands(stCatalog.lstConfiguration[stServing.nConfiguration].lstSection,
                                            stCatalog.lstFile, stExplanation.stWanted);
    // Definitions first, then what uses it or is called the same.
    std::stable_partition(stExplanation.lstStand.begin(), stExplanation.lstStand.end(), isDefinition);
}
} // namespace

StExplanation explain(CServedKeys& oKeys, StSubject stSubject, const std::vector<std::string>& lstId)
{
    StExplanation stExplanation;
    stExplanation.stSubject = std::move(stSubject);
    stExplanation.stWanted  = {{}, lstId, true, true, true};
    const StSubject& stOf   = stExplanation.stSubject;
    stExplanation.bOffered  = stOf.strProblem.empty();
    const bool bHasKey      = stOf.stServing.pServed != nullptr;
    if (!stOf.strProblem.empty() && (!bHasKey || stOf.stServing.pServed->strProblem.empty()))
        stExplanation.lstObstacle.push_back({EnObstacle::Unresolved, stOf.strProblem, {}});
    if (lstId.empty() || !bHasKey || !stExplanation.lstObstacle.empty())
        return stExplanation;
    StAbsence stAbsence       = findAbsence(oKeys, stOf.stServing, stExplanation.stWanted);
    stExplanation.bOffered    = stAbsence.strWhat.empty();
    stExplanation.lstObstacle = std::move(stAbsence.lstObstacle);
    findStandsOf(stExplanation);
    return stExplanation;
}

std::string wantedText(const StWanted& stWanted)
{
    std::string strText;
    for (auto itId = stWanted.lstId.rbegin(); itId != stWanted.lstId.rend(); ++itId)
        strText += fmt::format("{}\"{}\"", strText.empty() ? "" : " of ", *itId);
    return strText;
}
