// See EntryText.h.
#include "tools/opxml/catalog/EntryText.h"

#include <fmt/format.h>

#include <cctype>

std::string placeText(const std::string& strFile, const catalog::StPlace& stPlace)
{
    const std::string strShort = strFile.compare(0, 2, "./") == 0 ? strFile.substr(2) : strFile;
    return stPlace.ulLine == 0 ? strShort : fmt::format("{}:{}:{}", strShort, stPlace.ulLine, stPlace.ulColumn);
}

std::string placeText(const std::vector<std::string>& lstFile, const catalog::StPlace& stPlace)
{
    return stPlace.ulFile < lstFile.size() ? placeText(lstFile[stPlace.ulFile], stPlace) : std::string();
}

std::string originText(const catalog::StEntry& stEntry)
{
    switch (stEntry.enOrigin)
    {
    case catalog::EnOrigin::OwnFile:
        return "own file";
    case catalog::EnOrigin::CommonFile:
        return "common file";
    case catalog::EnOrigin::TelnetTwin:
        return "telnet twin";
    case catalog::EnOrigin::TelnetCheckFile:
        return "check file";
    case catalog::EnOrigin::FixedCheckFile:
        return "fixed check file";
    case catalog::EnOrigin::Module:
        return "module " + stEntry.strModule;
    case catalog::EnOrigin::CapacityDocument:
        break;
    }
    return "capacity document";
}

std::string attributeText(const char* pszField)
{
    std::string strName = pszField;
    strName.erase(0, strName.find_first_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ")); // the type letters
    if (strName.empty())
        return pszField;
    const bool bAbbreviation = strName.size() > 1 && std::isupper(static_cast<unsigned char>(strName[1])) != 0;
    if (!bAbbreviation) // "GUITemplete" is written as it is
        strName.front() = static_cast<char>(std::tolower(static_cast<unsigned char>(strName.front())));
    return strName;
}

std::string saysText(const catalog::StEntry& stEntry)
{
    std::string strText;
    for (const catalog::StField& stField : stEntry.lstField)
    {
        if (stField.stPlace.ulLine == 0 || stField.strValue == stEntry.strId)
            continue;
        const bool bNoWord = stField.enKind == catalog::EnFieldKind::Word && stField.strValue.empty();
        strText += fmt::format("{}{}={}", strText.empty() ? "" : ", ", attributeText(stField.pszName),
                               bNoWord ? "?" : stField.strValue);
    }
    return strText;
}
