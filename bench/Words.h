// The vocabulary of the generated files: what authors of configuration files
// write. Invented names only. Used by ConfigText and CheckText.
#ifndef OPERATIONXML_BENCH_WORDS_H
#define OPERATIONXML_BENCH_WORDS_H

#include <string_view>

namespace Words
{
struct StNumbered
{
    std::string_view strId;
    std::string_view strValue;
    std::string_view strTarget = {};
};

inline constexpr std::string_view SERIES[]   = {"LX", "RX", "OLT", "Fjord", "Borealis", "Quill", "Lantern", "MW-Relay"};
inline constexpr std::string_view SUFFIXES[] = {"", "", "/S", "+", " Mini", "\\E"};
inline constexpr std::string_view LEVELS[]   = {"DeviceLevel", "BoardLevel", "Both"};

inline constexpr std::string_view DEVICE_OPERATIONS[] = {"Backup",
                                                         "Recover",
                                                         "LoadData",
                                                         "Save",
                                                         "Restart",
                                                         "InspectOpticalModuleInfo",
                                                         "FanSlowTiming",
                                                         "UpdateData",
                                                         "DeleteDatabase",
                                                         "InitDatabase",
                                                         "CopyDatabase",
                                                         "RollbackDatabase",
                                                         "OpticalModuleVerify"};
inline constexpr std::string_view TASK_OPERATIONS[]   = {
      "ActivateSoftware", "CheckFeasibility", "LoadSoftware", "Commit",         "Rollback", "RollbackSoftware",
      "UpgradePatch",     "PrepareUpgrade",   "PostUpgrade",  "ManualActivate", "Dispense", "LoadOpticalModuleSoftware"};
inline constexpr std::string_view PATCH_OPERATIONS[]  = {"LoadPatch",       "ActivatePatch", "ConfirmPatch",
                                                         "DeactivatePatch", "RollbackPatch", "DeletePatch"};
inline constexpr std::string_view OTHER_OPERATIONS[]  = {"SAM",         "GetWeakBd",        "AutoUpgrade",
                                                         "PolicySave",  "TrapBackupPolicy", "DroxAgentUpgrade",
                                                         "SpaceReport", "ConfigCompare"};
inline constexpr std::string_view CUSTOM_OPERATIONS[] = {"StackPlanner",   "PortMirror",   "SpaceCalculator",
                                                         "ScheduleEditor", "ReportViewer", "CableTest"};
inline constexpr std::string_view CUSTOM_PLACES[]     = {"PopupMenu", "Tab", "createTaskDialog", "modifyTaskDialog",
                                                         "viewTaskDialog"};
inline constexpr std::string_view CHECK_OPERATIONS[]  = {"PreCheck", "PostCheck", "ISSUCheck", "CheckFeasibility"};
inline constexpr std::string_view TASK_TYPES[]        = {"SoftwareUpgrade",          "SoftwareDowngrade", "PatchUpdate",
                                                         "SimulationPackageUpgrade", "PackageUpgrade",    "PackageDowngrade",
                                                         "OpticalModuleUpgrade"};
inline constexpr std::string_view FEATURES[] = {"ParallelLoad", "TimedActivation", "RollbackOnFailure", "SpaceCleanup"};
inline constexpr std::string_view PATCH_STATES[] = {"Idle", "Loaded", "Deactivated", "Active", "Running"};

inline constexpr StNumbered CONTENTS[] = {
    {"CONFIG", "1", "flash:/startup.zip"},  {"LOG", "2", "flash:/logfile"},
    {"DIAGNOSIS", "3", "flash:/diag"},      {"PATCH", "4", "flash:/patch"},
    {"LICENSE", "5", "flash:/license.dat"}, {"CERTIFICATE", "6", "flash:/security"},
    {"WEBPAGES", "9", "flash:/web.7z"},     {"BOOTROM", "12", "flash:/"},
    {"PROGFILE", "15", "flash:/"}};
inline constexpr StNumbered       PROTOCOLS[] = {{"FTP", "1"}, {"SFTP", "2"}, {"TFTP", "3"}};
inline constexpr StNumbered       MODES[]     = {{"Restart", "0"}, {"ISSU", "1"}, {"Staged", "2"}, {"Night", "3"}};
inline constexpr std::string_view BOARDS[]    = {"CTL", "CTL-R", "48G", "48G-P", "24X",   "24X-M", "12Q",   "8Q-E",
                                                 "4C",  "2C-L",  "16T", "FAN-F", "FAN-R", "PWR-A", "PWR-D", "CLK"};

inline constexpr std::string_view CHECKS[] = {
    "CpuUsage",    "MemoryUsage",  "StorageSpace", "FanState",    "PowerState",     "Temperature",    "ActiveAlarms",
    "SystemClock", "LicenseState", "StartupFiles", "PatchState",  "InterfaceState", "MacTable",       "RoutingTable",
    "ArpEntries",  "OpticalPower", "BoardState",   "ClockSource", "StackState",     "InterfaceErrors"};
inline constexpr std::string_view OBJECTS[] = {"Main control board", "Standby control board", "Line boards",
                                               "Fan trays",          "Power modules",         "Internal flash",
                                               "Uplink ports",       "Optical modules",       "Clock source"};
inline constexpr std::string_view STATES[]  = {
     "registered and normal",    "no active alarm",          "below 80 %",
     "room for the new package", "same as before the check", "expected version"};
// Outside ASCII: people write units, and their own language.
inline constexpr std::string_view FOREIGN[] = {"Board temperatures are below 70 °C",
                                               "Power budget, ≤ 2 400 W",
                                               "Lüfter drehen gleichmäßig",
                                               "Température des cartes",
                                               "ボードの状態は正常です",
                                               "Состояние плат"};
inline constexpr std::string_view LIMITS[]  = {"state", "15%", "10%", "300MB", "version", "count", "critical"};
} // namespace Words

#endif
