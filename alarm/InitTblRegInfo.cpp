// The alarm transfer registration: one "record" element registers fault ids.
#include "alarm/InitTblRegInfo.h"

#include "common/Guarded.h"
#include "common/LogLine.h"
#include "common/XmlRead.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <new>
#include <string>
#include <string_view>
#include <utility>

using namespace xercesc;

namespace
{
constexpr const char*   DC_SOURCE   = "InitTblRegInfo";
constexpr unsigned long NO_DEV_TYPE = std::numeric_limits<unsigned long>::max();

// Of one table. No table that people write comes near it; parameters and records
// nested in each other, which are read once for each level, could.
constexpr std::size_t MAX_FAULT_IDS = 1'000'000;

enum class EnTransferParam
{
    DevType,
    FaultIds,
};

constexpr StWord<EnTransferParam> TRANSFER_PARAMS[] = {{"DevType", EnTransferParam::DevType},
                                                       {"FaultIDList", EnTransferParam::FaultIds}};

// As the ids stand in the table: 101,102
std::string joined(const std::list<unsigned long>& lstFaultId)
{
    std::string strIds;
    for (const unsigned long ulFaultId : lstFaultId)
        strIds += (strIds.empty() ? "" : ",") + std::to_string(ulFaultId);
    return strIds;
}
} // namespace

InitTblRegInfo* InitTblRegInfo::m_pInstance = nullptr;

// Where the instance lives: no memory can be short of it.
alignas(InitTblRegInfo) static std::byte s_arInstance[sizeof(InitTblRegInfo)];

void InitTblRegInfo::Destroy()
{
    if (m_pInstance != nullptr)
        std::exchange(m_pInstance, nullptr)->~InitTblRegInfo();
}

InitTblRegInfo* InitTblRegInfo::Instance()
{
    if (m_pInstance == nullptr)
        m_pInstance = new (s_arInstance) InitTblRegInfo();
    return m_pInstance;
}

// What is thrown ends the read: the registrations taken before it stay.
InitTblRegInfo::InitTblRegInfo()
{
    const LocationInfo stHere = DC_HERE;
    try
    {
        const CEntry         oEntry;
        const _TraceFunction oTrace(stHere);
        read(stHere, "kivo/fm/dc_tbl_RegInfo.xml", [this](const DOMElement& oRecord) { FillAlarmInfo(&oRecord); });
    }
    catch (...)
    {
        logThrown(stHere, DC_RESULT_XML_ERROR);
    }
}

bool InitTblRegInfo::NeedTransfer(const NS_UTIL::EnvAlarmInfo& stAlarm) const
try
{
    const CEntry         oEntry;
    const _TraceFunction oTrace(DC_HERE);
    return findRegistration(stAlarm) != EnTransferBy::None;
}
catch (...)
{
    answerThrown(DC_HERE, DC_RESULT_XML_ERROR);
    return false;
}

EnTransferBy InitTblRegInfo::findRegistration(const NS_UTIL::EnvAlarmInfo& stAlarm) const
{
    if (m_mapAllTypes.count(stAlarm.ulFaultId) != 0)
        return EnTransferBy::AllTypes;
    const auto itDevType = m_mapByDevType.find(stAlarm.ulDevType);
    if (itDevType != m_mapByDevType.end() && itDevType->second.count(stAlarm.ulFaultId) != 0)
        return EnTransferBy::DeviceType;
    return EnTransferBy::None;
}

