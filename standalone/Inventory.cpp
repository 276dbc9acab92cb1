// See Inventory.h.
#include "standalone/Inventory.h"

#include "records/ServerNames.h"
#include "standalone/InventoryRows.h"
#include "standalone/ServerRoot.h"

#include <atomic>
#include <iterator>
#include <limits>
#include <string_view>

namespace standalone
{
namespace
{
constexpr std::string_view TELNET_SUFFIX = "_telnet";
constexpr std::string_view ROOT_MARK     = "${ROOT}";

constexpr StEnvironmentDefault ENVIRONMENT_DEFAULTS[] = {
    {ServerNames::APP_ROOT, "${ROOT}/"},
    {ServerNames::ENV_ROOT, "${ROOT}/"},
    {ServerNames::LANGUAGE, "en_US/"},
    {"XML_PATH", "${ROOT}/xml"},
};

bool endsInTelnet(std::string_view strName)
{
    return strName.size() >= TELNET_SUFFIX.size() &&
           strName.substr(strName.size() - TELNET_SUFFIX.size()) == TELNET_SUFFIX;
}

std::uint64_t idKey(std::uint32_t ulDeviceTypeID, std::uint32_t ulDeviceTypeVersionID)
{
    return (std::uint64_t{ulDeviceTypeID} << 32) | ulDeviceTypeVersionID;
}

std::shared_ptr<const StInventory>& inventorySlot()
{
    // Never destroyed: the exit handlers of the library may still ask.
    static auto* const pSlot = new std::shared_ptr<const StInventory>;
    return *pSlot;
}
} // namespace

std::string withoutTelnet(std::string strName)
{
    while (endsInTelnet(strName))
        strName.resize(strName.size() - TELNET_SUFFIX.size());
    return strName;
}

std::string pairKey(const std::string& strFirst, const std::string& strSecond)
{
    std::string strKey;
    strKey.reserve(strFirst.size() + 1 + strSecond.size());
    strKey.append(strFirst).append(1, '\0').append(strSecond);
    return strKey;
}

void StInventory::buildIndexes()
{
    for (std::size_t nAt = 0; nAt < lstDeviceType.size(); ++nAt)
    {
        const StDeviceType& stType = lstDeviceType[nAt];
        mapTypeByName.try_emplace(pairKey(stType.strDevType, stType.strDevTypeVer), nAt);
        mapTypeById.try_emplace(idKey(stType.ulDeviceTypeID, stType.ulDeviceTypeVersionID), nAt);
    }
    for (std::size_t nAt = 0; nAt < lstDevice.size(); ++nAt)
    {
        const StDeviceInfo& stInfo = lstDevice[nAt].stInfo;
        mapDeviceById.try_emplace(stInfo.ulDeviceID, nAt);
        if (const StDeviceType* pType = findType(stInfo.ulDeviceTypeID, stInfo.ulDeviceTypeVersionID))
            mapDeviceByType[pairKey(pType->strDevType, pType->strDevTypeVer)].push_back(nAt);
    }
}

const StDeviceType* StInventory::findType(const std::string& strName, const std::string& strVersion) const
{
    const std::size_t* pAt = findValue(mapTypeByName, pairKey(strName, strVersion));
    if (pAt == nullptr && endsInTelnet(strName) && strVersion.find(TELNET_SUFFIX) != std::string::npos)
        pAt = findValue(mapTypeByName, pairKey(strName.substr(0, strName.size() - TELNET_SUFFIX.size()), strVersion));
    return pAt == nullptr ? nullptr : &lstDeviceType[*pAt];
}

const StDeviceType* StInventory::findType(std::uint32_t ulDeviceTypeID, std::uint32_t ulDeviceTypeVersionID) const
{
    const std::size_t* pAt = findValue(mapTypeById, idKey(ulDeviceTypeID, ulDeviceTypeVersionID));
    return pAt == nullptr ? nullptr : &lstDeviceType[*pAt];
}

const StManagedDevice* StInventory::findDevice(unsigned long ulDeviceID) const
{
    if (ulDeviceID > std::numeric_limits<std::uint32_t>::max())
        return nullptr;
    const std::size_t* pAt = findValue(mapDeviceById, static_cast<std::uint32_t>(ulDeviceID));
    return pAt == nullptr ? nullptr : &lstDevice[*pAt];
}

std::uint32_t StInventory::typeName(std::uint32_t ulDeviceTypeID, std::uint32_t ulDeviceTypeVersionID,
                                    std::string& strDevType, std::string& strDevTypeVer) const
{
    const StDeviceType* pType = findType(ulDeviceTypeID, ulDeviceTypeVersionID);
    if (pType == nullptr)
        return RESULT_NOT_IN_INVENTORY;
    strDevType    = pType->strDevType;
    strDevTypeVer = pType->strDevTypeVer;
    return 0;
}

StDeviceClass StInventory::classOf(std::uint32_t ulDeviceTypeID) const
{
    const StDeviceClass* pClass = findValue(mapDeviceClass, ulDeviceTypeID);
    return pClass == nullptr ? StDeviceClass() : *pClass;
}

std::string StInventory::wholePath(const std::string& strPath) const
{
    return strPath.empty() || strPath.front() == '/' ? strPath : strRoot + "/" + strPath;
}

std::string StInventory::environment(const std::string& strName, bool bExpand) const
{
    std::string strValue;
    if (const std::string* pValue = findValue(mapEnvironment, strName))
        strValue = *pValue;
    else
        for (const StEnvironmentDefault& stDefault : ENVIRONMENT_DEFAULTS)
            if (stDefault.strName == strName)
                strValue = stDefault.pszValue;
    if (!bExpand)
        return strValue;
    for (std::size_t nAt = 0; (nAt = strValue.find(ROOT_MARK, nAt)) != std::string::npos; nAt += strRoot.size())
        strValue.replace(nAt, ROOT_MARK.size(), strRoot);
    return strValue;
}

std::vector<StEnvironmentDefault> environmentDefaults()
{
    return {std::begin(ENVIRONMENT_DEFAULTS), std::end(ENVIRONMENT_DEFAULTS)};
}

std::shared_ptr<const StInventory> currentInventory()
{
    return std::atomic_load(&inventorySlot());
}

void setCurrentInventory(std::shared_ptr<const StInventory> pInventory)
{
    std::atomic_store(&inventorySlot(), std::move(pInventory));
}
} // namespace standalone
