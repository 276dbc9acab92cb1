// InitTblRegInfo: which alarms the platform's fault management transfers to this
// server module, for all device types or for one, read once from
// "kivo/fm/dc_tbl_RegInfo.xml" below the language folder.
// No lock anywhere: the first Instance() comes before concurrent use, Destroy()
// after it; NeedTransfer in between only reads. A table that cannot be read is
// logged and transfers nothing.
#ifndef OPERATIONXML_ALARM_INITTBLREGINFO_H
#define OPERATIONXML_ALARM_INITTBLREGINFO_H

#include "alarm/AlarmTable.h"
#include "platform/Alarm.h"

#include <cstddef>
#include <cstdint>
#include <list>
#include <map>

// Which registration decides that an alarm is transferred.
enum class EnTransferBy
{
    None,       // not registered: it is not transferred
    AllTypes,   // registered without a device type
    DeviceType, // registered for the device type of the alarm
};

class OPERATIONXML_API InitTblRegInfo : public CAlarmTable
{
public:
    // Fault id to the number of the record that registered it first, counted
    // from 1. Whether an alarm is transferred follows from the keys alone.
    using FaultIdMap = std::map<unsigned long, unsigned long>;

    // The one instance; the first call after the start or after Destroy() reads the table.
    // Never null: it needs no memory of its own.
    static InitTblRegInfo* Instance();
    // Destroy() ends the life of that pointer and of every reference got through it,
    // so no other thread may still use them.
    static void Destroy();

    bool NeedTransfer(const NS_UTIL::EnvAlarmInfo& stAlarm) const;

    // The answer of NeedTransfer with its reason; for tools.
    EnTransferBy findRegistration(const NS_UTIL::EnvAlarmInfo& stAlarm) const;

    // These four write to the table, so nobody else may use it meanwhile.

    // Registers what one "record" element holds. A parameter that cannot be read
    // is logged and never stops its siblings.
    void FillAlarmInfo(const xercesc::DOMElement* pRecord);

    // Reads the parameter at the index into the device type or onto the id list.
    // DC_RESULT_XML_ERROR when there is none (logged) or its name is unknown.
    std::uint32_t GetAlarmsAndDevType(const ElementList& lstParam, unsigned long& ulDevType,
                                      std::list<unsigned long>& lstFaultId, std::size_t nIndex);

    // Reads one parameter into the device type or onto the id list, as long as no
    // more pieces than a table may hold were counted; logs for the operation that asks.
    static std::uint32_t readParam(const LocationInfo& stWhere, const xercesc::DOMElement& oParam,
                                   unsigned long& ulDevType, std::list<unsigned long>& lstFaultId,
                                   std::size_t& nFaultIds);

    void AddAlarmToLst(const std::list<unsigned long>& lstFaultId);

    // A further record of a device type extends what is registered for it.
    void AddAlarmInfoToMap(const unsigned long& ulDevType, const std::list<unsigned long>& lstFaultId);

    // The registrations, for all device types and by device type; for tools.
    const FaultIdMap&                          allTypes() const { return m_mapAllTypes; }
    const std::map<unsigned long, FaultIdMap>& byDevType() const { return m_mapByDevType; }

private:
    InitTblRegInfo();
    ~InitTblRegInfo() = default;

    void addTo(FaultIdMap& mapFaultId, const std::list<unsigned long>& lstFaultId) const;

    // Owned by Instance() and Destroy() alone. Not destroyed at exit: alarms may
    // still arrive while the host's own statics die.
    static InitTblRegInfo* m_pInstance;

    FaultIdMap                          m_mapAllTypes;
    std::map<unsigned long, FaultIdMap> m_mapByDevType;
    std::size_t                         m_nFaultIds = 0; // pieces of "FaultIDList" met so far
};

#endif
