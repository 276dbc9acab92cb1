// Queries against the loop that a programmer would write by hand: the same
// records behind one recursive mutex, one map lookup, the same walk of the lists.
// The questions go over all types in random order.
#include "Dice.h"
#include "Measure.h"
#include "Roots.h"
#include "Targets.h"
#include "Words.h"

#include "ConfigText.h"
#include "ServerRootText.h"
#include "database/CXMLConfigDatabase.h"
#include "platform/DeviceDatabase.h"

#include <ace/Guard_T.h>
#include <ace/Recursive_Thread_Mutex.h>
#include <fmt/format.h>

#include <stdexcept>

namespace
{
constexpr std::size_t TYPES     = 10000;
constexpr std::size_t QUESTIONS = 500000;

constexpr StTarget OPERATION_TARGET = {
    "query, operation", "`isDeviceOpSupported` at 10,000 types ÷ hand-written loop over the same records", "≤ 1.5",
    1.5};
constexpr StTarget CONTENT_TARGET = {
    "query, content type",
    "`getContentTypeId` at 10,000 types ÷ hand-written loop, both less the platform's look-up of the device", "≤ 1.5",
    1.5};

// The hand-written side.
class CByHand
{
public:
    explicit CByHand(CXMLConfigDatabase& oDatabase)
    {
        oDatabase.visitDevTypes([this](const std::string& strKey, const std::list<StAsnDevTypeVerXMLInfo*>& lstInfo)
                                { m_mapInfo.emplace(strKey, lstInfo); });
    }

    bool isSupported(const std::string& strDevType, const std::string& strOperId)
    {
        const ACE_Guard<ACE_Recursive_Thread_Mutex> oGuard(m_oMutex);
        const auto                                  itFound = m_mapInfo.find(strDevType);
        if (itFound == m_mapInfo.end() || itFound->second.empty())
            return false;
        for (const StAsnOperation& stOper : itFound->second.front()->stOperationConfig.lstDevOperation)
        {
            if (stOper.strId == strOperId)
                return true;
        }
        return false;
    }

    void contentName(const std::string& strDevType, std::uint32_t ulValue, std::string& strName)
    {
        const ACE_Guard<ACE_Recursive_Thread_Mutex> oGuard(m_oMutex);
        const auto                                  itFound = m_mapInfo.find(strDevType);
        if (itFound == m_mapInfo.end() || itFound->second.empty())
            return;
        for (const StAsnOperation& stOper : itFound->second.front()->stOperationConfig.lstDevOperation)
        {
            if (stOper.strId != "Backup")
                continue;
            for (const StAsnOperParamDef& stParam : stOper.lstParam)
            {
                if (stParam.strId == "ContentType")
                    findName(stParam, ulValue, strName);
            }
        }
    }

private:
    static void findName(const StAsnOperParamDef& stParam, std::uint32_t ulValue, std::string& strName)
    {
        for (const StAsnOptionInfo& stOption : stParam.lstOption)
        {
            if (stOption.ulValue != ulValue)
                continue;
            strName = stOption.strId;
            return;
        }
    }

    std::map<std::string, std::list<StAsnDevTypeVerXMLInfo*>> m_mapInfo;
    ACE_Recursive_Thread_Mutex                                m_oMutex;
};

struct StQuestion
{
    std::size_t        nType;
    const std::string* pOperId;
    int                nContent;
};

// The device's type, as the platform tells it.
std::string typeOf(const StQuestion& stQuestion)
{
    std::string strDevType;
    std::string strDevTypeVer;
    CDCDeviceInfoDB::getDevTypeAndVersionName(stQuestion.nType + 1, strDevType, strDevTypeVer);
    return strDevType;
}

// All that the timed loops need, made beforehand.
struct StQuiz
{
    std::vector<std::string> lstDevType;
    std::vector<std::string> lstOperId;
    std::vector<StQuestion>  lstQuestion;
    const std::string        strVersion = TYPE_VERSION;
    CXMLConfigDatabase*      pDatabase;
    CByHand                  oByHand;

