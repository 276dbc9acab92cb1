// The yes/no questions: every row answered both ways, and what is answered when
// there is no record or no device.
#include "reader/ServerFixture.h"
#include "records/ResultCodes.h"

#include <functional>

using namespace DCAsn1ClientToServer;

namespace
{
constexpr std::uint32_t NOT_KNOWN = 0x3B0F0001;

struct StQueryCase
{
    const char*                                              pszName;
    std::function<std::uint32_t(CXMLConfigDatabase&, bool&)> fnAsk;
    std::uint32_t                                            ulResult;
    bool                                                     bAnswer;
    const char*                                              pszLastLine; // "" for no log line at all
};

// Types: "A" (versioned, with a telnet variant) and "G" (version name as the
// type). Devices 1 and 2 are of these; device 4 has no type.
class CapabilityQueryTest : public CServerTest, public testing::WithParamInterface<StQueryCase>
{
protected:
    void SetUp() override
    {
        std::filesystem::create_directories(moduleFolder());
        m_oRoot.writeConfig("A.xml", "<C><DeviceOperation><Operation id='Backup'><Parameter id='P'/></Operation>"
                                     "<Operation id='Backup'><Parameter id='Second'/></Operation><Operation id='Save'/>"
                                     "</DeviceOperation><OtherOperation id='On' isSupported='1'>"
                                     "<Parameter id='Req' isRequired='1'/><Parameter id='Opt' isRequired='0'/>"
                                     "<Parameter id='Opt' isRequired='1'/></OtherOperation>"
                                     "<OtherOperation id='Off' isSupported='0'/>"
                                     "<OtherOperation id='Off' isSupported='1'/></C>");
        m_oRoot.writeConfig(
            "T.xml",
            "<C><TaskOperation><Operation id='Load' isCancelable='1'/><Operation id='Load' isCancelable='0'/>"
            "<Operation id='Stay' isCancelable='0'/><Operation id='Both' isCancelable='1'/>"
            "<Operation id='Both2' isCancelable='0'/></TaskOperation><CheckOperations><Operation id='Both'/>"
            "<Operation id='Both2' isCancelable='1'/><Operation id='Check' isCancelable='1'/></CheckOperations>"
            "<TaskType id='PackageDowngrade'/></C>");
        m_oRoot.writeConfig("G.xml", "<C><TaskOperation><Operation id='Plain' isCancelable='1'/></TaskOperation></C>");
        open("DELETE FROM device_type WHERE name = 'B';"
             "UPDATE device_type SET type_id = 11, version_id = 1 WHERE name = 'A';"
             "INSERT INTO device_type (name, version, type_id) VALUES ('A', 'V1_telnet', 19), ('G', 'G', 12);"
             "INSERT INTO config_file VALUES ('A_telnet', '" +
             configPath("T.xml") + "'), ('G', '" + configPath("G.xml") +
             "');"
             "INSERT INTO device (device_id, type_id, version_id) VALUES (1, 11, 1), (2, 12, 0), (4, 99, "
             "1);");
        CXMLConfigDatabase::getInstance();
        clearLog();
    }
};

TEST_P(CapabilityQueryTest, Answers)
{
    bool bAnswer = !GetParam().bAnswer; // always written
    EXPECT_EQ(GetParam().ulResult, GetParam().fnAsk(*CXMLConfigDatabase::getInstance(), bAnswer));
    EXPECT_EQ(GetParam().bAnswer, bAnswer);
    EXPECT_EQ(GetParam().pszLastLine, log().empty() ? "" : log().back());
}

using DB                        = CXMLConfigDatabase;
constexpr const char* NO_RECORD = "E 3B0F0001 [DCServer]getDevTypeXMLConfig Method Failed";
constexpr const char* NO_DEVICE = "E 3B0F0001 [DCServer]EmfGetDevTypeName Method Failed";

INSTANTIATE_TEST_SUITE_P(
    DeviceOperation, CapabilityQueryTest,
    testing::ValuesIn(std::vector<StQueryCase>{
        {"Known", [](DB& o, bool& b) { return o.isDeviceOpSupported("A", "V1", "Backup", b); }, 0, true, ""},
        {"OtherCase", [](DB& o, bool& b) { return o.isDeviceOpSupported("A", "V1", "backup", b); }, 0, false, ""},
        {"OfAnotherList", [](DB& o, bool& b) { return o.isDeviceOpSupported("A", "V1", "On", b); }, 0, false, ""},
        {"AnyVersion", [](DB& o, bool& b) { return o.isDeviceOpSupported("A", "V7", "Save", b); }, 0, true, ""},
        {"TelnetVersion", [](DB& o, bool& b) { return o.isDeviceOpSupported("A", "V1_telnet", "Save", b); }, 0, false,
         ""},
        {"NoType", [](DB& o, bool& b) { return o.isDeviceOpSupported("Z", "V1", "Backup", b); }, DC_RESULT_INVALID_PARA,
         false, NO_RECORD},
        {"Parameter", [](DB& o, bool& b) { return o.isDeviceOpParaSupported("A", "V1", "Backup", "P", b); }, 0, true,
         ""},
        {"ParameterOfAnotherOperation",
         [](DB& o, bool& b) { return o.isDeviceOpParaSupported("A", "V1", "Save", "P", b); }, 0, false, ""},
        {"ParameterOfTheSecondOperation", // the first one of the id decides
         [](DB& o, bool& b) { return o.isDeviceOpParaSupported("A", "V1", "Backup", "Second", b); }, 0, false, ""},
        {"ParameterOfNoOperation", [](DB& o, bool& b) { return o.isDeviceOpParaSupported("A", "V1", "-", "P", b); }, 0,
         false, ""},
        {"ParameterNoType", [](DB& o, bool& b) { return o.isDeviceOpParaSupported("Z", "V1", "Backup", "P", b); },
         DC_RESULT_INVALID_PARA, false, NO_RECORD},
    }),
    rowName<StQueryCase>);

INSTANTIATE_TEST_SUITE_P(
    OtherOperation, CapabilityQueryTest,
    testing::ValuesIn(std::vector<StQueryCase>{
        {"On", [](DB& o, bool& b) { return o.isOtherOpSupported("A", "V1", "On", b); }, 0, true, ""},
        {"FirstIsOff", [](DB& o, bool& b) { return o.isOtherOpSupported("A", "V1", "Off", b); }, 0, false, ""},
        {"Unknown", [](DB& o, bool& b) { return o.isOtherOpSupported("A", "V1", "-", b); }, 0, false, ""},
        {"NoType", [](DB& o, bool& b) { return o.isOtherOpSupported("Z", "V1", "On", b); }, DC_RESULT_INVALID_PARA,
         false, NO_RECORD},
        {"Required", [](DB& o, bool& b) { return o.isOtherOpSupported("A", "V1", "On", "Req", b); }, 0, true, ""},
        {"FirstIsOptional", [](DB& o, bool& b) { return o.isOtherOpSupported("A", "V1", "On", "Opt", b); }, 0, false,
         ""},
        {"NoParameter", [](DB& o, bool& b) { return o.isOtherOpSupported("A", "V1", "On", "-", b); }, 0, false, ""},
        {"NoOperation", [](DB& o, bool& b) { return o.isOtherOpSupported("A", "V1", "-", "Req", b); }, 0, false, ""},
        {"ParameterNoType", [](DB& o, bool& b) { return o.isOtherOpSupported("Z", "V1", "On", "Req", b); },
         DC_RESULT_INVALID_PARA, false, NO_RECORD},
    }),
    rowName<StQueryCase>);

// The same shape for a query that answers the bool itself.
StQueryCase cancel(const char* pszName, int nDeviceID, const char* pszId, bool bAnswer, const char* pszLastLine = "")
{
    return {pszName,
            [=](DB& o, bool& b)
            {
                b = o.isCancelOperSupported(nDeviceID, pszId);
                return 0u;
            },
            0, bAnswer, pszLastLine};
}
INSTANTIATE_TEST_SUITE_P(Cancel, CapabilityQueryTest,
                         testing::ValuesIn(std::vector<StQueryCase>{
                             cancel("FirstTaskOperation", 1, "Load", true),
                             cancel("NotCancelable", 1, "Stay", false),
                             cancel("CheckOverridesToNo", 1, "Both", false),
                             cancel("CheckOverridesToYes", 1, "Both2", true),
                             cancel("CheckAlone", 1, "Check", true),
                             cancel("Unknown", 1, "load", false),
                             cancel("PlainTypeOfADeviceWithoutVersions", 2, "Plain", true),
                             cancel("UnknownDeviceAllows", 99, "Load", true, NO_DEVICE),
                             cancel("NegativeDeviceAllows", -1, "Load", true, NO_DEVICE),
                             cancel("DeviceOfNoTypeAllows", 4, "Load", true, NO_DEVICE),
                         }),
                         rowName<StQueryCase>);

StQueryCase taskType(const char* pszName, int nDeviceID, AsnTaskTypeEnum enType, std::uint32_t ulResult, bool bAnswer,
                     const char* pszLastLine = "")
{
    return {pszName, [=](DB& o, bool& b) { return o.isSupportTaskType(nDeviceID, enType, b); }, ulResult, bAnswer,
            pszLastLine};
}
INSTANTIATE_TEST_SUITE_P(TaskType, CapabilityQueryTest,
                         testing::ValuesIn(std::vector<StQueryCase>{
                             taskType("NumberOfTheTaskConfiguration", 1, PackageDowngradeConfig, 0, true),
                             taskType("NumberOfTheNameTable", 1, PackageDowngrade, 0, false),
                             taskType("NoneOfThePlainType", 2, PackageDowngradeConfig, 0, false),
                             taskType("UnknownDevice", 99, PackageDowngradeConfig, NOT_KNOWN, false, NO_DEVICE),
                         }),
                         rowName<StQueryCase>);

// A resolved device without a configuration is no unknown device.
TEST_F(CServerTest, DeviceOfATypeWithoutAFile)
{
    open("DELETE FROM config_file; UPDATE device_type SET type_id = 11;"
         "INSERT INTO device (device_id, type_id, version_id) VALUES (1, 11, 0);");
    CXMLConfigDatabase& oDatabase = *CXMLConfigDatabase::getInstance();
    bool                bAnswer   = true;
    EXPECT_FALSE(oDatabase.isCancelOperSupported(1, "Load"));
    EXPECT_EQ(DC_RESULT_INVALID_PARA, oDatabase.isSupportTaskType(1, PatchUpdate, bAnswer));
    EXPECT_FALSE(bAnswer);
    EXPECT_EQ(NO_RECORD, log().back());
}

TEST_F(CServerTest, UnknownTypeIsSoughtAndLoggedStepByStep)
{
    open("DELETE FROM device_type;");
    CXMLConfigDatabase& oDatabase = *CXMLConfigDatabase::getInstance();
    clearLog();
    bool bAnswer = true;
    EXPECT_EQ(DC_RESULT_INVALID_PARA, oDatabase.isDeviceOpSupported("Z", "V1_telnet", "Backup", bAnswer));
    EXPECT_EQ((Lines{"E 3B0F0001 [DCServer]CDeviceAdapterInterface::getInstance()->searchDeviceType failed.",
                     ("E 3B0F0001 Call Function return Error:CDeviceAdapterInterface::getInstance()->"
                      "searchDeviceType(m_strDevType, m_strDevTypeVer, oStDeviceType)"),
                     "E 3B0F0001 Call Function return Error:initialize(\"\", \"\", true)",
                     "E 3B0F0001 Call Function return Error:parseNormalXML(pAsnDevTypeVerXMLInfo)",
                     "E 3B0F0001 [DCServer]readXMLfile Failed for strDevType = Z, strDevTypeVer = V1_telnet",
                     "E 3B0F0001 [DCServer]getDevTypeXMLConfig Method Failed"}),
              log());
}

TEST_F(CServerTest, CapacityNeedsAllThreeFlags)
{
    open("INSERT INTO device_type (name, version, support_upgrade, support_capacity, capacity_per_version) VALUES "
         "('C', '111', 1, 1, 1), ('C', '011', 0, 1, 1), ('C', '101', 1, 0, 1), ('C', '110', 1, 1, 0), "
         "('C', '211', 2, 1, 1);");
    CXMLConfigDatabase oDatabase;
    for (const char* pszVersion : {"111", "011", "101", "110", "211"})
        EXPECT_EQ(pszVersion == std::string("111"), oDatabase.isSupportCapacity("C", pszVersion)) << pszVersion;
    EXPECT_THAT(log(), testing::IsEmpty());
    EXPECT_FALSE(oDatabase.isSupportCapacity("C", "none"));
    EXPECT_EQ(Lines{"E 3B0F0001 [DCServer]CDeviceAdapterInterface::getInstance()->searchDeviceType failed."}, log());
}

TEST_F(CServerTest, TelnetPathOfADevice)
{
    open("INSERT INTO device_class (type_id, domain, is_snmp, is_v3r7, compatible_type_id) VALUES (1, 2, 1, 0, NULL), "
         "(2, 2, 1, 1, NULL), (3, 2, 1, 1, 2), (4, 1, 1, 0, NULL), (5, 2, 0, 0, NULL), (65538, 2, 1, 1, NULL);"
         "INSERT INTO telnet_support VALUES (2, 'SSH'), (65538, 'SSH');");
    const struct
    {
        const char*   pszName;
        std::uint32_t ulDeviceID;
        std::uint32_t ulTypeID;
        std::uint32_t ulLoginState;
        std::uint32_t ulConnectState;
        const char*   pszCapability;
        bool          bTelnet;
    } CASES[] = {
        {"domain unknown", 1, 9, 5, 0, "SSH", false},
        {"other domain, whatever the state", 1, 4, 5, 0, "SSH", false},
        {"invalid device, whatever the state", INVALID_DEVICE_ID, 1, 5, 0, "SSH", false},
        {"login state 5 before connect state", 1, 5, 5, 1, "", true},
        {"login state 6", 1, 5, 6, 2, "", true},
        {"login state 7 says nothing", 1, 5, 7, 0, "", false},
        {"connect state 1", 1, 1, 0, 1, "SSH", false},
        {"connect state 2", 1, 1, 4, 2, "SSH", false},
        {"not SNMP", 1, 5, 0, 3, "SSH", false},
        {"SNMP but not V3R7", 1, 1, 0, 0, "", true},
        {"compatible with another type", 1, 3, 0, 0, "", true},
        {"its capability decides: yes", 1, 2, 0, 0, "SSH", true},
        {"its capability decides: no", 1, 2, 0, 0, "ssh", false},
        {"the low half of the id is compatible with itself", 1, 65538, 0, 0, "", false},
        {"and its capability decides under the whole id", 1, 65538, 0, 0, "SSH", true},
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
        EXPECT_EQ(stCase.bTelnet, CXMLConfigDatabase().bTelnetToDev(stInfo));
    }
}
} // namespace
