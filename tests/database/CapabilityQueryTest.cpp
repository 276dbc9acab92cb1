// The yes/no questions: every row answered both ways, and what is answered when
// there is no record or no device.
#include "reader/ServerFixture.h"
#include "records/ResultCodes.h"

#include <functional>

using namespace DCAsn1ClientToServer;

namespace
{
// Types: "A" with a telnet variant, and "N" without a file. Devices: 1 is an "A", 2 an "N", 4 has no type.
TEST_F(CServerTest, YesOrNo)
{
    makeModuleFolder();
    m_oRoot.writeConfig("A.xml", "<C><DeviceOperation><Operation id='Backup'><Parameter id='P'/></Operation>"
                                 "<Operation id='Backup'><Parameter id='Second'/></Operation></DeviceOperation>"
                                 "<OtherOperation id='On' isSupported='1'><Parameter id='Req' isRequired='1'/>"
                                 "<Parameter id='Opt' isRequired='0'/><Parameter id='Opt' isRequired='1'/>"
                                 "</OtherOperation><OtherOperation id='Off' isSupported='0'/>"
                                 "<OtherOperation id='Off' isSupported='1'/></C>");
    m_oRoot.writeConfig("T.xml", "<C><TaskOperation><Operation id='Load' isCancelable='1'/><Operation id='Load'/>"
                                 "<Operation id='No' isCancelable='1'/><Operation id='Yes'/></TaskOperation>"
                                 "<CheckOperations><Operation id='No'/><Operation id='Yes' isCancelable='1'/>"
                                 "</CheckOperations><TaskType id='PackageDowngrade'/></C>");
    open("DELETE FROM device_type WHERE name = 'B';"
         "UPDATE device_type SET type_id = 11, version_id = 1 WHERE name = 'A';"
         "INSERT INTO device_type (name, version, type_id) VALUES ('A', 'V1_telnet', 19), ('N', 'N', 12);"
         "INSERT INTO config_file VALUES ('A_telnet', '" +
         configPath("T.xml") +
         "');"
         "INSERT INTO device (device_id, type_id, version_id) VALUES (1, 11, 1), (2, 12, 0), (4, 99, 1);");
    CXMLConfigDatabase& o        = *CXMLConfigDatabase::getInstance();
    const auto          fnCancel = [&o](int nDeviceID, const char* pszId, bool& b)
    {
        b = o.isCancelOperSupported(nDeviceID, pszId);
        return 0u;
    };
    constexpr std::uint32_t NOT_KNOWN = 0x3B0F0001;
    constexpr std::uint32_t INVALID   = DC_RESULT_INVALID_PARA;
    constexpr const char*   NO_RECORD = "E 3B0F0001 [DCServer]getDevTypeXMLConfig Method Failed";
    constexpr const char*   NO_DEVICE = "E 3B0F0001 [DCServer]EmfGetDevTypeName Method Failed";
    // clang-format off
    const struct
    {
        const char*                         pszName;
        std::function<std::uint32_t(bool&)> fnAsk;
        std::uint32_t                       ulResult;
        bool                                bAnswer;
        const char*                         pszLastLine; // "" for no log line at all
    } CASES[] = {
        {"no type", [&](bool& b) { return o.isDeviceOpSupported("Z", "", "Backup", b); }, INVALID, false, NO_RECORD},
        {"parameter", [&](bool& b) { return o.isDeviceOpParaSupported("A", "", "Backup", "P", b); }, 0, true, ""},
        {"first operation decides", [&](bool& b) { return o.isDeviceOpParaSupported("A", "", "Backup", "Second", b); }, 0, false, ""},
        {"parameter, no type", [&](bool& b) { return o.isDeviceOpParaSupported("Z", "", "Backup", "P", b); }, INVALID, false, NO_RECORD},
        {"first is off", [&](bool& b) { return o.isOtherOpSupported("A", "", "Off", b); }, 0, false, ""},
        {"other, no type", [&](bool& b) { return o.isOtherOpSupported("Z", "", "On", b); }, INVALID, false, NO_RECORD},
        {"required", [&](bool& b) { return o.isOtherOpSupported("A", "", "On", "Req", b); }, 0, true, ""},
        {"first is optional", [&](bool& b) { return o.isOtherOpSupported("A", "", "On", "Opt", b); }, 0, false, ""},
        {"required, no type", [&](bool& b) { return o.isOtherOpSupported("Z", "", "On", "Req", b); }, INVALID, false, NO_RECORD},
        {"first task operation", [&](bool& b) { return fnCancel(1, "Load", b); }, 0, true, ""},
        {"check says no", [&](bool& b) { return fnCancel(1, "No", b); }, 0, false, ""},
        {"check says yes", [&](bool& b) { return fnCancel(1, "Yes", b); }, 0, true, ""},
        {"unknown device allows", [&](bool& b) { return fnCancel(-1, "Load", b); }, 0, true, NO_DEVICE},
        {"no type allows", [&](bool& b) { return fnCancel(4, "Load", b); }, 0, true, NO_DEVICE},
        {"no file forbids", [&](bool& b) { return fnCancel(2, "Load", b); }, 0, false, NO_RECORD},
        {"configured number", [&](bool& b) { return o.isSupportTaskType(1, PackageDowngradeConfig, b); }, 0, true, ""},
        {"number of the name", [&](bool& b) { return o.isSupportTaskType(1, PackageDowngrade, b); }, 0, false, ""},
        {"task type, no device", [&](bool& b) { return o.isSupportTaskType(9, PatchUpdate, b); }, NOT_KNOWN, false, NO_DEVICE},
        {"task type, no file", [&](bool& b) { return o.isSupportTaskType(2, PatchUpdate, b); }, INVALID, false, NO_RECORD},
    };
    // clang-format on
    for (const auto& stCase : CASES)
    {
        SCOPED_TRACE(stCase.pszName);
        clearLog();
        bool bAnswer = !stCase.bAnswer; // always written
        EXPECT_EQ(stCase.ulResult, stCase.fnAsk(bAnswer));
        EXPECT_EQ(stCase.bAnswer, bAnswer);
        EXPECT_EQ(stCase.pszLastLine, log().empty() ? "" : log().back());
    }
}

TEST_F(CServerTest, CapacityNeedsAllThreeFlags)
{
    open("INSERT INTO device_type (name, version, support_upgrade, support_capacity, capacity_per_version) VALUES "
         "('C', '111', 1, 1, 1), ('C', '011', 0, 1, 1), ('C', '101', 1, 0, 1), ('C', '110', 1, 1, 0), "
         "('C', '211', 2, 1, 1);");
    CXMLConfigDatabase& oDatabase = *CXMLConfigDatabase::getInstance();
    clearLog();
    for (const char* pszVersion : {"111", "011", "101", "110", "211"})
        EXPECT_EQ(pszVersion == std::string("111"), oDatabase.isSupportCapacity("C", pszVersion)) << pszVersion;
    EXPECT_THAT(log(), testing::IsEmpty());
    EXPECT_FALSE(oDatabase.isSupportCapacity("C", "none"));
    EXPECT_EQ(Lines{"E 3B0F0001 [DCServer]CDeviceAdapterInterface::getInstance()->searchDeviceType failed."}, log());
}

// Each step is met with every later one answering otherwise.
TEST_F(CServerTest, TelnetStepsDecideInTheirOrder)
{
    using Step = CXMLConfigDatabase::EnTelnetStep;
    open("INSERT INTO device_class (type_id, domain, is_snmp, is_v3r7, compatible_type_id) VALUES "
         "(1, 2, 0, 0, NULL), (2, 2, 1, 0, 99), (3, 1, 0, 0, 99), (6, 2, 0, 0, 6), (7, 2, 0, 1, 99), "
         "(10, 2, 0, 1, NULL), (65546, 2, 0, 1, NULL);"
         "INSERT INTO telnet_support VALUES (2, 'SSH'), (3, 'SSH'), (5, 'SSH'), (10, 'SSH'), (65546, 'SSH');");
    const struct
    {
        const char*   pszName;
        std::uint32_t ulDeviceID;
        std::uint32_t ulTypeID;
        std::uint32_t ulLoginState;
        std::uint32_t ulConnectState;
        const char*   pszCapability;
        Step          enDecided;
        bool          bTelnet;
    } CASES[] = {
        {"domain 1", 1, 3, 5, 0, "SSH", Step::Domain, false},
        {"no domain known", 1, 5, 5, 0, "SSH", Step::Domain, false},
        {"no device", INVALID_DEVICE_ID, 1, 5, 0, "SSH", Step::NoDevice, false},
        {"login state 5", 1, 2, 5, 1, "", Step::LoginState, true},
        {"login state 6", 1, 2, 6, 2, "", Step::LoginState, true},
        {"login state 4 says nothing", 1, 1, 4, 1, "SSH", Step::ConnectState, false},
        {"login state 7 says nothing", 1, 1, 7, 2, "SSH", Step::ConnectState, false},
        {"connect state 3 says nothing", 1, 2, 0, 3, "SSH", Step::Snmp, false},
        {"SNMP", 1, 2, 0, 0, "SSH", Step::Snmp, false},
        {"neither SNMP nor V3R7", 1, 6, 0, 0, "", Step::NotV3R7, true},
        {"V3R7 and compatible with another type", 1, 7, 0, 0, "", Step::OtherType, true},
        {"compatible with itself", 1, 10, 0, 0, "", Step::Capability, false},
        {"its capability", 1, 10, 0, 0, "SSH", Step::Capability, true},
        {"the low half of the id is compatible with itself", 1, 65546, 0, 0, "", Step::Capability, false},
        {"and its capability decides under the whole id", 1, 65546, 0, 0, "SSH", Step::Capability, true},
    };
    for (const auto& stCase : CASES)
    {
        SCOPED_TRACE(stCase.pszName);
        StDeviceInfo stInfo;
        stInfo.ulDeviceID          = stCase.ulDeviceID;
        stInfo.ulDeviceTypeID      = stCase.ulTypeID;
        stInfo.ulLoginState        = stCase.ulLoginState;
        stInfo.ulConnectState      = stCase.ulConnectState;
        stInfo.strTelnetCapability = stCase.pszCapability;
        Step enDecided             = Step::Domain;
        EXPECT_EQ(stCase.bTelnet, CXMLConfigDatabase::bTelnetToDev(stInfo));
        EXPECT_EQ(stCase.bTelnet, CXMLConfigDatabase::bTelnetToDev(stInfo, enDecided));
        EXPECT_EQ(stCase.enDecided, enDecided);
    }
}
} // namespace
