#include "ServerRootText.h"

#include "ConfigText.h"

#include <algorithm>
#include <fstream>
#include <functional>
#include <initializer_list>
#include <stdexcept>

namespace
{
constexpr const char* CONFIG_FOLDER = "common/dc/conf/dc/devtype_xmlconf";
constexpr const char* ALARM_FILE    = "pub/i18n/en_US/kivo/fm/dc_tbl_alm_exp_info.xml";

void writeFile(const std::filesystem::path& oPath, const std::string& strText)
{
    std::filesystem::create_directories(oPath.parent_path());
    std::ofstream oFile(oPath, std::ios::binary | std::ios::trunc);
    oFile << strText;
    if (!oFile.flush())
        throw std::runtime_error("cannot write " + oPath.string());
}

std::string configFileName(std::size_t nType)
{
    std::string strName = deviceTypeName(nType);
    std::replace_if(
        strName.begin(), strName.end(),
        [](char cChar) { return cChar == ' ' || cChar == '+' || cChar == '\\' || cChar == '/'; }, '_');
    return strName + "_ServerConfiguration.xml";
}

std::string quoted(const std::string& strText)
{
    return "'" + strText + "'"; // no name here has a quote in it
}

// Rows in statements of a size that the inventory takes.
void addRows(std::string& strSql, const std::string& strInsert, std::size_t nRows,
             const std::function<std::string(std::size_t)>& fnRow)
{
    constexpr std::size_t ROWS_PER_STATEMENT = 500;
    for (std::size_t nRow = 0; nRow < nRows; ++nRow)
    {
        const bool bLast = nRow + 1 == nRows || (nRow + 1) % ROWS_PER_STATEMENT == 0;
        strSql += (nRow % ROWS_PER_STATEMENT == 0 ? strInsert + " VALUES\n  (" : "  (") + fnRow(nRow) +
                  (bLast ? ");\n" : "),\n");
    }
}

std::string joined(std::initializer_list<std::string> lstValue)
{
    std::string strRow;
    for (const std::string& strValue : lstValue)
        strRow.append(strRow.empty() ? "" : ", ").append(strValue);
    return strRow;
}

std::string typeId(std::size_t nType)
{
    return std::to_string(1001 + nType);
}

std::string versionName(std::size_t nVersion)
{
    return nVersion == 0 ? TYPE_VERSION : "V4." + std::to_string(nVersion);
}

std::string inventoryText(const StRootWish& stWish)
{
    const std::size_t nTypes    = stWish.nTypes;
    const std::size_t nVersions = stWish.nVersions;
    std::string       strSql    = "-- Generated: one device for each type.\n"
                                  "INSERT INTO setting (name, value) VALUES ('WDM_SUPPORT_ISSU_UPGRADE', '1');\n"
                                  "INSERT INTO resource (key, value) VALUES ('BACKUP_PROGRAM_SUPPORT', '1');\n";
    addRows(strSql, "INSERT INTO device_type (position, name, version, type_id, version_id, config_file_type)",
            nTypes * nVersions,
            [&](std::size_t nRow)
            {
                const std::size_t nType = nRow / nVersions;
                return joined({std::to_string(nRow + 1), quoted(deviceTypeName(nType)),
                               quoted(versionName(nRow % nVersions)), typeId(nType),
                               std::to_string(nRow % nVersions + 1), stWish.bCommon ? "1" : "0"});
            });
    addRows(strSql, "INSERT INTO config_file (device_type, path)", stWish.bCommon ? 0 : nTypes,
            [](std::size_t nType) {
                return joined({quoted(deviceTypeName(nType)), quoted(configFile("", nType).string())});
            });
    addRows(strSql, "INSERT INTO device_class (type_id, domain, is_snmp, is_v3r7)", nTypes,
            [](std::size_t nType) {
                return joined({typeId(nType), "2", "1", "1"});
            });
    addRows(strSql, "INSERT INTO device (device_id, name, type_id, version_id)", nTypes,
            [](std::size_t nType)
            {
                const std::string strId = std::to_string(nType + 1);
                return joined({strId, quoted("hall-" + strId), typeId(nType), "1"});
            });
    return strSql;
}

std::string alarmText(std::size_t nAlarms, std::uint64_t ulSeed)
{
    CDice    oDice(ulSeed);
    CXmlText oXml("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n");
    oXml.open("dc_tbl_alm_exp_info");
    for (std::size_t nAlarm = 0; nAlarm < nAlarms; ++nAlarm)
    {
        oXml.open("record");
        oXml.text("param", {{"name", "AlarmID"}}, std::to_string(100001 + nAlarm));
        oXml.text("param", {{"name", "AlarmName"}}, "Check failed: " + describe(oDice));
        oXml.text("param", {{"name", "Explain"}}, "This was expected and is not so: " + describe(oDice) + ".");
        oXml.close();
    }
    oXml.close();
    return oXml.str();
}
} // namespace

std::filesystem::path configFile(const std::filesystem::path& oFolder, std::size_t nType)
{
    return oFolder / CONFIG_FOLDER / configFileName(nType);
}

void writeServerRoot(const StRootWish& stWish)
{
    writeFile(stWish.oFolder / "server.sql", inventoryText(stWish));
    if (stWish.nAlarms > 0)
        writeFile(stWish.oFolder / ALARM_FILE, alarmText(stWish.nAlarms, stWish.ulSeed));
    if (!stWish.oFilesOf.empty())
        return std::filesystem::create_directory_symlink(std::filesystem::absolute(stWish.oFilesOf) / "common",
                                                         stWish.oFolder / "common");
    if (stWish.bCommon)
        return writeFile(stWish.oFolder / CONFIG_FOLDER / "Common_ServerConfiguration.xml",
                         configText({0, stWish.nBytes, stWish.ulSeed, stWish.bCheck}));
    for (std::size_t nType = 0; nType < stWish.nTypes; ++nType)
        writeFile(configFile(stWish.oFolder, nType), configText({nType, stWish.nBytes, stWish.ulSeed, stWish.bCheck}));
}
