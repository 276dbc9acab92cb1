// See TelnetRule.h.
#include "tools/opxml/explain/TelnetRule.h"

#include "database/CXMLConfigDatabase.h"

#include <fmt/format.h>

StTelnetRule telnetRule(const StDeviceInfo& stDevice)
{
    using Step                    = CXMLConfigDatabase::EnTelnetStep;
    Step                enDecided = Step::Domain;
    const bool          bTelnet   = CXMLConfigDatabase::bTelnetToDev(stDevice, enDecided);
    const std::uint32_t ulTypeID  = stDevice.ulDeviceTypeID;
    switch (enDecided)
    {
    case Step::Domain:
        return {bTelnet,
                fmt::format("type {} is not in domain {} (datacom)", ulTypeID, static_cast<int>(EnDeviceTypeDatacom))};
    case Step::NoDevice:
        return {bTelnet, "the id stands for no device"};
    case Step::LoginState:
        return {bTelnet, fmt::format("the login state is {}", stDevice.ulLoginState)};
    case Step::ConnectState:
        return {bTelnet, fmt::format("the connection state is {}", stDevice.ulConnectState)};
    case Step::Snmp:
        return {bTelnet, fmt::format("type {} is managed over SNMP", ulTypeID)};
    case Step::NotV3R7:
        return {bTelnet, fmt::format("type {} is neither managed over SNMP nor V3R7", ulTypeID)};
    case Step::OtherType:
        return {bTelnet, fmt::format("type {} stands for another type", ulTypeID)};
    case Step::Capability:
        break;
    }
    return {bTelnet, fmt::format("type {} {} the telnet capability \"{}\"", ulTypeID,
                                 bTelnet ? "supports" : "does not support", stDevice.strTelnetCapability)};
}
