// What modules add to the device types they name.
#include "reader/ServerFixture.h"
#include "records/RecordSearch.h"

namespace
{
class ModuleMergeTest : public CServerTest
{
protected:
    void writeModule(const std::string& strName, const std::string& strDevices, const std::string& strSections)
    {
        m_oRoot.write("etc/oss_cfg/dc/ne_script/importscript/" + strName + "/ServerConfiguration.xml",
                      "<C><DeviceType name='" + strName + "'/><support>" + strDevices + "</support>" + strSections +
                          "</C>");
    }

    static std::string operation(const std::string& strId, bool bCancelable = false)
    {
        return "<DeviceOperation><Operation id='" + strId + "' isCancelable='" + (bCancelable ? "1" : "0") +
               "'/></DeviceOperation>";
    }

    static const StAsnDevTypeVerXMLInfo* first(const std::string& strDevType, const std::string& strDevTypeVer)
    {
        return CXMLConfigDatabase::getInstance()->getFirstDevTypeXMLConfig(strDevType, strDevTypeVer);
    }
};

TEST_F(ModuleMergeTest, EveryNamingAddsTheModuleAfterTheTypesOwn)
{
    m_oRoot.writeConfig("A.xml", "<C>" + operation("own", true) + "</C>");
    m_oRoot.writeConfig("B.xml", "<C/>");
    m_oRoot.writeConfig("T.xml", "<C/>");
    writeModule("m2", "<dev name='A'/><dev name='a'/><dev name='A'/>", operation("twice"));
    writeModule("m1", "<dev name='A'/><dev name='A_telnet'/>", operation("own") + operation("once"));
    open("INSERT INTO device_type (name, version) VALUES ('A', 'V1_telnet');"
         "INSERT INTO config_file VALUES ('A_telnet', '" +
         configPath("T.xml") + "');");
    EXPECT_EQ("own,own,once,twice,twice", ids(first("A", "V1")->stOperationConfig.lstDevOperation));
    EXPECT_TRUE(findFirst(first("A", "V1")->stOperationConfig.lstDevOperation, "own")->bIsCancelable);
    // The plain name counts for the telnet variant too, and its key never does.
    EXPECT_EQ("own,once,twice,twice", ids(first("A", "V1_telnet")->stOperationConfig.lstDevOperation));
    EXPECT_EQ("", ids(first("B", "V2")->stOperationConfig.lstDevOperation));
}

TEST_F(ModuleMergeTest, NineListsAreMergedAndNoMenu)
{
    m_oRoot.writeConfig("A.xml", "<C/>");
    writeModule("m", "<dev name='A'/>",
                operation("1") + "<TaskOperation><Operation id='2'/></TaskOperation>"
                                 "<PatchOperation><Operation id='3'/></PatchOperation>"
                                 "<PatchStateConfiguration><Patch/></PatchStateConfiguration>"
                                 "<CheckOperations><Operation id='5'/></CheckOperations>"
                                 "<CustomOperations><Operation id='6'/></CustomOperations><OtherOperation id='7'/>"
                                 "<UpgradeOperation><Operation id='8'/></UpgradeOperation><TaskType id='PatchUpdate'/>"
                                 "<DeviceViewPopupMenu><Item/></DeviceViewPopupMenu><DeviceViewTab><Item/>"
                                 "</DeviceViewTab><PatchViewPopupMenu><Patch/></PatchViewPopupMenu>");
    open();
    const StAsnDevTypeVerXMLInfo& stInfo = *first("A", "V1");
    const StAsnOperationConfig&   st     = stInfo.stOperationConfig;
    EXPECT_EQ("1 2 3 5 6 7 8",
              fmt::format("{} {} {} {} {} {} {}", ids(st.lstDevOperation), ids(st.lstTaskOperation),
                          ids(st.lstPatchOperation), ids(st.lstCheckOperation), ids(st.lstCustomOperation),
                          ids(st.lstOtherOperation), ids(st.lstUpgradeOperation)));
    EXPECT_EQ(1u, st.lstPatchDef.size());
    EXPECT_EQ(1u, stInfo.lstTaskConfigInfoOperation.size());
    EXPECT_TRUE(stInfo.stViewConfig == StAsnViewConfig());
}

TEST_F(ModuleMergeTest, OnlyTheFirstRecordGetsThem)
{
    writeModule("m", "<dev name='X'/>", operation("added"));
    open("DELETE FROM device_type;");
    CXMLConfigDatabase&                oDatabase = *CXMLConfigDatabase::getInstance();
    COwnedRecords                      oRecords;
    std::list<StAsnDevTypeVerXMLInfo*> lstNone;
    oRecords.lstInfo = {new StAsnDevTypeVerXMLInfo, new StAsnDevTypeVerXMLInfo};
    oDatabase.mergeModuleInfoToDev("X", oRecords.lstInfo);
    oDatabase.mergeModuleInfoToDev("X", lstNone);
    EXPECT_EQ("added", ids(oRecords.lstInfo.front()->stOperationConfig.lstDevOperation));
    EXPECT_EQ("", ids(oRecords.lstInfo.back()->stOperationConfig.lstDevOperation));
}

TEST_F(ModuleMergeTest, TypesReadLaterAreMergedAsWell)
{
    m_oRoot.writeConfig("A.xml", "<C/>");
    writeModule("m", "<dev name='A'/>", operation("added"));
    open();
    {
        const standalone::CFaultPoint oFault("CDeviceAdapterInterface::getALLDLLInfo", 1, 7);
        CXMLConfigDatabase::getInstance();
    }
    EXPECT_EQ("added", ids(first("A", "V1")->stOperationConfig.lstDevOperation));
}
} // namespace
