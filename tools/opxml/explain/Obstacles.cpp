// See Obstacles.h. What a module has to do with it: ModuleObstacles.cpp.
#include "tools/opxml/explain/Obstacles.h"

#include "records/Vocabulary.h"
#include "tools/opxml/catalog/EntryText.h"
#include "tools/opxml/explain/CapacityPlace.h"
#include "tools/opxml/explain/ModuleObstacles.h"
#include "tools/opxml/explain/WhatThereIs.h"
#include "tools/opxml/output/Names.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdint>
#include <set>
#include <string_view>

namespace
{
constexpr std::size_t NAMED_KINDS = 3;

using Stands = std::vector<StStand>;

bool isAnyInEffect(const Stands& lstStand, bool bDefinition)
{
    return std::any_of(lstStand.begin(), lstStand.end(),
                       [bDefinition](const StStand& stStand)
                       { return stStand.bInEffect && (!bDefinition || isDefinition(stStand)); });
}

// "task or check operation".
std::string kindNames(const std::vector<EnEntryKind>& lstKind)
{
    constexpr std::string_view LAST_WORD = " operation";
    std::string                strNames;
    for (const EnEntryKind enKind : lstKind)
    {
        std::string strName = kindOf(enKind).pszName;
        if (enKind != lstKind.back() && strName.size() > LAST_WORD.size())
            strName.resize(strName.size() - LAST_WORD.size());
        strNames += (strNames.empty() ? "" : " or ") + strName;
    }
    return strNames.empty() ? "operation" : strNames;
}

// As it is asked for: files hold 32 bits without a sign, questions hand them over with one.
std::string numberText(const std::string& strNumber)
{
    return std::to_string(static_cast<std::int32_t>(std::stoul(strNumber)));
}

class CAbsenceFinder
{
public:
    CAbsenceFinder(CServedKeys& oKeys, const StLookedInto& stLookedInto, const StWanted& stWanted)
        : m_oKeys(oKeys), m_stLookedInto(stLookedInto), m_stCatalog(stLookedInto.pServed->stCatalog),
          m_stWanted(stWanted), m_stMissing(stWanted)
    {
    }

    StAbsence find()
    {
        if (m_stLookedInto.pServed->strProblem.empty())
            findLevel();
        else
            m_stAbsence = {
                m_stLookedInto.pServed->strProblem, {{EnObstacle::Unread, m_stLookedInto.pServed->strProblem, {}}}, {}};
        if (!m_stAbsence.strWhat.empty())
            addFromOutside();
        std::stable_sort(m_stAbsence.lstObstacle.begin(), m_stAbsence.lstObstacle.end(),
                         [](const StObstacle& stLeft, const StObstacle& stRight)
                         { return stLeft.enObstacle < stRight.enObstacle; });
        return std::move(m_stAbsence);
    }

private:
    Stands standsIn(const StWanted& stWanted) const
    {
        return standsIn(m_stCatalog, m_stLookedInto.nConfiguration, stWanted);
    }
    static Stands standsIn(const catalog::StTypeCatalog& stCatalog, std::size_t nConfiguration,
                           const StWanted& stWanted)
    {
        if (nConfiguration >= stCatalog.lstConfiguration.size())
            return {};
        return findStands(stCatalog.lstConfiguration[nConfiguration].lstSection, stCatalog.lstFile, stWanted);
    }

    // Of whatever kind, what is offered has to be defined.
    bool isWanted(const StStand& stStand) const
    {
        const bool bMustDefine = m_stWanted.lstKind.empty() && m_stMissing.lstId.size() == 1;
        return isFound(stStand, m_stWanted) && (!bMustDefine || isDefinition(stStand));
    }
    const StStand* findWanted(const Stands& lstStand) const
    {
        const auto itFound = std::find_if(lstStand.begin(), lstStand.end(),
                                          [this](const StStand& stStand) { return isWanted(stStand); });
        return itFound == lstStand.end() ? nullptr : &*itFound;
    }

