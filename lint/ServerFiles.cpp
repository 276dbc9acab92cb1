// See ServerFiles.h.
#include "lint/ServerFiles.h"

#include "database/CXMLConfigDatabase.h"
#include "platform/DeviceAdapter.h"
#include "platform/Paths.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace lint
{
namespace
{
namespace fs = std::filesystem;

constexpr const char* ALARM_TABLES[] = {"kivo/fm/dc_tbl_alm_exp_info.xml", "kivo/fm/dc_tbl_RegInfo.xml"};

void addFile(StServerFiles& stFiles, const StPlannedFile& stFile, EnFileKind enKind, std::size_t nType)
{
    if (!stFile.isFound() || stFile.strFile.empty())
        return;
    StServerFile& stServerFile = stFiles.mapFile[stFile.strFile];
    stServerFile.enKind        = enKind;
    if (stServerFile.lstType.empty() || stServerFile.lstType.back() != nType)
        stServerFile.lstType.push_back(nType);
}

void addPlan(StServerFiles& stFiles, std::size_t nType)
{
    const StConfigPlan stPlan = stFiles.lstType[nType].stPlan;
    addFile(stFiles, stPlan.stConfig, EnFileKind::Configuration, nType);
    addFile(stFiles, stPlan.stCheck, EnFileKind::TelnetCheck, nType);
    addFile(stFiles, stPlan.stFixedCheck, EnFileKind::FixedCheck, nType);
    for (const StVersionPlan& stVersion : stPlan.lstVersion)
        addFile(stFiles, stVersion.stFile, stVersion.bFullConfig ? EnFileKind::Configuration : EnFileKind::Capacity,
                nType);
}

void addTypes(StServerFiles& stFiles)
{
    std::list<StDeviceType> lstDeviceType;
    CDeviceAdapterInterface::getInstance()->getALLDLLInfo(lstDeviceType); // without types there are no files of theirs
    for (const StDeviceType& stDeviceType : lstDeviceType)
    {
        const std::string strKey =
            CXMLConfigDatabase::trans2TelnetDevType(stDeviceType.strDevType, stDeviceType.strDevTypeVer);
        stFiles.lstType.push_back({stDeviceType.strDevType, stDeviceType.strDevTypeVer, strKey,
                                   stDeviceType.strDevSysOid,
                                   makeConfigPlan(strKey, stDeviceType.strDevTypeVer, isCapacityType(stDeviceType))});
        addPlan(stFiles, stFiles.lstType.size() - 1);
    }
}

// The tables of every language that is there, not only of the one in use.
void addAlarmTables(StServerFiles& stFiles)
{
    const fs::path  oFolder = ns_kivosdk_wrap::GetEnvValue("ENV_ROOT", false, true) + "pub/i18n";
    std::error_code oIgnored;
    for (const fs::directory_entry& oLanguage : fs::directory_iterator(oFolder, oIgnored))
    {
        const EnFileKind arKind[] = {EnFileKind::AlarmExplanation, EnFileKind::AlarmRegistration};
        for (std::size_t nAt = 0; nAt < std::size(ALARM_TABLES); ++nAt)
        {
            const fs::path oTable = oLanguage.path() / ALARM_TABLES[nAt];
            if (fs::is_regular_file(oTable, oIgnored))
                stFiles.mapFile[oTable.string()].enKind = arKind[nAt];
        }
    }
}

void addUnused(StServerFiles& stFiles)
{
    const fs::path  oFolder = CXMLConfigDatabase::getDevTypeXMLPath();
    std::error_code oIgnored;
    for (const fs::directory_entry& oEntry : fs::directory_iterator(oFolder, oIgnored))
    {
        std::string strPath = oFolder.string() + oEntry.path().filename().string();
        if (oEntry.is_regular_file(oIgnored) && stFiles.mapFile.count(strPath) == 0)
            stFiles.lstUnused.push_back(std::move(strPath));
    }
    std::sort(stFiles.lstUnused.begin(), stFiles.lstUnused.end());
}
} // namespace

StServerFiles findServerFiles()
{
    StServerFiles stFiles;
    addTypes(stFiles);
    addAlarmTables(stFiles);
    addUnused(stFiles);
    return stFiles;
}
} // namespace lint
