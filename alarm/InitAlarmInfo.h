// InitAlarmInfo: name and explanation of an alarm in the operator's language,
// read once from "kivo/fm/dc_tbl_alm_exp_info.xml" below the language folder.
// No lock anywhere: the first Instance() comes before concurrent use, Destroy()
// after it; the lookups in between only read. No failure reaches the caller:
// what cannot be read is logged and has empty texts.
#ifndef OPERATIONXML_ALARM_INITALARMINFO_H
#define OPERATIONXML_ALARM_INITALARMINFO_H

#include "alarm/AlarmTable.h"

#include <cstdint>
#include <map>
#include <string>

struct AlarmStaticInfo
{
    std::uint64_t ulAlarmId = 0; // "AlarmID"
    std::string   strAlarmName;  // "AlarmName"
    std::string   strExplain;    // "Explain"
    std::string   strReserved;   // not in the file
};

class OPERATIONXML_API InitAlarmInfo : public CAlarmTable
{
public:
    // The one instance; the first call after the start or after Destroy() reads the file.
    // Never null: it needs no memory of its own.
    static InitAlarmInfo* Instance();
    // Destroy() ends the life of that pointer and of every reference got through it,
    // so no other thread may still use them.
    static void Destroy();

    // A copy of what is known of the alarm; an unknown one comes back under the
    // id that was asked for, with empty texts.
    AlarmStaticInfo getAlarmNameByAlarmId(unsigned long ulAlarmId) const;

    // Fills one value from one "record" element; a later param of a name
    // overwrites an earlier one, and params of other names are left alone.
    static void fillAlarmInfo(const xercesc::DOMElement* pRecord, AlarmStaticInfo& stAlarm);

    // Every alarm of the file by its id; for tools.
    const std::map<std::uint64_t, AlarmStaticInfo>& alarms() const { return m_mapAlarm; }

private:
    InitAlarmInfo();
    ~InitAlarmInfo() = default;

    // Owned by Instance() and Destroy() alone. Not destroyed at exit: the host
    // may still ask while its own statics die.
    static InitAlarmInfo* m_pInstance;

    std::map<std::uint64_t, AlarmStaticInfo> m_mapAlarm;
};

#endif