    // The first of operation, parameter and option that is not there, or that is
    // switched off, and what is the matter with it here.
    void findLevel()
    {
        Stands lstStand;
        for (m_nLevel = 1; m_nLevel <= m_stWanted.lstId.size(); ++m_nLevel)
        {
            m_stMissing = m_stWanted.upTo(m_nLevel);
            lstStand    = standsIn(m_stMissing);
            if (findWanted(lstStand) == nullptr)
                break;
        }
        if (m_nLevel > m_stWanted.lstId.size())
            return addSwitchedOff(lstStand);
        m_stAbsence.strWhat = whatText();
        addShadowed(lstStand);
        addOtherKinds();
        addCapacity(lstStand);
        addOtherVersions();
        addLeftOut(lstStand);
    }

    void addSwitchedOff(const Stands& lstStand)
    {
        const StStand* pOff = nullptr;
        for (const StStand& stStand : lstStand)
        {
            if (!isWanted(stStand))
                continue;
            if (isOffered(stStand))
                return;
            pOff = pOff == nullptr ? &stStand : pOff;
        }
        if (pOff == nullptr)
            return;
        const bool bParameter = pOff->pKind->enKind == EnEntryKind::Parameter;
        m_stAbsence.strWhat =
            fmt::format(bParameter ? "the parameter is there, but not required: its isRequired is not set ({})"
                                   : "the operation is there, but switched off: its isSupported is not set ({})",
                        pOff->strPlace);
        m_stAbsence.lstObstacle.push_back({EnObstacle::SwitchedOff, m_stAbsence.strWhat, {pOff->strPlace}});
    }

    std::string whatText() const
    {
        const auto& lstId = m_stWanted.lstId;
        std::string strIn;
        for (std::size_t nAt = m_nLevel - 1; nAt-- > 0;)
            strIn += fmt::format("{}\"{}\"", strIn.empty() ? "" : " of ", lstId[nAt]);
        const bool        bNumber = m_nLevel == OPTION_LEVEL && !m_stWanted.bByName;
        const std::string strId   = bNumber ? numberText(lstId[2]) : "\"" + lstId[m_nLevel - 1] + "\"";
        return fmt::format("no {} {} in {}{}", partName(), strId, strIn.empty() ? "" : strIn + " of ",
                           m_stLookedInto.strWhere);
    }

    std::string partName() const
    {
        if (m_nLevel == 1)
            return kindNames(m_stWanted.lstKind);
        const Stands lstAround = standsIn(m_stWanted.upTo(m_nLevel - 1));
        const auto   itAround =
            std::find_if(lstAround.begin(), lstAround.end(),
                         [](const StStand& stStand) { return stStand.bInEffect && isDefinition(stStand); });
        const EnEntryKind enRoot = itAround == lstAround.end() ? EnEntryKind::DeviceOperation : itAround->pKind->enKind;
        if (enRoot == EnEntryKind::CheckOperation)
            return "check item";
        if (enRoot == EnEntryKind::UpgradeOperation || enRoot == EnEntryKind::TaskType)
            return "parameter or step";
        return m_nLevel == 2 ? "parameter" : "option";
    }

    void addShadowed(const Stands& lstStand)
    {
        for (const StStand& stStand : lstStand)
        {
            const bool bShadowed = std::any_of(stStand.lstPath.begin(), stStand.lstPath.end(),
                                               [](const catalog::StEntry* pEntry)
                                               { return pEntry->enFate == catalog::EnEntryFate::Shadowed; });
            if (bShadowed || stStand.bPartly)
                return add({EnObstacle::Shadowed,
                            fmt::format("it stands at {}, shadowed by {}", stStand.strPlace, stStand.strBecause),
                            {stStand.strPlace, stStand.strBecause}});
        }
    }

