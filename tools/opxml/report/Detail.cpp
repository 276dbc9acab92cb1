// See Detail.h.
#include "tools/opxml/report/Detail.h"

#include "tools/opxml/output/DevTypes.h"
#include "tools/opxml/output/RecordJson.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <limits>
#include <string_view>

namespace
{
constexpr const char*   FATES[] = {nullptr, "shadowed", "dropped", "cut"};
constexpr std::uint32_t NO_FILE = std::numeric_limits<std::uint32_t>::max();

// The bytes that stand in JSON as they are.
constexpr std::array<bool, 256> plainBytes()
{
    std::array<bool, 256> arPlain = {};
    for (unsigned char cByte = ' '; cByte <= '~'; ++cByte)
        arPlain[cByte] = cByte != '"' && cByte != '\\';
    return arPlain;
}
constexpr std::array<bool, 256> PLAIN_BYTES = plainBytes();

// Most texts are plain; the rest goes the long way.
void addText(std::string& strJson, std::string_view strText)
{
    bool bPlain = true;
    for (const char cByte : strText)
        bPlain &= PLAIN_BYTES[static_cast<unsigned char>(cByte)];
    if (bPlain)
        strJson.append(1, '"').append(strText).append(1, '"');
    else
        strJson += jsonLine(std::string(strText));
}

template <typename Number>
void addNumber(std::string& strJson, Number nNumber)
{
    const fmt::format_int oText(nNumber);
    strJson.append(1, ',').append(oText.data(), oText.size());
}

void addMember(std::string& strJson, const char* pszName, std::string_view strText)
{
    strJson.append(",\"").append(pszName).append("\":");
    addText(strJson, strText);
}
} // namespace

const std::string& CDetailMaker::make(const catalog::StTypeCatalog& stType, std::size_t nConfiguration)
{
    begin(stType);
    for (const catalog::StSection& stSection : stType.lstConfiguration.at(nConfiguration).lstSection)
    {
        if (stSection.lstEntry.empty())
            continue;
        m_strSections += fmt::format(",[{},{}]", stSection.nRow, stSection.lstEntry.size());
        for (const catalog::StEntry& stEntry : stSection.lstEntry)
            addEntry(stEntry, nullptr);
    }
    join();
    return m_strJson;
}

void CDetailMaker::begin(const catalog::StTypeCatalog& stType)
{
    for (std::string* pText :
         {&m_strFiles, &m_strSections, &m_strRecord, &m_strChildren, &m_strDown, &m_strColumn, &m_strMore, &m_strJson})
        pText->clear();
    for (StValues& stValues : m_lstValues)
    {
        for (std::string& strText : stValues.lstText)
            strText.clear();
    }
    m_pType    = &stType;
    m_nEntries = 0;
    m_ulFile   = NO_FILE;
    m_ulLine   = 0;
    m_mapFile.clear();
    // The page leaves out the name of the first file, which is that of the type itself.
    const auto itOwn = std::find(stType.lstFile.begin(), stType.lstFile.end(), stType.stOrigin.strFile);
    if (itOwn != stType.lstFile.end())
        fileNumber(m_ulFile = static_cast<std::uint32_t>(itOwn - stType.lstFile.begin()));
}

void CDetailMaker::addEntry(const catalog::StEntry& stEntry, const catalog::StEntry* pParent)
{
    addMore(stEntry, pParent); // says which file the line counts in
    addNumber(m_strDown, std::int64_t{stEntry.stPlace.ulLine} - m_ulLine);
    m_ulLine = stEntry.stPlace.ulLine;
    addNumber(m_strColumn, stEntry.stPlace.ulColumn);
    addNumber(m_strChildren, stEntry.lstChild.size());
    addValues(stEntry);
    ++m_nEntries;
    for (const catalog::StEntry& stChild : stEntry.lstChild)
        addEntry(stChild, &stEntry);
}

