// What stands in the way, for each way in which something may not be there, and in which
// order it is told.
#include "reader/ServerFixture.h"
#include "tools/opxml/explain/Explanation.h"

namespace
{
// Type A has a file of its own, a telnet variant and a module; C has capacity, where
// version V1 is narrowed and V2 has everything; B is broken.
class ObstacleTest : public CServerTest
{
protected:
    ObstacleTest()
    {
        m_oRoot.writeConfig("A.xml", R"(<r><DeviceOperation>
<Operation id="Backup"><Parameter id="P"><Option id="ONE" value="1"/></Parameter>
<Parameter id="ContentType"><Option id="PROGFILE" value="15"/></Parameter></Operation>
<Operation id="Backup"><Parameter id="Late"/></Operation>
<Operation id="Recover"><Parameter id="Target"/></Operation></DeviceOperation>
<PatchOperation><Operation id="LoadPatch"/></PatchOperation>
<OtherOperation id="Off" isSupported="0"><Parameter id="Unused" isRequired="0"/></OtherOperation>
<DeviceViewPopupMenu><Item type="DeviceOperation" id="MenuOnly"/></DeviceViewPopupMenu></r>)");
        m_oRoot.writeConfig("A_telnet.xml", R"(<r><DeviceOperation><Operation id="ByTelnet"/></DeviceOperation></r>)");
        m_oRoot.writeConfig("B.xml", "<r>\n<broken>");
        m_oRoot.writeConfig("Common_ServerConfiguration.xml",
                            R"(<r><DeviceOperation><Operation id="Cut"/><Operation id="Kept"/></DeviceOperation></r>)");
        m_oRoot.writeConfig(
            "C_V1_ServerConfiguration.xml",
            "<c><upgradecapacity sysoid='1.2'>\n<Operation id='Cut' isSupported='0'/></upgradecapacity></c>");
        module("m", "Else", "OfModule");
        module("n", "AAAAAA", "OfMisspelt");
        m_oRoot.write("etc/oss_cfg/dc/ne_script/importscript/o/ServerConfiguration.xml",
                      "<r>\n<Operation id=\"OfBroken\">");
        open("INSERT INTO device_type (name, version) VALUES ('A', 'V1_telnet'), ('AAAAAB', 'V1');"
             "INSERT INTO config_file VALUES ('A_telnet', '" +
             configPath("A_telnet.xml") + "'), ('AAAAAB', '" + configPath("A_telnet.xml") +
             "');"
             "INSERT INTO device_type (name, version, type_id, version_id, config_file_type, sys_oid, support_upgrade,"
             " support_capacity, capacity_per_version) VALUES ('C', 'V', 3, 1, 1, '1.2', 1, 1, 1);"
             "INSERT INTO version_in_service (position, device_type, device_type_version, soft_version, patch_version)"
             " VALUES (1, 'C', 'V', 'V1', ''), (2, 'C', 'V', 'V2', '');"
             "INSERT INTO capacity (position, device_type, device_type_version, soft_version, patch_version, "
             "full_config)"
             " VALUES (1, 'C', 'V', 'V1', '', 0), (2, 'C', 'V', 'V2', '', 1);"
             "INSERT INTO device (device_id, name, type_id, version_id, soft_version) VALUES (1, 'narrow', 3, 1, 'V1'),"
             " (2, 'whole', 3, 1, 'V2'), (3, 'stray', 3, 1, 'V3'), (4, 'lost', 9, 9, '');");
    }

    void module(const std::string& strName, const std::string& strType, const std::string& strOperation)
    {
        m_oRoot.write("etc/oss_cfg/dc/ne_script/importscript/" + strName + "/ServerConfiguration.xml",
                      "<r><DeviceType name=\"" + strName + "\"/><support><dev name=\"" + strType +
                          "\"/></support><DeviceOperation><Operation id=\"" + strOperation +
                          "\"/></DeviceOperation></r>");
    }

    // "yes", or the words of the obstacles, and how the first one ends.
    static std::string answer(const std::string& strName, const std::vector<std::string>& lstId)
    {
        CServedKeys oKeys;
        StSubject   stSubject;
        std::string strText;
        if (!findSubject(oKeys, strName, stSubject, strText))
            return strText;
        const StExplanation stExplanation = explain(oKeys, stSubject, lstId);
        for (const StObstacle& stObstacle : stExplanation.lstObstacle)
            strText += std::string(strText.empty() ? "" : " ") + obstacleWord(stObstacle.enObstacle);
        return stExplanation.bOffered ? "yes" + strText : strText;
    }
};

TEST_F(ObstacleTest, MostTellingComesFirst)
{
    const struct
    {
        const char*              pszSubject;
        std::vector<std::string> lstId;
        const char*              pszExpected;
    } CASES[] = {
        {"A", {"Backup", "P", "1"}, "yes"},
        {"A", {"LoadPatch"}, "yes"},
        {"2", {"Cut"}, "yes"},
        {"A", {"Off"}, "switched-off"},
        {"A", {"Off", "Unused"}, "switched-off"},
        {"A", {"MenuOnly"}, "elsewhere"},
        {"A", {"P"}, "elsewhere"},
        {"A", {"Backup", "Late"}, "shadowed"},
        {"A", {"Backup", "Target"}, "elsewhere"},
        {"A", {"Backup", "ContentType", "PROGFILE"}, "left-out"},
        {"A", {"ByTelnet"}, "other-variant"},
        {"A:V1_telnet", {"LoadPatch"}, "other-variant"},
        {"A", {"OfModule"}, "module"},
        {"AAAAAB", {"OfMisspelt"}, "module-name"},
        {"A", {"backup"}, "spelling"},
        {"A", {"Backup", "P", "ON"}, "spelling"},
        {"A", {"OfBroken"}, "broken-module"},
        {"A", {"Nothing at all"}, ""},
        {"narrow", {"Cut"}, "capacity other-version"},
        {"C:V:V1", {"Cut"}, "capacity other-version"},
        {"stray", {"Kept"}, "unresolved"},
        {"lost", {"Kept"}, "unresolved"},
        {"B", {"Backup"}, "unread"},
        {"A:V9", {}, "device type \"A\" has no version \"V9\"; it has \"V1\" \"V1_telnet\""},
        {"narro", {}, "no device and no device type \"narro\"; did you mean \"narrow\"?"},
    };
    for (const auto& [pszSubject, lstId, pszExpected] : CASES)
        EXPECT_EQ(pszExpected, answer(pszSubject, lstId)) << pszSubject << ": " << testing::PrintToString(lstId);
}
} // namespace
