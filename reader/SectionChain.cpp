// One line a section; a new section is one more line at its place in the order.
#include "reader/SectionChain.h"

#include "records/ResultCodes.h"
#include "sections/CCustomOpXMLConfig.h"
#include "sections/CDevOpXMLConfig.h"
#include "sections/CDevViewPopupMenuConfig.h"
#include "sections/CIsolationViewPopupMenuConfig.h"
#include "sections/COtherOpXMLConfig.h"
#include "sections/CPatchViewPopupMenuConfig.h"
#include "sections/CPatchXMLConfig.h"
#include "sections/CTaskXMLConfig.h"
#include "sections/CUpgradeOpXMLConfig.h"

std::uint32_t runSectionChain(xercesc::XercesDOMParser* pDOMParser, const StSectionLists& stLists,
                              const CheckSectionReader& fnReadChecks)
{
    StAsnOperationConfig& stOper = stLists.stOperationConfig;
    StAsnViewConfig&      stView = stLists.stViewConfig;

    const std::function<std::uint32_t()> arSections[] = {
        [&] { return CDevOpXMLConfig().setDevOperXMLConfig(pDOMParser, &stOper.lstDevOperation); },
        [&] { return CDevOpXMLConfig().setTaskOperationXMLConfig(pDOMParser, &stOper.lstTaskOperation); },
        [&] { return CDevOpXMLConfig().setPatchOperXMLConfig(pDOMParser, &stOper.lstPatchOperation); },
        [&] { return CPatchXMLConfig().setPatchStateConfiguraion(pDOMParser, &stOper.lstPatchDef); },
        [&] { return fnReadChecks(stOper.lstCheckOperation); },
        [&] { return CCustomOpXMLConfig().setCustomOperXMLConfig(pDOMParser, &stOper.lstCustomOperation); },
        [&] { return COtherOpXMLConfig().setOtherOperXMLConfig(pDOMParser, &stOper.lstOtherOperation); },
        [&] { return CUpgradeOpXMLConfig().setUpgradeOperXMLConfig(pDOMParser, &stOper.lstUpgradeOperation); },
        [&] { return CDevViewPopupMenuConfig().setDevViewPopupMenuConfig(pDOMParser, &stView.lstDevViewPopupMenu); },
        [&] { return CDevViewPopupMenuConfig().setDevViewTabConfig(pDOMParser, &stView.lstDevViewTab); },
        [&] { return CPatchViewPopupMenuConfig().setPatchViewPopupMenuConfig(pDOMParser, &stView.lstPatchTypeMenu); },
        [&]
        {
            return !stLists.bReadsIsolationMenu ? DC_RESULT_OK
                                                : CIsolationViewPopupMenuConfig().setIsolationViewPopupMenuConfig(
                                                      pDOMParser, &stView.lstIsolationViewPopupMenu);
        },
        [&] { return CTaskXMLConfig().setTaskConfiguration(pDOMParser, &stLists.lstTaskConfigInfoOperation); },
    };
    for (const auto& fnReadSection : arSections)
    {
        const std::uint32_t ulResult = fnReadSection();
        if (ulResult != DC_RESULT_OK)
            return ulResult;
    }
    return DC_RESULT_OK;
}
