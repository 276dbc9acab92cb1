// The device adapter, answered from the inventory.
#include "platform/DeviceAdapter.h"

#include "standalone/Fault.h"
#include "standalone/Inventory.h"
#include "standalone/ServerRoot.h"

using namespace standalone;

CDeviceAdapterInterface* CDeviceAdapterInterface::getInstance()
{
    static CDeviceAdapterInterface oInstance;
    return &oInstance;
}

std::uint32_t CDeviceAdapterInterface::getALLDLLInfo(std::list<StDeviceType>& lstDllInfo)
{
    if (const auto oFault = armedFault("CDeviceAdapterInterface::getALLDLLInfo"))
        return *oFault;
    const auto pInventory = currentInventory();
    if (pInventory == nullptr)
        return RESULT_NO_ROOT;
    lstDllInfo.insert(lstDllInfo.end(), pInventory->lstDeviceType.begin(), pInventory->lstDeviceType.end());
    return 0;
}

std::uint32_t CDeviceAdapterInterface::searchDeviceType(const std::string& strDevType, const std::string& strDevTypeVer,
                                                        StDeviceType& stDeviceType)
{
    if (const auto oFault = armedFault("CDeviceAdapterInterface::searchDeviceType"))
        return *oFault;
    const auto pInventory = currentInventory();
    if (pInventory == nullptr)
        return RESULT_NO_ROOT;
    const StDeviceType* pType = pInventory->findType(strDevType, strDevTypeVer);
    if (pType == nullptr)
        return RESULT_NOT_IN_INVENTORY;
    stDeviceType = *pType;
    return 0;
}

std::uint32_t CDeviceAdapterInterface::searchTypeName(std::uint32_t ulDeviceTypeID, std::uint32_t ulDeviceTypeVersionID,
                                                      std::string& strDevType, std::string& strDevTypeVer)
{
    if (const auto oFault = armedFault("CDeviceAdapterInterface::searchTypeName"))
        return *oFault;
    const auto pInventory = currentInventory();
    if (pInventory == nullptr)
        return RESULT_NO_ROOT;
    const StDeviceType* pType = pInventory->findType(ulDeviceTypeID, ulDeviceTypeVersionID);
    if (pType == nullptr)
        return RESULT_NOT_IN_INVENTORY;
    strDevType    = pType->strDevType;
    strDevTypeVer = pType->strDevTypeVer;
    return 0;
}

std::uint32_t CDeviceAdapterInterface::getServerConfigFile(const std::string& strDevType, std::string& strFilePath)
{
    if (const auto oFault = armedFault("CDeviceAdapterInterface::getServerConfigFile"))
        return *oFault;
    const auto pInventory = currentInventory();
    if (pInventory == nullptr)
        return RESULT_NO_ROOT;
    const std::string* pPath = findValue(pInventory->mapConfigFile, strDevType);
    if (pPath == nullptr)
        return RESULT_NOT_IN_INVENTORY;
    strFilePath = *pPath;
    return 0;
}

std::uint32_t CDeviceAdapterInterface::getCheckFileAndType(const std::string& strDevType, std::string& strFilePath,
                                                           EnCheckReportType& enReportType)
{
    if (const auto oFault = armedFault("CDeviceAdapterInterface::getCheckFileAndType"))
        return *oFault;
    const auto pInventory = currentInventory();
    if (pInventory == nullptr)
        return RESULT_NO_ROOT;
    const StCheckFile* pFile = findValue(pInventory->mapCheckFile, strDevType);
    strFilePath              = pFile == nullptr ? std::string() : pFile->strPath;
    enReportType             = pFile == nullptr ? EnCheckReportNone : pFile->enReportType;
    return 0;
}

std::string CDeviceAdapterInterface::initXMLPath()
{
    if (armedFault("CDeviceAdapterInterface::initXMLPath"))
        return {};
    const auto pInventory = currentInventory();
    return pInventory == nullptr ? std::string() : pInventory->environment("XML_PATH", true);
}

bool CDeviceAdapterInterface::isSnmpDevice(std::uint32_t ulDeviceTypeID)
{
    if (armedFault("CDeviceAdapterInterface::isSnmpDevice"))
        return false;
    const auto           pInventory = currentInventory();
    const StDeviceClass* pClass     = pInventory == nullptr ? nullptr : pInventory->findClass(ulDeviceTypeID);
    return pClass != nullptr && pClass->bSnmp;
}

bool CDeviceAdapterInterface::isV3R7Device(std::uint32_t ulDeviceTypeID)
{
    if (armedFault("CDeviceAdapterInterface::isV3R7Device"))
        return false;
    const auto           pInventory = currentInventory();
    const StDeviceClass* pClass     = pInventory == nullptr ? nullptr : pInventory->findClass(ulDeviceTypeID);
    return pClass != nullptr && pClass->bV3R7;
}

bool CDeviceAdapterInterface::isSupportTelnetToDevice(std::uint32_t      ulDeviceTypeID,
                                                      const std::string& strTelnetCapability)
{
    if (armedFault("CDeviceAdapterInterface::isSupportTelnetToDevice"))
        return false;
    const auto pInventory = currentInventory();
    return pInventory != nullptr && pInventory->setTelnetSupport.count({ulDeviceTypeID, strTelnetCapability}) != 0;
}

std::uint32_t CDeviceAdapterInterface::searchDomain(std::uint32_t ulDeviceTypeID, EnDeviceType& enDomain)
{
    if (const auto oFault = armedFault("CDeviceAdapterInterface::searchDomain"))
        return *oFault;
    const auto pInventory = currentInventory();
    if (pInventory == nullptr)
        return RESULT_NO_ROOT;
    const StDeviceClass* pClass = pInventory->findClass(ulDeviceTypeID);
    if (pClass == nullptr)
        return RESULT_NOT_IN_INVENTORY;
    enDomain = pClass->enDomain;
    return 0;
}

std::uint16_t CCompatibleAdapter::getCompatibleDevType(std::uint16_t usDeviceTypeID)
{
    if (const auto oFault = armedFault("CCompatibleAdapter::getCompatibleDevType"))
        return static_cast<std::uint16_t>(*oFault);
    const auto           pInventory = currentInventory();
    const StDeviceClass* pClass     = pInventory == nullptr ? nullptr : pInventory->findClass(usDeviceTypeID);
    return pClass == nullptr ? usDeviceTypeID : pClass->oCompatible.value_or(usDeviceTypeID);
}
