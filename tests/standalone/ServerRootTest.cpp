// Which folders are server roots, and that a failure leaves things as they were.
#include "InventoryFixture.h"

#include "platform/DeviceAdapter.h"
#include "platform/Paths.h"
#include "platform/Settings.h"

namespace
{
std::string problemOf(const std::string& strFolder)
{
    std::string strError;
    return standalone::openServerRoot(strFolder, strError) ? "opened" : strError;
}

TEST(ServerRoot, SaysWhyAFolderIsNone)
{
    CTempServerRoot   oRoot;
    const std::string strPath = oRoot.path();
    EXPECT_EQ("no server root given", problemOf(""));
    EXPECT_EQ(strPath + "/none: cannot be opened: No such file or directory", problemOf(strPath + "/none"));
    EXPECT_EQ(strPath + ": no inventory: neither server.db nor server.sql is there", problemOf(strPath));
    const std::string strFile = oRoot.write("server.sql", "");
    EXPECT_EQ(strFile + ": not a folder", problemOf(strFile));
    EXPECT_EQ("opened", problemOf(strPath));
}

TEST(ServerRoot, FailureKeepsTheOpenRoot)
{
    CTempServerRoot oGood;
    oGood.open("INSERT INTO setting VALUES('a','good');");
    CTempServerRoot oBad;
    oBad.write("server.sql", "INSERT INTO setting VALUES('a','bad'); nonsense;");
    EXPECT_NE("opened", problemOf(oBad.path()));
    std::string strValue;
    EXPECT_EQ(0u, CDCSettingInfoTab::Instance()->getValueByParam("a", strValue));
    EXPECT_EQ("good", strValue);
}

TEST(ServerRoot, IsTakenUpAgainAsItWasOpened)
{
    CTempServerRoot oFirst;
    oFirst.open("INSERT INTO setting VALUES('a','first');");
    const standalone::OpenRoot pFirst = standalone::openedServerRoot();
    oFirst.write("server.sql", "nonsense;"); // is not read again
    CTempServerRoot oSecond;
    oSecond.open("INSERT INTO setting VALUES('a','second');");
    std::string strValue;
    for (const char* pszExpected : {"second", "first"})
    {
        EXPECT_EQ(0u, CDCSettingInfoTab::Instance()->getValueByParam("a", strValue));
        EXPECT_EQ(pszExpected, strValue);
        standalone::resumeServerRoot(pFirst);
    }
    standalone::closeServerRoot();
    EXPECT_EQ(nullptr, standalone::openedServerRoot());
}

TEST(ServerRoot, PathsStartWithTheFolderAsGiven)
{
    CTempServerRoot oRoot;
    oRoot.write("server.sql", "INSERT INTO environment VALUES('APP_ROOT','${ROOT}/x/${ROOT}');"
                              "INSERT INTO config_file VALUES('Rel','a/b.xml'), ('Abs','/c.xml'), ('None','');");
    ASSERT_EQ("opened", problemOf(oRoot.path() + "//"));
    std::string strServerPath = "before";
    NS_UTIL::EmfGetServerPath_DC(strServerPath);
    EXPECT_EQ(oRoot.path(), strServerPath);

    using ns_kivosdk_wrap::GetEnvValue;
    EXPECT_EQ(oRoot.path() + "/x/" + oRoot.path(), GetEnvValue("APP_ROOT", false, true));
    EXPECT_EQ(oRoot.path() + "/", GetEnvValue("ENV_ROOT", false, true));
    EXPECT_EQ("en_US/", GetEnvValue("OSS_LANG", false, true));
    EXPECT_EQ(oRoot.path() + "/xml", CDeviceAdapterInterface::getInstance()->initXMLPath());

    const std::pair<const char*, std::string> FILES[] = {
        {"Rel", oRoot.path() + "/a/b.xml"}, {"Abs", "/c.xml"}, {"None", ""}};
    for (const auto& [pszType, strExpected] : FILES)
    {
        std::string strFile = "before";
        EXPECT_EQ(0u, CDeviceAdapterInterface::getInstance()->getServerConfigFile(pszType, strFile));
        EXPECT_EQ(strExpected, strFile);
    }
}

TEST(ServerRoot, ServicesSayThatNoneIsOpen)
{
    std::list<StDeviceType> lstType;
    EXPECT_EQ(standalone::RESULT_NO_ROOT, CDeviceAdapterInterface::getInstance()->getALLDLLInfo(lstType));
    EXPECT_EQ(9, NS_UTIL::CConfigItem::Instance()->readCfgItemIntValueFromDB("DC", "X", 9));
    EXPECT_EQ("", ns_kivosdk_wrap::GetEnvValue("APP_ROOT", false, true));
}
} // namespace
