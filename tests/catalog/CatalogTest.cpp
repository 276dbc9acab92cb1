// The catalog against the store, on whole server roots, and the places of entries of
// every origin and fate.
#include "ServerRootText.h"
#include "catalog/CatalogMaker.h"
#include "reader/SectionTable.h"
#include "reader/ServerFixture.h"
#include "records/RecordFields.h"
#include "standalone/EventSink.h"
#include "standalone/ServerRoot.h"

#include <fstream>
#include <map>
#include <type_traits>

namespace
{
using catalog::CCatalogMaker;
using catalog::EnEntryFate;
using catalog::StEntry;
using catalog::StPlace;
using catalog::StTypeCatalog;

// Lines of files as they lie on the disk, in UTF-8.
class CFileTexts
{
public:
    // The characters of a place; nothing when there are none.
    std::string at(const std::string& strFile, const StPlace& stPlace)
    {
        const auto& lstLine = linesOf(strFile);
        if (stPlace.ulLine == 0 || stPlace.ulLine > lstLine.size())
            return {};
        const std::string& strLine = lstLine[stPlace.ulLine - 1];
        const std::size_t  nBegin  = offset(strLine, stPlace.ulColumn - 1);
        return strLine.substr(nBegin, offset(strLine, stPlace.ulColumn - 1 + stPlace.ulLength) - nBegin);
    }

private:
    static std::size_t offset(const std::string& strLine, std::size_t nCharacters)
    {
        std::size_t nAt = 0;
        for (; nAt < strLine.size(); ++nAt)
        {
            if ((static_cast<unsigned char>(strLine[nAt]) & 0xC0U) != 0x80 && nCharacters-- == 0)
                break;
        }
        return nAt;
    }

    const Lines& linesOf(const std::string& strFile)
    {
        Lines& lstLine = m_mapLine[strFile];
        if (lstLine.empty())
        {
            std::ifstream oFile(strFile);
            for (std::string strLine; std::getline(oFile, strLine);)
                lstLine.push_back(strLine);
        }
        return lstLine;
    }

    std::map<std::string, Lines> m_mapLine;
};

// Holds the records of the store against the entries of the catalog.
class CAgreement
{
public:
    void compareType(CCatalogMaker& oMaker, const StDeviceType& stDeviceType)
    {
        m_stType = oMaker.make(stDeviceType.strDevType, stDeviceType.strDevTypeVer);
        SCOPED_TRACE(m_stType.strKey + ", " + m_stType.strDevTypeVer);
        std::list<StAsnDevTypeVerXMLInfo*> lstInfo;
        // The store keeps one version of a key: what the load stored last is read now.
        CXMLConfigDatabase::getInstance()->readAndStoreDevTypeXMLConfig(stDeviceType.strDevType,
                                                                        stDeviceType.strDevTypeVer, lstInfo);
        ASSERT_EQ(lstInfo.size(), m_stType.lstConfiguration.size());
        auto itConfiguration = m_stType.lstConfiguration.begin();
        for (const StAsnDevTypeVerXMLInfo* pInfo : lstInfo)
        {
            std::string strVersions;
            for (const auto& stVersion : itConfiguration->lstVersion)
                strVersions += stVersion.strSoftVersion + "/" + stVersion.strPatchVersion + " ";
            std::string strExpected;
            for (const StAsnDevVersion& stVersion : pInfo->lstDevVersion)
                strExpected += stVersion.strSoftVersion + "/" + stVersion.strPatchVersion + " ";
            EXPECT_EQ(strExpected, strVersions);
            auto itSection = itConfiguration++->lstSection.begin();
            forEachSection(
                [&](const auto& stRow)
                {
                    const auto lstEntry = effective(itSection++->lstEntry);
                    EXPECT_EQ(lstEntry.size(), compareLists(listOf(*pInfo, stRow.pList), lstEntry, 0));
                });
        }
    }

    std::size_t m_nEntries = 0;
    std::size_t m_nPlaces  = 0; // of attributes

private:
    using Entries = std::vector<const StEntry*>;

