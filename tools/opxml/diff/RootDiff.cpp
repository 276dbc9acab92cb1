// See RootDiff.h.
#include "tools/opxml/diff/RootDiff.h"

#include "catalog/FileCatalog.h"
#include "common/ReadProblem.h"
#include "tools/opxml/diff/ComparedTypes.h"
#include "tools/opxml/diff/DiffCollector.h"
#include "tools/opxml/diff/HurtDevices.h"
#include "tools/opxml/diff/SameFiles.h"
#include "tools/opxml/diff/ServerSide.h"
#include "tools/opxml/output/Progress.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace
{
constexpr std::size_t SHARED_KEPT = 16;

class CRootDiff
{
public:
    CRootDiff(const std::string& strOldRoot, const std::string& strNewRoot) : m_oOld(strOldRoot), m_oNew(strNewRoot)
    {
        m_mapNewlyBroken = unreadModules(m_oOld, m_oNew, m_stPassedOver.setOldModule);
        m_mapMended      = unreadModules(m_oNew, m_oOld, m_stPassedOver.setNewModule);
        m_mapRename      = typeRenames(m_oOld, m_oNew);
    }

    StDiff run(const std::vector<std::string>& lstWanted)
    {
        const std::vector<StRegisteredType> lstType = comparedTypes(m_oOld, m_oNew, lstWanted);
        {
            CProgress oProgress(lstType.size(), CProgress::EnSteps::Told);
            for (const StRegisteredType& stName : lstType)
            {
                compareType(stName);
                oProgress.step();
            }
        }
        StDiff stDiff = m_oCollector.take();
        stDiff.nTypes = lstType.size();
        m_oOld.resume();
        stDiff.lstDevice = findHurtDevices(stDiff);
        m_oNew.resume();
        return stDiff;
    }

private:
    using UnreadModules = std::map<std::string, const catalog::StModuleCatalog*>; // by name: the file that is broken

    // The modules that one side has and the other could not read, by their files.
    static UnreadModules unreadModules(const CServerSide& oHas, const CServerSide& oLacks,
                                       std::set<std::string>& setName)
    {
        UnreadModules mapUnread;
        for (const catalog::StModuleCatalog& stHas : oHas.modules())
        {
            if (stHas.ulResult != 0)
                continue;
            for (const catalog::StModuleCatalog& stLacks : oLacks.modules())
            {
                if (stLacks.ulResult == 0 || oHas.belowRoot(stHas.strFile) != oLacks.belowRoot(stLacks.strFile))
                    continue;
                mapUnread[stHas.strName] = &stLacks;
                setName.insert(stHas.strName);
            }
        }
        return mapUnread;
    }

    void compareType(const StRegisteredType& stName)
    {
        const StRegisteredType stType = {stName.strDevType, stName.strDevTypeVer, stName.strKey};
        const StSideType*      pOld   = m_oOld.find(stName);
        const StSideType*      pNew   = m_oNew.find(stName);
        if (pOld == nullptr || pNew == nullptr)
            return tellRegistry(stType, pOld == nullptr);
        m_oOld.resume();
        const StConfigPlan stOldPlan = m_oOld.plan(*pOld);
        m_oNew.resume();
        const StConfigPlan stNewPlan = m_oNew.plan(*pNew);
        if (m_oOld.settings() == m_oNew.settings() && m_oSameFiles.isSame(*pOld, stOldPlan, *pNew, stNewPlan))
            return;
        const std::string strShared = sharedKey(*pOld, stOldPlan, *pNew, stNewPlan);
        const auto        itShared  = m_mapShared.find(strShared);
        if (itShared != m_mapShared.end())
            return tell(stType, itShared->second);
        StCompared stCompared;
        if (strShared.empty() || !compareFiles(*pOld, stOldPlan, *pNew, stNewPlan, stCompared))
            stCompared = compareCatalogs(*pOld, *pNew);
        tell(stType, stCompared);
        if (strShared.empty())
            return;
        // The versions of a type come together, the types of the common file all along.
        if (m_mapShared.size() == SHARED_KEPT)
            m_mapShared.clear();
        m_mapShared.emplace(strShared, std::move(stCompared));
    }

    // What came of one type, with the files of the places.
    struct StCompared
    {
        std::vector<StTypeChange> lstChange;
        std::vector<std::string>  lstOldFile;
        std::vector<std::string>  lstNewFile;
    };

    void tell(const StRegisteredType& stType, const StCompared& stCompared)
    {
        m_oCollector.add(stType, stCompared.lstChange, stCompared.lstOldFile, stCompared.lstNewFile);
    }

    // What types of one file with the same modules have together: they differ alike. Empty
    // for a type that has more of its own.
    static std::string sharedKey(const StSideType& stOld, const StConfigPlan& stOldPlan, const StSideType& stNew,
                                 const StConfigPlan& stNewPlan)
    {
        std::string strKey;
        for (const auto& [pType, pPlan] : {std::pair(&stOld, &stOldPlan), std::pair(&stNew, &stNewPlan)})
        {
            if (pType->bCapacity || !pPlan->stConfig.isFound() || pPlan->stCheck.isFound() ||
                pPlan->stFixedCheck.isFound())
                return {};
            strKey += pPlan->stConfig.strFile + '\n';
            for (const catalog::StModuleCatalog* pModule : pType->lstModule)
                strKey += pModule->strFile + '\n';
        }
        return strKey;
    }

    // Types of one file and nothing else: only what is written differently is read of them.
    bool compareFiles(const StSideType& stOld, const StConfigPlan& stOldPlan, const StSideType& stNew,
                      const StConfigPlan& stNewPlan, StCompared& stCompared)
    {
        if (!stOld.lstModule.empty() || !stNew.lstModule.empty() || m_oOld.settings() != m_oNew.settings())
            return false;
        catalog::StTypeCatalog stOldMade;
        catalog::StTypeCatalog stNewMade;
        if (!m_oFiles.make(stOldPlan.stConfig.strFile, stNewPlan.stConfig.strFile, stOldMade, stNewMade))
            return false;
        stCompared = {diffTypes(stOldMade, stNewMade, m_stPassedOver), std::move(stOldMade.lstFile),
                      std::move(stNewMade.lstFile)};
        return true;
    }

    // The new root is open; the old one is afterwards.
    StCompared compareCatalogs(const StSideType& stOld, const StSideType& stNew)
    {
        catalog::StTypeCatalog stNewMade = m_oNew.make(stNew);
        m_oOld.resume();
        catalog::StTypeCatalog stOldMade = m_oOld.make(stOld);
        StCompared             stCompared;
        for (auto lstChange :
             {unreadModuleChanges(stOld, m_mapNewlyBroken, false), unreadModuleChanges(stNew, m_mapMended, true),
              diffTypes(stOldMade, stNewMade, m_stPassedOver)})
            std::move(lstChange.begin(), lstChange.end(), std::back_inserter(stCompared.lstChange));
        stCompared.lstOldFile = std::move(stOldMade.lstFile);
        stCompared.lstNewFile = std::move(stNewMade.lstFile);
        return stCompared;
    }

    void tellRegistry(const StRegisteredType& stType, bool bGained)
    {
        StTypeChange stChange;
        stChange.stEntryChange.stChange.pRule  = &diffRule(bGained ? "type-gained" : "type-lost");
        stChange.stEntryChange.stChange.enWhat = bGained ? EnChange::Gained : EnChange::Lost;
        const auto itRename                    = m_mapRename.find(fullName(stType));
        if (itRename != m_mapRename.end())
            stChange.stEntryChange.stChange.strRename = itRename->second;
        m_oCollector.add(stType, {stChange}, {}, {});
    }

    // What a module adds to the type is not told as lost when the module is unread.
    static std::vector<StTypeChange> unreadModuleChanges(const StSideType& stType, const UnreadModules& mapUnread,
                                                         bool bReadNow)
    {
        std::vector<StTypeChange> lstChange;
        for (const catalog::StModuleCatalog* pModule : stType.lstModule)
        {
            const auto itUnread = mapUnread.find(pModule->strName);
            if (itUnread == mapUnread.end())
                continue;
            StChange& stChange                             = lstChange.emplace_back().stEntryChange.stChange;
            stChange.pRule                                 = &diffRule(bReadNow ? "can-be-read" : "cannot-be-read");
            stChange.enWhat                                = EnChange::Unread;
            stChange.strPath                               = "module " + pModule->strName;
            (bReadNow ? stChange.strOld : stChange.strNew) = problemWithFile(itUnread->second->stProblem);
        }
        return lstChange;
    }

    CServerSide              m_oOld;
    CServerSide              m_oNew;
    CSameFiles               m_oSameFiles;
    catalog::CFilePairReader m_oFiles;
    CDiffCollector           m_oCollector;
    StPassedOver             m_stPassedOver;
    UnreadModules            m_mapNewlyBroken; // the new side cannot read them
    UnreadModules            m_mapMended;      // the old side could not

    std::map<std::string, std::string> m_mapRename; // of registry entries
    std::map<std::string, StCompared>  m_mapShared; // by sharedKey()
};

} // namespace

StDiff diffRoots(const std::string& strOldRoot, const std::string& strNewRoot,
                 const std::vector<std::string>& lstWanted)
{
    return CRootDiff(strOldRoot, strNewRoot).run(lstWanted);
}
