// The question that every platform operation asks first: is a fault armed for
// it (CFaultPoint)? One relaxed atomic load when none is armed anywhere.
#ifndef OPERATIONXML_STANDALONE_FAULT_H
#define OPERATIONXML_STANDALONE_FAULT_H

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace standalone
{
// Every operation of platform/. What asks under another name does not compile,
// what arms one is refused, and the tests let each fail in turn.
inline constexpr std::string_view PLATFORM_OPERATIONS[] = {
    "CDCCapacityManagerDB::readCapacity",
    "CDCDeviceInfoDB::getDevInfo",
    "CDCDeviceInfoDB::getDevTypeAndVersionName",
    "CDCDeviceInfoDB::getDevVerInfo",
    "CDCDeviceInfoDB::getDeviceInfo",
    "CDCSettingInfoTab::Instance",
    "CDCSettingInfoTab::getValueByParam",
    "CCompatibleAdapter::getCompatibleDevType",
    "CDeviceAdapterInterface::getALLDLLInfo",
    "CDeviceAdapterInterface::getCheckFileAndType",
    "CDeviceAdapterInterface::getInstance",
    "CDeviceAdapterInterface::getServerConfigFile",
    "CDeviceAdapterInterface::initXMLPath",
    "CDeviceAdapterInterface::isSnmpDevice",
    "CDeviceAdapterInterface::isSupportTelnetToDevice",
    "CDeviceAdapterInterface::isV3R7Device",
    "CDeviceAdapterInterface::searchDeviceType",
    "CDeviceAdapterInterface::searchDomain",
    "CDeviceAdapterInterface::searchTypeName",
    "CSysCommonFunc::readResourceFile",
    "KIVO_OS::closedir",
    "KIVO_OS::opendir",
    "KIVO_OS::readdir_r",
    "KIVO_OS::stat",
    "LogProcess::Error",
    "LogProcess::Info",
    "NS_UTIL::AppendDirSeparator",
    "NS_UTIL::CConfigItem::Instance",
    "NS_UTIL::CConfigItem::readCfgItemIntValueFromDB",
    "NS_UTIL::CDCLogFilter::filter",
    "NS_UTIL::CDCLogFilter::getInstance",
    "NS_UTIL::EmfGetServerPath_DC",
    "NS_UTIL::IsExists",
    "TEEventMgr::Instance",
    "TEEventMgr::raiseEvent",
    "_TraceFunction::_TraceFunction",
    "kIVOGlobalUtils::LOCTOUTF8",
    "ns_kivosdk_wrap::GetEnvValue",
};

// The operation's place in that list.
constexpr std::size_t operation(std::string_view strName)
{
    for (std::size_t nAt = 0; nAt < std::size(PLATFORM_OPERATIONS); ++nAt)
        if (PLATFORM_OPERATIONS[nAt] == strName)
            return nAt;
    throw std::invalid_argument("no platform operation is called " + std::string(strName));
}

extern std::atomic<int> g_nArmedFaults;

std::optional<std::uint32_t> countCall(std::size_t nOperation);

// What the operation is to answer instead of doing its work, if anything; throws
// what was armed to be thrown.
template <std::size_t nOperation>
std::optional<std::uint32_t> armedFault()
{
    if (g_nArmedFaults.load(std::memory_order_relaxed) == 0)
        return std::nullopt;
    return countCall(nOperation);
}
} // namespace standalone

#endif
