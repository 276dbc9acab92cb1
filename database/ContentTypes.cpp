// Content types and board types: names and numbers of the options of one
// parameter of one operation.
#include "common/Guarded.h"
#include "common/LogLine.h"
#include "database/ContentQuestions.h"
#include "database/QueryGuard.h"
#include "records/RecordSearch.h"

namespace
{
constexpr const char* DC_SOURCE = "CXMLConfigDatabase";

// Visits the parameters of an id in the operations of an id, all of them in order.
template <typename Operation, typename Visit>
void visitParameters(const StAsnDevTypeVerXMLInfo& stInfo, const StContentQuestion<Operation>& stQuestion,
                     Visit fnVisit)
{
    for (const Operation& stOper : stInfo.stOperationConfig.*stQuestion.pList)
    {
        if (stOper.strId != stQuestion.strOperation)
            continue;
        for (const StAsnOperParamDef& stParam : stOper.lstParam)
        {
            if (stParam.strId == stQuestion.strParameter)
                fnVisit(stParam.lstOption);
        }
    }
}

// The name of an option value: the first match in one parameter, the last
// parameter that has one. No match leaves the name as it came.
template <typename Operation>
void readOptionName(const StAsnDevTypeVerXMLInfo& stInfo, const StContentQuestion<Operation>& stQuestion, int nValue,
                    std::string& strName)
{
    visitParameters(stInfo, stQuestion,
                    [&](const std::list<StAsnOptionInfo>& lstOption)
                    {
                        for (const StAsnOptionInfo& stOption : lstOption)
                        {
                            if (stOption.ulValue != static_cast<std::uint32_t>(nValue))
                                continue;
                            strName = stOption.strId;
                            return;
                        }
                    });
}
} // namespace

std::uint32_t CXMLConfigDatabase::readContentName(const std::string& strDevType, const std::string& strDevTypeVer,
                                                  std::string_view strOperId, int nValue, std::string& strName)
{
    const auto* pInfo = getFirstDevTypeXMLConfig(strDevType, strDevTypeVer);
    if (pInfo == nullptr)
        return DC_RESULT_INVALID_PARA;        // the fetch has logged it
    auto stQuestion         = BACKUP_CONTENT; // or that of another operation
    stQuestion.strOperation = strOperId;
    readOptionName(*pInfo, stQuestion, nValue, strName);
    return DC_RESULT_OK;
}

std::uint32_t CXMLConfigDatabase::readDeviceContentName(const LocationInfo& stWhere, unsigned long ulDeviceID,
                                                        std::string_view strOperId, int nValue, std::string& strName)
{
    const CQueryGuard   oGuard(*this);
    std::string         strDevType;
    std::string         strDevTypeVer;
    const std::uint32_t ulResult = CDCDeviceInfoDB::getDevTypeAndVersionName(ulDeviceID, strDevType, strDevTypeVer);
    if (ulResult != DC_RESULT_OK)
        return logFail(stWhere, ulResult, "EmfGetDevTypeName Method Failed");
    return readContentName(strDevType, strDevTypeVer, strOperId, nValue, strName);
}

