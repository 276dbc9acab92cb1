// What the services answer from an inventory, the same from either file.
#include "InventoryFixture.h"

#include "platform/CapacityDatabase.h"
#include "platform/DeviceAdapter.h"
#include "platform/DeviceDatabase.h"
#include "platform/Settings.h"
#include "records/OperationRecords.h"

#include <fmt/format.h>

using standalone::RESULT_NOT_IN_INVENTORY;

namespace
{
constexpr const char* INVENTORY = R"(
INSERT INTO device_type(position, name, version, type_id, version_id, sys_oid, support_upgrade, remark) VALUES
    (30, 'Last',     'V1',        3, 1, '1.3', 1, 'é'),
    (10, 'X',        'V1',        1, 1, '',    0, ''),
    (20, 'X',        'V1_telnet', 1, 2, '',    0, ''),
    (21, 'X',        'V1_telnet', 1, 3, '',    0, ''),
    (22, 'X_telnet', 'V2',        2, 1, '',    0, ''),
    (23, '_telnet',  'V2',        2, 2, '',    0, '');
INSERT INTO check_file VALUES('X', 'check/x.xml', 2);
INSERT INTO device_class VALUES(1, 2, 1, 0, NULL), (2, 1, 0, 1, 70);
INSERT INTO telnet_support VALUES(1, 'CLI');
INSERT INTO device(device_id, name, type_id, version_id, soft_version, patch_version) VALUES
    (9, 'nine', 1, 1, 'S1', 'P1'), (4, 'four', 1, 1, 'S1', 'P1'), (5, 'five', 1, 1, 'S1', ''),
    (6, 'six', 1, 3, 'S1', 'P1'), (7, 'stray', 8, 8, 'S1', 'P1'), (4294967295, 'max', 3, 1, '', '');
INSERT INTO version_in_service VALUES(2, 'X', 'V1', 'S1', ''), (1, 'X', 'V1', 'S2', 'P2');
INSERT INTO capacity VALUES(1, 'X', 'V1', 'S1', '', 1);
INSERT INTO setting VALUES('ISSU', '1');
INSERT INTO config_item VALUES('DC', 'BIG', 4294967297), ('DC', 'LOW', -1), ('DC', 'HUGE', 9223372036854775807);
INSERT INTO resource VALUES('R', 'v');
)";

// Opens the inventory from the script or, made of the same rows, from a database.
class LookupTest : public testing::TestWithParam<bool>
{
protected:
    LookupTest()
    {
        if (GetParam())
            makeDatabase(m_oRoot, INVENTORY);
        else
            m_oRoot.write("server.sql", INVENTORY);
        EXPECT_EQ("", openProblem(m_oRoot));
    }
    CDeviceAdapterInterface& adapter() { return *CDeviceAdapterInterface::getInstance(); }

    CTempServerRoot m_oRoot;
};
INSTANTIATE_TEST_SUITE_P(From, LookupTest, testing::Bool(),
                         [](const auto& oInfo) { return oInfo.param ? "Database" : "Script"; });

TEST_P(LookupTest, RegistryOrderIsThePosition)
{
    std::list<StDeviceType> lstType;
    EXPECT_EQ(0u, adapter().getALLDLLInfo(lstType));
    std::vector<std::string> lstSeen;
    for (const StDeviceType& stType : lstType)
        lstSeen.push_back(
            fmt::format("{} {} {}", stType.strDevType, stType.strDevTypeVer, stType.ulDeviceTypeVersionID));
    EXPECT_THAT(lstSeen, testing::ElementsAre("X V1 1", "X V1_telnet 2", "X V1_telnet 3", "X_telnet V2 1",
                                              "_telnet V2 2", "Last V1 1"));
    EXPECT_EQ("1.3", lstType.back().strDevSysOid);
    EXPECT_EQ(1, lstType.back().nSupportUpgrade);
    EXPECT_EQ("é", lstType.back().strRemark);
}

