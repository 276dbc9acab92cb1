// What is asked about, a device or a type, and how it resolves to the configuration that
// serves it, step by step. Plain values; the served keys are those of CServedKeys.
#ifndef OPERATIONXML_TOOLS_OPXML_EXPLAIN_SUBJECT_H
#define OPERATIONXML_TOOLS_OPXML_EXPLAIN_SUBJECT_H

#include "standalone/DeviceList.h"
#include "tools/opxml/explain/Obstacles.h"

#include <optional>
#include <string>
#include <vector>

// One step: what it found, and the rule that decided.
struct StStep
{
    std::string strName; // "telnet"
    std::string strFound;
    std::string strWhy; // may be empty
};

struct StSubject
{
    std::string                               strTitle;      // "device 101 lx-hall-a"; '"LX 2400/S" V3.8'
    std::optional<standalone::StListedDevice> oDevice;       // none for a type
    std::string                               strDevType;    // empty: the type of the device is not installed
    std::string                               strDevTypeVer; // as it is asked with, a telnet variant with "_telnet"
    StLookedInto                              stServing;     // the configuration that serves it
    std::vector<StStep>                       lstStep;
    std::string                               strProblem; // why there is none; empty: there is one

    // The questions look into the first configuration, whatever version a device runs.
    bool isFirstServing() const { return stServing.nConfiguration == 0; }
};

// By "TYPE", "TYPE:VERSION", "TYPE:VERSION:SOFTWARE:PATCH" or a storage key, or the id,
// name or address of a device. False when there is none; strError then says so.
bool findSubject(CServedKeys& oKeys, const std::string& strName, StSubject& stSubject, std::string& strError);

#endif
