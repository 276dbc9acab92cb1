// Names and numbers of content and board types, by device and by type.
#include "reader/ServerFixture.h"
#include "records/ResultCodes.h"

#include <functional>

namespace
{
constexpr const char* NO_RECORD = "E 3B0F0001 [DCServer]getDevTypeXMLConfig Method Failed";
constexpr const char* NO_DEVICE = "E 3B0F0001 [DCServer]EmfGetDevTypeName Method Failed";
constexpr const char* NO_INFO =
    "E 3B0F0001 Call Function return Error:CDCDeviceInfoDB::getDeviceInfo(ulDevId, zoStDeviceInfo)";
constexpr const char* NO_TYPE =
    "E 3B0F0001 Call Function return Error:CDeviceAdapterInterface::getInstance()->searchTypeName( "
    "zoStDeviceInfo.ulDeviceTypeID, zoStDeviceInfo.ulDeviceTypeVersionID, strDevTypeName, strDeviceTypeVersion)";
constexpr const char* NO_BOARD_TYPE =
    "E 3B0F0001 Call Function return Error:CDeviceAdapterInterface::getInstance()->searchTypeName( "
    "ulDeviceTypeID, ulDeviceTypeVersionID, strDevTypeName, strDeviceTypeVersion)";

// Type "N" has no file. Devices: 1 is managed over telnet, 3 has no type, 4 is an "N".
TEST_F(CServerTest, ContentTypes)
{
    makeModuleFolder();
    m_oRoot.writeConfig("A.xml",
                        "<C><DeviceOperation><Operation id='Backup'><Parameter id='ContentType'>"
                        "<Option id='cfg' value='1'/><Option id='log' value='2'/><Option id='log2' value='2'/><Option "
                        "id='big' value='4294967295'/></Parameter></Operation>"
                        "<Operation id='Backup'><Parameter id='Other'><Option id='no' value='2'/></Parameter>"
                        "<Parameter id='ContentType'><Option id='late' value='1'/></Parameter></Operation>"
                        "</DeviceOperation><OtherOperation id='SAM'><Parameter id='ContentType'>"
                        "<Option id='sam' value='7'/><Option id='sam' value='8'/></Parameter></OtherOperation></C>");
    m_oRoot.writeConfig("T.xml", "<C><DeviceOperation><Operation id='Backup'><Parameter id='ContentType'><Option "
                                 "id='telnet' value='1'/></Parameter></Operation></DeviceOperation></C>");
    m_oRoot.writeConfig("B.xml", "<C><TaskOperation><Operation id='Restart'/></TaskOperation></C>");
    open("UPDATE device_type SET type_id = 11 WHERE name = 'A'; UPDATE device_type SET type_id = 12 WHERE name = 'B';"
         "INSERT INTO device_type (name, version, type_id) VALUES ('A', 'V1_telnet', 13), ('N', 'N1', 14);"
         "INSERT INTO config_file VALUES ('A_telnet', '" +
         configPath("T.xml") +
         "'); INSERT INTO device_class (type_id, domain) VALUES (11, 2);"
         "INSERT INTO device (device_id, type_id, version_id) VALUES (1, 11, 0), (3, 99, 0), (4, 14, 0);");
    CXMLConfigDatabase& o     = *CXMLConfigDatabase::getInstance();
    const auto          fnSam = [&o](const char* pszType, const char* pszName, std::string& s)
    {
        int                 nValue   = 42;
        const std::uint32_t ulResult = o.getSAMContentTypeValue(pszType, "V1", pszName, nValue);
        s                            = std::to_string(nValue);
        return ulResult;
    };
    const auto fnAll = [&o](const char* pszType, EnDeviceType enDomain, std::string& s)
    { return o.getAllBackupContentTypeNameByDevTypeName(pszType, s, enDomain); };
    constexpr auto INVALID   = DC_RESULT_INVALID_PARA;
    constexpr auto NOT_KNOWN = 0x3B0F0001u;
    // clang-format off
    const struct
    {
        const char*                                pszName;
        std::function<std::uint32_t(std::string&)> fnAsk;
        std::uint32_t                              ulResult;
        const char*                                pszAnswer;   // "-" is what the caller passed
        const char*                                pszLastLine; // "" for no log line at all
    } CASES[] = {
        {"last parameter", [&](std::string& s) { return o.getContentTypeId(1, 1, s); }, 0, "late", ""},
        {"first option", [&](std::string& s) { return o.getContentTypeId(1, 2, s); }, 0, "log", ""},
        {"beyond int", [&](std::string& s) { return o.getContentTypeId(1, -1, s); }, 0, "big", ""},
        {"unknown", [&](std::string& s) { return o.getContentTypeId(1, 9, s); }, 0, "-", ""},
        {"no device", [&](std::string& s) { return o.getContentTypeId(99, 1, s); }, NOT_KNOWN, "-", NO_DEVICE},
        {"no record", [&](std::string& s) { return o.getContentTypeId(4, 1, s); }, INVALID, "-", NO_RECORD},
        {"load, no device", [&](std::string& s) { return o.getLoadDataContentTypeID(3, 1, s); }, NOT_KNOWN, "-", NO_DEVICE},
        {"over telnet", [&](std::string& s) { return o.getBackupContentTypeId(1, 1, s); }, 0, "telnet", "I [DCServer]Ais telnet device."},
        {"backup, no device", [&](std::string& s) { return o.getBackupContentTypeId(99, 1, s); }, NOT_KNOWN, "-", NO_INFO},
        {"backup, no type", [&](std::string& s) { return o.getBackupContentTypeId(3, 1, s); }, NOT_KNOWN, "-", NO_TYPE},
        {"backup, no record", [&](std::string& s) { return o.getBackupContentTypeId(4, 1, s); }, INVALID, "-", NO_RECORD},
        {"SAM name", [&](std::string& s) { return o.getSAMContentTypeID("N", "V1", 7, s); }, INVALID, "-", NO_RECORD},
        {"SAM, the first", [&](std::string& s) { return fnSam("A", "sam", s); }, 0, "7", ""},
        {"SAM unknown", [&](std::string& s) { return fnSam("A", "Sam", s); }, 0, "42", ""},
        {"SAM, no record", [&](std::string& s) { return fnSam("N", "sam", s); }, INVALID, "42", NO_RECORD},
        {"no activation", [&](std::string& s) { return o.getBoardType(12, 0, 3, s); }, 0, "-", ""},
        {"no task operations", [&](std::string& s) { return o.getBoardType(13, 0, 3, s); }, DC_RESULT_FILE_NOT_EXIST, "-", ""},
        {"board, no type", [&](std::string& s) { return o.getBoardType(99, 0, 3, s); }, NOT_KNOWN, "-", NO_BOARD_TYPE},
        {"board, no record", [&](std::string& s) { return o.getBoardType(14, 0, 3, s); }, INVALID, "-", NO_RECORD},
        // "AllFileType" after every parameter with more than one option, on access devices alone.
        {"all", [&](std::string& s) { return fnAll("A", EnDeviceTypeAccess, s); }, 0, "1,cfg;2,log;2,log2;4294967295,big;-1,AllFileType;1,late;", ""},
        {"all elsewhere", [&](std::string& s) { return fnAll("A", EnDeviceTypeDatacom, s); }, 0, "1,cfg;2,log;2,log2;4294967295,big;1,late;", ""},
        {"all of nothing", [&](std::string& s) { return fnAll("B", EnDeviceTypeAccess, s); }, 0, "", ""},
        {"all, no record", [&](std::string& s) { return fnAll("N", EnDeviceTypeAccess, s); }, INVALID, "-", NO_RECORD},
    };
    // clang-format on
    for (const auto& stCase : CASES)
    {
        SCOPED_TRACE(stCase.pszName);
        clearLog();
        std::string strAnswer = "-";
        EXPECT_EQ(stCase.ulResult, stCase.fnAsk(strAnswer));
        EXPECT_EQ(stCase.pszAnswer, strAnswer);
        EXPECT_EQ(stCase.pszLastLine, log().empty() ? "" : log().back());
    }
}
} // namespace
