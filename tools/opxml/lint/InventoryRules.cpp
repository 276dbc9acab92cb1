// See InventoryRules.h. What follows from a mistake that is told is not told again: a
// row under a key that no type has does not count as missing its file as well.
#include "tools/opxml/lint/InventoryRules.h"

#include "database/CXMLConfigDatabase.h"
#include "lint/Nearness.h"
#include "records/ServerNames.h"
#include "records/Vocabulary.h"
#include "standalone/InventoryRows.h"
#include "tools/opxml/lint/InventoryPlaces.h"

#include <fmt/format.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <set>
#include <system_error>
#include <tuple>
#include <utility>

namespace
{
using standalone::InventoryRow;

constexpr std::string_view ROOT_MARK = "${ROOT}";

std::string valueOf(const InventoryRow& stRow, const char* pszColumn)
{
    const auto itValue = stRow.find(pszColumn);
    return itValue == stRow.end() ? std::string() : itValue->second;
}

bool isThere(const std::string& strPath)
{
    std::error_code oIgnored; // what cannot be asked is not there
    return std::filesystem::exists(strPath, oIgnored);
}

std::string telnetKey(const std::string& strKey)
{
    return strKey + std::string(Vocabulary::TELNET_SUFFIX);
}

class CInventoryLint
{
public:
    explicit CInventoryLint(const std::string& strRoot)
    {
        std::string strIgnored; // the root is open, or its trouble is told
        m_stRows          = standalone::readInventoryRows(strRoot, strIgnored);
        m_strRoot         = m_stRows.strFile.substr(0, m_stRows.strFile.rfind('/'));
        m_stFound.strFile = m_stRows.strFile;
    }

    StInventoryFindings run()
    {
        takeTypes();
        checkTypes();
        checkConfigFiles();
        checkCheckFiles();
        checkClasses();
        checkDevices();
        checkVersions();
        checkNames("setting", "name", ServerNames::SETTINGS);
        checkNames("resource", "key", ServerNames::RESOURCES);
        checkItems();
        checkEnvironment();
        tellOthers();
        std::stable_sort(
            m_stFound.lstFinding.begin(), m_stFound.lstFinding.end(),
            [](const lint::StFinding& stLeft, const lint::StFinding& stRight)
            { return std::tie(stLeft.ulLine, stLeft.ulColumn) < std::tie(stRight.ulLine, stRight.ulColumn); });
        return std::move(m_stFound);
    }

private:
    const std::vector<InventoryRow>& rows(const char* pszTable) { return m_stRows.mapTable[pszTable]; }

    void add(const char* pszRule, const char* pszTable, const InventoryRow& stRow, const char* pszColumn,
             std::string strMessage, std::vector<std::string> lstHelp = {})
    {
        lint::StFinding stFinding;
        stFinding.strRule    = pszRule;
        stFinding.enSeverity = lint::findRule(pszRule)->enSeverity;
        stFinding.strFile    = m_stRows.strFile;
        stFinding.strMessage = std::move(strMessage);
        // The row by its first column: what is wrong with it may change.
        stFinding.strSubject =
            fmt::format("{}.{}[{}]", pszTable, pszColumn, valueOf(stRow, m_stRows.mapColumn[pszTable].front().c_str()));
        if (stFinding.enSeverity == lint::EnSeverity::Warning && !lstHelp.empty())
            stFinding.enSeverity = lint::EnSeverity::Error; // surely meant as another one
        stFinding.lstHelp = std::move(lstHelp);
        setPlace(stFinding, placeOf(pszTable, stRow, pszColumn));
        if (stRow.count("path") != 0)
            m_stFound.setToldFile.insert(wholePath(valueOf(stRow, "path")));
        m_stFound.lstFinding.push_back(std::move(stFinding));
    }

    StInventoryPlace placeOf(const char* pszTable, const InventoryRow& stRow, const char* pszColumn)
    {
        const CInventoryPlaces* pPlaces = places();
        if (pPlaces == nullptr)
            return {};
        const catalog::StSpot stSpot = pPlaces->spot(pszTable, stRow, pszColumn);
        return {stSpot, pPlaces->line(stSpot.ulLine)};
    }

