// See Detail.h.
#include "tools/opxml/report/Detail.h"

#include "tools/opxml/output/DevTypes.h"
#include "tools/opxml/output/RecordJson.h"
#include "tools/opxml/report/ShowText.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <map>
#include <string_view>

namespace
{
constexpr const char* FATES[] = {nullptr, "shadowed", "dropped", "cut"};

// Most texts are plain; the rest goes the long way.
void addText(std::string& strJson, std::string_view strText)
{
    const bool bPlain =
        std::all_of(strText.begin(), strText.end(),
                    [](char cByte) { return cByte >= ' ' && cByte <= '~' && cByte != '"' && cByte != '\\'; });
    if (bPlain)
        strJson.append(1, '"').append(strText).append(1, '"');
    else
        strJson += jsonLine(std::string(strText));
}

// Written as it goes: a value of its own for each line of a thousand types takes as long
// as reading them.
class CDetailMaker
{
public:
    explicit CDetailMaker(const catalog::StTypeCatalog& stType) : m_stType(stType)
    {
        // The page leaves out the name of the first file, which is that of the type itself.
        for (std::uint32_t ulFile = 0; ulFile < stType.lstFile.size(); ++ulFile)
        {
            if (stType.lstFile[ulFile] == stType.stOrigin.strFile)
                fileNumber(ulFile);
        }
    }

    std::string make(const catalog::StConfiguration& stConfiguration)
    {
        for (const catalog::StSection& stSection : stConfiguration.lstSection)
        {
            if (stSection.lstEntry.empty())
                continue;
            m_strJson += fmt::format("{}[{}", m_strJson.empty() ? "" : ",", stSection.nRow);
            for (const catalog::StEntry& stEntry : stSection.lstEntry)
            {
                m_strJson += ',';
                addNode(stEntry, nullptr);
            }
            m_strJson += ']';
        }
        return "{\"files\":" + jsonLine(m_oFiles) + ",\"sections\":[" + m_strJson + "]}";
    }

private:
    void addNode(const catalog::StEntry& stEntry, const catalog::StEntry* pParent)
    {
        const StShowText   stText  = showText(stEntry, pParent);
        const std::string  strMore = more(stEntry, pParent); // says which file the line counts in
        const std::int64_t nDown   = std::int64_t{stEntry.stPlace.ulLine} - m_nLine;
        m_nLine                    = stEntry.stPlace.ulLine;
        m_strJson += '[';
        addText(m_strJson, stText.strName);
        m_strJson += ',';
        addText(m_strJson, stText.strRest);
        fmt::format_to(std::back_inserter(m_strJson), ",{},{}", nDown, stEntry.stPlace.ulColumn);
        if (!stEntry.lstChild.empty() || !strMore.empty())
            addChildren(stEntry);
        if (!strMore.empty())
            m_strJson.append(",{").append(strMore).append(1, '}');
        m_strJson += ']';
    }

    void addChildren(const catalog::StEntry& stEntry)
    {
        m_strJson += ",[";
        for (const catalog::StEntry& stChild : stEntry.lstChild)
        {
            addNode(stChild, &stEntry);
            m_strJson += ',';
        }
        if (m_strJson.back() == ',')
            m_strJson.pop_back();
        m_strJson += ']';
    }

    std::string more(const catalog::StEntry& stEntry, const catalog::StEntry* pParent)
    {
        std::string strMore;
        if (stEntry.stPlace.ulLine != 0 && fileNumber(stEntry.stPlace.ulFile) != m_nFile)
        {
            m_nFile = fileNumber(stEntry.stPlace.ulFile);
            m_nLine = 0;
            strMore += fmt::format(",\"f\":{}", m_nFile);
        }
        if (!stEntry.strModule.empty() && (pParent == nullptr || pParent->strModule != stEntry.strModule))
            addMember(strMore, "m", stEntry.strModule);
        if (const char* pszFate = FATES[static_cast<std::size_t>(stEntry.enFate)])
            addMember(strMore, "t", pszFate);
        if (stEntry.stBecause.ulLine != 0)
            strMore += fmt::format(",\"b\":[{},{},{}]", fileNumber(stEntry.stBecause.ulFile), stEntry.stBecause.ulLine,
                                   stEntry.stBecause.ulColumn);
        if (!stEntry.strReason.empty())
            addMember(strMore, "r", stEntry.strReason);
        return strMore.empty() ? strMore : strMore.substr(1);
    }

    static void addMember(std::string& strJson, const char* pszName, std::string_view strText)
    {
        strJson.append(",\"").append(pszName).append("\":");
        addText(strJson, strText);
    }

    // Of the files that are named, in the order in which they are met.
    std::int64_t fileNumber(std::uint32_t ulFile)
    {
        const auto [itFile, bFirst] = m_mapFile.try_emplace(ulFile, static_cast<std::int64_t>(m_mapFile.size()));
        if (bFirst)
            m_oFiles.push_back(shortPath(m_stType.lstFile.at(ulFile)));
        return itFile->second;
    }

    const catalog::StTypeCatalog&         m_stType;
    std::map<std::uint32_t, std::int64_t> m_mapFile;
    Json                                  m_oFiles = Json::array();
    std::string                           m_strJson;
    std::int64_t                          m_nFile = 0;
    std::int64_t                          m_nLine = 0;
};
} // namespace

std::string detailJson(const catalog::StTypeCatalog& stType, std::size_t nConfiguration)
{
    return CDetailMaker(stType).make(stType.lstConfiguration.at(nConfiguration));
}