TEST_P(LookupTest, StorageKeyFindsTheRowOfThePlainName)
{
    const struct
    {
        const char* pszName;
        const char* pszVersion;
        const char* pszFound; // name and version id; "" when there is none
    } aCase[] = {
        {"X", "V1", "X 1"},
        {"X", "V1_telnet", "X 2"}, // the first of two
        {"X_telnet", "V1_telnet", "X 2"},
        {"X_telnet", "V1", "X 1"},
        {"X_telnet", "V2", "X_telnet 1"}, // a row of the whole key wins
        {"X_telnet_telnet", "V2", "X_telnet 1"},
        {"X_telnet_telnet", "V1", ""}, // one suffix only
        {"_telnet", "V2", "_telnet 2"},
        {"x", "V1", ""},
        {"X", "", ""},
        {"", "V1", ""},
    };
    for (const auto& stCase : aCase)
    {
        SCOPED_TRACE(fmt::format("{} {}", stCase.pszName, stCase.pszVersion));
        StDeviceType        stType;
        const std::uint32_t ulResult = adapter().searchDeviceType(stCase.pszName, stCase.pszVersion, stType);
        EXPECT_EQ(*stCase.pszFound == '\0' ? RESULT_NOT_IN_INVENTORY : 0u, ulResult);
        EXPECT_EQ(stCase.pszFound,
                  ulResult != 0 ? "" : fmt::format("{} {}", stType.strDevType, stType.ulDeviceTypeVersionID));
    }
}

TEST_P(LookupTest, DeviceIdResolvesToNames)
{
    std::string strType;
    std::string strVersion;
    EXPECT_EQ(0u, CDCDeviceInfoDB::getDevTypeAndVersionName(6, strType, strVersion));
    EXPECT_EQ("X V1_telnet", strType + " " + strVersion);
    EXPECT_EQ(0u, CDCDeviceInfoDB::getDevTypeAndVersionName(4294967295ul, strType, strVersion));
    EXPECT_EQ("Last V1", strType + " " + strVersion);
    EXPECT_EQ(RESULT_NOT_IN_INVENTORY, CDCDeviceInfoDB::getDevTypeAndVersionName(7, strType, strVersion));
    StDeviceInfo stInfo;
    EXPECT_EQ(0u, CDCDeviceInfoDB::getDeviceInfo(4, stInfo));
    EXPECT_EQ("four", stInfo.strDeviceName);
    EXPECT_EQ(RESULT_NOT_IN_INVENTORY, CDCDeviceInfoDB::getDeviceInfo((1ul << 32) + 9, stInfo));
    EXPECT_EQ("four", stInfo.strDeviceName);
}

TEST_P(LookupTest, DevicesOfOneVersion)
{
    const auto devicesOf = [](const char* pszType, const char* pszVersion, const char* pszPatch)
    {
        std::list<StDeviceInfo> lstDevice;
        const std::uint32_t ulResult = CDCDeviceInfoDB::getDevInfo(pszType, pszVersion, {"S1", pszPatch}, lstDevice);
        std::string         strSeen  = fmt::format("{:x}", ulResult);
        for (const StDeviceInfo& stDevice : lstDevice)
            strSeen += " " + stDevice.strDeviceName;
        return strSeen;
    };
    EXPECT_EQ("0 four nine", devicesOf("X", "V1", "P1"));
    EXPECT_EQ("0 five", devicesOf("X", "V1", ""));
    EXPECT_EQ("0 six", devicesOf("X_telnet", "V1_telnet", "P1")); // the second of two equal rows counts too
    EXPECT_EQ("0", devicesOf("Last", "V1", "P1"));
    EXPECT_EQ("3b0f0001", devicesOf("Nobody", "V1", "P1"));
}