    // Read with the first finding: most inventories have none.
    const CInventoryPlaces* places()
    {
        const std::string& strFile = m_stRows.strFile;
        const bool         bScript = strFile.size() >= 4 && strFile.compare(strFile.size() - 4, 4, ".sql") == 0;
        if (bScript && m_pPlaces == nullptr)
        {
            std::ifstream oFile(strFile, std::ios::binary);
            m_pPlaces = std::make_unique<CInventoryPlaces>(std::string(std::istreambuf_iterator<char>(oFile), {}),
                                                           m_stRows.mapColumn);
        }
        return m_pPlaces.get();
    }

    // Rows that name the same missing thing are one mistake, perhaps made where that
    // thing should be: the first one is told, with the number of the others.
    void addOnce(const std::string& strMissing, const char* pszTable, const InventoryRow& stRow, const char* pszColumn,
                 std::string strMessage, std::vector<std::string> lstHelp = {})
    {
        const auto [itFirst, bFirst] = m_mapMissing.try_emplace(strMissing, m_stFound.lstFinding.size());
        if (bFirst)
            add("points-nowhere", pszTable, stRow, pszColumn, std::move(strMessage), std::move(lstHelp));
        else
            ++m_mapOthers[itFirst->second];
    }

    void tellOthers()
    {
        for (const auto& [nFinding, nOthers] : m_mapOthers)
            m_stFound.lstFinding[nFinding].lstHelp.push_back(
                fmt::format("{} more row{} the same", nOthers, nOthers == 1 ? " names" : "s name"));
    }

    std::string wholePath(const std::string& strPath) const
    {
        return strPath.empty() || strPath.front() == '/' ? strPath : m_strRoot + "/" + strPath;
    }

    // ---- device types ----

    void takeTypes()
    {
        for (const InventoryRow& stRow : rows("device_type"))
        {
            const std::string strVersion = valueOf(stRow, "version");
            const std::string strKey     = keyOf(stRow);
            if (m_mapVersion.count(strKey) == 0)
                m_lstKey.push_back(strKey);
            m_mapVersion[strKey].push_back(strVersion);
            m_setTypeId.insert(valueOf(stRow, "type_id"));
            m_setId.emplace(valueOf(stRow, "type_id"), valueOf(stRow, "version_id"));
        }
        for (const InventoryRow& stRow : rows("config_file"))
            m_mapConfigFile[valueOf(stRow, "device_type")] = valueOf(stRow, "path");
    }

    // The key under which a type is kept.
    static std::string keyOf(const InventoryRow& stType)
    {
        const bool bTelnet = valueOf(stType, "version").find(Vocabulary::TELNET_SUFFIX) != std::string::npos;
        return bTelnet ? telnetKey(valueOf(stType, "name")) : valueOf(stType, "name");
    }

    bool isKey(const std::string& strKey) const { return m_mapVersion.count(strKey) != 0; }

    void checkTypes()
    {
        for (const InventoryRow& stRow : rows("device_type"))
        {
            for (const char* pszFlag :
                 {"config_file_type", "support_upgrade", "support_capacity", "capacity_per_version"})
            {
                const std::string strFlag = valueOf(stRow, pszFlag);
                if (strFlag != "0" && strFlag != "1")
                    add("bad-inventory-value", "device_type", stRow, pszFlag,
                        fmt::format("{} {} of \"{}\" means no more than 0: it is 0 or 1", pszFlag, strFlag,
                                    valueOf(stRow, "name")));
            }
        }
    }

    // ---- files ----

    bool hasConfigFile(const std::string& strKey) const
    {
        const auto itPath = m_mapConfigFile.find(strKey);
        return itPath != m_mapConfigFile.end() && isThere(wholePath(itPath->second));
    }

    void checkConfigFiles()
    {
        checkConfigKeys();
        for (const InventoryRow& stRow : rows("config_file"))
        {
            const std::string strKey = valueOf(stRow, "device_type");
            if (isConfigKey(strKey))
                checkConfigPath(stRow, strKey);
        }
        std::set<std::string> setTold = m_setMisspelt;
        for (const InventoryRow& stRow : rows("device_type"))
        {
            const std::string strKey = keyOf(stRow);
            if (valueOf(stRow, "config_file_type") != "1" && m_mapConfigFile.count(strKey) == 0 &&
                setTold.insert(strKey).second)
                add("points-nowhere", "device_type", stRow, "name",
                    fmt::format("no row of config_file says where the file of \"{}\" is", strKey));
        }
    }

