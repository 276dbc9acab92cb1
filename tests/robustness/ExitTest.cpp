// The process ends while the database and the alarm tables are in use.
#include "alarm/AlarmSupport.h"
#include "reader/ServerFixture.h"

#include <cstdlib>

namespace
{
// The host's own exit handlers run before the database's clean-up and may still ask.
void askAtExit()
{
    bool bIsSupported = false;
    CXMLConfigDatabase::getInstance()->isDeviceOpSupported("A", "V1", "Save", bIsSupported);
    if (!bIsSupported || InitAlarmInfo::Instance()->alarms().empty())
        std::_Exit(1);
}

TEST_F(CServerTest, ExitsCleanlyWhileEverythingIsAlive)
{
    m_oRoot.writeConfig("A.xml", deviceFile({"Save"}));
    m_oRoot.write(std::string("pub/i18n/en_US/") + ALARM_FILE, "<t><record/></t>");
    open();
    CXMLConfigDatabase::getInstance();
    InitAlarmInfo::Instance();
    // The process of the test has no other thread. NOLINTNEXTLINE(concurrency-mt-unsafe)
    EXPECT_EXIT(std::exit(std::atexit(askAtExit)), testing::ExitedWithCode(0), "");
}
} // namespace
