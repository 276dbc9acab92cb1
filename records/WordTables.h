// The words of the configuration files and the numbers they stand for: one
// table per enumeration, in the order in which the words are compared. What an
// unknown word gives is written where a table is used: sections differ in it.
// Every table has its word first, as strWord: attrRow() (common/XmlRead.h) finds it.
#ifndef OPERATIONXML_RECORDS_WORDTABLES_H
#define OPERATIONXML_RECORDS_WORDTABLES_H

#include "platform/Export.h"
#include "records/Enumerations.h"

#include <cstdint>
#include <string>
#include <string_view>

template <typename Value>
struct StWord
{
    std::string_view strWord;
    Value            value;
};

inline constexpr StWord<DCAsn1ClientToServer::AsnOperationLevelEnum> OPERATION_LEVEL_WORDS[] = {
    {"DeviceLevel", DCAsn1ClientToServer::DeviceLevel},
    {"BoardLevel", DCAsn1ClientToServer::BoardLevel},
    {"Both", DCAsn1ClientToServer::Both},
};

inline constexpr StWord<DCAsn1ClientToServer::AsnCustomOpAvailabiltyEnum> AVAILABILITY_WORDS[] = {
    {"PopupMenu", DCAsn1ClientToServer::PopupMenu},
    {"Tab", DCAsn1ClientToServer::Tab},
    {"createTaskDialog", DCAsn1ClientToServer::createTaskDialog},
    {"modifyTaskDialog", DCAsn1ClientToServer::modifyTaskDialog},
    {"viewTaskDialog", DCAsn1ClientToServer::viewTaskDialog},
};

inline constexpr StWord<DCAsn1ClientToServer::AsnPatchTypeEnum> PATCH_TYPE_WORDS[] = {
    {"HotPatch", DCAsn1ClientToServer::HotPatch},
    {"ColdPatch", DCAsn1ClientToServer::ColdPatch},
};

// Menus, patch items and task steps.
inline constexpr StWord<DCAsn1ClientToServer::AsnTypeRefEnum> TYPE_REF_WORDS[] = {
    {"DeviceOperation", DCAsn1ClientToServer::DeviceOperation},
    {"PatchOperation", DCAsn1ClientToServer::PatchOperation},
    {"CheckOperation", DCAsn1ClientToServer::CheckOperation},
    {"CustomOperation", DCAsn1ClientToServer::CustomOperation},
    {"OtherOperation", DCAsn1ClientToServer::OtherOperation},
    {"TaskOperation", DCAsn1ClientToServer::TaskOperation},
};

// The isolation view knows three kinds, and the last one is known nowhere else.
inline constexpr StWord<DCAsn1ClientToServer::AsnTypeRefEnum> ISOLATION_TYPE_REF_WORDS[] = {
    {"TaskOperation", DCAsn1ClientToServer::TaskOperation},
    {"DeviceOperation", DCAsn1ClientToServer::DeviceOperation},
    {"BoardOperation", DCAsn1ClientToServer::BoardOperation},
};

// A task type has one name and two numbers: one in check files and queries, one
// in the task configuration. They differ in three rows, deliberately.
struct StTaskTypeWord
{
    std::string_view                      strWord;
    DCAsn1ClientToServer::AsnTaskTypeEnum enTaskType;   // task-type name table
    DCAsn1ClientToServer::AsnTaskTypeEnum enConfigType; // task configuration mapping
};

inline constexpr StTaskTypeWord TASK_TYPE_WORDS[] = {
    {"SoftwareUpgrade", DCAsn1ClientToServer::SoftwareUpgrade, DCAsn1ClientToServer::SoftwareUpgrade},
    {"SoftwareDowngrade", DCAsn1ClientToServer::SoftwareDowngrade, DCAsn1ClientToServer::SoftwareDowngrade},
    {"PatchUpdate", DCAsn1ClientToServer::PatchUpdate, DCAsn1ClientToServer::PatchUpdate},
    {"SimulationPackageUpgrade", DCAsn1ClientToServer::SimulationPackageUpgrade,
     DCAsn1ClientToServer::SimulationPackageUpgrade},
    {"PackageUpgrade", DCAsn1ClientToServer::PackageUpgrade, DCAsn1ClientToServer::PackageUpgrade},
    {"PackageDowngrade", DCAsn1ClientToServer::PackageDowngrade, DCAsn1ClientToServer::PackageDowngradeConfig},
    {"PackageDiffusion", DCAsn1ClientToServer::PackageDiffusion, DCAsn1ClientToServer::PackageDiffusion},
    {"PackageDiffusionDowngrade", DCAsn1ClientToServer::PackageDiffusionDowngrade,
     DCAsn1ClientToServer::PackageDiffusionDowngradeConfig},
    {"OLTAgentUpgrade", DCAsn1ClientToServer::OLTAgentUpgrade, DCAsn1ClientToServer::OLTAgentUpgrade},
    {"OpticalModuleUpgrade", DCAsn1ClientToServer::OpticalModuleUpgrade,
     DCAsn1ClientToServer::OpticalModuleUpgradeConfig},
    {"NuboMeterUpgrade", DCAsn1ClientToServer::NuboMeterUpgrade, DCAsn1ClientToServer::NuboMeterUpgrade},
    {"ConfTransferUpgradeTask", DCAsn1ClientToServer::ConfTransferUpgradeTask,
     DCAsn1ClientToServer::ConfTransferUpgradeTask},
};

// The row of a task-type name, or null.
OPERATIONXML_API const StTaskTypeWord* findTaskType(std::string_view strName);

// The AsnTaskTypeEnum number of a task-type name, -1 when it is unknown or empty.
OPERATIONXML_API std::int32_t getTaskTypeByName(const std::string& strName);

#endif
