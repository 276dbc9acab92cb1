// Armed faults hit the call they name, and every operation has its point.
#include "TestSupport.h"

#include "platform/CapacityDatabase.h"
#include "platform/CodePage.h"
#include "platform/DeviceAdapter.h"
#include "platform/DeviceDatabase.h"
#include "platform/FileSystem.h"
#include "platform/Paths.h"
#include "platform/Settings.h"
#include "records/OperationRecords.h"

#include <cerrno>
#include <functional>

using standalone::CFaultPoint;

namespace
{
std::uint32_t readResource()
{
    std::string strValue;
    return CSysCommonFunc::readResourceFile("R", strValue);
}

TEST(FaultPoint, CountsCallsFromWhenItIsArmed)
{
    CTempServerRoot oRoot;
    oRoot.open("INSERT INTO resource VALUES('R','v');");
    EXPECT_EQ(0u, readResource());
    {
        CFaultPoint oSecond("CSysCommonFunc::readResourceFile", 2, 7u);
        CFaultPoint oThird("CSysCommonFunc::readResourceFile", 3, 8u);
        CFaultPoint oOther("CDCSettingInfoTab::getValueByParam", 0, 9u);
        EXPECT_EQ(0u, readResource());
        EXPECT_EQ(7u, readResource());
        EXPECT_EQ(8u, readResource());
        EXPECT_EQ(0u, readResource());
        CFaultPoint oEvery("CSysCommonFunc::readResourceFile", 0, 6u);
        EXPECT_EQ(6u, readResource());
        EXPECT_EQ(6u, readResource());
    }
    EXPECT_EQ(0u, readResource());
}

struct StPointCase
{
    const char*           pszOperation;
    std::function<bool()> fnFails; // whether the call answers as armed, with 5
};

// Each call succeeds on this root without a fault.
constexpr const char* INVENTORY = R"(
INSERT INTO device_type(position, name, version, type_id, version_id) VALUES(1, 'X', 'V1', 1, 1);
INSERT INTO config_file VALUES('X', 'x.xml');
INSERT INTO device_class VALUES(1, 2, 1, 1, 1);
INSERT INTO telnet_support VALUES(1, 'CLI');
INSERT INTO device(device_id, type_id, version_id) VALUES(1, 1, 1);
INSERT INTO version_in_service VALUES(1, 'X', 'V1', 'S', '');
INSERT INTO setting VALUES('S', '1');
INSERT INTO config_item VALUES('DC', 'I', 1);
INSERT INTO resource VALUES('R', '1');
)";

