// See Sections.h.
#include "tools/opxml/output/Sections.h"

#include "database/CXMLConfigDatabase.h"

namespace
{
std::array<StSectionTitle, SECTION_COUNT> sectionTitles()
{
    std::array<StSectionTitle, SECTION_COUNT> arTitle = {};
    std::size_t                               nAt     = 0;
    forEachSection(
        [&](const auto& stSection) {
            arTitle[nAt++] = {stSection.pszShort, stSection.pszField, stSection.pszTitle};
        });
    return arTitle;
}

template <typename Root>
SectionCounts countLists(const Root& stRoot, bool bOnlyAppended)
{
    SectionCounts arCount = {};
    std::size_t   nAt     = 0;
    forEachSection(
        [&](const auto& stSection)
        {
            const bool bCounts = !bOnlyAppended || stSection.enModuleUse == EnModuleUse::Appends;
            arCount[nAt++]     = bCounts ? listOf(stRoot, stSection.pList).size() : 0;
        });
    return arCount;
}
} // namespace

const std::array<StSectionTitle, SECTION_COUNT> SECTION_TITLES = sectionTitles();

SectionCounts countSections(const StAsnDevTypeVerXMLInfo& stInfo)
{
    return countLists(stInfo, false);
}

SectionCounts countSections(const StAsnModuleInfoVerXMLInfo& stModule)
{
    return countLists(stModule, false);
}

SectionCounts countAdded(const StAsnModuleInfoVerXMLInfo& stModule)
{
    return countLists(stModule, true);
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
