// Fuzz target: a tree of module files, walked by the module reader and merged
// into a device type by the start-up load.
// The input is cut into entries at lines that begin with "@@ " and name a path
// below the module folder. An entry without content is a folder, "->." and "->.."
// a link to its own folder or the one above.
#include "FuzzSupport.h"

#include "database/CXMLConfigDatabase.h"
#include "reader/CModuleXMLResReader.h"

#include <algorithm>
#include <cctype>
#include <system_error>

namespace
{
namespace fs = std::filesystem;

constexpr const char* MODULE_FOLDER = "etc/oss_cfg/dc/ne_script/importscript";
constexpr const char* INVENTORY     = "INSERT INTO device_type(position, name, version) VALUES(1, 'AB 12/X', 'V1');"
                                      "INSERT INTO config_file VALUES('AB 12/X', 'own.xml');";
constexpr const char* OWN_FILE =
    "<ServerConfiguration><DeviceOperation><Operation id='Own'/></DeviceOperation></ServerConfiguration>";
constexpr std::size_t MAX_ENTRIES = 16;

// A path that stays below the module folder: what else a line holds is left out.
std::string safePath(std::string_view strLine)
{
    std::string strPath;
    for (const char cSign : strLine.substr(0, 100))
    {
        const bool bSafe = std::isalnum(static_cast<unsigned char>(cSign)) != 0 || cSign == '_' ||
                           (cSign == '.' && !strPath.empty() && strPath.back() != '.' && strPath.back() != '/') ||
                           (cSign == '/' && !strPath.empty() && strPath.back() != '/' && strPath.back() != '.');
        if (bSafe)
            strPath += cSign;
    }
    return strPath;
}

void makeEntry(const CFuzzRoot& oRoot, std::string_view strEntry)
{
    const std::size_t nLine   = std::min(strEntry.find('\n'), strEntry.size());
    const std::string strPath = safePath(strEntry.substr(0, nLine));
    std::string_view  strText = strEntry.substr(std::min(nLine + 1, strEntry.size()));
    if (strPath.empty())
        return;
    const fs::path  oPath = oRoot.folder() / MODULE_FOLDER / strPath;
    std::error_code oIgnored;
    // A link upwards from the module folder itself would leave the tree.
    const bool bLink = strText == "->." || (strText == "->.." && strPath.find('/') != std::string::npos);
    fs::create_directories(bLink ? oPath.parent_path() : oPath, oIgnored);
    if (bLink)
        fs::create_directory_symlink(strText.substr(2), oPath, oIgnored);
    else if (!strText.empty() && fs::remove(oPath, oIgnored)) // made as a folder above, with those around it
        oRoot.write((fs::path(MODULE_FOLDER) / strPath).string(), strText);
}

void makeTree(const CFuzzRoot& oRoot, std::string_view strInput)
{
    const fs::path oFolder = oRoot.folder() / MODULE_FOLDER;
    fs::remove_all(oFolder);
    fs::create_directories(oFolder);
    for (std::size_t nEntry = 0; nEntry < MAX_ENTRIES && !strInput.empty(); ++nEntry)
    {
        const std::size_t nEnd = std::min(strInput.find("\n@@ "), strInput.size());
        makeEntry(oRoot, strInput.substr(0, nEnd));
        strInput.remove_prefix(std::min(nEnd + 1, strInput.size()));
    }
}

std::size_t walk(const CFuzzRoot& oRoot, ModuleInfoMap& mapModule)
{
    CModuleXMLResReader oReader;
    require(oReader.parseXMLOfDirs(oRoot.path() + "/" + MODULE_FOLDER, mapModule) == 0, "the module folder is read");
    const auto& lstFile = oReader.files();
    const auto  nGood   = static_cast<std::size_t>(
        std::count_if(lstFile.begin(), lstFile.end(), [](const StModuleLoad& stLoad) { return stLoad.ulResult == 0; }));
    require(nGood == mapModule.size(), "a module for each file that could be read");
    return lstFile.size();
}

StAsnDevTypeVerXMLInfo asRecord(const StAsnModuleInfoVerXMLInfo& stModule)
{
    StAsnDevTypeVerXMLInfo stInfo;
    stInfo.stOperationConfig          = stModule.stOperationConfig;
    stInfo.stViewConfig               = stModule.stViewConfig;
    stInfo.lstTaskConfigInfoOperation = stModule.lstTaskConfigInfoOperation;
    return stInfo;
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    static const CFuzzRoot s_oRoot;
    static const bool      s_bOpen = (s_oRoot.open(INVENTORY), s_oRoot.write("own.xml", OWN_FILE));
    require(s_bOpen, "the own file is written");
    makeTree(s_oRoot, std::string_view(reinterpret_cast<const char*>(pData), nSize));

    ModuleInfoMap mapFirst;
    ModuleInfoMap mapSecond;
    require(walk(s_oRoot, mapFirst) == walk(s_oRoot, mapSecond), "the same tree has the same files");
    require(mapFirst.size() == mapSecond.size(), "the same tree gives the same modules");
    for (const auto& [strName, stModule] : mapFirst)
    {
        require(mapSecond.count(strName) == 1, "the same tree gives the same names");
        require(mapSecond[strName].lstSupportDevType == stModule.lstSupportDevType, "the same types are supported");
        requireSame(asRecord(stModule), asRecord(mapSecond[strName]));
    }

    CXMLConfigDatabase::finalize();
    const auto* pInfo = CXMLConfigDatabase::getInstance()->getFirstDevTypeXMLConfig("AB 12/X", "V1");
    require(pInfo != nullptr, "no module costs a device type its record");
    require(pInfo->stOperationConfig.lstDevOperation.front().strId == "Own", "a type's own operations come first");
    return 0;
}