TEST(FaultPoint, EveryOperationHasOne)
{
    CTempServerRoot                     oRoot;
    std::string                         strText;
    StDeviceType                        stType;
    StDeviceInfo                        stInfo;
    std::list<StDeviceType>             lstType;
    std::list<StDeviceInfo>             lstInfo;
    std::list<StAsnDevVersion>          lstVersion;
    std::list<StCapacityInfo>           lstCapacity;
    EnCheckReportType                   enReport = EnCheckReportNone;
    EnDeviceType                        enDomain = EnDeviceTypeUnset;
    struct ::stat                       stStatus = {};
    dirent                              stEntry  = {};
    dirent*                             pEntry   = nullptr;
    const auto                          oClose   = [](DIR* pDir) { return ::closedir(pDir); };
    std::unique_ptr<DIR, int (*)(DIR*)> pDir(::opendir("/"), oClose);
    auto&                               oAdapter = *CDeviceAdapterInterface::getInstance();
    oRoot.open(INVENTORY);

    const std::vector<StPointCase> lstCase = {
        {"CDeviceAdapterInterface::getALLDLLInfo", [&] { return oAdapter.getALLDLLInfo(lstType) == 5; }},
        {"CDeviceAdapterInterface::searchDeviceType",
         [&] { return oAdapter.searchDeviceType("X", "V1", stType) == 5; }},
        {"CDeviceAdapterInterface::searchTypeName",
         [&] { return oAdapter.searchTypeName(1, 1, strText, strText) == 5; }},
        {"CDeviceAdapterInterface::getServerConfigFile",
         [&] { return oAdapter.getServerConfigFile("X", strText) == 5; }},
        {"CDeviceAdapterInterface::getCheckFileAndType",
         [&] { return oAdapter.getCheckFileAndType("X", strText, enReport) == 5; }},
        {"CDeviceAdapterInterface::initXMLPath", [&] { return oAdapter.initXMLPath().empty(); }},
        {"CDeviceAdapterInterface::isSnmpDevice", [&] { return !oAdapter.isSnmpDevice(1); }},
        {"CDeviceAdapterInterface::isV3R7Device", [&] { return !oAdapter.isV3R7Device(1); }},
        {"CDeviceAdapterInterface::isSupportTelnetToDevice",
         [&] { return !oAdapter.isSupportTelnetToDevice(1, "CLI"); }},
        {"CDeviceAdapterInterface::searchDomain", [&] { return oAdapter.searchDomain(1, enDomain) == 5; }},
        {"CCompatibleAdapter::getCompatibleDevType", [&] { return CCompatibleAdapter::getCompatibleDevType(1) == 5; }},
        {"CDCDeviceInfoDB::getDeviceInfo", [&] { return CDCDeviceInfoDB::getDeviceInfo(1, stInfo) == 5; }},
        {"CDCDeviceInfoDB::getDevTypeAndVersionName",
         [&] { return CDCDeviceInfoDB::getDevTypeAndVersionName(1, strText, strText) == 5; }},
        {"CDCDeviceInfoDB::getDevInfo", [&] { return CDCDeviceInfoDB::getDevInfo("X", "V1", {}, lstInfo) == 5; }},
        {"CDCDeviceInfoDB::getDevVerInfo", [&] { return !CDCDeviceInfoDB::getDevVerInfo("X", "V1", lstVersion); }},
        {"CDCCapacityManagerDB::readCapacity",
         [&] { return !CDCCapacityManagerDB::readCapacity("X", "V1", lstCapacity); }},
        {"CDCSettingInfoTab::getValueByParam",
         [&] { return CDCSettingInfoTab::Instance()->getValueByParam("S", strText) == 5; }},
        {"NS_UTIL::CConfigItem::readCfgItemIntValueFromDB",
         [&] { return NS_UTIL::CConfigItem::Instance()->readCfgItemIntValueFromDB("DC", "I", 2) == 5; }},
        {"CSysCommonFunc::readResourceFile", [&] { return readResource() == 5; }},
        {"NS_UTIL::EmfGetServerPath_DC", [&] { return (NS_UTIL::EmfGetServerPath_DC(strText), strText.empty()); }},
        {"NS_UTIL::IsExists", [&] { return !NS_UTIL::IsExists("/"); }},
        {"ns_kivosdk_wrap::GetEnvValue", [&] { return ns_kivosdk_wrap::GetEnvValue("APP_ROOT", false, true).empty(); }},
        {"kIVOGlobalUtils::LOCTOUTF8", [&] { return kIVOGlobalUtils::LOCTOUTF8("x").empty(); }},
        {"KIVO_OS::opendir",
         [&]
         {
             DIR*       pOpened = KIVO_OS::opendir("/", "UTF-8");
             const bool bFails  = pOpened == nullptr && errno == 5;
             if (pOpened != nullptr)
                 KIVO_OS::closedir(pOpened);
             return bFails;
         }},
        {"KIVO_OS::readdir_r", [&] { return KIVO_OS::readdir_r(pDir.get(), &stEntry, &pEntry, "UTF-8") == 5; }},
        {"KIVO_OS::stat", [&] { return KIVO_OS::stat("/", &stStatus, "UTF-8") == -1 && errno == 5; }},
        {"KIVO_OS::closedir", [] { return KIVO_OS::closedir(::opendir("/")) == -1 && errno == 5; }},
    };
    for (const StPointCase& stCase : lstCase)
    {
        SCOPED_TRACE(stCase.pszOperation);
        EXPECT_FALSE(stCase.fnFails());
        const CFaultPoint oFault(stCase.pszOperation, 1, 5u);
        EXPECT_TRUE(stCase.fnFails());
        EXPECT_FALSE(stCase.fnFails());
    }
}
} // namespace
