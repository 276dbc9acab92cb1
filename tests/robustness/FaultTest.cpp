// Every platform call fails in turn while a server is loaded and asked: the log
// names what failed, and once the fault is gone the answers are the old ones.
#include "alarm/AlarmSupport.h"
#include "filecheck/ParseXMLFile.h"
#include "reader/ServerFixture.h"

#include <exception>
#include <fstream>
#include <new>
#include <regex>

namespace
{
struct StFaultCase
{
    const char* pszCall;
    const char* pszLog;         // "" where the answer is no failure, so that nothing is logged
    bool        bHeals = false; // without a restart: what it cost is read again on demand
};

class CFaultyServer : public CServerTest
{
protected:
    // The example server, with a version on a device that nobody knows the capacity of.
    CFaultyServer()
    {
        const std::filesystem::path oServer = OPERATIONXML_SOURCE_DIR "/examples/server";
        std::filesystem::copy(oServer, m_oRoot.path(), std::filesystem::copy_options::recursive);
        std::stringstream oSql;
        oSql << std::ifstream(oServer / "server.sql").rdbuf();
        m_oRoot.open(oSql.str() + "INSERT INTO version_in_service (device_type, device_type_version, soft_version) "
                                  "VALUES ('Quill C4', 'V4', 'unknown');"
                                  "INSERT INTO device (device_id, type_id, version_id, soft_version) "
                                  "VALUES (699, 1008, 1, 'unknown');");
        CDeviceAdapterInterface::getInstance()->getALLDLLInfo(m_lstType);
    }

    // The answers of now: types that are missing are read on demand, the alarms anew.
    std::string askEverything() const
    {
        CXMLConfigDatabase&                oDatabase = *CXMLConfigDatabase::getInstance();
        std::list<StAsnDevTypeVerXMLInfo*> lstInfo;
        std::string                        strText;
        for (const StDeviceType& stType : m_lstType)
            oDatabase.getDevTypeXMLConfig(stType.strDevType, stType.strDevTypeVer, lstInfo, true);
        for (const unsigned long ulDevice : {101ul, 102ul, 107ul, 108ul})
        {
            std::string strName;
            strText += fmt::format("{:x} ", oDatabase.getBackupContentTypeId(ulDevice, 1, strName)) + strName;
            strText += fmt::format(" {:x}\n", oDatabase.getContentTypeId(ulDevice, 1, strName));
        }
        oDatabase.visitDevTypes(
            [&strText](const std::string& strKey, const auto& lstStored)
            {
                for (const StAsnDevTypeVerXMLInfo* pInfo : lstStored)
                    strText += fmt::format("{}: {}/{}/{}\n", strKey, ids(pInfo->stOperationConfig.lstDevOperation),
                                           ids(pInfo->stOperationConfig.lstCheckOperation),
                                           ids(pInfo->stViewConfig.lstDevViewPopupMenu));
            });
        InitAlarmInfo::Destroy();
        ParseXMLFile::TypeMap mapType;
        ParseXMLFile::GetXMLInfo(m_oRoot.path() + "/file_check.xml", mapType);
        return strText + fmt::format("{} {}", InitAlarmInfo::Instance()->alarms().size(), mapType.size());
    }