    void checkConfigKeys()
    {
        std::vector<std::string> lstMissing;
        for (const std::string& strKey : m_lstKey)
        {
            const bool bTwin = m_mapConfigFile.count(telnetKey(strKey)) != 0;
            if (m_mapConfigFile.count(strKey) == 0)
                lstMissing.push_back(strKey);
            if (!bTwin && !hasConfigFile(strKey) && !isKey(telnetKey(strKey)))
                lstMissing.push_back(telnetKey(strKey));
        }
        for (const InventoryRow& stRow : rows("config_file"))
        {
            const std::string strKey = valueOf(stRow, "device_type");
            if (isConfigKey(strKey))
                continue;
            const std::string              strNear = m_oHints.nearest(strKey, lstMissing);
            const std::vector<std::string> lstNear = {strNear};
            addUnknownKey("config_file", stRow, strNear.empty() ? std::as_const(m_lstKey) : lstNear);
            if (strNear.empty())
                continue;
            m_setMisspelt.insert(strNear);
            m_stFound.setToldFile.insert(wholePath(m_mapConfigFile[telnetKey(strNear)])); // unused without it
        }
    }

    // The key of a type, or of the twin that serves a type whose own file is missing.
    bool isConfigKey(const std::string& strKey) const
    {
        const std::string_view strSuffix = Vocabulary::TELNET_SUFFIX;
        return isKey(strKey) || (strKey.size() > strSuffix.size() &&
                                 strKey.compare(strKey.size() - strSuffix.size(), strSuffix.size(), strSuffix) == 0 &&
                                 isKey(strKey.substr(0, strKey.size() - strSuffix.size())));
    }

    void checkConfigPath(const InventoryRow& stRow, const std::string& strKey)
    {
        if (hasConfigFile(strKey))
            return;
        const std::string strPath = valueOf(stRow, "path");
        if (isKey(strKey))
        {
            if (m_setMisspelt.count(telnetKey(strKey)) != 0)
                m_stFound.setToldFile.insert(wholePath(strPath));
            else if (!hasConfigFile(telnetKey(strKey)))
            {
                m_stFound.setToldFile.insert(wholePath(m_mapConfigFile[telnetKey(strKey)]));
                add("points-nowhere", "config_file", stRow, "path",
                    fmt::format("\"{}\" is not there, and no telnet twin serves \"{}\" instead", strPath, strKey));
            }
            return;
        }
        // Of a twin alone, unless it is told with the type that it should serve.
        const std::string strServed = strKey.substr(0, strKey.size() - Vocabulary::TELNET_SUFFIX.size());
        if (m_setMisspelt.count(strServed) == 0 && (m_mapConfigFile.count(strServed) == 0 || hasConfigFile(strServed)))
            add("points-nowhere", "config_file", stRow, "path",
                fmt::format("\"{}\" is not there: it would serve \"{}\"", strPath, strServed));
    }

    void checkCheckFiles()
    {
        for (const InventoryRow& stRow : rows("check_file"))
        {
            const std::string strKey  = valueOf(stRow, "device_type");
            const std::string strPath = valueOf(stRow, "path");
            if (!isKey(strKey))
                addUnknownKey("check_file", stRow, m_lstKey);
            else if (!strPath.empty() && !isThere(wholePath(strPath)))
                add("points-nowhere", "check_file", stRow, "path",
                    fmt::format("\"{}\", the check file of \"{}\", is not there", strPath, strKey));
            else
                continue;
            m_stFound.setUnchecked.insert(wholePath(m_mapConfigFile[meantKey(stRow)]));
        }
    }

    void addUnknownKey(const char* pszTable, const InventoryRow& stRow, const std::vector<std::string>& lstNear)
    {
        const std::string strKey = valueOf(stRow, "device_type");
        addOnce("key " + strKey, pszTable, stRow, "device_type",
                fmt::format("no device type is kept under \"{}\"", strKey), m_oHints.didYouMean(strKey, lstNear));
    }

    // ---- type ids ----

    void checkTypeId(const char* pszTable, const InventoryRow& stRow, const char* pszColumn)
    {
        const std::string strId = valueOf(stRow, pszColumn);
        if (!strId.empty() && m_setTypeId.count(strId) == 0)
            addOnce("id " + strId, pszTable, stRow, pszColumn, fmt::format("no device type has the id {}", strId));
    }

