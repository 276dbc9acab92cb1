// The devices of the open root that lose something by the changes of a comparison.
#ifndef OPERATIONXML_TOOLS_OPXML_DIFF_HURTDEVICES_H
#define OPERATIONXML_TOOLS_OPXML_DIFF_HURTDEVICES_H

#include "tools/opxml/diff/Diff.h"

#include <vector>

// By id. A device loses what breaks in the configuration that serves it: that of its type,
// or of the telnet variant when it is managed over telnet.
std::vector<StHurtDevice> findHurtDevices(const StDiff& stDiff);

#endif