    StQuiz();
};

StQuiz::StQuiz() : pDatabase(CXMLConfigDatabase::getInstance()), oByHand(*pDatabase)
{
    for (std::size_t nType = 0; nType < TYPES; ++nType)
        lstDevType.push_back(deviceTypeName(nType));
    for (const std::string_view strOperId : Words::DEVICE_OPERATIONS)
        lstOperId.emplace_back(strOperId);
    lstOperId.emplace_back("NoSuchOperation");
    CDice oDice(1);
    for (std::size_t nQuestion = 0; nQuestion < QUESTIONS; ++nQuestion)
        lstQuestion.push_back(
            {oDice.below(TYPES), &lstOperId[oDice.below(lstOperId.size())], static_cast<int>(oDice.below(16))});
}

// One database for both benchmarks; it lives until the program ends.
StQuiz& quiz()
{
    static const bool s_bOpen = (openRoot(rootOf(TYPES)), true);
    static StQuiz     s_stQuiz;
    static_cast<void>(s_bOpen);
    return s_stQuiz;
}

// Seconds that all questions take; fnAsk answers whether there was an answer.
template <typename Ask>
double askAll(const StQuiz& stQuiz, std::size_t& nYes, Ask fnAsk)
{
    nYes                = 0;
    const double dStart = cpuSeconds();
    for (const StQuestion& stQuestion : stQuiz.lstQuestion)
        nYes += fnAsk(stQuestion) ? 1 : 0;
    return cpuSeconds() - dStart;
}

std::string figureText(const StComparison& stComparison)
{
    return fmt::format("{:.2f} ({:.0f} ns ÷ {:.0f} ns)", stComparison.dRatio, stComparison.dOne * 1e9 / QUESTIONS,
                       stComparison.dOther * 1e9 / QUESTIONS);
}

void mustAgree(std::size_t nOne, std::size_t nOther)
{
    if (nOne != nOther)
        throw std::runtime_error("the two ways answer differently");
}

void measureOperation(benchmark::State& oState)
{
    StQuiz&     stQuiz     = quiz();
    std::size_t nYes       = 0;
    std::size_t nYesByHand = 0;
    const auto  fnLibrary  = [&](const StQuestion& stQuestion)
    {
        bool bIsSupported = false;
        stQuiz.pDatabase->isDeviceOpSupported(stQuiz.lstDevType[stQuestion.nType], stQuiz.strVersion,
                                              *stQuestion.pOperId, bIsSupported);
        return bIsSupported;
    };
    const auto fnByHand = [&](const StQuestion& stQuestion)
    { return stQuiz.oByHand.isSupported(stQuiz.lstDevType[stQuestion.nType], *stQuestion.pOperId); };
    const StComparison stComparison = alternate([&] { return askAll(stQuiz, nYes, fnLibrary); },
                                                [&] { return askAll(stQuiz, nYesByHand, fnByHand); });
    mustAgree(nYes, nYesByHand);
    oState.SetIterationTime(stComparison.dOne / QUESTIONS);
    answer(oState, OPERATION_TARGET, stComparison.dRatio, figureText(stComparison));
}

// Seconds of all content-type questions. Both ways have to ask the platform for the
// type of the device; what that takes by itself is taken off.
template <typename Ask>
double askContents(const StQuiz& stQuiz, std::size_t& nYes, Ask fnAsk)
{
    std::string  strName;
    const double dWhole   = askAll(stQuiz, nYes,
                                   [&](const StQuestion& stQuestion)
                                   {
                                     strName.clear();
                                     fnAsk(stQuestion, strName);
                                     return !strName.empty();
                                 });
    std::size_t  nIgnored = 0;
    const double dPlatform =
        askAll(stQuiz, nIgnored, [](const StQuestion& stQuestion) { return !typeOf(stQuestion).empty(); });
    return dWhole - dPlatform;
}

void measureContent(benchmark::State& oState)
{
    StQuiz&     stQuiz     = quiz();
    std::size_t nYes       = 0;
    std::size_t nYesByHand = 0;
    const auto  fnLibrary  = [&](const StQuestion& stQuestion, std::string& strName)
    { stQuiz.pDatabase->getContentTypeId(stQuestion.nType + 1, stQuestion.nContent, strName); };
    const auto fnByHand = [&](const StQuestion& stQuestion, std::string& strName)
    { stQuiz.oByHand.contentName(typeOf(stQuestion), static_cast<std::uint32_t>(stQuestion.nContent), strName); };
    const StComparison stComparison = alternate([&] { return askContents(stQuiz, nYes, fnLibrary); },
                                                [&] { return askContents(stQuiz, nYesByHand, fnByHand); });
    mustAgree(nYes, nYesByHand);
    oState.SetIterationTime(stComparison.dOne / QUESTIONS);
    answer(oState, CONTENT_TARGET, stComparison.dRatio, figureText(stComparison));
}
} // namespace

void addQueryBenchmarks()
{
    measureOnce("query/operation", measureOperation, {OPERATION_TARGET});
    measureOnce("query/content-type", measureContent, {CONTENT_TARGET});
}
