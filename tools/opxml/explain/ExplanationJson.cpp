// An explanation for scripts. Fields are added, never renamed: docs/explain.md.
#include "tools/opxml/catalog/EntryText.h"
#include "tools/opxml/explain/Explanation.h"
#include "tools/opxml/output/RecordJson.h"

#include <utility>

namespace
{
Json subjectJson(const StSubject& stSubject)
{
    Json oSubject;
    if (stSubject.oDevice)
        oSubject["device"] = {{"id", stSubject.oDevice->stInfo.ulDeviceID},
                              {"name", stSubject.oDevice->stInfo.strDeviceName},
                              {"address", stSubject.oDevice->stInfo.strIPAddress}};
    oSubject["type"]          = stSubject.strDevType;
    oSubject["version"]       = stSubject.strDevTypeVer;
    oSubject["key"]           = stSubject.stServing.pServed == nullptr ? "" : stSubject.stServing.pServed->strKey;
    oSubject["configuration"] = stSubject.stServing.nConfiguration;
    oSubject["steps"]         = Json::array();
    for (const StStep& stStep : stSubject.lstStep)
        oSubject["steps"].push_back({{"step", stStep.strName}, {"found", stStep.strFound}, {"why", stStep.strWhy}});
    if (!stSubject.strProblem.empty())
        oSubject["problem"] = stSubject.strProblem;
    return oSubject;
}

const char* fateWord(const StStand& stStand)
{
    switch (stStand.entry().enFate)
    {
    case catalog::EnEntryFate::Shadowed:
        return "shadowed";
    case catalog::EnEntryFate::Dropped:
        return "left-out";
    case catalog::EnEntryFate::Pruned:
        return "removed";
    case catalog::EnEntryFate::Counts:
        break;
    }
    return stStand.bPartly ? "counts-partly" : stStand.bInEffect ? "counts" : "around-does-not-count";
}

Json standJson(const StStand& stStand)
{
    Json oStand = {{"kind", stStand.pKind->pszWord},
                   {"path", Json::array()},
                   {"place", stStand.strPlace},
                   {"origin", originText(stStand.entry())},
                   {"fate", fateWord(stStand)}};
    for (const catalog::StEntry* pEntry : stStand.lstPath)
        oStand["path"].push_back(pEntry->strId);
    if (!stStand.strBecause.empty())
        oStand["because"] = stStand.strBecause;
    if (!stStand.entry().strReason.empty())
        oStand["reason"] = stStand.entry().strReason;
    for (const catalog::StField& stField : stStand.entry().lstField)
        oStand["fields"][stField.pszName] = stField.strValue;
    return oStand;
}

Json questionJson(const StQuestionAnswer& stQuestion)
{
    Json oQuestion = {{"op", stQuestion.strOperation},
                      {"arguments", stQuestion.lstArgument},
                      {"answer", stQuestion.strAnswer},
                      {"yes", stQuestion.bYes}};
    if (!stQuestion.strWhy.empty())
        oQuestion["why"] = stQuestion.strWhy;
    return oQuestion;
}
} // namespace

std::string explanationJson(const StExplanation& stExplanation)
{
    Json oExplanation         = {{"subject", subjectJson(stExplanation.stSubject)}};
    oExplanation["asked"]     = stExplanation.stWanted.lstId;
    oExplanation["offered"]   = stExplanation.bOffered;
    oExplanation["stands"]    = Json::array();
    oExplanation["obstacles"] = Json::array();
    oExplanation["questions"] = Json::array();
    for (const StStand& stStand : stExplanation.lstStand)
        oExplanation["stands"].push_back(standJson(stStand));
    for (const StObstacle& stObstacle : stExplanation.lstObstacle)
        oExplanation["obstacles"].push_back({{"obstacle", obstacleWord(stObstacle.enObstacle)},
                                             {"text", stObstacle.strText},
                                             {"places", stObstacle.lstPlace}});
    for (const StQuestionAnswer& stQuestion : stExplanation.lstQuestion)
        oExplanation["questions"].push_back(questionJson(stQuestion));
    return jsonText(oExplanation) + "\n";
}