    // As something else in this configuration.
    void addOtherKinds()
    {
        StWanted stOther = m_stMissing;
        stOther.lstKind.clear();
        Stands lstStand = standsIn(stOther);
        if (isAnyInEffect(lstStand, m_nLevel == 1))
            return addAsOther(EnObstacle::OtherKind, "it is ", lstStand);
        if (m_nLevel == OPTION_LEVEL && !m_stWanted.bByName)
            return; // a number alone tells nothing
        if (m_nLevel > 1)
        {
            stOther.lstId = {m_stMissing.lstId.back()};
            lstStand      = standsIn(stOther);
        }
        addAsOther(EnObstacle::Elsewhere, m_nLevel == 1 ? "nothing defines it, but it is " : "elsewhere it is ",
                   lstStand);
    }

    // Each kind once, at its first place; where something defines it, what refers to that
    // tells nothing.
    void addAsOther(EnObstacle enObstacle, const char* pszBegin, const Stands& lstStand)
    {
        const bool            bDefined   = isAnyInEffect(lstStand, true);
        StObstacle            stObstacle = {enObstacle, {}, {}};
        std::set<std::string> setKind;
        for (const StStand& stStand : lstStand)
        {
            const std::string strKind = kindText(stStand);
            if (!stStand.bInEffect || (bDefined && !isDefinition(stStand)) || !setKind.insert(strKind).second ||
                setKind.size() > NAMED_KINDS)
                continue;
            stObstacle.lstPlace.push_back(stStand.strPlace);
            stObstacle.strText +=
                fmt::format("{}{} ({})", stObstacle.strText.empty() ? pszBegin : ", ", strKind, stStand.strPlace);
        }
        if (setKind.size() > NAMED_KINDS)
            stObstacle.strText += fmt::format(", and {} more", setKind.size() - NAMED_KINDS);
        if (!stObstacle.lstPlace.empty())
            add(std::move(stObstacle));
    }

    void addCapacity(const Stands& lstStand)
    {
        for (const StStand& stStand : lstStand)
        {
            if (stStand.entry().enFate != catalog::EnEntryFate::Pruned)
                continue;
            const StCapacityPlace stBecause = findCapacityPlace(
                m_stCatalog, stStand.entry().stBecause, m_stLookedInto.strSoftVersion, m_stLookedInto.strPatchVersion);
            return add({EnObstacle::Capacity,
                        fmt::format("removed by the capacity document of version {} at {}; it stands at {}",
                                    stBecause.strVersion, stBecause.strPlace, stStand.strPlace),
                        {stBecause.strPlace, stStand.strPlace}});
        }
    }

    void addOtherVersions()
    {
        for (std::size_t nAt = 0; nAt < m_stCatalog.lstConfiguration.size(); ++nAt)
        {
            const Stands   lstStand = standsIn(m_stCatalog, nAt, m_stMissing);
            const StStand* pFound   = findWanted(lstStand);
            if (nAt == m_stLookedInto.nConfiguration || pFound == nullptr)
                continue;
            const catalog::StConfiguration& stOther = m_stCatalog.lstConfiguration[nAt];
            const bool                      bOne    = stOther.lstVersion.size() == 1;
            add({EnObstacle::OtherVersion,
                 fmt::format("{} {} {} it ({})", bOne ? "version" : "versions", versionsText(stOther),
                             bOne ? "has" : "have", pFound->strPlace),
                 {pFound->strPlace}});
        }
    }

    void addLeftOut(const Stands& lstStand)
    {
        for (const StStand& stStand : lstStand)
        {
            if (stStand.entry().enFate == catalog::EnEntryFate::Dropped)
                return add({EnObstacle::LeftOut,
                            fmt::format("left out: {} ({})", stStand.entry().strReason, stStand.strPlace),
                            {stStand.strPlace}});
        }
    }

