// Names and numbers of content and board types, by device and by type.
#include "reader/ServerFixture.h"
#include "records/ResultCodes.h"

#include <functional>

namespace
{
using DB = CXMLConfigDatabase;

struct StLookupCase
{
    const char*                                     pszName;
    std::function<std::uint32_t(DB&, std::string&)> fnAsk;
    std::uint32_t                                   ulResult;
    const char*                                     pszAnswer; // "-" is what the caller passed
    Lines                                           lstLog;
};

// Devices: 1 is managed over telnet, 2 is not, 3 has no type, 4 a type without a file.
class ContentTypeTest : public CServerTest, public testing::WithParamInterface<StLookupCase>
{
protected:
    void SetUp() override
    {
        std::filesystem::create_directories(moduleFolder());
        const auto fnBackup = [](const std::string& strOptions)
        {
            return "<DeviceOperation><Operation id='Backup'><Parameter id='ContentType'>" + strOptions +
                   "</Parameter></Operation>";
        };
        m_oRoot.writeConfig(
            "A.xml",
            "<C>" +
                fnBackup("<Option id='cfg' value='1'/><Option id='cfg2' value='1'/><Option id='log' value='2'/>"
                         "<Option id='big' value='4294967295'/>") +
                "<Operation id='Backup'><Parameter id='Other'><Option id='no' value='2'/></Parameter>"
                "<Parameter id='ContentType'><Option id='late' value='1'/></Parameter></Operation>"
                "<Operation id='LoadData'><Parameter id='ContentType'><Option id='load' value='1'/></Parameter>"
                "</Operation></DeviceOperation><OtherOperation id='SAM'><Parameter id='ContentType'>"
                "<Option id='sam' value='7'/><Option id='sam' value='8'/></Parameter></OtherOperation>"
                "<TaskOperation><Operation id='ActivateSoftware'><Parameter id='BoardType'>"
                "<Option id='main' value='3'/></Parameter></Operation></TaskOperation></C>");
        m_oRoot.writeConfig("T.xml", "<C>" + fnBackup("<Option id='telnet' value='1'/>") + "</DeviceOperation></C>");
        m_oRoot.writeConfig("B.xml", "<C><TaskOperation><Operation id='Restart'/></TaskOperation></C>");
        open("UPDATE device_type SET type_id = 11 WHERE name = 'A'; UPDATE device_type SET type_id = 12 WHERE name = "
             "'B';"
             "INSERT INTO device_type (name, version, type_id) VALUES ('A', 'V1_telnet', 13), ('N', 'N1', 14);"
             "INSERT INTO config_file VALUES ('A_telnet', '" +
             configPath("T.xml") +
             "'); INSERT INTO device_class (type_id, domain, is_snmp) VALUES (11, 2, 1), (12, 1, 1);"
             "INSERT INTO device (device_id, type_id, version_id) VALUES (1, 11, 0), (2, 12, 0), (3, 99, 0), (4, 14, "
             "0);");
        DB::getInstance();
        clearLog();
    }
};

TEST_P(ContentTypeTest, Answers)
{
    std::string strAnswer = "-";
    EXPECT_EQ(GetParam().ulResult, GetParam().fnAsk(*DB::getInstance(), strAnswer));
    EXPECT_EQ(GetParam().pszAnswer, strAnswer);
    Lines lstLog = log();
    if (GetParam().ulResult == DC_RESULT_INVALID_PARA)
        lstLog = {lstLog.back()}; // the steps of the read on demand stand before it
    EXPECT_EQ(GetParam().lstLog, lstLog);
}

const Lines NO_RECORD = {"E 3B0F0001 [DCServer]getDevTypeXMLConfig Method Failed"};
const Lines NO_DEVICE = {"E 3B0F0001 [DCServer]EmfGetDevTypeName Method Failed"};

INSTANTIATE_TEST_SUITE_P(
    ByDevice, ContentTypeTest,
    testing::ValuesIn(std::vector<StLookupCase>{
        // The first option of a parameter, the last parameter that has one; never the telnet variant.
        {"Content", [](DB& o, std::string& s) { return o.getContentTypeId(1, 1, s); }, 0, "late", {}},
        {"ContentOfOneParameter", [](DB& o, std::string& s) { return o.getContentTypeId(1, 2, s); }, 0, "log", {}},
        {"ContentBeyondInt", [](DB& o, std::string& s) { return o.getContentTypeId(1, -1, s); }, 0, "big", {}},
        {"ContentUnknown", [](DB& o, std::string& s) { return o.getContentTypeId(1, 9, s); }, 0, "-", {}},
        {"ContentNoDevice", [](DB& o, std::string& s) { return o.getContentTypeId(99, 1, s); }, 0x3B0F0001, "-",
         NO_DEVICE},
        {"ContentNoRecord", [](DB& o, std::string& s) { return o.getContentTypeId(4, 1, s); }, DC_RESULT_INVALID_PARA,
         "-", NO_RECORD},
        {"LoadData", [](DB& o, std::string& s) { return o.getLoadDataContentTypeID(1, 1, s); }, 0, "load", {}},
        {"LoadDataUnknown", [](DB& o, std::string& s) { return o.getLoadDataContentTypeID(1, 2, s); }, 0, "-", {}},
        {"LoadDataNoDevice", [](DB& o, std::string& s) { return o.getLoadDataContentTypeID(3, 1, s); }, 0x3B0F0001, "-",
         NO_DEVICE},
        {"BackupOverTelnet",
         [](DB& o, std::string& s) { return o.getBackupContentTypeId(1, 1, s); },
         0,
         "telnet",
         {"I [DCServer]Ais telnet device."}},
        {"BackupNotOverTelnet", [](DB& o, std::string& s) { return o.getBackupContentTypeId(2, 1, s); }, 0, "-", {}},
        {"BackupNoDevice",
         [](DB& o, std::string& s) { return o.getBackupContentTypeId(99, 1, s); },
         0x3B0F0001,
         "-",
         {"E 3B0F0001 Call Function return Error:CDCDeviceInfoDB::getDeviceInfo(ulDevId, zoStDeviceInfo)"}},
        {"BackupNoType",
         [](DB& o, std::string& s) { return o.getBackupContentTypeId(3, 1, s); },
         0x3B0F0001,
         "-",
         {"E 3B0F0001 Call Function return Error:CDeviceAdapterInterface::getInstance()->searchTypeName( "
          "zoStDeviceInfo.ulDeviceTypeID, zoStDeviceInfo.ulDeviceTypeVersionID, strDevTypeName, "
          "strDeviceTypeVersion)"}},
        {"BackupNoRecord", [](DB& o, std::string& s) { return o.getBackupContentTypeId(4, 1, s); },
         DC_RESULT_INVALID_PARA, "-", NO_RECORD},
    }),
    rowName<StLookupCase>);

std::uint32_t samValue(DB& oDatabase, const char* pszType, const char* pszName, std::string& strAnswer)
{
    int                 nValue   = 42;
    const std::uint32_t ulResult = oDatabase.getSAMContentTypeValue(pszType, "V1", pszName, nValue);
    strAnswer                    = nValue == 42 ? strAnswer : std::to_string(nValue);
    return ulResult;
}

INSTANTIATE_TEST_SUITE_P(
    ByType, ContentTypeTest,
    testing::ValuesIn(std::vector<StLookupCase>{
        {"SamName", [](DB& o, std::string& s) { return o.getSAMContentTypeID("A", "V1", 8, s); }, 0, "sam", {}},
        {"SamNameUnknown", [](DB& o, std::string& s) { return o.getSAMContentTypeID("A", "V1", 1, s); }, 0, "-", {}},
        {"SamNameNoRecord", [](DB& o, std::string& s) { return o.getSAMContentTypeID("N", "V1", 7, s); },
         DC_RESULT_INVALID_PARA, "-", NO_RECORD},
        {"SamValueOfTheFirst", [](DB& o, std::string& s) { return samValue(o, "A", "sam", s); }, 0, "7", {}},
        {"SamValueUnknown", [](DB& o, std::string& s) { return samValue(o, "A", "Sam", s); }, 0, "-", {}},
        {"SamValueNoRecord", [](DB& o, std::string& s) { return samValue(o, "N", "sam", s); }, DC_RESULT_INVALID_PARA,
         "-", NO_RECORD},
        {"Board", [](DB& o, std::string& s) { return o.getBoardType(11, 0, 3, s); }, 0, "main", {}},
        {"BoardUnknown", [](DB& o, std::string& s) { return o.getBoardType(11, 0, 4, s); }, 0, "-", {}},
        {"BoardWithoutActivation", [](DB& o, std::string& s) { return o.getBoardType(12, 0, 3, s); }, 0, "-", {}},
        {"BoardWithoutTaskOperations",
         [](DB& o, std::string& s) { return o.getBoardType(13, 0, 3, s); },
         DC_RESULT_FILE_NOT_EXIST,
         "-",
         {}},
        {"BoardNoType",
         [](DB& o, std::string& s) { return o.getBoardType(99, 0, 3, s); },
         0x3B0F0001,
         "-",
         {"E 3B0F0001 Call Function return Error:CDeviceAdapterInterface::getInstance()->searchTypeName( "
          "ulDeviceTypeID, ulDeviceTypeVersionID, strDevTypeName, strDeviceTypeVersion)"}},
        {"BoardNoRecord", [](DB& o, std::string& s) { return o.getBoardType(14, 0, 3, s); }, DC_RESULT_INVALID_PARA,
         "-", NO_RECORD},
        // "AllFileType" after every parameter with more than one option, on access devices alone.
        {"AllBackupNames",
         [](DB& o, std::string& s) { return o.getAllBackupContentTypeNameByDevTypeName("A", s, EnDeviceTypeAccess); },
         0,
         "1,cfg;1,cfg2;2,log;4294967295,big;-1,AllFileType;1,late;",
         {}},
        {"AllBackupNamesElsewhere",
         [](DB& o, std::string& s) { return o.getAllBackupContentTypeNameByDevTypeName("A", s, EnDeviceTypeDatacom); },
         0,
         "1,cfg;1,cfg2;2,log;4294967295,big;1,late;",
         {}},
        {"AllBackupNamesOfNothing",
         [](DB& o, std::string& s) { return o.getAllBackupContentTypeNameByDevTypeName("B", s, EnDeviceTypeAccess); },
         0,
         "",
         {}},
        {"AllBackupNamesNoRecord",
         [](DB& o, std::string& s) { return o.getAllBackupContentTypeNameByDevTypeName("N", s, EnDeviceTypeAccess); },
         DC_RESULT_INVALID_PARA, "", NO_RECORD},
    }),
    rowName<StLookupCase>);
} // namespace
