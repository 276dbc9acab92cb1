// See AlarmTables.h.
#include "tools/opxml/commands/AlarmTables.h"

#include "platform/Paths.h"
#include "records/ServerNames.h"
#include "standalone/ServerRoot.h"
#include "tools/opxml/output/DevTypes.h"
#include "tools/opxml/output/Terminal.h"
#include "tools/opxml/output/Text.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <system_error>

namespace
{
// The folders of the languages stand here.
std::string languageRoot()
{
    return ns_kivosdk_wrap::GetEnvValue(ServerNames::ENV_ROOT, false, true) + "pub/i18n/";
}

} // namespace

std::vector<std::string> alarmLanguages()
{
    std::vector<std::string>            lstName;
    std::error_code                     oProblem;
    std::filesystem::directory_iterator itEntry(languageRoot(), oProblem);
    for (; !oProblem && itEntry != std::filesystem::directory_iterator(); itEntry.increment(oProblem))
    {
        std::error_code oIgnored; // what cannot be asked is no language
        if (itEntry->is_directory(oIgnored))
            lstName.push_back(itEntry->path().filename().string());
    }
    std::sort(lstName.begin(), lstName.end());
    return lstName;
}

void chooseAlarmLanguage(const std::string& strLanguage)
{
    // The value carries its separator: the library joins the path as it stands.
    standalone::setEnvironmentValue(ServerNames::LANGUAGE, strLanguage + "/");
}

void addAlarmOptions(CLI::App& oCommand, StAlarmOptions& stOptions)
{
    oCommand
        .add_option("--lang", stOptions.strLanguage, "Language of the table, for example ja_JP; else OSS_LANG counts")
        ->type_name("LANG");
    oCommand.add_flag("--check", stOptions.bCheck,
                      "Name the mistakes, as opxml lint does; status 1 when there are any");
    oCommand.add_flag("--json", stOptions.bJson, "Print JSON");
}

void openAlarmRoot(const StGlobalOptions& stGlobal, const StAlarmOptions& stOptions)
{
    openRoot(stGlobal);
    std::string strLanguage = stOptions.strLanguage;
    if (strLanguage.empty())
        return;
    if (strLanguage.back() == '/')
        strLanguage.pop_back();
    std::error_code oIgnored; // what cannot be asked is no language
    if (strLanguage.empty() || !std::filesystem::is_directory(languageRoot() + strLanguage, oIgnored))
    {
        const std::string strNames = fmt::format("{}", fmt::join(alarmLanguages(), ", "));
        throw CTrouble(fmt::format("no language \"{}\" in {}; {}", printable(stOptions.strLanguage),
                                   shortPath(languageRoot()),
                                   strNames.empty() ? "there is none" : "there is " + printable(strNames)));
    }
    chooseAlarmLanguage(strLanguage);
}

void requireTable(const CAlarmTable& oTable)
{
    if (oTable.isRead())
        return;
    const std::string strWhy = oTable.problem().isSet() ? problemText(oTable.problem()) : "cannot be read";
    throw CTrouble(printable(shortPath(oTable.path()) + ": " + strWhy));
}

std::uint64_t readId(const std::string& strWhat, const std::string& strText)
{
    std::uint64_t ulId = 0;
    if (!isId(strText, ulId))
        throw CTrouble(fmt::format("{} \"{}\" is no number", strWhat, printable(strText)));
    return ulId;
}

bool isId(const std::string& strText, std::uint64_t& ulId)
{
    const char* const pszEnd   = strText.data() + strText.size();
    const auto        stResult = std::from_chars(strText.data(), pszEnd, ulId);
    return stResult.ec == std::errc() && stResult.ptr == pszEnd;
}
