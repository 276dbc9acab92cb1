// The capacity database, answered from the inventory.
#include "platform/CapacityDatabase.h"

#include "standalone/Fault.h"
#include "standalone/Inventory.h"

using namespace standalone;

// A type without records has an empty list: that is an answer, not a failure.
bool CDCCapacityManagerDB::readCapacity(const std::string& strDevType, const std::string& strDevTypeVer,
                                        std::list<StCapacityInfo>& lstCapacity)
{
    if (armedFault("CDCCapacityManagerDB::readCapacity"))
        return false;
    const auto pInventory = currentInventory();
    if (pInventory == nullptr)
        return false;
    if (const auto* pRecords = findValue(pInventory->mapCapacity, pairKey(strDevType, strDevTypeVer)))
        lstCapacity.insert(lstCapacity.end(), pRecords->begin(), pRecords->end());
    return true;
}
