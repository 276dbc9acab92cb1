// The yes/no questions about a device type, and the telnet rules.
#include "common/Guarded.h"
#include "common/LogLine.h"
#include "database/QueryGuard.h"
#include "reader/ConfigPlan.h"
#include "records/RecordSearch.h"
#include "records/Vocabulary.h"

#include <algorithm>

namespace
{
constexpr const char* DC_SOURCE = "CXMLConfigDatabase";

// Type and version of a device as its queries look them up: the telnet variant
// exactly when the two names differ.
std::uint32_t resolveDevice(const LocationInfo& stWhere, int nDeviceID, std::string& strDevType,
                            std::string& strDevTypeVer)
{
    const std::uint32_t ulResult = CDCDeviceInfoDB::getDevTypeAndVersionName(
        static_cast<unsigned long>(static_cast<unsigned int>(nDeviceID)), strDevType, strDevTypeVer);
    if (ulResult != DC_RESULT_OK)
        return logFail(stWhere, ulResult, "EmfGetDevTypeName Method Failed");
    if (strDevTypeVer != strDevType)
        strDevTypeVer += Vocabulary::TELNET_SUFFIX;
    return DC_RESULT_OK;
}
} // namespace

std::uint32_t CXMLConfigDatabase::isDeviceOpSupported(const std::string& strDevType, const std::string& strDevTypeVer,
                                                      const std::string& strOperId, bool& bIsSupported)