    void checkClasses()
    {
        for (const InventoryRow& stRow : rows("device_class"))
        {
            checkTypeId("device_class", stRow, "type_id");
            checkTypeId("device_class", stRow, "compatible_type_id");
            if (valueOf(stRow, "domain") == "0")
                add("bad-inventory-value", "device_class", stRow, "domain",
                    fmt::format("the domain of type id {} is 0, which is none", valueOf(stRow, "type_id")),
                    {"1 access, 2 datacom, 3 transport, 4 microwave, 5 unknown"});
        }
        for (const InventoryRow& stRow : rows("telnet_support"))
            checkTypeId("telnet_support", stRow, "type_id");
    }

    void checkDevices()
    {
        for (const InventoryRow& stRow : rows("device"))
        {
            const std::string strType    = valueOf(stRow, "type_id");
            const std::string strVersion = valueOf(stRow, "version_id");
            if (m_setTypeId.count(strType) == 0)
                addOnce("id " + strType, "device", stRow, "type_id",
                        fmt::format("device {} has the type id {}, which no device type has",
                                    valueOf(stRow, "device_id"), strType));
            else if (m_setId.count({strType, strVersion}) == 0)
                addOnce("id " + strType + " " + strVersion, "device", stRow, "version_id",
                        fmt::format("device {} has the version id {}, which no version of type id {} has",
                                    valueOf(stRow, "device_id"), strVersion, strType));
        }
    }

    // ---- capacity ----

    // Whether the type and version of a row are installed.
    bool checkTypeVersion(const char* pszTable, const InventoryRow& stRow)
    {
        const std::string strKey = valueOf(stRow, "device_type");
        const auto        itKey  = m_mapVersion.find(strKey);
        if (itKey == m_mapVersion.end())
        {
            addUnknownKey(pszTable, stRow, m_lstKey);
            return false;
        }
        const std::string strVersion = valueOf(stRow, "device_type_version");
        if (std::find(itKey->second.begin(), itKey->second.end(), strVersion) != itKey->second.end())
            return true;
        addOnce("version " + strKey + " " + strVersion, pszTable, stRow, "device_type_version",
                fmt::format("\"{}\" has no version \"{}\"", strKey, strVersion),
                m_oHints.didYouMean(strVersion, itKey->second));
        return false;
    }

    using Version = std::pair<std::string, std::string>; // software and patch

    void checkVersions()
    {
        std::map<std::string, std::set<Version>> mapInService; // by type and version
        std::set<Version>                        setLost;      // of rows that are told
        for (const InventoryRow& stRow : rows("version_in_service"))
        {
            if (checkTypeVersion("version_in_service", stRow))
                mapInService[typeVersionOf(stRow)].insert(versionOf(stRow));
            else
            {
                setLost.insert(versionOf(stRow));
                tellVersionFile(stRow);
            }
        }
        std::set<std::string> setRecorded;
        for (const InventoryRow& stRow : rows("capacity"))
        {
            setRecorded.insert(inventoryVersion(stRow));
            const bool bInstalled = checkTypeVersion("capacity", stRow);
            if (!bInstalled)
            {
                tellVersion(stRow, versionText(versionOf(stRow)));
                tellVersionFile(stRow);
            }
            else if (setLost.count(versionOf(stRow)) == 0 &&
                     mapInService[typeVersionOf(stRow)].count(versionOf(stRow)) == 0)
                addOutOfService(stRow, mapInService[typeVersionOf(stRow)]);
        }
        for (const InventoryRow& stRow : rows("version_in_service"))
        {
            if (setRecorded.count(inventoryVersion(stRow)) == 0)
                m_stFound.mapUnrecorded[inventoryVersion(stRow)] = placeOf("version_in_service", stRow, "soft_version");
        }
    }

    // "KEY/VERSION".
    static std::string inventoryVersion(const InventoryRow& stRow)
    {
        return valueOf(stRow, "device_type") + "/" + versionText(versionOf(stRow));
    }

    static std::string typeVersionOf(const InventoryRow& stRow)
    {
        return valueOf(stRow, "device_type") + '\n' + valueOf(stRow, "device_type_version");
    }

    static Version versionOf(const InventoryRow& stRow)
    {
        return {valueOf(stRow, "soft_version"), valueOf(stRow, "patch_version")};
    }

    static std::string versionText(const Version& stVersion)
    {
        return stVersion.second.empty() ? stVersion.first : stVersion.first + " " + stVersion.second;
    }

    // The record of a version stands in a row that is told.
    void tellVersion(const InventoryRow& stRow, const std::string& strVersion)
    {
        m_stFound.setToldVersion.insert(meantKey(stRow) + "/" + strVersion);
    }

