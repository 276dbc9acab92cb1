// opxml explain and opxml query about everything in the example server: what the catalog
// says stands somewhere, against what the questions answer from the store, and a reason
// for every no.
#include "database/CXMLConfigDatabase.h"
#include "standalone/DeviceList.h"
#include "standalone/ServerRoot.h"
#include "tools/opxml/catalog/EntryWalk.h"
#include "tools/opxml/query/QuestionsAbout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <set>
#include <string>
#include <vector>

namespace
{
using Path = std::vector<std::string>; // ids of an operation, a parameter, an option

// Every operation, parameter and option of the key.
void addPaths(const StServedKey& stServed, std::set<Path>& setPath)
{
    for (const catalog::StConfiguration& stConfiguration : stServed.stCatalog.lstConfiguration)
    {
        walkEntries(stConfiguration.lstSection,
                    [&setPath](const StWalkedEntry& stWalked)
                    {
                        Path lstId;
                        for (const catalog::StEntry* pEntry : stWalked.lstPath)
                        {
                            if (!pEntry->strId.empty() && lstId.size() < 3)
                                lstId.push_back(pEntry->strId);
                        }
                        if (!lstId.empty())
                            setPath.insert(lstId);
                    });
    }
}

// Of all types the operations, and what the questions for content and board types look
// at; and some that nothing has.
std::set<Path> sharedPaths(CServedKeys& oKeys)
{
    std::set<Path> setAll;
    for (const StRegisteredType& stType : oKeys.types())
        addPaths(oKeys.find(stType.strDevType, stType.strDevTypeVer), setAll);
    std::set<Path> setPath = {{"Backpu"}, {"Backup", "ContentTyp"}, {"Backup", "ContentType", "99"}};
    std::copy_if(setAll.begin(), setAll.end(), std::inserter(setPath, setPath.end()),
                 [](const Path& lstId)
                 { return lstId.size() == 1 || lstId[1] == "ContentType" || lstId[1] == "BoardType"; });
    return setPath;
}

// A question about one kind of operation says yes where the first one of the id, in the
// first configuration, is there and switched on.
bool isExpected(const StExplanation& stExplanation, EnEntryKind enKind)
{
    const auto itFirst = std::find_if(stExplanation.lstStand.begin(), stExplanation.lstStand.end(),
                                      [&](const StStand& stStand)
                                      {
                                          return stStand.bInEffect && !stStand.bPartly &&
                                                 stStand.pRoot->enKind == enKind &&
                                                 (stStand.lstPath.size() == stExplanation.stWanted.lstId.size());
                                      });
    return itFirst != stExplanation.lstStand.end() && isOffered(*itFirst);
}

void compare(const StExplanation& stExplanation)
{
    const StSubject& stSubject = stExplanation.stSubject;
    SCOPED_TRACE(wantedText(stExplanation.stWanted) + " on " + stSubject.strTitle);
    EXPECT_EQ(stExplanation.bOffered, stExplanation.bOffered && stExplanation.lstObstacle.empty());
    for (const StQuestionAnswer& stQuestion : stExplanation.lstQuestion)
    {
        // For a device that does not resolve, cancelling is allowed, and query says why.
        const bool bUnresolved = stSubject.stServing.pServed == nullptr;
        EXPECT_TRUE(bUnresolved || stQuestion.bYes == stQuestion.strWhy.empty())
            << stQuestion.strOperation << ": " << stQuestion.strAnswer << ", " << stQuestion.strWhy;
        if (!stSubject.isFirstServing() || stExplanation.stWanted.lstId.size() > 2)
            continue;
        const bool bDevice = stQuestion.strOperation.rfind("isDeviceOp", 0) == 0;
        const bool bOther  = stQuestion.strOperation == "isOtherOpSupported";
        if (bDevice || bOther)
        {
            const auto enKind = bDevice ? EnEntryKind::DeviceOperation : EnEntryKind::OtherOperation;
            EXPECT_EQ(isExpected(stExplanation, enKind), stQuestion.bYes) << stQuestion.strOperation;
            EXPECT_TRUE(stExplanation.bOffered || !stQuestion.bYes) << stQuestion.strOperation;
        }
    }
}

TEST(ExplainAgreementTest, ExplainAndQueryNeverDisagree)
{
    CXMLConfigDatabase::finalize();
    std::string strError;
    ASSERT_TRUE(standalone::openServerRoot(OPERATIONXML_SOURCE_DIR "/examples/server", strError)) << strError;
    CServedKeys&             oKeys     = CServedKeys::instance();
    const std::set<Path>     setShared = sharedPaths(oKeys);
    std::vector<std::string> lstName;
    for (const StRegisteredType& stType : oKeys.types())
        lstName.push_back(stType.strDevType + ":" + stType.strDevTypeVer);
    for (const standalone::StListedDevice& stDevice : standalone::listDevices())
        lstName.push_back(std::to_string(stDevice.stInfo.ulDeviceID));
    std::size_t nOffered = 0;
    std::size_t nAnswers = 0;
    for (const std::string& strName : lstName)
    {
        StSubject stSubject;
        ASSERT_TRUE(findSubject(oKeys, strName, stSubject, strError)) << strError;
        std::set<Path> setPath = setShared; // and those of the type itself, managed either way
        for (const char* pszVersion : {"", "_telnet"})
            addPaths(oKeys.find(stSubject.strDevType, pszVersion), setPath);
        for (const Path& lstId : setPath)
        {
            StExplanation stExplanation = explain(oKeys, stSubject, lstId);
            stExplanation.lstQuestion   = askAbout(stExplanation);
            compare(stExplanation);
            nOffered += stExplanation.bOffered ? 1 : 0;
            nAnswers += stExplanation.lstQuestion.size();
        }
    }
    EXPECT_LT(1000u, nOffered);
    EXPECT_LT(10000u, nAnswers);
    CXMLConfigDatabase::finalize();
}
} // namespace
