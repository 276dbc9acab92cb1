// See LoadPlan.h.
#include "reader/LoadPlan.h"

#include "common/FileBytes.h"
#include "common/Guarded.h"
#include "reader/ConfigSearch.h"
#include "records/Vocabulary.h"

#include <algorithm>

CLoadPlan::CLoadPlan(const std::vector<StLoadType>& lstType) : m_lstLastOfKey(lstType.size())
{
    std::unordered_map<std::string, std::size_t> mapLast;
    for (std::size_t nType = lstType.size(); nType-- != 0;)
        m_lstLastOfKey[nType] = mapLast.emplace(lstType[nType].strKey, nType).first->second;
    for (std::size_t nType = 0; nType < lstType.size(); ++nType)
    {
        if (lstType[nType].bCommon || lstType[nType].bCapacity)
            m_nLastCommon = nType;
        try
        {
            // Types of one key have the same files, and lastUser() sees to the later ones.
            if (mapLast.erase(lstType[nType].strKey) != 0)
                addFiles(lstType[nType], m_lstLastOfKey[nType]);
        }
        catch (...)
        {
            passOverThrown(); // it is asked again when the type is read
        }
    }
}

std::size_t CLoadPlan::lastUser(const std::string& strFile, EnConfigSource enSource, std::size_t nType) const
{
    std::size_t nLast = nType < m_lstLastOfKey.size() ? m_lstLastOfKey[nType] : nType;
    if (enSource == EnConfigSource::CommonFile)
        nLast = std::max(nLast, m_nLastCommon);
    const auto itLast = m_mapLastUser.find(strFile);
    return itLast == m_mapLastUser.end() ? nLast : std::max(nLast, itLast->second);
}

void CLoadPlan::addFiles(const StLoadType& stType, std::size_t nType)
{
    for (const std::string& strFile : stType.lstFile)
        addFile(strFile, nType);
    if (!stType.lstFile.empty())
        return;
    EnCheckReportType enReportType = EnCheckReportNone;
    addFile(configSearch::findCheckFile(nullptr, stType.strKey, enReportType).strFile, nType);
    if (stType.bCommon || stType.bCapacity) // what the versions in service want only the platform knows
        return;
    std::string strFile = configSearch::findOwnFile(nullptr, stType.strKey).strFile;
    if (!strFile.empty() && !fileState(strFile))
        strFile = configSearch::findOwnFile(nullptr, stType.strKey + std::string(Vocabulary::TELNET_SUFFIX)).strFile;
    addFile(strFile, nType);
}

void CLoadPlan::addFile(const std::string& strFile, std::size_t nType)
{
    if (strFile.empty())
        return;
    const auto [itLast, bIsNew] = m_mapLastUser.emplace(strFile, nType);
    if (bIsNew)
        m_lstFile.push_back(strFile);
    else
        itLast->second = std::max(itLast->second, nType);
}
