// The protocol enumerations of the client/server messages and the object that
// holds one in a record. The numbers are shared with the client: they are
// pinned here and never renumbered.
#ifndef OPERATIONXML_RECORDS_ENUMERATIONS_H
#define OPERATIONXML_RECORDS_ENUMERATIONS_H

#include <cstdint>

// One enumerated protocol value. Holds 0 until it is assigned.
template <typename Enum>
class AsnEnum
{
public:
    constexpr AsnEnum() noexcept = default;
    constexpr AsnEnum(Enum enValue) noexcept : m_nValue(enValue) {}
    constexpr              operator Enum() const noexcept { return static_cast<Enum>(m_nValue); }
    constexpr std::int32_t number() const noexcept { return m_nValue; }

private:
    std::int32_t m_nValue = 0;
};

namespace DCAsn1ClientToServer
{
enum AsnOperationLevelEnum : std::int32_t
{
    DeviceLevel = 0,
    BoardLevel  = 1,
    Both        = 2,
};

// The misspelling is the type's name.
enum AsnCustomOpAvailabiltyEnum : std::int32_t
{
    PopupMenu        = 0,
    Tab              = 1,
    createTaskDialog = 2,
    modifyTaskDialog = 3,
    viewTaskDialog   = 4,
};

enum AsnPatchTypeEnum : std::int32_t
{
    HotPatch  = 0,
    ColdPatch = 1,
};

enum AsnTypeRefEnum : std::int32_t
{
    DeviceOperation  = 0,
    TaskOperation    = 1,
    PatchOperation   = 2,
    CheckOperation   = 3,
    CustomOperation  = 4,
    OtherOperation   = 5,
    UnknownOperation = 6, // any other text
    BoardOperation   = 7, // isolation view only
};

// Some kinds carry two numbers: the task configuration numbers them on its own
// (names ending in Config). 6, 10 and 11 are not in use.
enum AsnTaskTypeEnum : std::int32_t
{
    SoftwareUpgrade                 = 0,
    SoftwareDowngrade               = 1,
    PatchUpdate                     = 2,
    SimulationPackageUpgrade        = 3,
    PackageUpgrade                  = 4,
    PackageDiffusion                = 5,
    OLTAgentUpgrade                 = 7,
    PackageDiffusionDowngrade       = 8,
    PackageDowngrade                = 9,
    PackageDiffusionDowngradeConfig = 12,
    PackageDowngradeConfig          = 13,
    OpticalModuleUpgrade            = 14,
    OpticalModuleUpgradeConfig      = 15,
    NuboMeterUpgrade                = 16,
    ConfTransferUpgradeTask         = 17,
};
} // namespace DCAsn1ClientToServer

#endif