void CDetailMaker::addValues(const catalog::StEntry& stEntry)
{
    const std::size_t nRecord = recordNumber(stEntry);
    addNumber(m_strRecord, nRecord);
    std::string* pText = m_lstValues[nRecord].lstText.data();
    if (stEntry.lstField.empty())
        addText(pText->append(1, ','), stEntry.strId);
    for (const catalog::StField& stField : stEntry.lstField)
    {
        std::string& strText = (pText++)->append(1, ',');
        if (stField.enKind == catalog::EnFieldKind::Number || stField.enKind == catalog::EnFieldKind::Flag)
            strText += stField.strValue;
        else
            addText(strText, stField.strValue);
    }
}

// By the address of its name: a record whose name stood twice would have two numbers.
std::size_t CDetailMaker::recordNumber(const catalog::StEntry& stEntry)
{
    const bool  bIdAlone = stEntry.lstField.empty();
    std::size_t nRecord  = 0;
    for (; nRecord < m_lstValues.size(); ++nRecord)
    {
        if (m_lstValues[nRecord].pszRecord == stEntry.pszRecord && m_lstValues[nRecord].bIdAlone == bIdAlone)
            return nRecord;
    }
    StValues& stValues = m_lstValues.emplace_back();
    stValues.pszRecord = stEntry.pszRecord;
    stValues.bIdAlone  = bIdAlone;
    if (bIdAlone)
        stValues.lstField.push_back("strId");
    for (const catalog::StField& stField : stEntry.lstField)
        stValues.lstField.push_back(stField.pszName);
    stValues.lstText.resize(stValues.lstField.size());
    return nRecord;
}

void CDetailMaker::addMore(const catalog::StEntry& stEntry, const catalog::StEntry* pParent)
{
    std::string strMore;
    if (stEntry.stPlace.ulLine != 0 && stEntry.stPlace.ulFile != m_ulFile)
    {
        m_ulFile = stEntry.stPlace.ulFile;
        m_ulLine = 0;
        strMore += fmt::format(",\"f\":{}", fileNumber(m_ulFile));
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
    if (!strMore.empty())
        m_strMore += fmt::format(",\"{}\":{{{}}}", m_nEntries, strMore.substr(1));
}

// Of the files that are named, in the order in which they are met.
std::uint32_t CDetailMaker::fileNumber(std::uint32_t ulFile)
{
    const auto [itFile, bFirst] = m_mapFile.try_emplace(ulFile, static_cast<std::uint32_t>(m_mapFile.size()));
    if (bFirst)
        addText(m_strFiles.append(1, ','), shortPath(m_pType->lstFile.at(ulFile)));
    return itFile->second;
}

void CDetailMaker::join()
{
    addList("{\"files\":", m_strFiles);
    addList(",\"sections\":", m_strSections);
    addList(",\"record\":", m_strRecord);
    addList(",\"children\":", m_strChildren);
    addList(",\"down\":", m_strDown);
    addList(",\"column\":", m_strColumn);
    joinValues();
    m_strJson.append(",\"more\":{").append(m_strMore, m_strMore.empty() ? 0 : 1).append("}}");
}

void CDetailMaker::joinValues()
{
    m_strJson += ",\"values\":";
    char cBefore = '[';
    for (const StValues& stValues : m_lstValues)
    {
        m_strJson += cBefore;
        cBefore = ',';
        for (std::size_t nField = 0; nField < stValues.lstText.size(); ++nField)
            addList(nField == 0 ? "[" : ",", stValues.lstText[nField]);
        m_strJson += ']';
    }
    m_strJson += m_lstValues.empty() ? "[]" : "]";
}

void CDetailMaker::addList(std::string_view strBefore, std::string_view strElements)
{
    strElements.remove_prefix(strElements.empty() ? 0 : 1);
    m_strJson.append(strBefore).append(1, '[').append(strElements).append(1, ']');
}

DetailRecords CDetailMaker::records() const
{
    DetailRecords lstRecord;
    for (const StValues& stValues : m_lstValues)
    {
        lstRecord.emplace_back(stValues.lstField.begin(), stValues.lstField.end());
        lstRecord.back().insert(lstRecord.back().begin(), stValues.pszRecord);
    }
    return lstRecord;
}