    static Entries effective(const std::vector<StEntry>& lstEntry)
    {
        Entries lstEffective;
        for (const StEntry& stEntry : lstEntry)
        {
            if (stEntry.enFate == EnEntryFate::Counts || stEntry.enFate == EnEntryFate::Shadowed)
                lstEffective.push_back(&stEntry);
        }
        return lstEffective;
    }

    // The entries from a number on; answers how many there were.
    template <typename Record>
    std::size_t compareLists(const std::list<Record>& lstRecord, const Entries& lstEntry, std::size_t nFirst)
    {
        std::size_t nAt = nFirst;
        for (const Record& stRecord : lstRecord)
        {
            if (nAt == lstEntry.size())
                ADD_FAILURE() << "the catalog has no such " << nameOf(&stRecord);
            else
                compare(stRecord, *lstEntry[nAt++]);
        }
        return nAt;
    }

    template <typename Record>
    void compare(const Record& stRecord, const StEntry& stEntry)
    {
        ++m_nEntries;
        const std::string& strFile = m_stType.lstFile.at(stEntry.stPlace.ulFile);
        EXPECT_EQ(std::string("<"), m_oTexts.at(strFile, {0, stEntry.stPlace.ulLine, stEntry.stPlace.ulColumn - 1, 1}))
            << strFile << ":" << stEntry.stPlace.ulLine << ":" << stEntry.stPlace.ulColumn;
        EXPECT_STREQ(nameOf(&stRecord), stEntry.pszRecord);
        auto          itField  = stEntry.lstField.begin();
        std::size_t   nChild   = 0;
        const Entries lstChild = effective(stEntry.lstChild);
        visitFields(stRecord,
                    [&](const char* pszName, auto stKind, const auto& value)
                    {
                        if constexpr (std::is_same_v<decltype(stKind), StList>)
                            nChild = compareLists(value, lstChild, nChild);
                        else
                        {
                            ASSERT_NE(stEntry.lstField.end(), itField);
                            ASSERT_STREQ(pszName, itField->pszName);
                            EXPECT_EQ(text(stKind, value), itField->strValue) << pszName;
                            checkPlace(stKind, *itField++, strFile);
                        }
                    });
        EXPECT_EQ(stEntry.lstField.end(), itField);
        EXPECT_EQ(lstChild.size(), nChild);
    }

    // What stands at the place of a field is what the field says.
    template <typename Kind>
    void checkPlace(Kind /*stKind*/, const catalog::StField& stField, const std::string& strFile)
    {
        const std::string strThere = m_oTexts.at(strFile, stField.stPlace);
        const bool        bLong    = strThere.find('&') != std::string::npos; // or the text is not that of the field
        if (stField.stPlace.ulLine == 0 || bLong)
            return;
        ++m_nPlaces;
        const bool bWord = stField.enKind == catalog::EnFieldKind::Word && !stField.strValue.empty();
        EXPECT_TRUE(stField.enKind != catalog::EnFieldKind::Text || stField.strValue == strThere)
            << stField.pszName << " is " << stField.strValue << " by " << strThere;
        EXPECT_TRUE(!bWord || strThere == stField.strValue || stField.strValue == DEFAULT_WORDS.at(stField.pszName))
            << stField.pszName << " is " << stField.strValue << " by " << strThere;
    }

    template <typename Kind, typename Value>
    static std::string text(Kind stKind, const Value& value)
    {
        if constexpr (std::is_same_v<Kind, StText> || std::is_same_v<Kind, StNumber>)
            return fmt::format("{}", value);
        else if constexpr (std::is_same_v<Kind, StFlag>)
            return value ? "1" : "0";
        else if constexpr (std::is_integral_v<Value>)
            return std::string(wordText(stKind, value));
        else
            return std::string(wordText(stKind, value.number()));
    }

    // What a word that is unknown reads as.
    inline static const std::map<std::string, std::string> DEFAULT_WORDS = {{"enOperationLevel", "DeviceLevel"},
                                                                            {"enPatchType", "HotPatch"},
                                                                            {"enAvailableIn", "PopupMenu"},
                                                                            {"enType", "-"},
                                                                            {"nTaskType", "-"},
                                                                            {"enTaskType", "-"}};

