// Why a device is managed over telnet, or is not, in words.
#ifndef OPERATIONXML_TOOLS_OPXML_EXPLAIN_TELNETRULE_H
#define OPERATIONXML_TOOLS_OPXML_EXPLAIN_TELNETRULE_H

#include "platform/DeviceDatabase.h"

#include <string>

struct StTelnetRule
{
    bool        bTelnet = false;
    std::string strWhy; // the step that decided: "the connection state is 1"
};

StTelnetRule telnetRule(const StDeviceInfo& stDevice);

#endif
