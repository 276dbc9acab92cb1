// See RecordPlaces.h.
#include "tools/opxml/catalog/RecordPlaces.h"

#include "tools/opxml/catalog/EntryText.h"
#include "tools/opxml/output/Sections.h"

#include <algorithm>
#include <string>
#include <vector>

namespace
{
using catalog::StEntry;
using Files = std::vector<std::string>;

// Those of which the store has a record.
std::vector<const StEntry*> recorded(const std::vector<StEntry>& lstEntry)
{
    std::vector<const StEntry*> lstRecorded;
    for (const StEntry& stEntry : lstEntry)
    {
        if (stEntry.enFate == catalog::EnEntryFate::Counts || stEntry.enFate == catalog::EnEntryFate::Shadowed)
            lstRecorded.push_back(&stEntry);
    }
    return lstRecorded;
}

void addBelow(StTree& stTree, const std::vector<StEntry>& lstEntry, const Files& lstFile)
{
    const std::vector<const StEntry*> lstRecorded = recorded(lstEntry);
    const std::size_t                 nBoth       = std::min(lstRecorded.size(), stTree.lstChild.size());
    for (std::size_t nAt = 0; nAt < nBoth; ++nAt)
    {
        StTree& stChild = stTree.lstChild[nAt];
        stChild.strText += "  " + placeText(lstFile, lstRecorded[nAt]->stPlace);
        addBelow(stChild, lstRecorded[nAt]->lstChild, lstFile);
    }
}

void addToList(Json& oList, const std::vector<const StEntry*>& lstRecorded, std::size_t& nNext, const Files& lstFile);

// All lists of a record share the entries in it, one list after the other.
void addToRecord(Json& oRecord, const StEntry& stEntry, const Files& lstFile)
{
    const std::vector<const StEntry*> lstRecorded = recorded(stEntry.lstChild);
    std::size_t                       nNext       = 0;
    for (auto& [strName, oValue] : oRecord.items())
    {
        if (oValue.is_array())
            addToList(oValue, lstRecorded, nNext, lstFile);
    }
    oRecord["place"] = placeText(lstFile, stEntry.stPlace);
}

void addToList(Json& oList, const std::vector<const StEntry*>& lstRecorded, std::size_t& nNext, const Files& lstFile)
{
    for (Json& oRecord : oList)
    {
        if (nNext < lstRecorded.size())
            addToRecord(oRecord, *lstRecorded[nNext++], lstFile);
    }
}

// The list of a section, which stands in the record itself or in one of its parts.
Json* findList(Json& oInfo, const char* pszField)
{
    for (Json* pPart : {&oInfo["stOperationConfig"], &oInfo["stViewConfig"], &oInfo})
    {
        const auto itList = pPart->find(pszField);
        if (itList != pPart->end())
            return &*itList;
    }
    return nullptr;
}
} // namespace

void addPlaces(StTree& stTree, const catalog::StTypeCatalog& stCatalog, std::size_t nConfiguration)
{
    if (nConfiguration >= stCatalog.lstConfiguration.size())
        return;
    const catalog::StConfiguration& stConfiguration = stCatalog.lstConfiguration[nConfiguration];
    auto itBranch = stTree.lstChild.begin() + static_cast<std::ptrdiff_t>(stConfiguration.lstVersion.size());
    for (const catalog::StSection& stSection : stConfiguration.lstSection)
    {
        if (recorded(stSection.lstEntry).empty() || itBranch == stTree.lstChild.end())
            continue; // no branch
        addBelow(*itBranch++, stSection.lstEntry, stCatalog.lstFile);
    }
}

void addPlaces(Json& oInfo, const catalog::StTypeCatalog& stCatalog, std::size_t nConfiguration)
{
    if (nConfiguration >= stCatalog.lstConfiguration.size())
        return;
    for (const catalog::StSection& stSection : stCatalog.lstConfiguration[nConfiguration].lstSection)
    {
        std::size_t nNext = 0;
        if (Json* pList = findList(oInfo, SECTION_TITLES[stSection.nRow].pszField))
            addToList(*pList, recorded(stSection.lstEntry), nNext, stCatalog.lstFile);
    }
}