    StTypeCatalog m_stType;
    CFileTexts    m_oTexts;
};

void compareRoot(const std::string& strRoot, CAgreement& oAgreement)
{
    std::string strError;
    ASSERT_TRUE(standalone::openServerRoot(strRoot, strError)) << strError;
    std::multimap<std::string, StDeviceType> mapDeviceType;
    CXMLConfigDatabase::getInstance()->getExistDeviceTypes(mapDeviceType);
    CCatalogMaker oMaker;
    for (const auto& [strDevType, stDeviceType] : mapDeviceType)
        oAgreement.compareType(oMaker, stDeviceType);
}

class CatalogTest : public CServerTest
{
};

TEST_F(CatalogTest, AgreesWithTheStoreOnTheExampleServer)
{
    CAgreement oAgreement;
    compareRoot(OPERATIONXML_SOURCE_DIR "/examples/server", oAgreement);
    EXPECT_LT(1000u, oAgreement.m_nEntries);
    EXPECT_LT(3000u, oAgreement.m_nPlaces);
}

TEST_F(CatalogTest, AgreesWithTheStoreOnAGeneratedRoot)
{
    StRootWish stWish;
    stWish.oFolder = m_oRoot.path();
    stWish.nTypes  = 3;
    writeServerRoot(stWish);
    CAgreement oAgreement;
    compareRoot(m_oRoot.path(), oAgreement);
    EXPECT_LT(1000u, oAgreement.m_nEntries);
}

// Whoever checks documents gets each file as it is parsed, and none is parsed for that.
TEST_F(CatalogTest, HandsOverEachFileOnce)
{
    std::string strError;
    ASSERT_TRUE(standalone::openServerRoot(OPERATIONXML_SOURCE_DIR "/examples/server", strError)) << strError;
    std::map<std::string, int> mapParsed;
    CCatalogMaker              oMaker([&](const std::string& strFile, catalog::EnOrigin enOrigin, auto& /*oParser*/)
                         { mapParsed[strFile] += enOrigin == catalog::EnOrigin::Module ? 1 : 100; });
    std::map<std::string, int> mapExpected;
    for (const catalog::StModuleCatalog& stModule : oMaker.modules())
        mapExpected[stModule.strFile] = 1;
    ASSERT_FALSE(mapExpected.empty());
    EXPECT_EQ(mapExpected, mapParsed);
    const StConfigPlan stPlan = oMaker.make("OLT-880", "A2.4").stPlan;
    for (const StPlannedFile* pFile : {&stPlan.stConfig, &stPlan.stFixedCheck})
        mapExpected[pFile->strFile] = 100;
    EXPECT_EQ(mapExpected, mapParsed);
}

// The entries of a catalog, one a line: id, place, places of its attributes, what
// became of it and why.
class CListing
{
public:
    explicit CListing(const StTypeCatalog& stType) : m_stType(stType) {}

    std::string text()
    {
        for (const catalog::StConfiguration& stConfiguration : m_stType.lstConfiguration)
        {
            for (const catalog::StVersion& stVersion : stConfiguration.lstVersion)
                m_strText += fmt::format("version {}\n", stVersion.strSoftVersion);
            for (const catalog::StSection& stSection : stConfiguration.lstSection)
                add(stSection.lstEntry, "");
        }
        for (const catalog::StCapacityDocument& stDocument : m_stType.lstCapacityDocument)
        {
            for (const catalog::StCapacityEntry& stEntry : stDocument.lstEntry)
            {
                m_strText += fmt::format("capacity {} {}{}\n", stEntry.strSysOid, place(stEntry.stPlace),
                                         stEntry.bIsRead ? " read" : "");
                add(stEntry.lstOperation, "  ");
            }
        }
        return m_strText;
    }

private:
    std::string place(const StPlace& stPlace) const
    {
        return fmt::format("{}:{}:{}+{}",
                           std::filesystem::path(m_stType.lstFile.at(stPlace.ulFile)).filename().string(),
                           stPlace.ulLine, stPlace.ulColumn, stPlace.ulLength);
    }

