// See ServerCatalogs.h.
#include "tools/opxml/catalog/ServerCatalogs.h"

#include "tools/opxml/catalog/EntryText.h"
#include "tools/opxml/output/Names.h"
#include "tools/opxml/output/Progress.h"

std::vector<StRegisteredType> typesNamed(const std::vector<StRegisteredType>& lstType, const std::string& strName)
{
    std::vector<StRegisteredType> lstNamed;
    for (const StRegisteredType& stType : lstType)
    {
        for (const std::string& strBegin : {stType.strDevType, stType.strKey})
        {
            if (strName != strBegin && strName != strBegin + ":" + stType.strDevTypeVer)
                continue;
            lstNamed.push_back(stType);
            break;
        }
    }
    return lstNamed;
}

std::vector<std::string> namesOf(const std::vector<StRegisteredType>& lstType)
{
    std::vector<std::string> lstName;
    for (const StRegisteredType& stType : lstType)
    {
        lstName.push_back(stType.strDevType);
        if (stType.strKey != stType.strDevType)
            lstName.push_back(stType.strKey);
    }
    return lstName;
}

void readCatalogs(catalog::CCatalogMaker& oMaker, const std::vector<StRegisteredType>& lstType,
                  const std::function<void(const catalog::StTypeCatalog&)>& fnType)
{
    const CProgress                  oProgress(lstType.size());
    std::vector<catalog::StTypeName> lstName;
    lstName.reserve(lstType.size());
    for (const StRegisteredType& stType : lstType)
        lstName.push_back({stType.strDevType, stType.strDevTypeVer});
    oMaker.expect(lstName);
    for (const StRegisteredType& stType : lstType)
        fnType(oMaker.make(stType.strDevType, stType.strDevTypeVer));
}

std::string whyNotRead(const catalog::StTypeCatalog& stType)
{
    if (!stType.lstConfiguration.empty())
        return {};
    const StReadProblem& stProblem = stType.stOrigin.stProblem;
    if (!stProblem.isSet())
        return "result " + resultText(stType.ulResult);
    const std::string& strFile = stProblem.strFile.empty() ? stType.stOrigin.strFile : stProblem.strFile;
    catalog::StPlace   stPlace;
    stPlace.ulLine   = stProblem.ulLine;
    stPlace.ulColumn = stProblem.ulColumn == 0 ? 1 : stProblem.ulColumn;
    return (strFile.empty() ? "" : placeText(strFile, stPlace) + ": ") + stProblem.strText;
}
