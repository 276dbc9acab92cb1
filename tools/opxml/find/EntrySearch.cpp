// See EntrySearch.h.
#include "tools/opxml/find/EntrySearch.h"

#include "tools/opxml/catalog/EntryText.h"
#include "tools/opxml/catalog/ServerCatalogs.h"
#include "tools/opxml/output/DevTypes.h"
#include "tools/opxml/output/Names.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace
{
// The last ids of a path, as many as the word has.
std::string pathEnd(const StWalkedEntry& stWalked, const std::string& strWord)
{
    const auto  nIds    = static_cast<std::size_t>(std::count(strWord.begin(), strWord.end(), '/')) + 1;
    const auto& lstPath = stWalked.lstPath;
    std::size_t nAt     = lstPath.size();
    for (std::size_t nTaken = 0; nTaken < nIds && nAt > 0; --nAt)
        nTaken += lstPath[nAt - 1]->strId.empty() ? 0 : 1;
    return pathText({lstPath.begin() + static_cast<std::ptrdiff_t>(nAt), lstPath.end()});
}

bool isWord(const StFindWish& stWish, const std::string& strWord, const StWalkedEntry& stWalked)
{
    const auto fnIs = [&](const std::string& strId)
    { return !strId.empty() && (stWish.bLike ? matchesPattern(strId, strWord) : strId == strWord); };
    return fnIs(stWalked.entry().strId) || (strWord.find('/') != std::string::npos && fnIs(pathEnd(stWalked, strWord)));
}

// The outermost entry of a path that does not count.
const catalog::StEntry& lostEntry(const StWalkedEntry& stWalked)
{
    return **std::find_if(stWalked.lstPath.begin(), stWalked.lstPath.end(),
                          [](const catalog::StEntry* pEntry)
                          { return pEntry->enFate != catalog::EnEntryFate::Counts; });
}
} // namespace

// One type: what each of its configurations has of each word.
class CEntrySearch::CTypeSearch
{
public:
    CTypeSearch(const StFindWish& stWish, const catalog::StTypeCatalog& stType, StFindResult& stResult)
        : m_stWish(stWish), m_stType(stType), m_stResult(stResult), m_lstWord(stResult.lstCount.size())
    {
        for (const catalog::StConfiguration& stConfiguration : stType.lstConfiguration)
        {
            for (StOfWord& stOfWord : m_lstWord)
                stOfWord.lstHas.push_back(false);
            walkEntries(stConfiguration.lstSection, [this](const StWalkedEntry& stWalked) { visit(stWalked); });
            ++m_nConfiguration;
        }
    }

    void tell()
    {
        std::stable_sort(m_lstHit.begin(), m_lstHit.end(),
                         [](const StHit& stLeft, const StHit& stRight)
                         { return stLeft.stFound.nWord < stRight.stFound.nWord; });
        for (StHit& stHit : m_lstHit)
        {
            stHit.stFound.stType = typeOf(stHit.setConfiguration);
            m_stResult.lstFound.push_back(std::move(stHit.stFound));
        }
        for (std::size_t nWord = 0; nWord < m_lstWord.size(); ++nWord)
            count(nWord);
    }

private:
    struct StHit
    {
        StFoundEntry          stFound;
        std::set<std::size_t> setConfiguration;
    };
    struct StOfWord
    {
        std::vector<bool>     lstHas; // by configuration
        std::string           strLost;
        std::set<EnEntryKind> setKind;
    };

