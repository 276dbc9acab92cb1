// One function a record; the keys are the field names.
#include "tools/opxml/output/RecordJson.h"

namespace
{
template <typename Record>
Json toJsonList(const std::list<Record>& lstRecord);

Json toJson(const StAsnDevVersion& stVersion)
{
    return {{"strSoftVersion", stVersion.strSoftVersion}, {"strPatchVersion", stVersion.strPatchVersion}};
}

Json toJson(const StAsnOptionInfo& stOption)
{
    return {{"strId", stOption.strId}, {"ulValue", stOption.ulValue}, {"strTarget", stOption.strTarget}};
}

Json toJson(const StAsnOperParamDef& stParam)
{
    return {{"strId", stParam.strId},
            {"strValue", stParam.strValue},
            {"bIsRequired", stParam.bIsRequired},
            {"strSelected", stParam.strSelected},
            {"lstOption", toJsonList(stParam.lstOption)}};
}

Json toJson(const StAsnOperation& stOper)
{
    return {{"strId", stOper.strId},
            {"bIsCancelable", stOper.bIsCancelable},
            {"enOperationLevel", stOper.enOperationLevel.number()},
            {"lstParam", toJsonList(stOper.lstParam)},
            {"bExtFlag", stOper.bExtFlag},
            {"bIsSupported", stOper.bIsSupported}};
}

Json toJson(const StAsnMenuOpDef& stItem)
{
    return {{"enType", stItem.enType.number()}, {"strId", stItem.strId}};
}

Json toJson(const StAsnPatchItem& stItem)
{
    return {{"strId", stItem.strId}, {"enType", stItem.enType.number()}};
}

Json toJson(const StAsnPatchStateDef& stState)
{
    return {{"strName", stState.strName}, {"lstPatchItem", toJsonList(stState.lstPatchItem)}};
}

Json toJson(const StAsnPatchDef& stPatch)
{
    return {{"enPatchType", stPatch.enPatchType.number()}, {"lstPatchState", toJsonList(stPatch.lstPatchState)}};
}

Json toJson(const StAsnPatchTypeMenuDef& stMenu)
{
    return {{"enPatchType", stMenu.enPatchType.number()}, {"lstMenuOp", toJsonList(stMenu.lstMenuOp)}};
}

Json toJson(const StAsnCheckType& stCheck)
{
    return {{"strId", stCheck.strId},
            {"strDescription", stCheck.strDescription},
            {"strCmdKey", stCheck.strCmdKey},
            {"strSubItemFrom", stCheck.strSubItemFrom},
            {"nCompareType", stCheck.nCompareType},
            {"strCompareParam", stCheck.strCompareParam},
            {"bSelected", stCheck.bSelected},
            {"bIsCompare", stCheck.bIsCompare},
            {"ulIndex", stCheck.ulIndex},
            {"lstSubItem", toJsonList(stCheck.lstSubItem)},
            {"strExtInfo", stCheck.strExtInfo}};
}

Json toJson(const StAsnCheckOperationDef& stOper)
{
    return {{"strId", stOper.strId},
            {"enOperationLevel", stOper.enOperationLevel.number()},
            {"nTaskType", stOper.nTaskType},
            {"lstCheckType", toJsonList(stOper.lstCheckType)},
            {"bIsCancelable", stOper.bIsCancelable}};
}

Json toJson(const StAsnCustomOperationDef& stOper)
{
    return {{"strId", stOper.strId},
            {"strResourceClass", stOper.strResourceClass},
            {"strShortcutKey", stOper.strShortcutKey},
            {"enOperationLevel", stOper.enOperationLevel.number()},
            {"enAvailableIn", stOper.enAvailableIn.number()}};
}

Json toJson(const StAsnOtherOperationDef& stOper)
{
    return {{"strId", stOper.strId}, {"bIsSupported", stOper.bIsSupported}, {"lstParam", toJsonList(stOper.lstParam)}};
}

Json toJson(const StAsnUpgradeSubOperationDef& stOper)
{
    return {{"strId", stOper.strId},
            {"enOperationLevel", stOper.enOperationLevel.number()},
            {"lstParameter", toJsonList(stOper.lstParameter)}};
}

Json toJson(const StAsnUpgradeOperationDef& stOper)
{
    return {{"strId", stOper.strId},
            {"enOperationLevel", stOper.enOperationLevel.number()},
            {"lstSubOperation", toJsonList(stOper.lstSubOperation)}};
}

Json toJson(const StAsnTaskOperationDef& stStep)
{
    return {{"enType", stStep.enType.number()},    {"strId", stStep.strId},
            {"strDependsOn", stStep.strDependsOn}, {"strOperDescription", stStep.strOperDescription},
            {"strIsSelect", stStep.strIsSelect},   {"strIsPauseBeforeOP", stStep.strIsPauseBeforeOP}};
}

Json toJson(const StAsnTaskConfigOperation& stContent)
{
    return {{"strId", stContent.strId},
            {"strValue", stContent.strValue},
            {"bIsRequired", stContent.bIsRequired},
            {"strSelected", stContent.strSelected},
            {"lstOption", toJsonList(stContent.lstOption)},
            {"lstTaskOperationDef", toJsonList(stContent.lstTaskOperationDef)},
            {"lstOtherOperationDef", toJsonList(stContent.lstOtherOperationDef)}};
}

Json toJson(const StAsnTaskConfigInfoOperation& stTask)
{
    return {{"enTaskType", stTask.enTaskType.number()},
            {"strGUITemplete", stTask.strGUITemplete},
            {"lstTaskConfigOperation", toJsonList(stTask.lstTaskConfigOperation)}};
}

Json toJson(const StAsnOperationConfig& stConfig)
{
    return {{"lstDevOperation", toJsonList(stConfig.lstDevOperation)},
            {"lstTaskOperation", toJsonList(stConfig.lstTaskOperation)},
            {"lstPatchOperation", toJsonList(stConfig.lstPatchOperation)},
            {"lstPatchDef", toJsonList(stConfig.lstPatchDef)},
            {"lstCheckOperation", toJsonList(stConfig.lstCheckOperation)},
            {"lstCustomOperation", toJsonList(stConfig.lstCustomOperation)},
            {"lstOtherOperation", toJsonList(stConfig.lstOtherOperation)},
            {"lstUpgradeOperation", toJsonList(stConfig.lstUpgradeOperation)}};
}

Json toJson(const StAsnViewConfig& stView)
{
    return {{"lstDevViewPopupMenu", toJsonList(stView.lstDevViewPopupMenu)},
            {"lstPatchTypeMenu", toJsonList(stView.lstPatchTypeMenu)},
            {"lstDevViewTab", toJsonList(stView.lstDevViewTab)},
            {"lstIsolationViewPopupMenu", toJsonList(stView.lstIsolationViewPopupMenu)}};
}

template <typename Record>
Json toJsonList(const std::list<Record>& lstRecord)
{
    Json oList = Json::array();
    for (const Record& stRecord : lstRecord)
        oList.push_back(toJson(stRecord));
    return oList;
}
} // namespace

