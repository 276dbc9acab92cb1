// See DevTypes.h.
#include "tools/opxml/output/DevTypes.h"

#include "database/CXMLConfigDatabase.h"
#include "platform/Paths.h"
#include "tools/opxml/output/Names.h"

std::set<std::string> findKeys(const StLoadReport& stReport, const std::string& strName, const std::string& strVersion)
{
    std::set<std::string> setKey;
    for (const StDevTypeLoad& stLoad : stReport.lstDevType)
    {
        const bool bNamed = stLoad.strDevType == strName || stLoad.strKey == strName;
        if (bNamed && (strVersion.empty() || stLoad.strDevTypeVer == strVersion))
            setKey.insert(stLoad.strKey);
    }
    return setKey;
}

std::vector<std::string> knownNames(const StLoadReport& stReport)
{
    std::vector<std::string> lstName;
    for (const StDevTypeLoad& stLoad : stReport.lstDevType)
    {
        lstName.push_back(stLoad.strDevType);
        lstName.push_back(stLoad.strKey);
    }
    return lstName;
}

std::string unknownTypeText(const StLoadReport& stReport, const std::string& strName)
{
    return "no device type \"" + strName + "\"" + nearestNames(strName, knownNames(stReport));
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

std::string failureText(const StDevTypeLoad& stLoad)
{
    const StReadProblem& stProblem = stLoad.stOrigin.stProblem;
    const std::string&   strFile   = stProblem.strFile.empty() ? stLoad.stOrigin.strFile : stProblem.strFile;
    std::string          strText   = "failed: ";
    if (!strFile.empty())
        strText += shortPath(strFile) + ": ";
    return strText + (stProblem.isSet() ? problemText(stProblem) : "result " + resultText(stLoad.ulResult));
}

std::string shortPath(const std::string& strPath)
{
    std::string strRoot;
    NS_UTIL::EmfGetServerPath_DC(strRoot);
    NS_UTIL::AppendDirSeparator(strRoot);
    return strPath.compare(0, strRoot.size(), strRoot) == 0 ? strPath.substr(strRoot.size()) : strPath;
}
