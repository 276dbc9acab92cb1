// The device adapter, answered from the inventory.
#include "platform/DeviceAdapter.h"

#include "standalone/Answer.h"

using namespace standalone;

CDeviceAdapterInterface* CDeviceAdapterInterface::getInstance()
{
    static CDeviceAdapterInterface oInstance;
    armedFault<operation("CDeviceAdapterInterface::getInstance")>();
    return &oInstance;
}

std::uint32_t CDeviceAdapterInterface::getALLDLLInfo(std::list<StDeviceType>& lstDllInfo)
{
    return answerCode<operation("CDeviceAdapterInterface::getALLDLLInfo")>(
        [&](const StInventory& stInventory)
        {
            const auto& oListed = stInventory.oListed;
            for (const StDeviceType& stType : stInventory.lstDeviceType)
            {
                if (!oListed || oListed->count(withoutTelnet(stType.strDevType)) != 0)
                    lstDllInfo.push_back(stType);
            }
            return 0u;
        });
}

std::uint32_t CDeviceAdapterInterface::searchDeviceType(const std::string& strDevType, const std::string& strDevTypeVer,
                                                        StDeviceType& stDeviceType)
{
    return answerCode<operation("CDeviceAdapterInterface::searchDeviceType")>(
        [&](const StInventory& stInventory)
        { return copyFound(stInventory.findType(strDevType, strDevTypeVer), stDeviceType); });
}

std::uint32_t CDeviceAdapterInterface::searchTypeName(std::uint32_t ulDeviceTypeID, std::uint32_t ulDeviceTypeVersionID,
                                                      std::string& strDevType, std::string& strDevTypeVer)
{
    return answerCode<operation("CDeviceAdapterInterface::searchTypeName")>(
        [&](const StInventory& stInventory)
        { return stInventory.typeName(ulDeviceTypeID, ulDeviceTypeVersionID, strDevType, strDevTypeVer); });
}

std::uint32_t CDeviceAdapterInterface::getServerConfigFile(const std::string& strDevType, std::string& strFilePath)
{
    return answerCode<operation("CDeviceAdapterInterface::getServerConfigFile")>(
        [&](const StInventory& stInventory)
        { return copyFound(findValue(stInventory.mapConfigFile, strDevType), strFilePath); });
}

std::uint32_t CDeviceAdapterInterface::getCheckFileAndType(const std::string& strDevType, std::string& strFilePath,
                                                           EnCheckReportType& enReportType)
{
    return answerCode<operation("CDeviceAdapterInterface::getCheckFileAndType")>(
        [&](const StInventory& stInventory)
        {
            StCheckFile stFile; // no row: no file
            copyFound(findValue(stInventory.mapCheckFile, strDevType), stFile);
            strFilePath  = stFile.strPath;
            enReportType = stFile.enReportType;
            return 0u;
        });
}

std::string CDeviceAdapterInterface::initXMLPath()
{
    return answerValue<operation("CDeviceAdapterInterface::initXMLPath")>(
        [](const StInventory& stInventory) { return stInventory.environment("XML_PATH", true); });
}

bool CDeviceAdapterInterface::isSnmpDevice(std::uint32_t ulDeviceTypeID)
{
    return answerValue<operation("CDeviceAdapterInterface::isSnmpDevice")>(
        [&](const StInventory& stInventory) { return stInventory.classOf(ulDeviceTypeID).bSnmp; });
}

bool CDeviceAdapterInterface::isV3R7Device(std::uint32_t ulDeviceTypeID)
{
    return answerValue<operation("CDeviceAdapterInterface::isV3R7Device")>(
        [&](const StInventory& stInventory) { return stInventory.classOf(ulDeviceTypeID).bV3R7; });
}

bool CDeviceAdapterInterface::isSupportTelnetToDevice(std::uint32_t      ulDeviceTypeID,
                                                      const std::string& strTelnetCapability)
{
    return answerValue<operation("CDeviceAdapterInterface::isSupportTelnetToDevice")>(
        [&](const StInventory& stInventory) {
            return stInventory.setTelnetSupport.count({ulDeviceTypeID, strTelnetCapability}) != 0;
        });
}

std::uint32_t CDeviceAdapterInterface::searchDomain(std::uint32_t ulDeviceTypeID, EnDeviceType& enDomain)
{
    return answerCode<operation("CDeviceAdapterInterface::searchDomain")>(
        [&](const StInventory& stInventory)
        {
            const StDeviceClass* pClass = findValue(stInventory.mapDeviceClass, ulDeviceTypeID);
            return copyFound(pClass == nullptr ? nullptr : &pClass->enDomain, enDomain);
        });
}

std::uint16_t CCompatibleAdapter::getCompatibleDevType(std::uint16_t usDeviceTypeID)
{
    if (const auto oFault = armedFault<operation("CCompatibleAdapter::getCompatibleDevType")>())
        return static_cast<std::uint16_t>(*oFault);
    const auto pInventory = currentInventory();
    return pInventory == nullptr ? usDeviceTypeID
                                 : pInventory->classOf(usDeviceTypeID).oCompatible.value_or(usDeviceTypeID);
}
