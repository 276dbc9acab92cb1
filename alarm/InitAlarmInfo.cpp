// The alarm explanation dictionary: one "record" element is one alarm.
#include "alarm/InitAlarmInfo.h"

#include "common/Guarded.h"
#include "common/LogLine.h"
#include "common/XmlRead.h"

#include <cstddef>
#include <new>
#include <utility>

using namespace xercesc;

namespace
{
constexpr const char* DC_SOURCE = "InitAlarmInfo";

enum class EnAlarmParam
{
    Id,
    Name,
    Explain,
};

constexpr StWord<EnAlarmParam> ALARM_PARAMS[] = {
    {"AlarmID", EnAlarmParam::Id}, {"AlarmName", EnAlarmParam::Name}, {"Explain", EnAlarmParam::Explain}};

// One string of the right size: a table holds tens of thousands of alarms.
std::string loadLine(const AlarmStaticInfo& stAlarm)
{
    std::string strLine;
    strLine.reserve(80 + stAlarm.strAlarmName.size() + stAlarm.strExplain.size());
    strLine.append("alarm.alarmId:").append(std::to_string(stAlarm.ulAlarmId));
    strLine.append(" alarm.alarmName ").append(stAlarm.strAlarmName);
    strLine.append(" alarm.explain ").append(stAlarm.strExplain);
    return strLine;
}
} // namespace

InitAlarmInfo* InitAlarmInfo::m_pInstance = nullptr;

// Where the instance lives: no memory can be short of it.
alignas(InitAlarmInfo) static std::byte s_arInstance[sizeof(InitAlarmInfo)];

InitAlarmInfo* InitAlarmInfo::Instance()
{
    if (m_pInstance == nullptr)
        m_pInstance = new (s_arInstance) InitAlarmInfo();
    return m_pInstance;
}

void InitAlarmInfo::Destroy()
{
    if (m_pInstance != nullptr)
        std::exchange(m_pInstance, nullptr)->~InitAlarmInfo();
}

// What is thrown ends the read: the alarms taken before it stay.
InitAlarmInfo::InitAlarmInfo()
{
    const LocationInfo stHere = DC_HERE;
    try
    {
        const CEntry         oEntry;
        const _TraceFunction oTrace(stHere);
        read(stHere, "kivo/fm/dc_tbl_alm_exp_info.xml",
             [&](const DOMElement& oRecord)
             {
                 AlarmStaticInfo stAlarm;
                 fillAlarmInfo(&oRecord, stAlarm);
                 logInfo(stHere, loadLine(stAlarm));
                 // The first record of an id stays.
                 const std::uint64_t ulAlarmId = stAlarm.ulAlarmId;
                 m_mapAlarm.try_emplace(ulAlarmId, std::move(stAlarm));
             });
    }
    catch (...)
    {
        logThrown(stHere, DC_RESULT_XML_ERROR);
    }
}

AlarmStaticInfo InitAlarmInfo::getAlarmNameByAlarmId(unsigned long ulAlarmId) const
try
{
    const CEntry         oEntry;
    const _TraceFunction oTrace(DC_HERE);
    const auto           itFound = m_mapAlarm.find(ulAlarmId);
    if (itFound != m_mapAlarm.end())
        return itFound->second;
    AlarmStaticInfo stUnknown;
    stUnknown.ulAlarmId = ulAlarmId;
    return stUnknown;
}
catch (...)
{
    answerThrown(DC_HERE, DC_RESULT_XML_ERROR);
    return {ulAlarmId, {}, {}, {}};
}

void InitAlarmInfo::fillAlarmInfo(const DOMElement* pRecord, AlarmStaticInfo& stAlarm)
try
{
    const CEntry oEntry;
    if (pRecord == nullptr)
    {
        logFail(DC_HERE, DC_RESULT_XML_ERROR, "pElm is null.");
        return;
    }
    const CElements oParams(pRecord, u"param");
    if (oParams.isMissing())
    {
        logFail(DC_HERE, DC_RESULT_XML_ERROR, "DOMElement::getElementsByTagName failed :");
        return;
    }
    for (const DOMElement& oParam : oParams)
    {
        const StWord<EnAlarmParam>* pParam  = attrRow(CAttributes(oParam), u"name", ALARM_PARAMS);
        std::string                 strText = elementText(oParam);
        if (pParam == nullptr)
            continue;
        if (pParam->value == EnAlarmParam::Id)
            stAlarm.ulAlarmId = readNumber(strText).value_or(0);
        else
            (pParam->value == EnAlarmParam::Name ? stAlarm.strAlarmName : stAlarm.strExplain) = std::move(strText);
    }
}
catch (...)
{
    answerThrown(DC_HERE, DC_RESULT_XML_ERROR);
}