TEST_P(LookupTest, VersionsAndCapacity)
{
    std::list<StAsnDevVersion> lstVersion;
    EXPECT_TRUE(CDCDeviceInfoDB::getDevVerInfo("X", "V1", lstVersion));
    ASSERT_EQ(2u, lstVersion.size());
    EXPECT_EQ("S2P2", lstVersion.front().strSoftVersion + lstVersion.front().strPatchVersion);
    EXPECT_FALSE(CDCDeviceInfoDB::getDevVerInfo("X", "V1_telnet", lstVersion));
    std::list<StCapacityInfo> lstCapacity;
    EXPECT_TRUE(CDCCapacityManagerDB::readCapacity("Last", "V1", lstCapacity));
    EXPECT_TRUE(lstCapacity.empty());
    EXPECT_TRUE(CDCCapacityManagerDB::readCapacity("X", "V1", lstCapacity));
    ASSERT_EQ(1u, lstCapacity.size());
    EXPECT_TRUE(lstCapacity.front().bFullConfig);
}

TEST_P(LookupTest, ClassesAndTheirDefaults)
{
    EnDeviceType enDomain = EnDeviceTypeUnknown;
    EXPECT_EQ(RESULT_NOT_IN_INVENTORY, adapter().searchDomain(99, enDomain));
    EXPECT_EQ(EnDeviceTypeUnknown, enDomain);
    EXPECT_EQ(0u, adapter().searchDomain(1, enDomain));
    EXPECT_EQ(EnDeviceTypeDatacom, enDomain);
    EXPECT_TRUE(adapter().isSnmpDevice(1) && !adapter().isSnmpDevice(2) && !adapter().isSnmpDevice(99));
    EXPECT_TRUE(adapter().isV3R7Device(2) && !adapter().isV3R7Device(1) && !adapter().isV3R7Device(99));
    EXPECT_EQ(1, CCompatibleAdapter::getCompatibleDevType(1));
    EXPECT_EQ(70, CCompatibleAdapter::getCompatibleDevType(2));
    EXPECT_EQ(99, CCompatibleAdapter::getCompatibleDevType(99));
    EXPECT_TRUE(adapter().isSupportTelnetToDevice(1, "CLI"));
    EXPECT_FALSE(adapter().isSupportTelnetToDevice(1, "") || adapter().isSupportTelnetToDevice(2, "CLI"));
}

TEST_P(LookupTest, FilesAndSettings)
{
    std::string       strPath      = "before";
    EnCheckReportType enReportType = EnCheckReportText;
    EXPECT_EQ(0u, adapter().getCheckFileAndType("X", strPath, enReportType));
    EXPECT_EQ(m_oRoot.path() + "/check/x.xml", strPath);
    EXPECT_EQ(EnCheckReportSummary, enReportType);
    EXPECT_EQ(0u, adapter().getCheckFileAndType("Last", strPath, enReportType));
    EXPECT_EQ("", strPath);
    EXPECT_EQ(EnCheckReportNone, enReportType);
    EXPECT_EQ(RESULT_NOT_IN_INVENTORY, adapter().getServerConfigFile("X", strPath));

    auto* pItems = NS_UTIL::CConfigItem::Instance();
    EXPECT_EQ(1, pItems->readCfgItemIntValueFromDB("DC", "BIG", 5)); // the low 32 bits
    EXPECT_EQ(-1, pItems->readCfgItemIntValueFromDB("DC", "LOW", 5));
    EXPECT_EQ(-1, pItems->readCfgItemIntValueFromDB("DC", "HUGE", 5));
    EXPECT_EQ(5, pItems->readCfgItemIntValueFromDB("DCB", "IG", 5));
    std::string strValue;
    EXPECT_EQ(0u, CSysCommonFunc::readResourceFile("R", strValue));
    EXPECT_EQ("v", strValue);
    EXPECT_EQ(RESULT_NOT_IN_INVENTORY, CSysCommonFunc::readResourceFile("ISSU", strValue));
    EXPECT_EQ("v", strValue);
}
} // namespace