    void visit(const StWalkedEntry& stWalked)
    {
        if (m_stResult.setId.size() < 100'000) // more would not be suggestions
            m_stResult.setId.insert(stWalked.entry().strId);
        if (!m_stWish.strModule.empty() && stWalked.entry().strModule != m_stWish.strModule)
            return;
        if (m_stWish.lstWord.empty() && stWalked.lstPath.size() == 1)
            take(0, stWalked);
        for (std::size_t nWord = 0; nWord < m_stWish.lstWord.size(); ++nWord)
        {
            if (isWord(m_stWish, m_stWish.lstWord[nWord], stWalked))
                take(nWord, stWalked);
        }
    }

    void take(std::size_t nWord, const StWalkedEntry& stWalked)
    {
        StOfWord& stOfWord = m_lstWord[nWord];
        if (stWalked.bInEffect)
            stOfWord.setKind.insert(stWalked.pKind->enKind);
        if (m_stWish.pKind != nullptr && m_stWish.pKind != stWalked.pKind)
            return;
        std::string strShadow;
        if (stWalked.bInEffect)
            stOfWord.lstHas.back() = true;
        else if (lostEntry(stWalked).enFate == catalog::EnEntryFate::Shadowed)
            strShadow = placeText(m_stType.lstFile, lostEntry(stWalked).stBecause);
        else
        {
            stOfWord.strLost = lostText(stWalked);
            return;
        }
        const catalog::StEntry& stEntry = stWalked.entry();
        const catalog::StPlace& stPlace = stEntry.stPlace;
        const std::string       strPath = pathText(stWalked.lstPath);
        const auto [itHit, bNew]        = m_mapHit.try_emplace(
                   {nWord, stWalked.nRow, stPlace.ulFile, stPlace.ulLine, stPlace.ulColumn, strPath}, m_lstHit.size());
        if (bNew)
            m_lstHit.push_back({{nWord,
                                 {},
                                 stWalked.pKind,
                                 strPath,
                                 saysText(stEntry),
                                 originText(stEntry),
                                 placeText(m_stType.lstFile, stPlace),
                                 strShadow},
                                {}});
        m_lstHit[itHit->second].setConfiguration.insert(m_nConfiguration);
    }

    std::string lostText(const StWalkedEntry& stWalked) const
    {
        const catalog::StEntry& stLost   = lostEntry(stWalked);
        const std::string       strPlace = placeText(m_stType.lstFile, stWalked.entry().stPlace);
        if (stLost.enFate == catalog::EnEntryFate::Pruned)
            return strPlace + ": taken out by " + placeText(m_stType.lstFile, stLost.stBecause);
        return strPlace + ": left out, " + stLost.strReason;
    }

    void count(std::size_t nWord)
    {
        const StOfWord&       stOfWord = m_lstWord[nWord];
        StFindCount&          stCount  = m_stResult.lstCount[nWord];
        std::set<std::size_t> setLacking;
        for (std::size_t nAt = 0; nAt < stOfWord.lstHas.size(); ++nAt)
        {
            if (!stOfWord.lstHas[nAt])
                setLacking.insert(nAt);
        }
        stCount.nHave += setLacking.size() < stOfWord.lstHas.size() ? 1 : 0;
        for (const EnEntryKind enKind : stOfWord.setKind)
            ++stCount.mapByKind[enKind];
        if (setLacking.empty())
            return;
        ++stCount.nLack;
        m_stResult.lstLacking.push_back({nWord, typeOf(setLacking), stOfWord.strLost});
    }

    // The type with the software versions of some of its configurations.
    StFindType typeOf(const std::set<std::size_t>& setConfiguration) const
    {
        StFindType stType = {m_stType.strDevType, m_stType.strDevTypeVer, {}};
        if (setConfiguration.size() == m_stType.lstConfiguration.size())
            return stType;
        for (const std::size_t nConfiguration : setConfiguration)
        {
            for (const catalog::StVersion& stVersion : m_stType.lstConfiguration[nConfiguration].lstVersion)
                stType.lstSoftware.push_back(versionText(stVersion.strSoftVersion, stVersion.strPatchVersion));
        }
        return stType;
    }

    using HitKey = std::tuple<std::size_t, std::size_t, std::uint32_t, std::uint32_t, std::uint32_t, std::string>;

    const StFindWish&             m_stWish;
    const catalog::StTypeCatalog& m_stType;
    StFindResult&                 m_stResult;
    std::vector<StOfWord>         m_lstWord;
    std::size_t                   m_nConfiguration = 0;
    std::vector<StHit>            m_lstHit;
    std::map<HitKey, std::size_t> m_mapHit; // where it stands in the list
};

CEntrySearch::CEntrySearch(StFindWish stWish) : m_stWish(std::move(stWish))
{
    m_stResult.lstCount.resize(std::max<std::size_t>(m_stWish.lstWord.size(), 1));
}

void CEntrySearch::take(const catalog::StTypeCatalog& stType)
{
    if (stType.lstConfiguration.empty())
    {
        m_stResult.lstUnread.push_back({0, {stType.strDevType, stType.strDevTypeVer, {}}, whyNotRead(stType)});
        return;
    }
    ++m_stResult.nTypes;
    CTypeSearch(m_stWish, stType, m_stResult).tell();
}