    // Outside this configuration. Whoever has none misses the whole of what is asked for.
    void addFromOutside()
    {
        if (m_stAbsence.lstObstacle.size() == 1 &&
            m_stAbsence.lstObstacle.front().enObstacle == EnObstacle::SwitchedOff)
            return;
        addOtherVariant();
        if (!m_stLookedInto.pServed->strProblem.empty())
            return;
        for (StObstacle& stObstacle : moduleObstacles(m_oKeys, m_stLookedInto.strDevType, m_stMissing))
            add(std::move(stObstacle));
        addWhatThereIs();
        for (StObstacle& stObstacle : brokenModules(m_oKeys, m_stMissing))
            add(std::move(stObstacle));
    }

    void addOtherVariant()
    {
        const std::string  strSuffix(Vocabulary::TELNET_SUFFIX);
        const bool         bTelnet  = m_stLookedInto.pServed->strKey != m_stLookedInto.strDevType;
        const StServedKey& stOther  = m_oKeys.find(m_stLookedInto.strDevType, bTelnet ? "" : strSuffix);
        const Stands       lstStand = standsIn(stOther.stCatalog, 0, m_stMissing);
        const StStand*     pFound   = findWanted(lstStand);
        if (&stOther == m_stLookedInto.pServed || pFound == nullptr)
            return;
        add({EnObstacle::OtherVariant,
             fmt::format("\"{}\", for devices that are {}managed over telnet, has it ({})", stOther.strKey,
                         bTelnet ? "not " : "", pFound->strPlace),
             {pFound->strPlace}});
    }

    // At this level, and which of it is spelt nearly the same.
    void addWhatThereIs()
    {
        StThereIs stThereIs       = whatThereIs(m_stCatalog, m_stLookedInto.nConfiguration, m_stMissing);
        m_stAbsence.lstThereAre   = std::move(stThereIs.lstShown);
        const bool        bName   = m_nLevel < OPTION_LEVEL || m_stWanted.bByName;
        const std::string strNear = bName ? nearestNames(m_stMissing.lstId.back(), stThereIs.lstName) : "";
        if (!strNear.empty())
            add({EnObstacle::Spelling, strNear.substr(strNear.find_first_not_of("; ")), {}});
    }

    void add(StObstacle stObstacle) { m_stAbsence.lstObstacle.push_back(std::move(stObstacle)); }

    CServedKeys&                  m_oKeys;
    const StLookedInto&           m_stLookedInto;
    const catalog::StTypeCatalog& m_stCatalog;
    const StWanted&               m_stWanted;
    StWanted                      m_stMissing;  // up to the level that is missing
    std::size_t                   m_nLevel = 1; // 1 operation, 2 parameter, 3 option
    StAbsence                     m_stAbsence;
};
} // namespace

const char* obstacleWord(EnObstacle enObstacle)
{
    switch (enObstacle)
    {
    case EnObstacle::Unresolved:
        return "unresolved";
    case EnObstacle::Unread:
        return "unread";
    case EnObstacle::SwitchedOff:
        return "switched-off";
    case EnObstacle::Shadowed:
        return "shadowed";
    case EnObstacle::OtherKind:
        return "other-kind";
    case EnObstacle::Capacity:
        return "capacity";
    case EnObstacle::OtherVersion:
        return "other-version";
    case EnObstacle::LeftOut:
        return "left-out";
    case EnObstacle::OtherVariant:
        return "other-variant";
    case EnObstacle::Module:
        return "module";
    case EnObstacle::ModuleName:
        return "module-name";
    case EnObstacle::Elsewhere:
        return "elsewhere";
    case EnObstacle::Spelling:
        return "spelling";
    case EnObstacle::BrokenModule:
        break;
    }
    return "broken-module";
}

std::string StAbsence::text() const
{
    if (lstObstacle.empty() || lstObstacle.front().strText == strWhat)
        return strWhat;
    const char* pszJoint = lstObstacle.front().enObstacle == EnObstacle::Spelling ? "; " : ": ";
    return strWhat + pszJoint + lstObstacle.front().strText;
}

StAbsence findAbsence(CServedKeys& oKeys, const StLookedInto& stLookedInto, const StWanted& stWanted)
{
    return CAbsenceFinder(oKeys, stLookedInto, stWanted).find();
}
