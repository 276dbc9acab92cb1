// What the services answer from an inventory, in its order and with its defaults.
#include "TestSupport.h"

#include "platform/DeviceAdapter.h"
#include "platform/DeviceDatabase.h"
#include "platform/Settings.h"
#include "records/OperationRecords.h"
#include "standalone/ServerRoot.h"
#include "standalone/TypeList.h"

#include <fmt/format.h>

using standalone::RESULT_NOT_IN_INVENTORY;

namespace
{
constexpr const char* INVENTORY = R"(
INSERT INTO device_type(position, name, version, type_id, version_id) VALUES
    (30, 'Last', 'V1', 3, 1), (10, 'X', 'V1', 1, 1), (20, 'X', 'V1_telnet', 1, 2), (21, 'X', 'V1_telnet', 1, 3),
    (22, 'X_telnet', 'V2', 2, 1), (23, '_telnet', 'V2', 2, 2), (24, 'Y', 'V3_telnet', 5, 2),
    (25, 'Y_telnet', 'V3_telnet', 5, 1);
INSERT INTO device_class VALUES(1, 2, 1, 0, NULL), (2, 1, 0, 1, 70);
INSERT INTO device(device_id, name, type_id, version_id, soft_version, patch_version) VALUES
    (9, 'nine', 1, 1, 'S1', 'P1'), (4, 'four', 1, 1, 'S1', 'P1'), (5, 'five', 1, 1, 'S1', ''),
    (6, 'six', 1, 3, 'S1', 'P1'), (7, 'stray', 8, 8, 'S1', 'P1'), (4294967295, 'max', 3, 1, '', '');
INSERT INTO config_item VALUES('DC', 'BIG', 4294967297), ('DC', 'HUGE', 9223372036854775807);
)";

class LookupTest : public testing::Test
{
protected:
    LookupTest() { m_oRoot.open(INVENTORY); }
    CDeviceAdapterInterface& adapter() { return *CDeviceAdapterInterface::getInstance(); }

    CTempServerRoot m_oRoot;
};

// The registry as a load sees it.
std::string listedTypes()
{
    std::list<StDeviceType> lstType;
    EXPECT_EQ(0u, CDeviceAdapterInterface::getInstance()->getALLDLLInfo(lstType));
    std::string strSeen;
    for (const StDeviceType& stType : lstType)
        strSeen += fmt::format("{} {} {}, ", stType.strDevType, stType.strDevTypeVer, stType.ulDeviceTypeVersionID);
    return strSeen;
}

TEST_F(LookupTest, RegistryOrderIsThePosition)
{
    EXPECT_EQ("X V1 1, X V1_telnet 2, X V1_telnet 3, X_telnet V2 1, _telnet V2 2, "
              "Y V3_telnet 2, Y_telnet V3_telnet 1, Last V1 1, ",
              listedTypes());
}

TEST_F(LookupTest, ListIsNarrowedToWhatSharesAKey)
{
    const struct
    {
        std::set<std::string> setName;
        const char*           pszListed;
    } CASES[] = {
        {{"Last", "X_telnet_telnet"}, "X V1 1, X V1_telnet 2, X V1_telnet 3, X_telnet V2 1, Last V1 1, "},
        {{"Y"}, "Y V3_telnet 2, Y_telnet V3_telnet 1, "}, // a list takes the place of the one before
        {{""}, "_telnet V2 2, "},
        {{"unknown"}, ""},
        {{}, ""},
    };
    for (const auto& [setName, pszListed] : CASES)
    {
        standalone::listOnlyTypes(setName);
        EXPECT_EQ(pszListed, listedTypes());
        EXPECT_EQ(8u, standalone::listTypes().size());
        StDeviceType stType;
        EXPECT_EQ(0u, adapter().searchDeviceType("Last", "V1", stType));
    }
    m_oRoot.open(INVENTORY);
    EXPECT_NE("", listedTypes());
}