    void add(const std::vector<StEntry>& lstEntry, const std::string& strIndent)
    {
        constexpr const char* FATES[] = {"", " shadowed by ", " dropped: ", " pruned by "};
        for (const StEntry& stEntry : lstEntry)
        {
            m_strText += strIndent + stEntry.strId + " " + place(stEntry.stPlace);
            for (const catalog::StField& stField : stEntry.lstField)
            {
                const StPlace& st = stField.stPlace;
                if (st.ulLine != 0)
                    m_strText += fmt::format(" {}@{}:{}+{}", stField.pszName, st.ulLine, st.ulColumn, st.ulLength);
            }
            if (!stEntry.strModule.empty())
                m_strText += " of " + stEntry.strModule;
            m_strText += FATES[static_cast<std::size_t>(stEntry.enFate)] + stEntry.strReason +
                         (stEntry.stBecause.ulLine == 0 ? "" : place(stEntry.stBecause)) + "\n";
            add(stEntry.lstChild, strIndent + "  ");
        }
    }

    const StTypeCatalog& m_stType;
    std::string          m_strText;
};

struct StPlaceCase
{
    const char* pszName;
    std::string strXml; // of the own file of a type
    const char* pszExpected;
};

class CatalogPlaceTest : public CServerTest, public testing::WithParamInterface<StPlaceCase>
{
};

// Two tabs and two characters beyond ASCII stand before the operation.
constexpr const char* WIDE_BODY = "<C>\n<DeviceOperation>\n\t\t<!--\xC3\xA4--><Operation isCancelable='1'\n"
                                  " id = \"\xC3\xA4\xC3\xB6\"/></DeviceOperation></C>";
constexpr const char* WIDE      = "\xC3\xA4\xC3\xB6 A.xml:3:12+9 strId@4:8+2 bIsCancelable@3:36+1\n";

std::string latin1(const std::string& strUtf8)
{
    std::string strText = "<?xml version='1.0' encoding='ISO-8859-1'?>";
    for (std::size_t nAt = 0; nAt < strUtf8.size(); ++nAt)
        strText += strUtf8[nAt] == '\xC3' ? static_cast<char>(strUtf8[++nAt] + 0x40) : strUtf8[nAt];
    return strText;
}

std::string utf16(const std::string& strUtf8)
{
    std::string strText = "\xFF\xFE";
    for (const char cChar : latin1(strUtf8).substr(latin1("").size()))
        strText += {cChar, '\0'};
    return strText;
}

TEST_P(CatalogPlaceTest, EveryEntryHasItsPlace)
{
    m_oRoot.writeConfig("A.xml", GetParam().strXml);
    open();
    EXPECT_EQ(GetParam().pszExpected, CListing(CCatalogMaker().make("A", "V1")).text());
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(, CatalogPlaceTest, testing::Values(
    StPlaceCase{"Utf8", WIDE_BODY, WIDE},
    StPlaceCase{"Utf8WithMark", std::string("\xEF\xBB\xBF") + WIDE_BODY, WIDE},
    StPlaceCase{"Latin1", latin1(WIDE_BODY), WIDE},
    StPlaceCase{"Utf16", utf16(WIDE_BODY), WIDE},
    StPlaceCase{"WideInOneLine", "<C><DeviceOperation><Operation id='\xC3\xA4\xC3\xB6' isCancelable='1'/></DeviceOperation></C>",
                "\xC3\xA4\xC3\xB6 A.xml:1:22+9 strId@1:36+2 bIsCancelable@1:54+1\n"},
    // A line of many blocks of the text, of which two have more bytes than characters.
    StPlaceCase{"WideAndFarOff", "<C><!--" + std::string(600, '.') + "\xC3\xA4" + std::string(600, '.') + "--><DeviceOperation><Operation id='a'/><!--\xC3\xA4--><Operation id='b'/></DeviceOperation></C>",
                "a A.xml:1:1230+9 strId@1:1244+1\n"
                "b A.xml:1:1257+9 strId@1:1271+1\n"},
    StPlaceCase{"Entities", "<!DOCTYPE C [<!ENTITY e '<Operation id=\"E\"/>'>]>\n<C><DeviceOperation>&e;<Operation\n id='F'/></DeviceOperation></C>",
                "E A.xml:2:5+15 strId@2:5+15\n"
                "F A.xml:2:25+9 strId@3:6+1\n"},
    StPlaceCase{"Dropped", "<C><CheckOperations><Operation id='c'>\n<Parameter id='1'/>\n<Parameter id='2' integated='0'/>\n<Parameter id='3'/>\n</Operation></CheckOperations>\n"
                "<TaskType id='Wrong'/>\n<DeviceOperation><Operation id='Backup'><Parameter id='ContentType'>\n<Option id='PROGFILE' value='15'/><Option id='a' value='1'/></Parameter></Operation></DeviceOperation></C>",
                "Backup A.xml:7:19+9 strId@7:33+6\n"
                "  ContentType A.xml:7:42+9 strId@7:56+11\n"
                "    PROGFILE A.xml:8:2+6 dropped: this server does not back up the program file\n"
                "    a A.xml:8:36+6 strId@8:47+1 ulValue@8:57+1\n"
                "c A.xml:1:22+9 strId@1:36+1\n"
                "  1 A.xml:2:2+9 strId@2:16+1\n"
                "  2 A.xml:3:2+9 dropped: \"integated\" says that the device does not have it\n"
                "  3 A.xml:4:2+9 strId@4:16+1\n"
                "Wrong A.xml:6:2+8 dropped: no task type has this id\n"},
    // The second "Save" is reached by no question, the second "Backup" by one, for one parameter.
    StPlaceCase{"Shadowed", "<C><DeviceOperation><Operation id='Save'/>\n<Operation id='Save'/>\n<Operation id='Backup'/>\n<Operation id='Backup'>\n<Parameter id='ContentType'/>\n<Parameter id='x'/></Operation>\n"
                "<Operation id='y'>\n<Parameter id='p'/>\n<Parameter id='p'/></Operation></DeviceOperation>\n<DeviceViewTab><Item id='y' type='x'/>\n<Item id='y'/></DeviceViewTab></C>",
                "Save A.xml:1:22+9 strId@1:36+4\n"
                "Save A.xml:2:2+9 strId@2:16+4 shadowed by A.xml:1:22+9\n"
                "Backup A.xml:3:2+9 strId@3:16+6\n"
                "Backup A.xml:4:2+9 strId@4:16+6\n"
                "  ContentType A.xml:5:2+9 strId@5:16+11\n"
                "  x A.xml:6:2+9 strId@6:16+1 shadowed by A.xml:3:2+9\n"
                "y A.xml:7:2+9 strId@7:16+1\n"
                "  p A.xml:8:2+9 strId@8:16+1\n"
                "  p A.xml:9:2+9 strId@9:16+1 shadowed by A.xml:8:2+9\n"
                "y A.xml:10:17+4 enType@10:35+1 strId@10:26+1\n"
                "y A.xml:11:2+4 strId@11:11+1\n"},
    // A text from another element, a word under another name.
    StPlaceCase{"OtherNames", "<C><CustomOperations><Operation id='u'><ResouceClass filename='a'/>\n<ResouceClass filename='b'/></Operation></CustomOperations>\n"
                "<PatchStateConfiguration><Patch type='ColdPatch'/></PatchStateConfiguration>\n<TaskType id='PatchUpdate'><TaskConfigOper dependsOn='d'/></TaskType></C>",
                "ColdPatch A.xml:3:27+5 enPatchType@3:39+9\n"
                "u A.xml:1:23+9 strId@1:37+1 strResourceClass@2:25+1\n"
                "PatchUpdate A.xml:4:2+8 enTaskType@4:15+11\n"
                "   A.xml:4:2+8\n"
                "     A.xml:4:29+14 strDependsOn@4:55+1\n"}),
    [](const auto& oInfo) { return std::string(oInfo.param.pszName); });
// clang-format on

TEST_F(CatalogTest, TwinChecksAndModulesKeepTheirFiles)
{
    m_oRoot.writeConfig("T.xml", "<C><DeviceOperation><Operation id='t'/></DeviceOperation></C>");
    m_oRoot.write("check.xml", "<C><DeviceType name='A'><TaskType\n id='PatchUpdate'><PreCheck><Parameter id='1' "
                               "checked='true' selected='0'/></PreCheck></TaskType></DeviceType></C>");
    m_oRoot.write("etc/oss_cfg/dc/ne_script/importscript/a/ServerConfiguration.xml", "<C><DeviceType name='m'/>");
    m_oRoot.write(
        "etc/oss_cfg/dc/ne_script/importscript/m/ServerConfiguration.xml",
        "<C><DeviceType name='m'/><support>\n<dev name='A'/></support><TaskType id='none'/><DeviceOperation>\n"
        "<Operation id='t'/><Operation id='Backup'><Parameter id='p'>\n<Option id='PROGFILE' value='15'/>"
        "</Parameter></Operation></DeviceOperation></C>");
    m_oRoot.write("etc/oss_cfg/dc/ne_script/importscript/n/ServerConfiguration.xml", "<C>\n<DeviceType name='m'/></C>");
    open("INSERT INTO config_file VALUES ('A_telnet', '" + configPath("T.xml") +
         "'); INSERT INTO check_file VALUES ('A', 'check.xml', 0);");
    CCatalogMaker       oMaker;
    const StTypeCatalog stType = oMaker.make("A", "V1");
    EXPECT_EQ("t T.xml:1:22+9 strId@1:36+1\n"
              "t ServerConfiguration.xml:3:2+9 strId@3:16+1 of m shadowed by T.xml:1:22+9\n"
              "Backup ServerConfiguration.xml:3:21+9 strId@3:35+6 of m\n"
              "  p ServerConfiguration.xml:3:44+9 strId@3:58+1 of m\n"
              "    PROGFILE ServerConfiguration.xml:4:2+6 of m dropped: this server does not back up the program file\n"
              "PreCheck check.xml:2:20+8 nTaskType@2:6+11\n"
              "  1 check.xml:2:30+9 strId@2:44+1 bSelected@2:56+4\n",
              CListing(stType).text());
    EXPECT_EQ(EnConfigSource::TelnetTwin, stType.stOrigin.enSource);
    const auto& lstSection = stType.lstConfiguration.front().lstSection;
    EXPECT_EQ(catalog::EnOrigin::TelnetTwin, lstSection[0].lstEntry[0].enOrigin);
    EXPECT_EQ(catalog::EnOrigin::Module, lstSection[0].lstEntry[1].enOrigin);
    EXPECT_EQ(catalog::EnOrigin::TelnetCheckFile, lstSection[4].lstEntry[0].enOrigin);

    ASSERT_EQ(3u, oMaker.modules().size());
    EXPECT_TRUE(oMaker.modules()[0].stProblem.isSet());
    const catalog::StModuleCatalog& stModule = oMaker.modules()[1];
    EXPECT_EQ("m", stModule.strName);
    ASSERT_EQ(1u, stModule.lstSupported.size());
    EXPECT_EQ(2u, stModule.lstSupported[0].stPlace.ulLine);
    EXPECT_EQ(12u, stModule.lstSupported[0].stPlace.ulColumn);
    EXPECT_EQ("none", stModule.lstSection.back().lstEntry.at(0).strId);
    EXPECT_EQ(stModule.strFile, stType.lstFile.at(stModule.ulFile));
    EXPECT_EQ(2u, oMaker.modules()[2].stName.ulLine); // the name is taken
    EXPECT_TRUE(oMaker.modules()[2].stProblem.isSet());
}

TEST_F(CatalogTest, WhatCapacityPrunesSaysBecauseOfWhat)
{
    open("INSERT INTO device_type (name, version, type_id, sys_oid, config_file_type, support_upgrade, "
         "support_capacity, capacity_per_version) VALUES ('C', 'V', 7, '1.2', 0, 1, 1, 1);"
         "INSERT INTO version_in_service (device_type, device_type_version, soft_version) VALUES ('C', 'V', '1'), "
         "('C', 'V', '1b'), ('C', 'V', '2'), ('C', 'V', '3');"
         "INSERT INTO capacity (device_type, device_type_version, soft_version, full_config) VALUES "
         "('C', 'V', '1', 0), ('C', 'V', '1b', 0), ('C', 'V', '2', 0);"
         "INSERT INTO device (device_id, type_id, version_id, soft_version) VALUES (1, 7, 0, '3');");
    m_oRoot.writeConfig(
        "Common_ServerConfiguration.xml",
        "<C><DeviceOperation>\n<Operation id='a'/>\n<Operation id='b'><Parameter id='p'>\n<Option id='o' "
        "value='1'/></Parameter><Parameter id='q'/></Operation></DeviceOperation></C>");
    const std::string strCapacity =
        "<C><upgradecapacity sysoid='1.1'/>\n<upgradecapacity sysoid='1.2'><Operation id='a' isSupported='0'/>\n"
        "<Operation id='b' isSupported='1'><Parameter id='p' isRequired='1'/>\n"
        "<Parameter id='q'/></Operation></upgradecapacity></C>";
    m_oRoot.writeConfig("C_1_ServerConfiguration.xml", strCapacity);
    // Merged away: what it lost must not come back with the next one's addresses.
    m_oRoot.writeConfig("C_1b_ServerConfiguration.xml", strCapacity);
    m_oRoot.writeConfig("C_2_ServerConfiguration.xml", "<C><upgradecapacity sysoid='1.2'/></C>");
    std::size_t nEvents = 0;
    standalone::setEventListener([&nEvents](std::uint32_t, const TEEventParam&) { ++nEvents; });
    EXPECT_EQ("version 1\nversion 1b\n"
              "a Common_ServerConfiguration.xml:2:2+9 pruned by C_1_ServerConfiguration.xml:2:32+9\n"
              "b Common_ServerConfiguration.xml:3:2+9 strId@3:16+1\n"
              "  p Common_ServerConfiguration.xml:3:20+9 strId@3:34+1\n"
              "    o Common_ServerConfiguration.xml:4:2+6 pruned by C_1_ServerConfiguration.xml:3:36+9\n"
              "  q Common_ServerConfiguration.xml:4:40+9 pruned by C_1_ServerConfiguration.xml:4:2+9\n"
              "version 2\n"
              "a Common_ServerConfiguration.xml:2:2+9 strId@2:16+1\n"
              "b Common_ServerConfiguration.xml:3:2+9 strId@3:16+1\n"
              "  p Common_ServerConfiguration.xml:3:20+9 strId@3:34+1\n"
              "    o Common_ServerConfiguration.xml:4:2+6 strId@4:13+1 ulValue@4:23+1\n"
              "  q Common_ServerConfiguration.xml:4:40+9 strId@4:54+1\n"
              "capacity 1.1 C_1_ServerConfiguration.xml:1:29+3\n"
              "capacity 1.2 C_1_ServerConfiguration.xml:2:26+3 read\n"
              "  a C_1_ServerConfiguration.xml:2:32+9 strId@2:46+1 bIsSupported@2:62+1\n"
              "  b C_1_ServerConfiguration.xml:3:2+9 strId@3:16+1 bIsSupported@3:32+1\n"
              "    p C_1_ServerConfiguration.xml:3:36+9 strId@3:50+1 bIsRequired@3:65+1\n"
              "    q C_1_ServerConfiguration.xml:4:2+9 strId@4:16+1\n"
              "capacity 1.1 C_1b_ServerConfiguration.xml:1:29+3\n"
              "capacity 1.2 C_1b_ServerConfiguration.xml:2:26+3 read\n"
              "  a C_1b_ServerConfiguration.xml:2:32+9 strId@2:46+1 bIsSupported@2:62+1\n"
              "  b C_1b_ServerConfiguration.xml:3:2+9 strId@3:16+1 bIsSupported@3:32+1\n"
              "    p C_1b_ServerConfiguration.xml:3:36+9 strId@3:50+1 bIsRequired@3:65+1\n"
              "    q C_1b_ServerConfiguration.xml:4:2+9 strId@4:16+1\n"
              "capacity 1.2 C_2_ServerConfiguration.xml:1:29+3 read\n",
              CListing(CCatalogMaker().make("C", "V")).text());
    EXPECT_EQ(0u, nEvents);
    CXMLConfigDatabase::getInstance();
    EXPECT_EQ(1u, nEvents); // of version 3: the server tells it, and once
    standalone::setEventListener({});
}
} // namespace
