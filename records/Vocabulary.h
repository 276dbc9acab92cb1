// The shared vocabulary: texts that the configuration files, the queries and the
// server's other modules agree on. Compile-time data; nothing here is created at
// load time.
#ifndef OPERATIONXML_RECORDS_VOCABULARY_H
#define OPERATIONXML_RECORDS_VOCABULARY_H

#include "platform/Export.h"

#include <string_view>

// Whether fixed check items are enabled on this server: the configuration item
// "FIXED_CHECK_ITEM" of section "DC" is 1.
OPERATIONXML_API bool isFixedCheckEnabled();

namespace Vocabulary
{
// Prefixes of a log text.
inline constexpr std::string_view LOG_MODULE_PREFIX = "[DCServer]";
inline constexpr std::string_view LOG_CALL_PREFIX   = "Call Function return Error:";
inline constexpr std::string_view EMPTY_TEXT;

// Operation names, as they stand in "id" attributes and in queries.
inline constexpr std::string_view OP_DISPENSE                        = "Dispense";
inline constexpr std::string_view OP_COMMIT                          = "Commit";
inline constexpr std::string_view OP_SAVE                            = "Save";
inline constexpr std::string_view OP_BACKUP                          = "Backup";
inline constexpr std::string_view OP_RECOVER                         = "Recover";
inline constexpr std::string_view OP_LOAD_DATA                       = "LoadData";
inline constexpr std::string_view OP_UPDATE_DATA                     = "UpdateData";
inline constexpr std::string_view OP_DELETE_DATABASE                 = "DeleteDatabase";
inline constexpr std::string_view OP_INIT_DATABASE                   = "InitDatabase";
inline constexpr std::string_view OP_COPY_DATABASE                   = "CopyDatabase";
inline constexpr std::string_view OP_ROLLBACK_DATABASE               = "RollbackDatabase";
inline constexpr std::string_view OP_LOAD_SOFTWARE                   = "LoadSoftware";
inline constexpr std::string_view OP_ACTIVATE_SOFTWARE               = "ActivateSoftware";
inline constexpr std::string_view OP_ROLLBACK                        = "Rollback";
inline constexpr std::string_view OP_ROLLBACK_SOFTWARE               = "RollbackSoftware";
inline constexpr std::string_view OP_LOAD_PATCH                      = "LoadPatch";
inline constexpr std::string_view OP_ACTIVATE_PATCH                  = "ActivatePatch";
inline constexpr std::string_view OP_CONFIRM_PATCH                   = "ConfirmPatch";
inline constexpr std::string_view OP_DEACTIVATE_PATCH                = "DeactivatePatch";
inline constexpr std::string_view OP_ROLLBACK_PATCH                  = "RollbackPatch";
inline constexpr std::string_view OP_DELETE_PATCH                    = "DeletePatch";
inline constexpr std::string_view OP_RESTART                         = "Restart";
inline constexpr std::string_view OP_UNLOAD_PATCH                    = "UnloadPatch";
inline constexpr std::string_view OP_UPGRADE_PATCH                   = "UpgradePatch";
inline constexpr std::string_view OP_PRE_CHECK                       = "PreCheck";
inline constexpr std::string_view OP_POST_CHECK                      = "PostCheck";
inline constexpr std::string_view OP_ISSU_CHECK                      = "ISSUCheck";
inline constexpr std::string_view OP_CHECK_FEASIBILITY               = "CheckFeasibility";
inline constexpr std::string_view OP_INSPECT_OPTICAL_MODULE_INFO     = "InspectOpticalModuleInfo";
inline constexpr std::string_view OP_LOAD_OPTICAL_MODULE_SOFTWARE    = "LoadOpticalModuleSoftware";
inline constexpr std::string_view OP_UPGRADE_OPTICAL_MODULE_SOFTWARE = "UpgradeOpticalModuleSoftware";
inline constexpr std::string_view OP_OPTICAL_MODULE_VERIFY           = "OpticalModuleVerify";
inline constexpr std::string_view OP_PREPARE_UPGRADE                 = "PrepareUpgrade";
inline constexpr std::string_view OP_POST_UPGRADE                    = "PostUpgrade";
inline constexpr std::string_view OP_MANUAL_ACTIVATE                 = "ManualActivate";
inline constexpr std::string_view OP_LOAD_NUBO_METER                 = "LoadNuboMeter";
inline constexpr std::string_view OP_ACTIVATE_NUBO_METER             = "ActivateNuboMeter";
inline constexpr std::string_view OP_CONF_TRANSFER                   = "ConfTransfer";
inline constexpr std::string_view OP_LOAD_CONF_FILE                  = "LoadConfFile";
inline constexpr std::string_view OP_FAN_SLOW_TIMING                 = "FanSlowTiming";

inline constexpr std::string_view OPERATION_NAMES[] = {
    OP_DISPENSE,
    OP_COMMIT,
    OP_SAVE,
    OP_BACKUP,
    OP_RECOVER,
    OP_LOAD_DATA,
    OP_UPDATE_DATA,
    OP_DELETE_DATABASE,
    OP_INIT_DATABASE,
    OP_COPY_DATABASE,
    OP_ROLLBACK_DATABASE,
    OP_LOAD_SOFTWARE,
    OP_ACTIVATE_SOFTWARE,
    OP_ROLLBACK,
    OP_ROLLBACK_SOFTWARE,
    OP_LOAD_PATCH,
    OP_ACTIVATE_PATCH,
    OP_CONFIRM_PATCH,
    OP_DEACTIVATE_PATCH,
    OP_ROLLBACK_PATCH,
    OP_DELETE_PATCH,
    OP_RESTART,
    OP_UNLOAD_PATCH,
    OP_UPGRADE_PATCH,
    OP_PRE_CHECK,
    OP_POST_CHECK,
    OP_ISSU_CHECK,
    OP_CHECK_FEASIBILITY,
    OP_INSPECT_OPTICAL_MODULE_INFO,
    OP_LOAD_OPTICAL_MODULE_SOFTWARE,
    OP_UPGRADE_OPTICAL_MODULE_SOFTWARE,
    OP_OPTICAL_MODULE_VERIFY,
    OP_PREPARE_UPGRADE,
    OP_POST_UPGRADE,
    OP_MANUAL_ACTIVATE,
    OP_LOAD_NUBO_METER,
    OP_ACTIVATE_NUBO_METER,
    OP_CONF_TRANSFER,
    OP_LOAD_CONF_FILE,
    OP_FAN_SLOW_TIMING,
};

// Backup and content names.
inline constexpr std::string_view AUTO_BACKUP         = "_auto_backup";
inline constexpr std::string_view STARTUP_CONFIG      = "StartupConfig";
inline constexpr std::string_view AUTO_UPGRADE_PREFIX = "AutoUpgradeSWPKG_";
inline constexpr std::string_view LICENSE_FILE        = "DCLICENSEFILE";

// File-system names that begin a path on a device.
inline constexpr std::string_view STORAGE_PREFIXES[] = {"flash:", "cfcard2:", "cfcard:", "sd1:"};

// Keys of the operation log of backup policies.
inline constexpr std::string_view POLICY_LOG_KEYS[] = {
    "DC_LOGOP_CREATE_NEW_POLICY",
    "DC_LOGOP_UPDATE_POLICY_INFO",
    "DC_LOGOP_MOVE_DEVICE_TO_POLICY",
    "DC_LOGOP_SET_DEVICE_POLICY_STATUS",
    "DC_LOGOP_DELETE_USER_POLICY",
    "DC_LOGOP_MONTHLY",
    "DC_LOGOP_WEEKLY",
    "DC_LOGOP_DAILY",
    "DC_LOGOP_SAVE",
    "DC_LOGOP_BACKUP",
    "DC_LOGOP_RUN",
    "DC_LOGOP_SUSPEND",
    "DC_LOGOP_POLICY_NAME",
};

// Check scripts.
inline constexpr std::string_view EXTEND_CHECK_SET_COUNT = "EXTEND_CHECK_SET_COUNT";
inline constexpr std::string_view EXTEND_CHECK           = "EXTENDCHECK";
inline constexpr std::string_view MAIN_SCRIPT            = "MAIN.TCL";
inline constexpr std::string_view SCRIPT_SUFFIX          = "_TCL";
inline constexpr std::string_view UPGRADE_CHECK          = "UpgradeCheck";
inline constexpr std::string_view CONCURRENCY_CONTROL    = "CONCURRENCY_CONTROL";

// Miscellaneous. What the first three and the list of pairs mean is known to
// the server's other modules; they are only kept here.
inline constexpr std::string_view LIB_LOG_TAG     = "DC_LIB_LOG:";
inline constexpr std::string_view NUMBER_180      = "180";
inline constexpr std::string_view NUMBER_07       = "07";
inline constexpr std::string_view XML_SUFFIX      = ".xml";
inline constexpr std::string_view NAME_SEPARATORS = " +\\/"; // replaced in file names
inline constexpr std::string_view NUMBER_CLASSES =
    "1967:1,1968:1,1969:1,1970:1,1971:1,1972:1,1999:1,1954:2,1955:2,1956:2";

// Database names and SQL fragments, each with its blanks.
inline constexpr std::string_view DATABASE_NAMES[] = {
    "TaskDB", "DevInfoDB", "LogInfoDB", "AutoUpgradeDB", "SAMDB", "SettingInfoDB",
};
inline constexpr std::string_view DATABASE_SUFFIX = ".db";
inline constexpr std::string_view SQL_FRAGMENTS[] = {
    "distinct ", " order by ", "select ", "insert into ", " values(", "update ", "delete from ", " where ", " in ",
    " not in ",  " and ",      " or ",    " from ",       " set ",    " count",  " count(*) ",   " * ",     "drop ",
    "table ",    "view ",      " min",    " max",         " avg ",    " LIKE ",  " DESC",        " LIMIT ", " OFFSET ",
};
inline constexpr std::string_view TRUE_UPPER  = "TRUE";
inline constexpr std::string_view TRUE_LOWER  = "true";
inline constexpr std::string_view FALSE_UPPER = "FALSE";
inline constexpr std::string_view FALSE_LOWER = "false";

// Device-type features: properties that the device registry answers for each
// type, and the name of their key group.
inline constexpr std::string_view FEATURE_KEY_GROUP = "Tarvelonix";
inline constexpr std::string_view FEATURE_KEYS[]    = {
       "S_SwitchType",
       "RouterType",
       "Snmp_Device",
       "ONLY_SUPPORT_TELNET_TYPEID",
       "CHECK_SPACE_ENOUGH_TYPEID",
       "S_SupportOneImageSwitch",
       "V3R7_Device",
       "SUPPORT_SOFTWARECHECK",
       "SUPPORT_PATCHCHECK",
       "CHECK_SPACE_ON_DEVICE_TYPEID",
       "CHECK_CFSPACE_ON_DEVICE_TYPEID",
       "WAIT_RECOVER_TIME_TYPEID",
       "ACTIVE_HIGT_EFFICIENT_TYPEID",
       "MAINBOARDNUM_TYPEID",
       "DEVICE_STATUS_COMPARE_TYPEID",
       "WALK_QXSTORAGE_TBL_TYPEID",
       "UPGRADEBOOTROM_TYPEID",
       "GET_MAINBOARD_NUM_TYPEID",
       "AR_WITH_ACC_BACKUP_TYPEID",
       "DONOT_SUPPORT_POLICY",
       "TOOLKIT_NOT_SUPPORT_DEV_TYPE",
       "DEFAULT_POLICY_BACKUP_CONTENT_TYPE",
       "Q5100_AUTO_UPGRADE_TASK",
       "ModifyReloadTable",
       "AutoDeleteFile",
       "AddSizeDeleteFile",
       "TelnetToDevice",
       "DroxAgentUpgrade",
       "ISSUUpgrade",
       "CheckFeasibility",
       "TrapBackupPolicy",
       "Startup_File_Can_Be_Deleted",
       "SUPPORT_WEAKBOARD",
};

// Storage keys and file names of device types.
inline constexpr std::string_view TELNET_SUFFIX      = "_telnet";
inline constexpr std::string_view COMMON_FILE_NAME   = "Common_ServerConfiguration.xml";
inline constexpr std::string_view CONFIG_FILE_SUFFIX = "_ServerConfiguration.xml";
inline constexpr std::string_view CONFIG_FOLDER      = "common/dc/conf/dc/devtype_xmlconf/";
} // namespace Vocabulary

#endif
