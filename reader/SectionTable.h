// The sections of a configuration, one row each, in the order in which they are
// read. Section chain, module merge, capacity pruning and the tool's counts, titles
// and trees all go through these rows: a new section is its record, its parser and
// one row here. Constants only; private to this project.
#ifndef OPERATIONXML_READER_SECTIONTABLE_H
#define OPERATIONXML_READER_SECTIONTABLE_H

#include "records/ModuleRecords.h"
#include "sections/CCheckOpXMLConfig.h"
#include "sections/CCustomOpXMLConfig.h"
#include "sections/CDevOpXMLConfig.h"
#include "sections/CDevViewPopupMenuConfig.h"
#include "sections/CIsolationViewPopupMenuConfig.h"
#include "sections/COtherOpXMLConfig.h"
#include "sections/CPatchViewPopupMenuConfig.h"
#include "sections/CPatchXMLConfig.h"
#include "sections/CTaskXMLConfig.h"
#include "sections/CUpgradeOpXMLConfig.h"

#include <xercesc/parsers/XercesDOMParser.hpp>

#include <cstddef>
#include <cstdint>
#include <list>
#include <tuple>

// What a module does with a section.
enum class EnModuleUse : std::int32_t
{
    Appends,  // its entries come after the type's own
    ReadOnly, // read, never merged
    None,     // module files have none
};

// How a capacity list prunes a section (CapacityPrune.cpp, one function each).
// "Denied" is an entry of the capacity list that is not supported.
struct StNotPruned
{
};
struct StByOperation // goes when the first entry of its id denies it, else loses parameters and options
{
};
struct StByFirst // goes when the first entry of its id denies it
{
};
struct StByLast // goes when the last entry of its id denies it
{
};
struct StByUpgradeCheck // all go when the check of upgrades is denied
{
};
struct StMenuItems // the items go by their first entry
{
};
struct StTaskSteps // the steps go by their last entry
{
};

template <typename Record, typename Owner, typename Parser, typename Pruned, typename Identity>
struct StSectionRow
{
    using OwnerOfList  = Owner;
    using RecordOfList = Record;

    const char16_t*   pszElement;
    std::list<Record> Owner::*pList; // of a device type; a module's list has the same name
    std::uint32_t (Parser::*pfnRead)(xercesc::XercesDOMParser*, std::list<Record>*);
    Pruned      stPruned;
    EnModuleUse enModuleUse;
    Identity Record::*pIdentity; // what makes two entries the same thing: the first one of it counts
    // For people: column of a table, field of the record, heading.
    const char* pszShort;
    const char* pszField;
    const char* pszTitle;

    std::uint32_t read(xercesc::XercesDOMParser* pDOMParser, std::list<Record>& lstRecord) const
    {
        return (Parser().*pfnRead)(pDOMParser, &lstRecord);
    }
};

template <typename Record, typename Owner, typename Parser, typename Pruned, typename Identity>
StSectionRow(const char16_t*, std::list<Record> Owner::*,
             std::uint32_t (Parser::*)(xercesc::XercesDOMParser*, std::list<Record>*), Pruned, EnModuleUse,
             Identity Record::*, const char*, const char*, const char*)
    -> StSectionRow<Record, Owner, Parser, Pruned, Identity>;

