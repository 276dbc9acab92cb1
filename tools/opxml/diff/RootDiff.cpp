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
#include <set>
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
            CProgress                   oProgress(lstType.size(), CProgress::EnSteps::Told);
            const std::vector<StToRead> lstToRead = typesToRead(lstType, oProgress);
            m_oFiles.expect(filePairs(lstToRead));
            for (const StToRead& stToRead : lstToRead)
            {
                compareType(stToRead);
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

    // A type that differs, or may.
    struct StToRead
    {
        StRegisteredType    stName;
        const StSideType*   pOld = nullptr; // null: it is not registered there
        const StSideType*   pNew = nullptr;
        std::string         strShared; // sharedKey()
        catalog::StFilePair stPair;    // all that it is read from; else empty
    };

    // Whoever is read from the same bytes on both sides is done with that.
    std::vector<StToRead> typesToRead(const std::vector<StRegisteredType>& lstType, CProgress& oProgress)
    {
        std::vector<StToRead> lstToRead;
        for (const StRegisteredType& stName : lstType)
        {
            StToRead stToRead = {stName, m_oOld.find(stName), m_oNew.find(stName), {}, {}};
            if (stToRead.pOld == nullptr || stToRead.pNew == nullptr || isToBeRead(stToRead))
                lstToRead.push_back(std::move(stToRead));
            else
                oProgress.step();
        }
        return lstToRead;
    }

    bool isToBeRead(StToRead& stToRead)
    {
        const StSideType& stOld = *stToRead.pOld;
        const StSideType& stNew = *stToRead.pNew;
        m_oOld.resume();
        const StConfigPlan stOldPlan = m_oOld.plan(stOld);
        m_oNew.resume();
        const StConfigPlan stNewPlan     = m_oNew.plan(stNew);
        const bool         bSameSettings = m_oOld.settings() == m_oNew.settings();
        if (bSameSettings && m_oSameFiles.isSame(stOld, stOldPlan, stNew, stNewPlan))
            return false;
        stToRead.strShared = sharedKey(stOld, stOldPlan, stNew, stNewPlan);
        if (!stToRead.strShared.empty() && bSameSettings && stOld.lstModule.empty() && stNew.lstModule.empty())
            stToRead.stPair = {stOldPlan.stConfig.strFile, stNewPlan.stConfig.strFile};
        return true;
    }

    // Types that differ alike are compared once.
    static std::vector<catalog::StFilePair> filePairs(const std::vector<StToRead>& lstToRead)
    {
        std::vector<catalog::StFilePair> lstPair;
        std::set<std::string>            setShared;
        for (const StToRead& stToRead : lstToRead)
        {
            if (!stToRead.stPair.strOld.empty() && setShared.insert(stToRead.strShared).second)
                lstPair.push_back(stToRead.stPair);
        }
        return lstPair;
    }

    void compareType(const StToRead& stToRead)
    {
        const StRegisteredType& stType = stToRead.stName;
        if (stToRead.pOld == nullptr || stToRead.pNew == nullptr)
            return tellRegistry(stType, stToRead.pOld == nullptr);
        const auto itShared = m_mapShared.find(stToRead.strShared);
        if (itShared != m_mapShared.end())
            return tell(stType, itShared->second);
        m_oNew.resume();
        StCompared stCompared;
        if (!compareFiles(stToRead.stPair, stCompared))
            stCompared = compareCatalogs(*stToRead.pOld, *stToRead.pNew);
        tell(stType, stCompared);
        if (stToRead.strShared.empty())
            return;
        // The versions of a type come together, the types of the common file all along.
        if (m_mapShared.size() == SHARED_KEPT)
            m_mapShared.clear();
        m_mapShared.emplace(stToRead.strShared, std::move(stCompared));
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
    bool compareFiles(const catalog::StFilePair& stPair, StCompared& stCompared)
    {
        catalog::StTypeCatalog stOldMade;
        catalog::StTypeCatalog stNewMade;
        if (stPair.strOld.empty() || !m_oFiles.make(stPair.strOld, stPair.strNew, stOldMade, stNewMade))
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