std::uint32_t CXMLConfigDatabase::getContentTypeId(unsigned long ulDeviceID, int nContentType, std::string& strName)
try
{
    const CEntry         oEntry;
    const _TraceFunction oTrace(DC_HERE);
    return readDeviceContentName(DC_HERE, ulDeviceID, BACKUP_CONTENT.strOperation, nContentType, strName);
}
catch (...)
{
    return answerThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

std::uint32_t CXMLConfigDatabase::getLoadDataContentTypeID(unsigned long ulDeviceID, int nContentType,
                                                           std::string& strName)
try
{
    const CEntry         oEntry;
    const _TraceFunction oTrace(DC_HERE);
    return readDeviceContentName(DC_HERE, ulDeviceID, LOAD_DATA_CONTENT.strOperation, nContentType, strName);
}
catch (...)
{
    return answerThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

std::uint32_t CXMLConfigDatabase::getBackupContentTypeId(unsigned long ulDeviceID, int nContentType,
                                                         std::string& strName)
try
{
    const CEntry         oEntry;
    const _TraceFunction oTrace(DC_HERE);
    const CQueryGuard    oGuard(*this);
    StDeviceInfo         zoStDeviceInfo;
    std::uint32_t        ulResult = CDCDeviceInfoDB::getDeviceInfo(ulDeviceID, zoStDeviceInfo);
    if (ulResult != DC_RESULT_OK)
        return logCall(DC_HERE, ulResult, "CDCDeviceInfoDB::getDeviceInfo(ulDevId, zoStDeviceInfo)");
    std::string strDevTypeName;
    std::string strDeviceTypeVersion;
    ulResult = CDeviceAdapterInterface::getInstance()->searchTypeName(
        zoStDeviceInfo.ulDeviceTypeID, zoStDeviceInfo.ulDeviceTypeVersionID, strDevTypeName, strDeviceTypeVersion);
    if (ulResult != DC_RESULT_OK)
        return logCall(DC_HERE, ulResult,
                       "CDeviceAdapterInterface::getInstance()->searchTypeName( zoStDeviceInfo.ulDeviceTypeID, "
                       "zoStDeviceInfo.ulDeviceTypeVersionID, strDevTypeName, strDeviceTypeVersion)");
    if (bTelnetToDev(zoStDeviceInfo))
    {
        logInfo(DC_HERE, strDevTypeName + "is telnet device.");
        strDeviceTypeVersion += Vocabulary::TELNET_SUFFIX;
    }
    return readContentName(strDevTypeName, strDeviceTypeVersion, BACKUP_CONTENT.strOperation, nContentType, strName);
}
catch (...)
{
    return answerThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

std::uint32_t CXMLConfigDatabase::getSAMContentTypeID(const std::string& strDevType, const std::string& strDevTypeVer,
                                                      const int& nContentType, std::string& strName)
try
{
    const CEntry         oEntry;
    const _TraceFunction oTrace(DC_HERE);
    const CQueryGuard    oGuard(*this);
    const auto*          pInfo = getFirstDevTypeXMLConfig(strDevType, strDevTypeVer);
    if (pInfo == nullptr)
        return DC_RESULT_INVALID_PARA;
    readOptionName(*pInfo, SAM_CONTENT, nContentType, strName);
    return DC_RESULT_OK;
}
catch (...)
{
    return answerThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

std::uint32_t CXMLConfigDatabase::getSAMContentTypeValue(const std::string& strDevType,
                                                         const std::string& strDevTypeVer, const std::string& strName,
                                                         int& nContentType)
try
{
    const CEntry         oEntry;
    const _TraceFunction oTrace(DC_HERE);
    const CQueryGuard    oGuard(*this);
    const auto*          pInfo = getFirstDevTypeXMLConfig(strDevType, strDevTypeVer);
    if (pInfo == nullptr)
        return DC_RESULT_INVALID_PARA;
    visitParameters(*pInfo, SAM_CONTENT,
                    [&](const std::list<StAsnOptionInfo>& lstOption)
                    {
                        if (const StAsnOptionInfo* pOption = findFirst(lstOption, strName))
                            nContentType = static_cast<int>(pOption->ulValue);
                    });
    return DC_RESULT_OK;
}
catch (...)
{
    return answerThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

std::uint32_t CXMLConfigDatabase::getBoardType(unsigned int ulDeviceTypeID, unsigned int ulDeviceTypeVersionID,
                                               int nBoardType, std::string& strName)
try
{
    const CEntry         oEntry;
    const _TraceFunction oTrace(DC_HERE);
    const CQueryGuard    oGuard(*this);
    std::string          strDevTypeName;
    std::string          strDeviceTypeVersion;
    const std::uint32_t  ulResult = CDeviceAdapterInterface::getInstance()->searchTypeName(
         ulDeviceTypeID, ulDeviceTypeVersionID, strDevTypeName, strDeviceTypeVersion);
    if (ulResult != DC_RESULT_OK)
        return logCall(DC_HERE, ulResult,
                       "CDeviceAdapterInterface::getInstance()->searchTypeName( ulDeviceTypeID, "
                       "ulDeviceTypeVersionID, strDevTypeName, strDeviceTypeVersion)");
    const auto* pInfo = getFirstDevTypeXMLConfig(strDevTypeName, strDeviceTypeVersion);
    if (pInfo == nullptr)
        return DC_RESULT_INVALID_PARA;
    if (pInfo->stOperationConfig.lstTaskOperation.empty())
        return DC_RESULT_FILE_NOT_EXIST;
    readOptionName(*pInfo, BOARD_TYPE, nBoardType, strName);
    return DC_RESULT_OK;
}
catch (...)
{
    return answerThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

std::uint32_t CXMLConfigDatabase::getAllBackupContentTypeNameByDevTypeName(const std::string&  strDevType,
                                                                           std::string&        strList,
                                                                           const EnDeviceType& enDeviceType)
try
{
    const CEntry         oEntry;
    const _TraceFunction oTrace(DC_HERE);
    const CQueryGuard    oGuard(*this);
    const auto*          pInfo = getFirstDevTypeXMLConfig(strDevType, "");
    if (pInfo == nullptr)
        return DC_RESULT_INVALID_PARA;
    strList.clear();
    visitParameters(*pInfo, BACKUP_CONTENT,
                    [&](const std::list<StAsnOptionInfo>& lstOption)
                    {
                        for (const StAsnOptionInfo& stOption : lstOption)
                            strList += std::to_string(stOption.ulValue) + "," + stOption.strId + ";";
                        if (lstOption.size() > 1 && enDeviceType == EnDeviceTypeAccess)
                            strList += "-1,AllFileType;";
                    });
    return DC_RESULT_OK;
}
catch (...)
{
    return answerThrown(DC_HERE, DC_RESULT_XML_ERROR);
}
