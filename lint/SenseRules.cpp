// References from menus, tabs, patch states and task steps to operations; entries of
// modules that nobody reaches; options that this server drops.
#include "lint/SenseRules.h"

#include "lint/Nearness.h"
#include "lint/Phrases.h"
#include "reader/SectionTable.h"
#include "records/WordTables.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <map>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

using namespace catalog;

namespace lint
{
namespace
{
// Where the operations of a kind stand.
struct StKindOfOperation
{
    DCAsn1ClientToServer::AsnTypeRefEnum enType;
    const char*                          pszField; // of the section's row
    const char*                          pszText;
};

constexpr StKindOfOperation KINDS[] = {
    {DCAsn1ClientToServer::DeviceOperation, "lstDevOperation", "device operation"},
    {DCAsn1ClientToServer::TaskOperation, "lstTaskOperation", "task operation"},
    {DCAsn1ClientToServer::PatchOperation, "lstPatchOperation", "patch operation"},
    {DCAsn1ClientToServer::CheckOperation, "lstCheckOperation", "check operation"},
    {DCAsn1ClientToServer::CustomOperation, "lstCustomOperation", "custom operation"},
    {DCAsn1ClientToServer::OtherOperation, "lstOtherOperation", "other operation"},
};

// The word by which a reference names a kind.
std::string_view wordOf(const StKindOfOperation& stKind)
{
    for (const auto& stWord : TYPE_REF_WORDS)
    {
        if (stWord.value == stKind.enType)
            return stWord.strWord;
    }
    return {};
}

// Some rows of the table.
struct StKinds
{
    const StKindOfOperation* pBegin;
    const StKindOfOperation* pEnd;

    const StKindOfOperation* begin() const { return pBegin; }
    const StKindOfOperation* end() const { return pEnd; }
};

// The kinds of operations that a word may mean: one, or any for a word that only the
// isolation view has.
StKinds kindsOf(std::string_view strWord)
{
    for (const StKindOfOperation& stKind : KINDS)
    {
        if (wordOf(stKind) == strWord)
            return {&stKind, &stKind + 1};
    }
    return {std::begin(KINDS), std::end(KINDS)};
}

const char* fieldOfRow(std::size_t nRow)
{
    const char* pszField = "";
    std::size_t nAt      = 0;
    forEachSection(
        [&](const auto& stSection)
        {
            if (nAt++ == nRow)
                pszField = stSection.pszField;
        });
    return pszField;
}

// The names down to an entry, for the few of which something is said.
struct StWay
{
    const StWay*     pAbove;
    std::string_view strName;

    std::string text() const { return (pAbove == nullptr ? std::string() : pAbove->text() + "/") + shortened(strName); }
};

// An element may be read into two menus, with other words in each.
struct StReference
{
    StPlace                    stPlace; // of its id
    std::string_view           strId;   // of the catalog, as are the words
    std::set<std::string_view> setWord; // as they are known to whoever reads it
    StPlace                    stType;
    std::string                strSubject;
};

class CSenseCheck
{
public:
    CSenseCheck(const StTypeCatalog& stType, const StLostNames& stLost, CTypeFindings& oFindings)
        : m_stType(stType), m_stLost(stLost), m_oFindings(oFindings)
    {
    }