TEST_F(LookupTest, StorageKeyFindsTheTelnetVariant)
{
    // clang-format off
    const struct
    {
        const char* pszName;
        const char* pszVersion;
        const char* pszFound; // name and version id; "" when there is none
    } CASES[] = {
        // the first of two; no telnet variant; a row of the whole key wins; one suffix only
        {"X", "V1_telnet", "X 2"}, {"X_telnet", "V1_telnet", "X 2"}, {"X_telnet", "V1", ""},
        {"X_telnet", "V2", "X_telnet 1"}, {"Y_telnet", "V3_telnet", "Y_telnet 1"},
        {"Y_telnet_telnet", "V3_telnet", "Y_telnet 1"}, {"X_telnet_telnet", "V1_telnet", ""},
        {"_telnet", "V2", "_telnet 2"}, {"x", "V1", ""}, {"X", "", ""},
    };
    // clang-format on
    for (const auto& stCase : CASES)
    {
        SCOPED_TRACE(fmt::format("{} {}", stCase.pszName, stCase.pszVersion));
        StDeviceType        stType;
        const std::uint32_t ulResult = adapter().searchDeviceType(stCase.pszName, stCase.pszVersion, stType);
        EXPECT_EQ(*stCase.pszFound == '\0' ? RESULT_NOT_IN_INVENTORY : 0u, ulResult);
        EXPECT_EQ(stCase.pszFound,
                  ulResult != 0 ? "" : fmt::format("{} {}", stType.strDevType, stType.ulDeviceTypeVersionID));
    }
}

TEST_F(LookupTest, DevicesAreFoundByIdAndByVersion)
{
    std::string strType;
    std::string strVersion;
    EXPECT_EQ(0u, CDCDeviceInfoDB::getDevTypeAndVersionName(4294967295ul, strType, strVersion));
    EXPECT_EQ("Last V1", strType + " " + strVersion);
    EXPECT_EQ(RESULT_NOT_IN_INVENTORY, CDCDeviceInfoDB::getDevTypeAndVersionName(7, strType, strVersion));

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
    EXPECT_EQ("0 six", devicesOf("X_telnet", "V1_telnet", "P1")); // the second of two equal rows counts too
    EXPECT_EQ("0", devicesOf("Last", "V1", "P1"));
    EXPECT_EQ("3b0f0001", devicesOf("Nobody", "V1", "P1"));
}

TEST_F(LookupTest, WhatIsNotThereHasADefault)
{
    EnDeviceType enDomain = EnDeviceTypeUnknown;
    EXPECT_EQ(RESULT_NOT_IN_INVENTORY, adapter().searchDomain(99, enDomain));
    EXPECT_EQ(EnDeviceTypeUnknown, enDomain);
    EXPECT_TRUE(adapter().isSnmpDevice(1) && !adapter().isSnmpDevice(2) && !adapter().isSnmpDevice(99));
    EXPECT_TRUE(adapter().isV3R7Device(2) && !adapter().isV3R7Device(1) && !adapter().isV3R7Device(99));
    EXPECT_EQ(1, CCompatibleAdapter::getCompatibleDevType(1));
    EXPECT_EQ(70, CCompatibleAdapter::getCompatibleDevType(2));
    EXPECT_EQ(99, CCompatibleAdapter::getCompatibleDevType(99));

    std::string       strPath      = "before";
    EnCheckReportType enReportType = EnCheckReportText;
    EXPECT_EQ(0u, adapter().getCheckFileAndType("Last", strPath, enReportType));
    EXPECT_EQ("", strPath);
    EXPECT_EQ(EnCheckReportNone, enReportType);

    auto* pItems = NS_UTIL::CConfigItem::Instance();
    EXPECT_EQ(1, pItems->readCfgItemIntValueFromDB("DC", "BIG", 5)); // the low 32 bits
    EXPECT_EQ(-1, pItems->readCfgItemIntValueFromDB("DC", "HUGE", 5));
    EXPECT_EQ(5, pItems->readCfgItemIntValueFromDB("DCB", "IG", 5));
}
} // namespace
