// An explanation for people: one line that answers, and a tree that says why.
#include "tools/opxml/catalog/EntryText.h"
#include "tools/opxml/explain/CapacityPlace.h"
#include "tools/opxml/explain/Explanation.h"
#include "tools/opxml/output/Tree.h"

#include <fmt/format.h>

#include <algorithm>
#include <string_view>

namespace
{
// "yes: "Backup" is offered on device 101 lx-hall-a, as a device operation of "LX 2400/S"".
std::string answerText(const StExplanation& stExplanation)
{
    const StSubject& stSubject = stExplanation.stSubject;
    if (stExplanation.stWanted.lstId.empty())
        return stExplanation.bOffered ? stSubject.strTitle
                                      : fmt::format("{}: {}", stSubject.strTitle, stSubject.strProblem);
    const std::string strOffered =
        fmt::format("{} {} on {}", wantedText(stExplanation.stWanted),
                    stExplanation.bOffered ? "is offered" : "is not offered", stSubject.strTitle);
    if (!stExplanation.bOffered)
        return fmt::format("no: {}{}", strOffered,
                           stExplanation.lstObstacle.empty()
                               ? ", and nothing is called like it (opxml find tells which types have it)"
                               : ": " + stExplanation.lstObstacle.front().strText);
    const auto itOffered = std::find_if(stExplanation.lstStand.begin(), stExplanation.lstStand.end(),
                                        [&stExplanation](const StStand& stStand)
                                        { return isFound(stStand, stExplanation.stWanted) && isOffered(stStand); });
    return fmt::format("yes: {}, as {} of \"{}\"", strOffered, kindText(*itOffered),
                       stSubject.stServing.pServed->strKey);
}

void addSteps(const StSubject& stSubject, StTree& stTree)
{
    for (const StStep& stStep : stSubject.lstStep)
        stTree.add(fmt::format("{}: {}{}", stStep.strName, stStep.strFound,
                               stStep.strWhy.empty() ? "" : " (" + stStep.strWhy + ")"));
}

void addStands(const StExplanation& stExplanation, StTree& stTree)
{
    if (stExplanation.lstStand.empty())
        return;
    StTree& stBranch = stTree.add("where it stands");
    for (const StStand& stStand : stExplanation.lstStand)
    {
        std::string strLine =
            fmt::format("{}: {}, {}", stStand.strPlace, kindText(stStand), originText(stStand.entry()));
        if (stStand.entry().enFate != catalog::EnEntryFate::Counts || stStand.pKind->enRole != EnEntryRole::Reference)
            strLine += "; " + fateText(stStand);
        const std::string strSays = saysText(stStand.entry());
        stBranch.add(strLine + (strSays.empty() ? "" : " (" + strSays + ")"));
    }
}

void addObstacles(const StExplanation& stExplanation, StTree& stTree)
{
    const bool bTold = stExplanation.stWanted.lstId.empty(); // by the first line
    if (stExplanation.bOffered || bTold || stExplanation.lstObstacle.empty())
        return;
    StTree& stBranch = stTree.add("what stands in the way");
    for (const StObstacle& stObstacle : stExplanation.lstObstacle)
        stBranch.add(stObstacle.strText);
}

void addQuestions(const StExplanation& stExplanation, StTree& stTree)
{
    if (stExplanation.lstQuestion.empty())
        return;
    const StLookedInto& stServing = stExplanation.stSubject.stServing;
    std::string         strTitle  = "what the server answers";
    if (!stExplanation.stSubject.isFirstServing())
        strTitle += fmt::format(" (out of the first configuration, that of version {})",
                                versionsText(stServing.pServed->stCatalog.lstConfiguration.front()));
    StTree& stBranch = stTree.add(strTitle);
    for (const StQuestionAnswer& stQuestion : stExplanation.lstQuestion)
    {
        const bool bOption = stExplanation.stWanted.lstId.size() > 2; // by its number or by its name
        stBranch.add(fmt::format("{}{}: {}{}", stQuestion.strOperation,
                                 bOption ? " " + stQuestion.lstArgument.back() : "", stQuestion.strAnswer,
                                 stQuestion.strWhy.empty() ? "" : "; " + stQuestion.strWhy));
    }
}
} // namespace

std::string explanationText(const StExplanation& stExplanation)
{
    StTree stTree = {answerText(stExplanation), {}};
    if (stExplanation.stWanted.lstId.empty())
        addSteps(stExplanation.stSubject, stTree);
    addStands(stExplanation, stTree);
    addObstacles(stExplanation, stTree);
    addQuestions(stExplanation, stTree);
    return treeText(stTree);
}
