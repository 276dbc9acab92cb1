// The capacity database, answered from the inventory.
#include "platform/CapacityDatabase.h"

#include "standalone/Answer.h"

using namespace standalone;

// A type without records has an empty list: that is an answer, not a failure.
bool CDCCapacityManagerDB::readCapacity(const std::string& strDevType, const std::string& strDevTypeVer,
                                        std::list<StCapacityInfo>& lstCapacity)
{
    return answerValue<operation("CDCCapacityManagerDB::readCapacity")>(
        [&](const StInventory& stInventory)
        {
            if (const auto* pRecords = findValue(stInventory.mapCapacity, pairKey(strDevType, strDevTypeVer)))
                lstCapacity.insert(lstCapacity.end(), pRecords->begin(), pRecords->end());
            return true;
        });
}
