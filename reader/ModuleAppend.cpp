// See ModuleAppend.h.
#include "reader/ModuleAppend.h"

#include "common/ReadObserver.h"
#include "platform/Paths.h"
#include "reader/SectionTable.h"
#include "records/RecordFields.h"
#include "records/ServerNames.h"

namespace
{
// Tells which record became which, those in them included: one tellCopied() for each
// kind of field.
template <typename Kind, typename Value>
void tellCopied(CReadObserver& /*oObserver*/, Kind /*stKind*/, const Value& /*from*/, const Value& /*to*/)
{
}
template <typename Record>
void tellCopied(CReadObserver& oObserver, StList /*stKind*/, const std::list<Record>& lstFrom,
                const std::list<Record>& lstTo)
{
    auto itTo = lstTo.begin();
    for (const Record& stFrom : lstFrom)
    {
        const Record& stTo = *itTo++;
        oObserver.recordCopied(&stFrom, &stTo);
        std::apply([&](const auto&... stField)
                   { (tellCopied(oObserver, stField.stKind, stFrom.*stField.pMember, stTo.*stField.pMember), ...); },
                   fieldsOf(&stFrom));
    }
}
} // namespace

std::string moduleFolder()
{
    return ns_kivosdk_wrap::GetEnvValue(ServerNames::APP_ROOT, false, true) + "etc/oss_cfg/dc/ne_script/importscript";
}

void appendModule(const StAsnModuleInfoVerXMLInfo& stModule, StAsnDevTypeVerXMLInfo& stInfo)
{
    // Copied first and moved over when all is there, at the addresses of the copies.
    StAsnModuleInfoVerXMLInfo stCopy;
    forEachSection(
        [&](const auto& stSection)
        {
            if (stSection.enModuleUse != EnModuleUse::Appends)
                return;
            const auto& lstFrom = listOf(stModule, stSection.pList);
            auto&       lstTo   = listOf(stCopy, stSection.pList);
            lstTo               = lstFrom;
            if (CReadObserver* pObserver = ReadObserver::get())
                tellCopied(*pObserver, StList{}, lstFrom, lstTo);
        });
    // Appended without a check for equal ids: lookups take the first match, so
    // the device type's own definition wins.
    forEachSection(
        [&](const auto& stSection)
        {
            auto& lstTo = listOf(stInfo, stSection.pList);
            lstTo.splice(lstTo.end(), listOf(stCopy, stSection.pList));
        });
}
