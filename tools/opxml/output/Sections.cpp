// See Sections.h.
#include "tools/opxml/output/Sections.h"

#include "database/CXMLConfigDatabase.h"

const std::array<StSectionTitle, SECTION_COUNT> SECTION_TITLES = {{
    {"dev", "lstDevOperation", "Device operations"},
    {"task", "lstTaskOperation", "Task operations"},
    {"patch", "lstPatchOperation", "Patch operations"},
    {"state", "lstPatchDef", "Patch states"},
    {"check", "lstCheckOperation", "Check operations"},
    {"cust", "lstCustomOperation", "Custom operations"},
    {"other", "lstOtherOperation", "Other operations"},
    {"upgr", "lstUpgradeOperation", "Upgrade operations"},
    {"menu", "lstDevViewPopupMenu", "Device view popup menu"},
    {"tab", "lstDevViewTab", "Device view tabs"},
    {"pmenu", "lstPatchTypeMenu", "Patch view popup menu"},
    {"iso", "lstIsolationViewPopupMenu", "Isolation view popup menu"},
    {"types", "lstTaskConfigInfoOperation", "Task types"},
}};

namespace
{
SectionCounts countLists(const StAsnOperationConfig& stOper, const StAsnViewConfig& stView,
                         const std::list<StAsnTaskConfigInfoOperation>& lstTask)
{
    return {stOper.lstDevOperation.size(),
            stOper.lstTaskOperation.size(),
            stOper.lstPatchOperation.size(),
            stOper.lstPatchDef.size(),
            stOper.lstCheckOperation.size(),
            stOper.lstCustomOperation.size(),
            stOper.lstOtherOperation.size(),
            stOper.lstUpgradeOperation.size(),
            stView.lstDevViewPopupMenu.size(),
            stView.lstDevViewTab.size(),
            stView.lstPatchTypeMenu.size(),
            stView.lstIsolationViewPopupMenu.size(),
            lstTask.size()};
}
} // namespace

SectionCounts countSections(const StAsnDevTypeVerXMLInfo& stInfo)
{
    return countLists(stInfo.stOperationConfig, stInfo.stViewConfig, stInfo.lstTaskConfigInfoOperation);
}

SectionCounts countSections(const StAsnModuleInfoVerXMLInfo& stModule)
{
    return countLists(stModule.stOperationConfig, stModule.stViewConfig, stModule.lstTaskConfigInfoOperation);
}

SectionCounts countAdded(const StAsnModuleInfoVerXMLInfo& stModule)
{
    return countLists(stModule.stOperationConfig, {}, stModule.lstTaskConfigInfoOperation);
}

std::vector<StContribution> findContributions(const std::string& strDevType)
{
    std::vector<StContribution> lstContribution;
    CXMLConfigDatabase::getInstance()->visitModules(
        [&](const std::string& strName, const StAsnModuleInfoVerXMLInfo& stModule)
        {
            const SectionCounts arCount = countAdded(stModule);
            for (const std::string& strSupported : stModule.lstSupportDevType)
            {
                if (strSupported == strDevType)
                    lstContribution.push_back({strName, arCount});
            }
        });
    return lstContribution;
}

std::string contributionText(const std::vector<StContribution>& lstContribution)
{
    std::string strText;
    for (std::size_t nAt = 0; nAt < lstContribution.size(); ++nAt)
    {
        const bool bAgain = nAt > 0 && lstContribution[nAt].strModule == lstContribution[nAt - 1].strModule;
        if (bAgain)
            strText += " (again)";
        else
            strText += (nAt == 0 ? "" : ", ") + lstContribution[nAt].strModule;
    }
    return strText;
}
