// See TypeList.h.
#include "standalone/TypeList.h"

#include "standalone/Inventory.h"

#include <memory>
#include <utility>

namespace standalone
{
std::vector<StDeviceType> listTypes()
{
    const std::shared_ptr<const StInventory> pInventory = currentInventory();
    return pInventory == nullptr ? std::vector<StDeviceType>() : pInventory->lstDeviceType;
}

void listOnlyTypes(const std::set<std::string>& setName)
{
    const std::shared_ptr<const StInventory> pInventory = currentInventory();
    if (pInventory == nullptr)
        return;
    auto pChanged = std::make_shared<StInventory>(*pInventory);
    pChanged->oListed.emplace();
    for (const std::string& strName : setName)
        pChanged->oListed->insert(withoutTelnet(strName));
    setCurrentInventory(std::move(pChanged));
}
} // namespace standalone
