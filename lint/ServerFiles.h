// Which files the readers of a server would find, what each holds, and which device
// types are made of it. Asks the platform; reads no file.
#ifndef OPERATIONXML_LINT_SERVERFILES_H
#define OPERATIONXML_LINT_SERVERFILES_H

#include "lint/Lint.h"
#include "reader/ConfigPlan.h"

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace lint
{
// One registered device type.
struct StServerType
{
    std::string  strDevType;
    std::string  strDevTypeVer;
    std::string  strKey;
    std::string  strDevSysOid;
    StConfigPlan stPlan;
};

struct StServerFile
{
    EnFileKind               enKind = EnFileKind::Unknown;
    std::vector<std::size_t> lstType; // the types that are read from it, in registry order
};

struct StServerFiles
{
    std::vector<StServerType>           lstType;   // in registry order
    std::map<std::string, StServerFile> mapFile;   // by path, as readers are given it
    std::vector<std::string>            lstUnused; // in the folder of the configuration files, and nobody's
};

StServerFiles findServerFiles();
} // namespace lint

#endif
