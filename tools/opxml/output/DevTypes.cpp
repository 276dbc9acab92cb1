// See DevTypes.h.
#include "tools/opxml/output/DevTypes.h"

#include "database/CXMLConfigDatabase.h"
#include "platform/Paths.h"
#include "standalone/TypeList.h"
#include "tools/opxml/output/Names.h"

#include <algorithm>

std::vector<StRegisteredType> registeredTypes()
{
    std::vector<StRegisteredType> lstType;
    for (const StDeviceType& stType : standalone::listTypes())
        lstType.push_back({stType.strDevType, stType.strDevTypeVer,
                           CXMLConfigDatabase::trans2TelnetDevType(stType.strDevType, stType.strDevTypeVer)});
    // A load takes them by name, entries of one name as they are registered.
    std::stable_sort(lstType.begin(), lstType.end(),
                     [](const StRegisteredType& stLeft, const StRegisteredType& stRight)
                     { return stLeft.strDevType < stRight.strDevType; });
    return lstType;
}

std::set<std::string> findKeys(const std::vector<StRegisteredType>& lstType, const std::string& strName,
                               const std::string& strVersion)
{
    std::set<std::string> setKey;
    for (const StRegisteredType& stType : lstType)
    {
        const bool bNamed = stType.strDevType == strName || stType.strKey == strName;
        if (bNamed && (strVersion.empty() || stType.strDevTypeVer == strVersion))
            setKey.insert(stType.strKey);
    }
    return setKey;
}

StNamedType splitTypeName(const std::vector<StRegisteredType>& lstType, const std::string& strText)
{
    StNamedType stNamed = {strText, {}, {}, {}};
    std::size_t nColon  = std::string::npos;
    while (findKeys(lstType, strText.substr(0, nColon)).empty())
    {
        nColon =
            nColon == 0 ? std::string::npos : strText.rfind(':', nColon == std::string::npos ? nColon : nColon - 1);
        if (nColon == std::string::npos)
            return stNamed;
    }
    stNamed.strName             = strText.substr(0, nColon);
    std::string* const arPart[] = {&stNamed.strVersion, &stNamed.strSoftVersion, &stNamed.strPatchVersion};
    for (std::string* pPart : arPart)
    {
        if (nColon == std::string::npos)
            break;
        const std::size_t nNext = strText.find(':', nColon + 1);
        *pPart                  = strText.substr(nColon + 1, nNext == std::string::npos ? nNext : nNext - nColon - 1);
        nColon                  = nNext;
    }
    return stNamed;
}

std::string unknownVersionText(const std::vector<StRegisteredType>& lstType, const std::string& strName,
                               const std::string& strVersion)
{
    std::string strVersions;
    for (const StRegisteredType& stType : lstType)
    {
        if (stType.strDevType == strName)
            strVersions += " \"" + stType.strDevTypeVer + "\"";
    }
    return strVersions.empty()
               ? ""
               : "device type \"" + strName + "\" has no version \"" + strVersion + "\"; it has" + strVersions;
}

std::string unknownTypeText(const std::vector<StRegisteredType>& lstType, const std::string& strName)
{
    std::vector<std::string> lstName;
    for (const StRegisteredType& stType : lstType)
        lstName.insert(lstName.end(), {stType.strDevType, stType.strKey});
    return "no device type \"" + strName + "\"" + nearestNames(strName, lstName);
}

std::string sourceText(EnConfigSource enSource)
{
    switch (enSource)
    {
    case EnConfigSource::OwnFile:
        return "own file";
    case EnConfigSource::CommonFile:
        return "common file";
    case EnConfigSource::TelnetTwin:
        return "telnet twin";
    case EnConfigSource::Capacity:
        return "capacity";
    case EnConfigSource::None:
    case EnConfigSource::CapacityDocument: // these three are never where a whole type comes from
    case EnConfigSource::CheckFile:
    case EnConfigSource::FixedCheckFile:
        break;
    }
    return "none";
}

namespace
{
// FILE:LINE:COLUMN, as far as the place is known.
std::string withFile(const std::string& strFile, const StReadProblem& stProblem, std::uint32_t ulResult)
{
    std::string strPlace = shortPath(stProblem.strFile.empty() ? strFile : stProblem.strFile);
    for (const std::uint32_t ulNumber : {stProblem.ulLine, stProblem.ulColumn})
        strPlace += ulNumber == 0 ? "" : ":" + std::to_string(ulNumber);
    return (strPlace.empty() ? "" : strPlace + ": ") +
           (stProblem.isSet() ? stProblem.strText : "result " + resultText(ulResult));
}
} // namespace

std::string failureText(const StDevTypeLoad& stLoad)
{
    return "failed: " + withFile(stLoad.stOrigin.strFile, stLoad.stOrigin.stProblem, stLoad.ulResult);
}

std::string outcomeText(EnVersionOutcome enOutcome)
{
    switch (enOutcome)
    {
    case EnVersionOutcome::Narrowed:
        return "narrowed";
    case EnVersionOutcome::FullConfiguration:
        return "full configuration";
    case EnVersionOutcome::NotNarrowed:
        return "not narrowed";
    case EnVersionOutcome::NoCapacityRecord:
        return "no capacity record";
    case EnVersionOutcome::Failed:
        break;
    }
    return "failed";
}

std::string versionFailureText(const StVersionLoad& stVersion)
{
    return "version " + versionText(stVersion.strSoftVersion, stVersion.strPatchVersion) +
           " failed: " + withFile(stVersion.strFile, stVersion.stProblem, stVersion.ulResult);
}

std::string versionText(const std::string& strSoftVersion, const std::string& strPatchVersion)
{
    return strPatchVersion.empty() ? strSoftVersion : strSoftVersion + " " + strPatchVersion;
}

std::vector<StVersionLoad> failedVersions(const StDevTypeLoad& stLoad)
{
    std::vector<StVersionLoad> lstFailed;
    for (const StVersionLoad& stVersion : stLoad.stOrigin.lstVersion)
    {
        const bool bToldByType = !stLoad.isConfigured() && stVersion.enOutcome == EnVersionOutcome::NoCapacityRecord;
        if (stVersion.isFailed() && !bToldByType)
            lstFailed.push_back(stVersion);
    }
    return lstFailed;
}

std::string shortPath(const std::string& strPath)
{
    std::string strRoot;
    NS_UTIL::EmfGetServerPath_DC(strRoot);
    NS_UTIL::AppendDirSeparator(strRoot);
    return strPath.compare(0, strRoot.size(), strRoot) == 0 ? strPath.substr(strRoot.size()) : strPath;
}