    // Its document is not used because of that.
    void tellVersionFile(const InventoryRow& stRow)
    {
        m_stFound.setToldFile.insert(CXMLConfigDatabase::getDevTypeXMLFileName(
            meantKey(stRow), valueOf(stRow, "soft_version"), valueOf(stRow, "patch_version"), true, ""));
    }

    std::string meantKey(const InventoryRow& stRow)
    {
        const std::string strKey = valueOf(stRow, "device_type");
        return isKey(strKey) ? strKey : m_oHints.nearest(strKey, m_lstKey);
    }

    // Meant is a version in service that has no record, rather than one that has.
    void addOutOfService(const InventoryRow& stRow, std::set<Version> setVersion)
    {
        for (const InventoryRow& stOther : rows("capacity"))
        {
            if (typeVersionOf(stOther) == typeVersionOf(stRow))
                setVersion.erase(versionOf(stOther));
        }
        std::vector<std::string> lstVersion;
        std::transform(setVersion.begin(), setVersion.end(), std::back_inserter(lstVersion), &versionText);
        const std::string strVersion = versionText(versionOf(stRow));
        tellVersion(stRow, m_oHints.nearest(strVersion, lstVersion));
        tellVersionFile(stRow);
        add("points-nowhere", "capacity", stRow, "soft_version",
            fmt::format("version \"{}\" of \"{}\" is not in service", strVersion, valueOf(stRow, "device_type")),
            m_oHints.didYouMean(strVersion, lstVersion));
    }

    // ---- names that are asked for ----

    template <std::size_t nNames>
    static std::vector<std::string> namesOf(const ServerNames::StName (&arName)[nNames])
    {
        std::vector<std::string> lstName;
        for (const ServerNames::StName& stName : arName)
            lstName.emplace_back(stName.pszName);
        return lstName;
    }

    void addUnasked(const char* pszTable, const InventoryRow& stRow, const char* pszColumn,
                    const std::vector<std::string>& lstName)
    {
        const std::string strName = valueOf(stRow, pszColumn);
        const std::string strNear = m_oHints.nearest(strName, lstName);
        m_stFound.setMeantName.insert(strNear);
        add("unasked-name", pszTable, stRow, pszColumn, fmt::format("no question asks for \"{}\"", strName),
            m_oHints.didYouMean(strName, lstName));
        if (strNear.empty())
            m_stFound.lstFinding.back().lstHelp = {"names asked for: " + lint::listText(lstName)};
    }

    void checkWord(const char* pszTable, const InventoryRow& stRow, const ServerNames::StName& stName)
    {
        const std::string strValue = valueOf(stRow, "value");
        if (strValue.size() == 1 && stName.strWords.find(strValue.front()) != std::string_view::npos)
            return;
        m_stFound.setMeantName.insert(stName.pszName);
        std::vector<std::string> lstWord;
        for (const char cWord : stName.strWords)
            lstWord.emplace_back(1, cWord);
        add("bad-inventory-value", pszTable, stRow, "value",
            fmt::format("\"{}\" means nothing for {}", strValue, stName.pszName),
            {"values that mean something: " + lint::listText(lstWord)});
    }

    template <std::size_t nNames>
    void checkNames(const char* pszTable, const char* pszColumn, const ServerNames::StName (&arName)[nNames])
    {
        for (const InventoryRow& stRow : rows(pszTable))
        {
            const auto itName = std::find_if(std::begin(arName), std::end(arName),
                                             [&](const ServerNames::StName& stName)
                                             { return valueOf(stRow, pszColumn) == stName.pszName; });
            if (itName == std::end(arName))
                addUnasked(pszTable, stRow, pszColumn, namesOf(arName));
            else
                checkWord(pszTable, stRow, *itName);
        }
    }

    void checkItems()
    {
        for (const InventoryRow& stRow : rows("config_item"))
        {
            const auto itName = std::find_if(std::begin(ServerNames::CONFIG_ITEMS), std::end(ServerNames::CONFIG_ITEMS),
                                             [&](const ServerNames::StName& stName)
                                             { return valueOf(stRow, "key") == stName.pszName; });
            if (itName == std::end(ServerNames::CONFIG_ITEMS))
                addUnasked("config_item", stRow, "key", namesOf(ServerNames::CONFIG_ITEMS));
            else if (valueOf(stRow, "section") != ServerNames::ITEM_SECTION)
                addUnasked("config_item", stRow, "section", {ServerNames::ITEM_SECTION});
            else
                checkWord("config_item", stRow, *itName);
        }
    }

