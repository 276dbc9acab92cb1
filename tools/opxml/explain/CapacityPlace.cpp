// See CapacityPlace.h.
#include "tools/opxml/explain/CapacityPlace.h"

#include "lint/Nearness.h"
#include "tools/opxml/catalog/EntryText.h"
#include "tools/opxml/output/DevTypes.h"

#include <algorithm>
#include <tuple>
#include <vector>

namespace
{
using catalog::StCapacityEntry;
using catalog::StEntry;
using catalog::StPlace;

bool isAt(const StPlace& stLeft, const StPlace& stRight)
{
    return std::tie(stLeft.ulFile, stLeft.ulLine, stLeft.ulColumn) ==
           std::tie(stRight.ulFile, stRight.ulLine, stRight.ulColumn);
}

// The ids from the top to the entry of a place; false when it is not there.
bool findPath(const std::vector<StEntry>& lstEntry, const StPlace& stPlace, std::vector<std::string>& lstPath)
{
    return std::any_of(lstEntry.begin(), lstEntry.end(),
                       [&](const StEntry& stEntry)
                       {
                           lstPath.push_back(stEntry.strId);
                           if (isAt(stEntry.stPlace, stPlace) || findPath(stEntry.lstChild, stPlace, lstPath))
                               return true;
                           lstPath.pop_back();
                           return false;
                       });
}

const StEntry* findEntry(const std::vector<StEntry>& lstEntry, const std::vector<std::string>& lstPath,
                         std::size_t nAt = 0)
{
    for (const StEntry& stEntry : lstEntry)
    {
        if (nAt < lstPath.size() && stEntry.strId == lstPath[nAt])
            return nAt + 1 == lstPath.size() ? &stEntry : findEntry(stEntry.lstChild, lstPath, nAt + 1);
    }
    return nullptr;
}

const StVersionLoad* findVersion(const catalog::StTypeCatalog& stCatalog, const std::string& strSoftVersion,
                                 const std::string& strPatchVersion)
{
    const auto& lstVersion = stCatalog.stOrigin.lstVersion;
    const auto  itVersion  = std::find_if(lstVersion.begin(), lstVersion.end(),
                                          [&](const StVersionLoad& stVersion) {
                                            return stVersion.strSoftVersion == strSoftVersion &&
                                                   stVersion.strPatchVersion == strPatchVersion;
                                        });
    return itVersion == lstVersion.end() ? nullptr : &*itVersion;
}

// Of what is read in the document of a file.
const StCapacityEntry* readEntry(const catalog::StTypeCatalog& stCatalog, const std::string& strFile)
{
    for (const catalog::StCapacityDocument& stDocument : stCatalog.lstCapacityDocument)
    {
        if (stDocument.ulFile >= stCatalog.lstFile.size() || stCatalog.lstFile[stDocument.ulFile] != strFile)
            continue;
        for (const StCapacityEntry& stEntry : stDocument.lstEntry)
        {
            if (stEntry.bIsRead)
                return &stEntry;
        }
    }
    return nullptr;
}

std::string versionOfFile(const catalog::StTypeCatalog& stCatalog, const std::string& strFile)
{
    for (const StVersionLoad& stVersion : stCatalog.stOrigin.lstVersion)
    {
        if (stVersion.strFile == strFile)
            return versionText(stVersion.strSoftVersion, stVersion.strPatchVersion);
    }
    return {};
}
} // namespace

StCapacityPlace findCapacityPlace(const catalog::StTypeCatalog& stCatalog, const StPlace& stBecause,
                                  const std::string& strSoftVersion, const std::string& strPatchVersion)
{
    if (stBecause.ulFile >= stCatalog.lstFile.size())
        return {};
    const std::string&       strFile = stCatalog.lstFile[stBecause.ulFile];
    const StCapacityEntry*   pEntry  = readEntry(stCatalog, strFile);
    const StVersionLoad*     pOwn    = findVersion(stCatalog, strSoftVersion, strPatchVersion);
    std::vector<std::string> lstPath;
    if (pEntry != nullptr && pOwn != nullptr && findPath(pEntry->lstOperation, stBecause, lstPath))
    {
        const StCapacityEntry* pOwnEntry = readEntry(stCatalog, pOwn->strFile);
        if (const StEntry* pSame = pOwnEntry == nullptr ? nullptr : findEntry(pOwnEntry->lstOperation, lstPath))
            return {versionText(strSoftVersion, strPatchVersion), placeText(stCatalog.lstFile, pSame->stPlace)};
    }
    return {versionOfFile(stCatalog, strFile), placeText(stCatalog.lstFile, stBecause)};
}

std::string versionsText(const catalog::StConfiguration& stConfiguration)
{
    std::vector<std::string> lstVersion;
    for (const catalog::StVersion& stVersion : stConfiguration.lstVersion)
        lstVersion.push_back(versionText(stVersion.strSoftVersion, stVersion.strPatchVersion));
    return lint::listText(lstVersion);
}

std::string narrowingPlace(const catalog::StTypeCatalog& stCatalog, const std::string& strFile)
{
    const StCapacityEntry* pEntry = readEntry(stCatalog, strFile);
    return pEntry == nullptr ? std::string() : placeText(stCatalog.lstFile, pEntry->stPlace);
}
