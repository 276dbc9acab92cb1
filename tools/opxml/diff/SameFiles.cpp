// See SameFiles.h.
#include "tools/opxml/diff/SameFiles.h"

#include "common/FileBytes.h"

#include <algorithm>

bool CSameFiles::isSameFile(const std::string& strOld, const std::string& strNew)
{
    const auto [itSame, bNew] = m_mapSame.try_emplace({strOld, strNew}, strOld == strNew);
    if (bNew && !itSame->second)
    {
        std::string strOldBytes;
        std::string strNewBytes;
        itSame->second = readFileBytes(strOld, strOldBytes).empty() && readFileBytes(strNew, strNewBytes).empty() &&
                         strOldBytes == strNewBytes;
    }
    return itSame->second;
}

bool CSameFiles::isSamePlanned(const StPlannedFile& stOld, const StPlannedFile& stNew)
{
    if (stOld.enSource != stNew.enSource || stOld.ulResult != stNew.ulResult)
        return false;
    return !stOld.isFound() || isSameFile(stOld.strFile, stNew.strFile);
}

bool CSameFiles::isSameVersion(const StVersionPlan& stOld, const StVersionPlan& stNew)
{
    return stOld.stVersion.strSoftVersion == stNew.stVersion.strSoftVersion &&
           stOld.stVersion.strPatchVersion == stNew.stVersion.strPatchVersion && stOld.bHasRecord == stNew.bHasRecord &&
           stOld.bFullConfig == stNew.bFullConfig && isSamePlanned(stOld.stFile, stNew.stFile);
}

bool CSameFiles::isSame(const StSideType& stOld, const StConfigPlan& stOldPlan, const StSideType& stNew,
                        const StConfigPlan& stNewPlan)
{
    return stOld.bCapacity == stNew.bCapacity && stOld.strSysOid == stNew.strSysOid &&
           stOldPlan.ulResult == stNewPlan.ulResult && stOldPlan.enReportType == stNewPlan.enReportType &&
           isSamePlanned(stOldPlan.stConfig, stNewPlan.stConfig) &&
           isSamePlanned(stOldPlan.stCheck, stNewPlan.stCheck) &&
           isSamePlanned(stOldPlan.stFixedCheck, stNewPlan.stFixedCheck) &&
           std::equal(stOldPlan.lstVersion.begin(), stOldPlan.lstVersion.end(), stNewPlan.lstVersion.begin(),
                      stNewPlan.lstVersion.end(),
                      [this](const StVersionPlan& stLeft, const StVersionPlan& stRight)
                      { return isSameVersion(stLeft, stRight); }) &&
           std::equal(stOld.lstModule.begin(), stOld.lstModule.end(), stNew.lstModule.begin(), stNew.lstModule.end(),
                      [this](const catalog::StModuleCatalog* pOld, const catalog::StModuleCatalog* pNew)
                      { return pOld->strName == pNew->strName && isSameFile(pOld->strFile, pNew->strFile); });
}