Json toJson(const StAsnDevTypeVerXMLInfo& stInfo)
{
    return {{"strDevType", stInfo.strDevType},
            {"strDevTypeVer", stInfo.strDevTypeVer},
            {"lstDevVersion", toJsonList(stInfo.lstDevVersion)},
            {"stOperationConfig", toJson(stInfo.stOperationConfig)},
            {"stViewConfig", toJson(stInfo.stViewConfig)},
            {"stDCErrorCodeInfo",
             {{"ulErrorCode", stInfo.stDCErrorCodeInfo.ulErrorCode},
              {"strErrorInfo", stInfo.stDCErrorCodeInfo.strErrorInfo}}},
            {"lstTaskConfigInfoOperation", toJsonList(stInfo.lstTaskConfigInfoOperation)}};
}

Json toJson(const std::list<StAsnDevTypeVerXMLInfo*>& lstInfo)
{
    Json oList = Json::array();
    for (const StAsnDevTypeVerXMLInfo* pInfo : lstInfo)
        oList.push_back(toJson(*pInfo));
    return oList;
}

std::string jsonText(const Json& oJson, std::size_t nIndent)
{
    const std::string strPlain = oJson.dump(2, ' ', false, Json::error_handler_t::replace);
    std::string       strText;
    strText.reserve(strPlain.size());
    for (const char cChar : strPlain)
    {
        strText += cChar;
        if (cChar == '\n') // between values only: inside a text it is escaped
            strText.append(nIndent, ' ');
    }
    return strText;
}

std::string jsonLine(const Json& oJson)
{
    return oJson.dump(-1, ' ', false, Json::error_handler_t::replace);
}