try
{
    const CEntry         oEntry;
    const _TraceFunction oTrace(DC_HERE);
    bIsSupported = false;
    const CQueryGuard oGuard(*this);
    const auto*       pInfo = getFirstDevTypeXMLConfig(strDevType, strDevTypeVer);
    if (pInfo == nullptr)
        return DC_RESULT_INVALID_PARA; // the fetch has logged it
    bIsSupported = findFirst(pInfo->stOperationConfig.lstDevOperation, strOperId) != nullptr;
    return DC_RESULT_OK;
}
catch (...)
{
    return answerThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

std::uint32_t CXMLConfigDatabase::isDeviceOpParaSupported(const std::string& strDevType,
                                                          const std::string& strDevTypeVer,
                                                          const std::string& strOperId, const std::string& strParamId,
                                                          bool& bIsSupported)
try
{
    const CEntry         oEntry;
    const _TraceFunction oTrace(DC_HERE);
    bIsSupported = false;
    const CQueryGuard oGuard(*this);
    const auto*       pInfo = getFirstDevTypeXMLConfig(strDevType, strDevTypeVer);
    if (pInfo == nullptr)
        return DC_RESULT_INVALID_PARA;
    const StAsnOperation* pOper = findFirst(pInfo->stOperationConfig.lstDevOperation, strOperId);
    bIsSupported                = pOper != nullptr && findFirst(pOper->lstParam, strParamId) != nullptr;
    return DC_RESULT_OK;
}
catch (...)
{
    return answerThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

std::uint32_t CXMLConfigDatabase::isOtherOpSupported(const std::string& strDevType, const std::string& strDevTypeVer,
                                                     const std::string& strOperId, bool& bIsSupported)
try
{
    const CEntry         oEntry;
    const _TraceFunction oTrace(DC_HERE);
    bIsSupported = false;
    const CQueryGuard oGuard(*this);
    const auto*       pInfo = getFirstDevTypeXMLConfig(strDevType, strDevTypeVer);
    if (pInfo == nullptr)
        return DC_RESULT_INVALID_PARA;
    const StAsnOtherOperationDef* pOper = findFirst(pInfo->stOperationConfig.lstOtherOperation, strOperId);
    bIsSupported                        = pOper != nullptr && pOper->bIsSupported;
    return DC_RESULT_OK;
}
catch (...)
{
    return answerThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

std::uint32_t CXMLConfigDatabase::isOtherOpSupported(const std::string& strDevType, const std::string& strDevTypeVer,
                                                     const std::string& strOperId, const std::string& strParamId,
                                                     bool& bIsSupported)
try
{
    const CEntry         oEntry;
    const _TraceFunction oTrace(DC_HERE);
    bIsSupported = false;
    const CQueryGuard oGuard(*this);
    const auto*       pInfo = getFirstDevTypeXMLConfig(strDevType, strDevTypeVer);
    if (pInfo == nullptr)
        return DC_RESULT_INVALID_PARA;
    const StAsnOtherOperationDef* pOper  = findFirst(pInfo->stOperationConfig.lstOtherOperation, strOperId);
    const StAsnOperParamDef*      pParam = pOper == nullptr ? nullptr : findFirst(pOper->lstParam, strParamId);
    bIsSupported                         = pParam != nullptr && pParam->bIsRequired;
    return DC_RESULT_OK;
}
catch (...)
{
    return answerThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

bool CXMLConfigDatabase::isCancelOperSupported(int nDeviceID, const std::string& strOperId)
try
{
    const CEntry         oEntry;
    const _TraceFunction oTrace(DC_HERE);
    const CQueryGuard    oGuard(*this);
    std::string          strDevType;
    std::string          strDevTypeVer;
    if (resolveDevice(DC_HERE, nDeviceID, strDevType, strDevTypeVer) != DC_RESULT_OK)
        return true; // nothing is known that forbids it
    const auto* pInfo = getFirstDevTypeXMLConfig(strDevType, strDevTypeVer);
    if (pInfo == nullptr)
        return false;
    if (const auto* pCheck = findFirst(pInfo->stOperationConfig.lstCheckOperation, strOperId))
        return pCheck->bIsCancelable; // overrides a task operation of the id
    const auto* pTask = findFirst(pInfo->stOperationConfig.lstTaskOperation, strOperId);
    return pTask != nullptr && pTask->bIsCancelable;
}
catch (...)
{
    answerThrown(DC_HERE, DC_RESULT_XML_ERROR);
    return true; // nothing is known that forbids it
}

std::uint32_t CXMLConfigDatabase::isSupportTaskType(int nDeviceID, DCAsn1ClientToServer::AsnTaskTypeEnum enTaskType,
                                                    bool& bIsSupported)
try
{
    const CEntry         oEntry;
    const _TraceFunction oTrace(DC_HERE);
    bIsSupported = false;
    const CQueryGuard   oGuard(*this);
    std::string         strDevType;
    std::string         strDevTypeVer;
    const std::uint32_t ulResult = resolveDevice(DC_HERE, nDeviceID, strDevType, strDevTypeVer);
    if (ulResult != DC_RESULT_OK)
        return ulResult;
    const auto* pInfo = getFirstDevTypeXMLConfig(strDevType, strDevTypeVer);
    if (pInfo == nullptr)
        return DC_RESULT_INVALID_PARA;
    const auto& lstTask = pInfo->lstTaskConfigInfoOperation;
    bIsSupported        = std::any_of(lstTask.begin(), lstTask.end(),
                                      [enTaskType](const StAsnTaskConfigInfoOperation& stTask)
                                      { return stTask.enTaskType == enTaskType; });
    return DC_RESULT_OK;
}
catch (...)
{
    return answerThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

bool CXMLConfigDatabase::isSupportCapacity(const std::string& strDevType, const std::string& strDevTypeVer)
try
{
    const CEntry         oEntry;
    const _TraceFunction oTrace(DC_HERE);
    StDeviceType         stDeviceType;
    const std::uint32_t  ulResult =
        CDeviceAdapterInterface::getInstance()->searchDeviceType(strDevType, strDevTypeVer, stDeviceType);
    if (ulResult != DC_RESULT_OK)
    {
        logFail(DC_HERE, ulResult, "CDeviceAdapterInterface::getInstance()->searchDeviceType failed.");
        return false;
    }
    return isCapacityType(stDeviceType);
}
catch (...)
{
    answerThrown(DC_HERE, DC_RESULT_XML_ERROR);
    return false;
}

std::string CXMLConfigDatabase::trans2TelnetDevType(const std::string& strDevType, const std::string& strDevTypeVer)
try
{
    const CEntry oEntry;
    const bool   bTelnet = strDevTypeVer.find(Vocabulary::TELNET_SUFFIX) != std::string::npos;
    return bTelnet ? strDevType + std::string(Vocabulary::TELNET_SUFFIX) : strDevType;
}
catch (...)
{
    answerThrown(DC_HERE, DC_RESULT_XML_ERROR);
    return {};
}

bool CXMLConfigDatabase::bTelnetToDev(const StDeviceInfo& stDeviceInfo)
{
    EnTelnetStep enDecided = EnTelnetStep::Domain;
    return bTelnetToDev(stDeviceInfo, enDecided);
}

bool CXMLConfigDatabase::bTelnetToDev(const StDeviceInfo& stDeviceInfo, EnTelnetStep& enDecided)
try
{
    const CEntry         oEntry;
    const _TraceFunction oTrace(DC_HERE);
    const auto           decide = [&enDecided](EnTelnetStep enStep, bool bTelnet)
    {
        enDecided = enStep;
        return bTelnet;
    };
    CDeviceAdapterInterface* pAdapter = CDeviceAdapterInterface::getInstance();
    const std::uint32_t      ulTypeID = stDeviceInfo.ulDeviceTypeID;
    EnDeviceType             enDomain = EnDeviceTypeUnknown;
    pAdapter->searchDomain(ulTypeID, enDomain); // an id without a domain stays unknown
    if (enDomain != EnDeviceTypeDatacom)
        return decide(EnTelnetStep::Domain, false);
    if (stDeviceInfo.ulDeviceID == INVALID_DEVICE_ID)
        return decide(EnTelnetStep::NoDevice, false);
    if (stDeviceInfo.ulLoginState == 5 || stDeviceInfo.ulLoginState == 6)
        return decide(EnTelnetStep::LoginState, true);
    if (stDeviceInfo.ulConnectState == 1 || stDeviceInfo.ulConnectState == 2)
        return decide(EnTelnetStep::ConnectState, false);
    if (pAdapter->isSnmpDevice(ulTypeID))
        return decide(EnTelnetStep::Snmp, false);
    if (!pAdapter->isV3R7Device(ulTypeID))
        return decide(EnTelnetStep::NotV3R7, true);
    const auto usTypeID = static_cast<std::uint16_t>(ulTypeID); // compatibility knows 16 bits of an id
    if (usTypeID != CCompatibleAdapter::getCompatibleDevType(usTypeID))
        return decide(EnTelnetStep::OtherType, true);
    return decide(EnTelnetStep::Capability,
                  pAdapter->isSupportTelnetToDevice(ulTypeID, stDeviceInfo.strTelnetCapability));
}
catch (...)
{
    answerThrown(DC_HERE, DC_RESULT_XML_ERROR);
    return false;
}