    // ---- environment ----

    void checkEnvironment()
    {
        std::vector<std::string>           lstName;
        std::map<std::string, std::string> mapDefault;
        for (const standalone::StEnvironmentDefault& stDefault : standalone::environmentDefaults())
        {
            lstName.emplace_back(stDefault.strName);
            mapDefault.emplace(stDefault.strName, stDefault.pszValue);
        }
        for (const InventoryRow& stRow : rows("environment"))
        {
            const std::string strName  = valueOf(stRow, "name");
            const std::string strValue = valueOf(stRow, "value");
            if (mapDefault.count(strName) == 0)
                addUnasked("environment", stRow, "name", lstName);
            else if (isJoined(strName) && !strValue.empty() && strValue.back() != '/')
                add("bad-inventory-value", "environment", stRow, "value",
                    fmt::format("the value of {} does not end in \"/\" and runs together with what follows", strName));
            else if (strName != ServerNames::LANGUAGE && strValue != mapDefault[strName] &&
                     !isThere(expanded(strValue)))
                add("points-nowhere", "environment", stRow, "value",
                    fmt::format("\"{}\", the value of {}, is not there", strValue, strName));
            else if (strName == ServerNames::LANGUAGE)
                checkLanguage(stRow, mapDefault[ServerNames::ENV_ROOT]);
        }
    }

    // Whether a value is joined with what follows as it stands.
    static bool isJoined(const std::string& strName)
    {
        return strName == ServerNames::APP_ROOT || strName == ServerNames::ENV_ROOT || strName == ServerNames::LANGUAGE;
    }

    std::string expanded(std::string strValue) const
    {
        for (std::size_t nAt = 0; (nAt = strValue.find(ROOT_MARK, nAt)) != std::string::npos; nAt += m_strRoot.size())
            strValue.replace(nAt, ROOT_MARK.size(), m_strRoot);
        return strValue;
    }

    // A language among others that are there: without any there are no alarm tables.
    void checkLanguage(const InventoryRow& stLanguage, std::string strEnvRoot)
    {
        for (const InventoryRow& stRow : rows("environment"))
        {
            if (valueOf(stRow, "name") == ServerNames::ENV_ROOT)
                strEnvRoot = valueOf(stRow, "value");
        }
        const std::string        strFolder   = expanded(strEnvRoot) + "pub/i18n/";
        const std::string        strLanguage = valueOf(stLanguage, "value");
        std::vector<std::string> lstLanguage;
        std::error_code          oProblem;
        for (std::filesystem::directory_iterator itEntry(strFolder, oProblem), itEnd; !oProblem && itEntry != itEnd;
             itEntry.increment(oProblem))
            lstLanguage.push_back(itEntry->path().filename().string() + "/");
        if (!lstLanguage.empty() && !isThere(strFolder + strLanguage))
            add("points-nowhere", "environment", stLanguage, "value",
                fmt::format("there is no language folder \"{}\"", strLanguage),
                m_oHints.didYouMean(strLanguage, lstLanguage));
    }

    lint::CHints                                    m_oHints;
    std::string                                     m_strRoot;
    standalone::StInventoryRows                     m_stRows;
    std::unique_ptr<CInventoryPlaces>               m_pPlaces; // none for a database
    StInventoryFindings                             m_stFound;
    std::map<std::string, std::size_t>              m_mapMissing; // what is named, to the finding that tells it
    std::map<std::size_t, std::size_t>              m_mapOthers;  // further rows, by finding
    std::vector<std::string>                        m_lstKey;     // storage keys, in the order of the registry
    std::map<std::string, std::vector<std::string>> m_mapVersion; // of each storage key
    std::map<std::string, std::string>              m_mapConfigFile;
    std::set<std::string>                           m_setMisspelt; // keys that rows of config_file surely mean
    std::set<std::string>                           m_setTypeId;
    std::set<std::pair<std::string, std::string>>   m_setId; // type id and version id
};
} // namespace

void setPlace(lint::StFinding& stFinding, const StInventoryPlace& stPlace)
{
    stFinding.ulLine    = stPlace.stSpot.ulLine;
    stFinding.ulColumn  = stPlace.stSpot.ulColumn;
    stFinding.ulLength  = stPlace.stSpot.ulLength;
    stFinding.strSource = stPlace.strSource;
}

StInventoryFindings lintInventory(const std::string& strRoot)
{
    return CInventoryLint(strRoot).run();
}