    void run()
    {
        for (const StConfiguration& stConfiguration : m_stType.lstConfiguration)
        {
            for (const StSection& stSection : stConfiguration.lstSection)
                takeSection(stSection);
        }
        for (const auto& [oPlace, stReference] : m_mapReference)
            checkReference(stReference);
    }

private:
    void takeSection(const StSection& stSection)
    {
        const char*                    pszField = fieldOfRow(stSection.nRow);
        const StKindOfOperation*       pKind    = std::find_if(std::begin(KINDS), std::end(KINDS),
                                                               [pszField](const StKindOfOperation& stKind)
                                                               { return std::strcmp(stKind.pszField, pszField) == 0; });
        std::map<std::string, StPlace> mapTaskType;
        for (const StEntry& stEntry : stSection.lstEntry)
        {
            if (stEntry.enOrigin == EnOrigin::Module)
                m_setModuleFile.insert(stEntry.stPlace.ulFile);
            if (pKind != std::end(KINDS) && stEntry.enFate != EnEntryFate::Dropped)
                definedAs(*pKind).insert(stEntry.strId);
            if (std::strcmp(pszField, "lstTaskConfigInfoOperation") == 0)
                checkTaskType(stEntry, mapTaskType.emplace(stEntry.strId, stEntry.stPlace).first->second);
            takeEntry(stEntry, {nullptr, pszField});
        }
    }

    void takeEntry(const StEntry& stEntry, const StWay& stAbove)
    {
        const StWay stWay = {&stAbove, stEntry.strId};
        if (stEntry.enFate == EnEntryFate::Shadowed)
            return checkShadowed(stEntry, stWay);
        if (stEntry.enFate == EnEntryFate::Dropped && std::strcmp(stEntry.pszRecord, "StAsnOptionInfo") == 0)
            add("hidden-program-file", stEntry.stPlace,
                "this server drops the program-file option " + inQuotes(stEntry.strId),
                ": it does not back up program files", stWay.text(),
                {"the resource BACKUP_PROGRAM_SUPPORT is 1 where they are backed up"});
        if (stEntry.enFate != EnEntryFate::Counts)
            return;
        if (isReference(stEntry))
            takeReference(stEntry, *stEntry.field("enType"), stWay);
        for (const StEntry& stChild : stEntry.lstChild)
            takeEntry(stChild, stWay);
    }

    // All records of a kind have the same fields, and few kinds of records refer to anything.
    bool isReference(const StEntry& stEntry)
    {
        for (const auto& [pszRecord, bReference] : m_lstRecord)
        {
            if (pszRecord == stEntry.pszRecord)
                return bReference;
        }
        return m_lstRecord.emplace_back(stEntry.pszRecord, stEntry.field("enType") != nullptr).second;
    }

    void takeReference(const StEntry& stEntry, const StField& stType, const StWay& stWay)
    {
        const StField* pId = stEntry.field("strId");
        if (pId == nullptr || pId->strValue.empty() || m_stLost.setText.count(pId->strValue) != 0)
            return;
        const StPlace& stPlace     = pId->stPlace.ulLine != 0 ? pId->stPlace : stEntry.stPlace;
        StReference&   stReference = m_mapReference[{stPlace.ulFile, stPlace.ulLine, stPlace.ulColumn}];
        stReference.stPlace        = stPlace;
        stReference.strId          = pId->strValue;
        stReference.stType         = stType.stPlace.ulLine != 0 ? stType.stPlace : stPlace;
        stReference.strSubject     = stWay.text();
        if (!stType.strValue.empty())
            stReference.setWord.insert(stType.strValue);
    }

    // The ids of a kind that the type has.
    std::set<std::string_view>& definedAs(const StKindOfOperation& stKind)
    {
        return m_arDefined[static_cast<std::size_t>(&stKind - std::begin(KINDS))];
    }

    bool isDefined(const StKindOfOperation& stKind, std::string_view strId)
    {
        return definedAs(stKind).count(strId) != 0;
    }

    void checkReference(const StReference& stReference)
    {
        if (stReference.setWord.empty())
            return; // the kind is missing or misspelt, which is told already
        std::vector<const StKindOfOperation*> lstMeant;
        for (const std::string_view strWord : stReference.setWord)
        {
            for (const StKindOfOperation& stKind : kindsOf(strWord))
            {
                if (isDefined(stKind, stReference.strId))
                    return;
                lstMeant.push_back(&stKind);
            }
        }
        reportReference(stReference, lstMeant);
    }