    std::list<StDeviceType> m_lstType;
};

class FaultTest : public CFaultyServer, public testing::WithParamInterface<StFaultCase>
{
};

// What the answer of the call decides; KIVO_OS::closedir decides nothing.
TEST_P(FaultTest, IsNamedAndLeavesNothingBehind)
{
    const std::string strText = askEverything();
    const std::string strLog  = logText();
    CXMLConfigDatabase::finalize();
    clearLog();
    {
        const standalone::CFaultPoint oFault(GetParam().pszCall, 0, 7);
        const bool                    bSame = askEverything() == strText;
        EXPECT_FALSE(bSame && logText() == strLog) << "the fault was not met";
        EXPECT_THAT(logText(), testing::HasSubstr(GetParam().pszLog));
    }
    EXPECT_EQ(GetParam().bHeals, askEverything() == strText);
    CXMLConfigDatabase::finalize();
    EXPECT_EQ(strText, askEverything());
}

class ThrowingCallTest : public CFaultyServer, public testing::WithParamInterface<std::string>
{
};

TEST_P(ThrowingCallTest, IsSurvivedAndLeavesNothingBehind)
{
    const std::string strText = askEverything();
    for (const unsigned nCall : {1u, 2u, 0u})
    {
        SCOPED_TRACE(nCall);
        CXMLConfigDatabase::finalize();
        {
            const standalone::CFaultPoint oFault(GetParam(), nCall, std::make_exception_ptr(std::bad_alloc()));
            ASSERT_NO_THROW(askEverything());
            EXPECT_LT(0u, oFault.calls()); // so that the list is tried whole
            EXPECT_NE(nullptr, CXMLConfigDatabase::getInstance());
        }
        ASSERT_NO_THROW(askEverything()); // what is left of it is safe to ask
    }
    CXMLConfigDatabase::finalize();
    EXPECT_EQ(strText, askEverything());
}
INSTANTIATE_TEST_SUITE_P(Platform, ThrowingCallTest, testing::ValuesIn(standalone::CFaultPoint::operations()),
                         [](const auto& oInfo)
                         { return std::regex_replace(oInfo.param, std::regex("[^A-Za-z0-9]+"), "_"); });

// clang-format off
INSTANTIATE_TEST_SUITE_P(Platform, FaultTest, testing::ValuesIn(std::vector<StFaultCase>{
    {"CDeviceAdapterInterface::getALLDLLInfo", "E 00000007 [DCServer]getSuppportedDeviceTypes() failed :", true},
    {"CDeviceAdapterInterface::searchDeviceType", "E 00000007 [DCServer]CDeviceAdapterInterface::getInstance()->searchDeviceType failed.", true},
    {"CDeviceAdapterInterface::getServerConfigFile", "E 00000007 Call Function return Error:CDeviceAdapterInterface::getInstance()->getServerConfigFile(", true},
    {"CDeviceAdapterInterface::getCheckFileAndType", "->getCheckFileAndType("},
    {"CDeviceAdapterInterface::initXMLPath", ""},
    {"CDeviceAdapterInterface::searchTypeName", "->searchTypeName(", true},
    {"CDeviceAdapterInterface::searchDomain", "", true}, {"CDeviceAdapterInterface::isSnmpDevice", "", true},
    {"CDeviceAdapterInterface::isV3R7Device", "", true}, {"CDeviceAdapterInterface::isSupportTelnetToDevice", "", true},
    {"CCompatibleAdapter::getCompatibleDevType", "", true},
    {"CDCDeviceInfoDB::getDevTypeAndVersionName", "E 00000007 [DCServer]EmfGetDevTypeName Method Failed", true},
    {"CDCDeviceInfoDB::getDeviceInfo", "Error:CDCDeviceInfoDB::getDeviceInfo(", true},
    {"CDCDeviceInfoDB::getDevVerInfo", "", true},
    {"CDCDeviceInfoDB::getDevInfo", "Error:CDCDeviceInfoDB::getDevInfo(", true},
    {"CDCCapacityManagerDB::readCapacity", "readCapacity failed", true},
    {"CDCSettingInfoTab::getValueByParam", ""}, {"NS_UTIL::CConfigItem::readCfgItemIntValueFromDB", ""},
    {"CSysCommonFunc::readResourceFile", "CSysCommonFunc::readResourceFile failed for BACKUP_PROGRAM_SUPPORT.", true},
    {"NS_UTIL::EmfGetServerPath_DC", "File :/common/dc/conf/dc/devtype_xmlconf/Common_ServerConfiguration.xml not exist.", true},
    {"NS_UTIL::IsExists", "LX_2400_S_ServerConfiguration.xml not exist."},
    {"ns_kivosdk_wrap::GetEnvValue", "open dir failed! dirname: etc/oss_cfg/dc/ne_script/importscript, errno: 2"},
    {"KIVO_OS::opendir", "open dir failed! dirname: ROOT/etc/oss_cfg/dc/ne_script/importscript, errno: 7"},
    {"KIVO_OS::readdir_r", ""}, {"KIVO_OS::stat", "Error:KIVO_OS::stat("},
    {"kIVOGlobalUtils::LOCTOUTF8", "The file_check.xml file is invalid.", true},
}), [](const auto& oInfo) { return std::string(oInfo.param.pszCall).substr(std::string_view(oInfo.param.pszCall).rfind(':') + 1); });
// clang-format on
} // namespace
