// What the commands on the alarm tables share: the language they are read in, and a
// table that cannot be read.
#ifndef OPERATIONXML_TOOLS_OPXML_COMMANDS_ALARMTABLES_H
#define OPERATIONXML_TOOLS_OPXML_COMMANDS_ALARMTABLES_H

#include "alarm/AlarmTable.h"
#include "tools/opxml/commands/Command.h"

#include <cstdint>
#include <string>
#include <vector>

struct StAlarmOptions
{
    std::string strLanguage; // empty: the one that the environment names
    bool        bCheck = false;
    bool        bJson  = false;
};

// Adds --lang, --check and --json.
void addAlarmOptions(CLI::App& oCommand, StAlarmOptions& stOptions);

// Opens the server root and chooses the language; throws CTrouble. Loads no
// device type.
void openAlarmRoot(const StGlobalOptions& stGlobal, const StAlarmOptions& stOptions);

// The languages that there are, in the byte order of their names, and the choice of one
// for the tables that are read from now on. The root is open.
std::vector<std::string> alarmLanguages();
void                     chooseAlarmLanguage(const std::string& strLanguage);

// Throws CTrouble with the reason when the table was not read.
void requireTable(const CAlarmTable& oTable);

// A whole unsigned decimal number; throws CTrouble, naming what was asked for.
std::uint64_t readId(const std::string& strWhat, const std::string& strText);

// The text as such a number; false when it is none.
bool isId(const std::string& strText, std::uint64_t& ulId);

#endif
