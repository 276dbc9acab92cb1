// See ChangeText.h.
#include "tools/opxml/difftext/ChangeText.h"

#include "tools/opxml/catalog/EntryText.h"

#include <fmt/format.h>

#include <set>
#include <string_view>
#include <utility>

namespace
{
std::string valueText(const std::string& strValue)
{
    return strValue.empty() ? "\"\"" : strValue;
}

// What the rule knows of an entry beside that it came or went.
std::string noteText(const StChange& stChange)
{
    const std::string_view strRule = stChange.pRule->pszId;
    if (strRule == "twin-lost" || strRule == "twin-gained")
        return ", one of several of this id";
    if (strRule == "shadowed-entry")
        return ", in the shadow of an earlier one";
    return strRule == "unsupported-entry" ? ", not supported" : "";
}

std::string renameText(const StChange& stChange)
{
    if (stChange.strRename.empty())
        return {};
    return fmt::format(stChange.enWhat == EnChange::Lost ? "; is it \"{}\" now?" : "; was it \"{}\"?",
                       stChange.strRename);
}

std::string numberText(const std::string& strNumber)
{
    return strNumber.empty() ? std::string() : ", number " + strNumber;
}
} // namespace

std::string subjectText(const StChange& stChange)
{
    if (stChange.pKind != nullptr)
        return std::string(stChange.pKind->pszName) + " " + stChange.strPath;
    if (stChange.strPath.empty())
        return stChange.enWhat == EnChange::Unread ? "configuration" : "device type";
    return stChange.enWhat == EnChange::Unread ? stChange.strPath : "version " + stChange.strPath;
}

std::string whatText(const StChange& stChange)
{
    switch (stChange.enWhat)
    {
    case EnChange::Gained:
        return "gained" + noteText(stChange) + numberText(stChange.strNew) + renameText(stChange);
    case EnChange::Lost:
        return "lost" + noteText(stChange) + numberText(stChange.strOld) + renameText(stChange);
    case EnChange::Changed:
        return fmt::format("{}{}{} → {}{}", stChange.strField, stChange.strField.empty() ? "" : " ",
                           valueText(stChange.strOld), valueText(stChange.strNew), noteText(stChange));
    case EnChange::Moved:
        return fmt::format("order {} → {}", stChange.strOld, stChange.strNew);
    case EnChange::Unread:
        break;
    }
    return stChange.strNew.empty() ? "can be read; it could not: " + stChange.strOld
                                   : "cannot be read: " + stChange.strNew;
}

std::string placeText(const StDiff& stDiff, const StDiffPlace& stPlace)
{
    if (stPlace.ulLine == 0)
        return {};
    return placeText(stDiff.lstFile[stPlace.ulFile], {0, stPlace.ulLine, stPlace.ulColumn, 0});
}

std::string siteText(const StDiff& stDiff, const StDiffSite& stSite)
{
    const std::string strOld = placeText(stDiff, stSite.stOld);
    const std::string strNew = placeText(stDiff, stSite.stNew);
    return strOld + (strOld.empty() || strNew.empty() ? "" : " → ") + strNew;
}

std::string typesText(const StDiff& stDiff, const std::vector<StDiffSite>& lstSite)
{
    std::string                                       strText;
    std::set<std::pair<std::uint32_t, std::uint32_t>> setTold;
    const std::string*                                pType = nullptr; // of the one before
    for (const StDiffSite& stSite : lstSite)
    {
        const StRegisteredType& stType = stDiff.lstType[stSite.ulType];
        if (stType.strDevType.empty() || !setTold.insert({stSite.ulType, stSite.ulSoftware}).second)
            continue;
        if (pType != nullptr && *pType == stType.strDevType)
            strText += ", " + stType.strDevTypeVer;
        else
            strText += (pType == nullptr ? "" : "; ") + stType.strDevType + " " + stType.strDevTypeVer;
        pType                          = &stType.strDevType;
        const std::string& strSoftware = stDiff.lstSoftware[stSite.ulSoftware];
        if (!strSoftware.empty())
            strText += " (" + strSoftware + ")";
    }
    return strText;
}

std::size_t countTypes(const std::vector<StDiffSite>& lstSite)
{
    std::set<std::uint32_t> setType;
    for (const StDiffSite& stSite : lstSite)
        setType.insert(stSite.ulType);
    return setType.size();
}

ImpactCounts countImpacts(const StDiff& stDiff)
{
    ImpactCounts arCount = {};
    for (const StChange& stChange : stDiff.lstChange)
        ++arCount.at(static_cast<std::size_t>(stChange.pRule->enImpact));
    return arCount;
}

std::string impactsText(const StDiff& stDiff)
{
    const ImpactCounts arCount = countImpacts(stDiff);
    std::string        strText;
    for (std::size_t nAt = 0; nAt < arCount.size(); ++nAt)
    {
        if (arCount.at(nAt) != 0)
            strText += fmt::format("{}{} {}", strText.empty() ? "" : ", ", arCount.at(nAt),
                                   impactWord(static_cast<EnImpact>(nAt)));
    }
    return strText;
}

std::string deviceText(const StHurtDevice& stDevice)
{
    return fmt::format("{}{}{}{}, {} {}", stDevice.ulDeviceID, stDevice.strName.empty() ? "" : " ", stDevice.strName,
                       stDevice.strAddress.empty() ? "" : " (" + stDevice.strAddress + ")", stDevice.strDevType,
                       stDevice.strDevTypeVer);
}

std::string countText(std::size_t nCount, const char* pszWhat)
{
    return fmt::format("{} {}{}", nCount, pszWhat, nCount == 1 ? "" : "s");
}