void InitTblRegInfo::FillAlarmInfo(const DOMElement* pRecord)
try
{
    const CEntry    oEntry;
    const CElements oParams(pRecord, u"param");
    if (oParams.isMissing())
    {
        logFail(DC_HERE, DC_RESULT_XML_ERROR, "DOMElement::getElementsByTagName failed :");
        return;
    }
    ElementList lstParam;
    for (const DOMElement& oParam : oParams)
        lstParam.push_back(&oParam);

    unsigned long            ulDevType = NO_DEV_TYPE;
    std::list<unsigned long> lstFaultId;
    for (std::size_t nIndex = 0; nIndex < lstParam.size(); ++nIndex)
    {
        const std::uint32_t ulResult = GetAlarmsAndDevType(lstParam, ulDevType, lstFaultId, nIndex);
        if (ulResult != DC_RESULT_OK)
            logCall(DC_HERE, ulResult, "GetAlarmsAndDevType(paramNodeLst, devType, alaLst, j)");
    }
    if (ulDevType < NO_DEV_TYPE)
        AddAlarmInfoToMap(ulDevType, lstFaultId);
    else
        AddAlarmToLst(lstFaultId);
}
catch (...)
{
    answerThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

std::uint32_t InitTblRegInfo::GetAlarmsAndDevType(const ElementList& lstParam, unsigned long& ulDevType,
                                                  std::list<unsigned long>& lstFaultId, std::size_t nIndex)
try
{
    const CEntry      oEntry;
    const DOMElement* pParam = nIndex < lstParam.size() ? lstParam[nIndex] : nullptr;
    if (pParam == nullptr)
        return logFail(DC_HERE, DC_RESULT_XML_ERROR, "pElm is null.");
    return readParam(DC_HERE, *pParam, ulDevType, lstFaultId, m_nFaultIds);
}
catch (...)
{
    return answerThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

std::uint32_t InitTblRegInfo::readParam(const LocationInfo& stWhere, const DOMElement& oParam, unsigned long& ulDevType,
                                        std::list<unsigned long>& lstFaultId, std::size_t& nFaultIds)
{
    const StWord<EnTransferParam>* pParam  = attrRow(CAttributes(oParam), u"name", TRANSFER_PARAMS);
    const std::string              strText = elementText(oParam);
    if (pParam == nullptr)
        return DC_RESULT_XML_ERROR;
    if (pParam->value == EnTransferParam::DevType)
    {
        // Without a number the record applies to device type 0, not to all of them.
        ulDevType = readNumber(strText).value_or(0);
        return DC_RESULT_OK;
    }
    for (std::size_t nFrom = 0; nFrom <= strText.size();)
    {
        const std::size_t nComma = std::min(strText.find(',', nFrom), strText.size());
        if (++nFaultIds > MAX_FAULT_IDS)
            return logFail(stWhere, DC_RESULT_XML_ERROR, "The table holds too many fault ids.");
        // A piece that is no number is dropped: 0 would be an id nobody wrote.
        if (const auto ulFaultId = readNumber(std::string_view(strText).substr(nFrom, nComma - nFrom)))
            lstFaultId.push_back(*ulFaultId);
        nFrom = nComma + 1;
    }
    return DC_RESULT_OK;
}

// The ids are separated as in the table, the device type by a colon, so that a
// search for "by devtype:5:" finds one type's registrations.
void InitTblRegInfo::AddAlarmToLst(const std::list<unsigned long>& lstFaultId)
try
{
    const CEntry oEntry;
    addTo(m_mapAllTypes, lstFaultId);
    logInfo(DC_HERE, "alarm need to transfer:" + joined(lstFaultId));
}
catch (...)
{
    answerThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

void InitTblRegInfo::AddAlarmInfoToMap(const unsigned long& ulDevType, const std::list<unsigned long>& lstFaultId)
try
{
    const CEntry oEntry;
    addTo(m_mapByDevType[ulDevType], lstFaultId);
    logInfo(DC_HERE, "alarm need to transfer by devtype:" + std::to_string(ulDevType) + ":" + joined(lstFaultId));
}
catch (...)
{
    answerThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

void InitTblRegInfo::addTo(FaultIdMap& mapFaultId, const std::list<unsigned long>& lstFaultId) const
{
    for (const unsigned long ulFaultId : lstFaultId)
        mapFaultId.try_emplace(ulFaultId, recordNumber());
}