    void reportReference(const StReference& stReference, const std::vector<const StKindOfOperation*>& lstMeant)
    {
        const std::string strMeant = lstMeant.size() == 1 ? lstMeant.front()->pszText : "operation";
        for (const StKindOfOperation& stKind : KINDS)
        {
            if (isDefined(stKind, stReference.strId))
                return add("wrong-kind", stReference.stType,
                           inQuotes(stReference.strId) + " is no " + strMeant + ", but " + article(stKind.pszText),
                           ": clients will not find it", stReference.strSubject,
                           {"write type=" + inQuotes(wordOf(stKind)) + ", or define a " + strMeant + " of this id"});
        }
        std::string strNear;
        for (const StKindOfOperation* pKind : lstMeant)
        {
            if (strNear.empty())
                strNear = m_oHints.nearest(stReference.strId, definedAs(*pKind));
        }
        std::vector<std::string> lstHelp;
        if (!strNear.empty())
            lstHelp.push_back("did you mean " + inQuotes(strNear) + "?");
        m_oFindings.add(m_stType,
                        {"dangling-reference", stReference.stPlace,
                         "there is no " + strMeant + " " + inQuotes(stReference.strId),
                         ": what clients offer here leads nowhere", stReference.strSubject, lstHelp, strNear});
    }

    static std::string article(const char* pszText)
    {
        return (std::strchr("aeiou", *pszText) != nullptr ? "an " : "a ") + std::string(pszText);
    }

    // A later entry of one file is told about the file itself.
    void checkShadowed(const StEntry& stEntry, const StWay& stWay)
    {
        if (stEntry.enOrigin != EnOrigin::Module || stEntry.stBecause.ulFile == stEntry.stPlace.ulFile)
            return;
        add("module-shadowed", stEntry.stPlace,
            "what the module says about " + inQuotes(stEntry.strId) + " is never asked for",
            definedBy(stEntry.stBecause), stWay.text());
    }

    void checkTaskType(const StEntry& stEntry, const StPlace& stFirst)
    {
        if (stEntry.enOrigin == EnOrigin::Module && stEntry.enFate == EnEntryFate::Counts &&
            stFirst.ulFile != stEntry.stPlace.ulFile)
            add("module-shadowed", stEntry.stPlace,
                "clients may show another task type " + inQuotes(stEntry.strId) + " than that of the module",
                definedBy(stFirst), "lstTaskConfigInfoOperation/" + stEntry.strId);
    }

    // The first definition of what a module adds.
    std::string definedBy(const StPlace& stFirst) const
    {
        const std::string& strFile = m_stType.lstFile.at(stFirst.ulFile);
        return m_setModuleFile.count(stFirst.ulFile) == 0 ? ": the type defines it itself"
                                                          : ": " + shortPath(strFile) + " adds it first";
    }

    void add(const char* pszRule, const StPlace& stPlace, std::string strWhat, std::string strSo,
             const std::string& strSubject, std::vector<std::string> lstHelp = {})
    {
        m_oFindings.add(m_stType,
                        {pszRule, stPlace, std::move(strWhat), std::move(strSo), strSubject, std::move(lstHelp), {}});
    }

    using Place = std::tuple<std::uint32_t, std::uint32_t, std::uint32_t>; // file, line, column

    const StTypeCatalog&                                     m_stType;
    const StLostNames&                                       m_stLost;
    CTypeFindings&                                           m_oFindings;
    std::array<std::set<std::string_view>, std::size(KINDS)> m_arDefined; // ids, by kind
    std::vector<std::pair<const char*, bool>>                m_lstRecord; // whether it refers to an operation
    std::map<Place, StReference>                             m_mapReference;
    std::set<std::uint32_t>                                  m_setModuleFile;
    CHints                                                   m_oHints;
};
} // namespace

void checkSense(const StTypeCatalog& stType, const StLostNames& stLost, CTypeFindings& oFindings)
{
    CSenseCheck(stType, stLost, oFindings).run();
}
} // namespace lint