// clang-format off
inline constexpr std::tuple SECTIONS = {
    StSectionRow{u"DeviceOperation", &StAsnOperationConfig::lstDevOperation, &CDevOpXMLConfig::setDevOperXMLConfig,
              StByOperation{}, EnModuleUse::Appends, &StAsnOperation::strId, "dev", "lstDevOperation", "Device operations"},
    StSectionRow{u"TaskOperation", &StAsnOperationConfig::lstTaskOperation, &CDevOpXMLConfig::setTaskOperationXMLConfig,
              StByOperation{}, EnModuleUse::Appends, &StAsnOperation::strId, "task", "lstTaskOperation", "Task operations"},
    StSectionRow{u"PatchOperation", &StAsnOperationConfig::lstPatchOperation, &CDevOpXMLConfig::setPatchOperXMLConfig,
              StByOperation{}, EnModuleUse::Appends, &StAsnOperation::strId, "patch", "lstPatchOperation", "Patch operations"},
    StSectionRow{u"PatchStateConfiguration", &StAsnOperationConfig::lstPatchDef, &CPatchXMLConfig::setPatchStateConfiguraion,
              StNotPruned{}, EnModuleUse::Appends, &StAsnPatchDef::enPatchType, "state", "lstPatchDef", "Patch states"},
    StSectionRow{u"CheckOperations", &StAsnOperationConfig::lstCheckOperation, &CCheckOpXMLConfig::setCheckOpConfiguration,
              StByUpgradeCheck{}, EnModuleUse::Appends, &StAsnCheckOperationDef::strId, "check", "lstCheckOperation", "Check operations"},
    StSectionRow{u"CustomOperations", &StAsnOperationConfig::lstCustomOperation, &CCustomOpXMLConfig::setCustomOperXMLConfig,
              StByLast{}, EnModuleUse::Appends, &StAsnCustomOperationDef::strId, "cust", "lstCustomOperation", "Custom operations"},
    StSectionRow{u"OtherOperation", &StAsnOperationConfig::lstOtherOperation, &COtherOpXMLConfig::setOtherOperXMLConfig,
              StByOperation{}, EnModuleUse::Appends, &StAsnOtherOperationDef::strId, "other", "lstOtherOperation", "Other operations"},
    StSectionRow{u"UpgradeOperation", &StAsnOperationConfig::lstUpgradeOperation, &CUpgradeOpXMLConfig::setUpgradeOperXMLConfig,
              StNotPruned{}, EnModuleUse::Appends, &StAsnUpgradeOperationDef::strId, "upgr", "lstUpgradeOperation", "Upgrade operations"},
    StSectionRow{u"DeviceViewPopupMenu", &StAsnViewConfig::lstDevViewPopupMenu, &CDevViewPopupMenuConfig::setDevViewPopupMenuConfig,
              StByFirst{}, EnModuleUse::ReadOnly, &StAsnMenuOpDef::strId, "menu", "lstDevViewPopupMenu", "Device view popup menu"},
    StSectionRow{u"DeviceViewTab", &StAsnViewConfig::lstDevViewTab, &CDevViewPopupMenuConfig::setDevViewTabConfig,
              StByFirst{}, EnModuleUse::ReadOnly, &StAsnMenuOpDef::strId, "tab", "lstDevViewTab", "Device view tabs"},
    StSectionRow{u"PatchViewPopupMenu", &StAsnViewConfig::lstPatchTypeMenu, &CPatchViewPopupMenuConfig::setPatchViewPopupMenuConfig,
              StMenuItems{}, EnModuleUse::ReadOnly, &StAsnPatchTypeMenuDef::enPatchType, "pmenu", "lstPatchTypeMenu", "Patch view popup menu"},
    // The element of the device view's menu a second time: the isolation view reads other words in it.
    StSectionRow{u"DeviceViewPopupMenu", &StAsnViewConfig::lstIsolationViewPopupMenu, &CIsolationViewPopupMenuConfig::setIsolationViewPopupMenuConfig,
              StByFirst{}, EnModuleUse::None, &StAsnMenuOpDef::strId, "iso", "lstIsolationViewPopupMenu", "Isolation view popup menu"},
    StSectionRow{u"TaskType", &StAsnDevTypeVerXMLInfo::lstTaskConfigInfoOperation, &CTaskXMLConfig::setTaskConfiguration,
              StTaskSteps{}, EnModuleUse::Appends, &StAsnTaskConfigInfoOperation::enTaskType, "types", "lstTaskConfigInfoOperation", "Task types"},
};
// clang-format on

inline constexpr std::size_t SECTION_COUNT = std::tuple_size_v<decltype(SECTIONS)>;

// The list of a row in a device type or a module, writable if that is.
template <typename Root, typename Record>
auto& listOf(Root& stRoot, std::list<Record> StAsnOperationConfig::*pList)
{
    return stRoot.stOperationConfig.*pList;
}
template <typename Root, typename Record>
auto& listOf(Root& stRoot, std::list<Record> StAsnViewConfig::*pList)
{
    return stRoot.stViewConfig.*pList;
}
template <typename Root>
auto& listOf(Root& stRoot, std::list<StAsnTaskConfigInfoOperation> StAsnDevTypeVerXMLInfo::* /*pList*/)
{
    return stRoot.lstTaskConfigInfoOperation;
}

// Calls fnVisit(row) for every section in order.
template <typename Visit>
void forEachSection(Visit&& fnVisit)
{
    std::apply([&fnVisit](const auto&... stRow) { (fnVisit(stRow), ...); }, SECTIONS);
}

#endif
