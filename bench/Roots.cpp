#include "Roots.h"

#include "ServerRootText.h"
#include "standalone/ServerRoot.h"

#include <map>
#include <stdexcept>
#include <system_error>

namespace
{
std::map<std::size_t, std::filesystem::path>& madeRoots()
{
    static std::map<std::size_t, std::filesystem::path> s_mapRoot; // by number of types
    return s_mapRoot;
}
} // namespace

CWorkFolder::CWorkFolder()
{
    std::filesystem::remove_all(workFolder());
    std::filesystem::create_directories(workFolder());
}

CWorkFolder::~CWorkFolder()
{
    std::error_code oIgnored;
    std::filesystem::remove_all(workFolder(), oIgnored);
}

std::filesystem::path workFolder()
{
    return BENCH_WORK_FOLDER;
}

std::filesystem::path rootOf(std::size_t nTypes)
{
    auto& mapRoot = madeRoots();
    if (const auto itMade = mapRoot.find(nTypes); itMade != mapRoot.end())
        return itMade->second;
    StRootWish stWish;
    stWish.oFolder = workFolder() / std::to_string(nTypes);
    stWish.nTypes  = nTypes;
    if (const auto itLarger = mapRoot.upper_bound(nTypes); itLarger != mapRoot.end())
        stWish.oFilesOf = itLarger->second;
    writeServerRoot(stWish);
    mapRoot.emplace(nTypes, stWish.oFolder);
    return stWish.oFolder;
}

std::filesystem::path alarmRootOf(std::size_t nAlarms)
{
    StRootWish stWish;
    stWish.oFolder = workFolder() / "alarms";
    stWish.nAlarms = nAlarms;
    writeServerRoot(stWish);
    return stWish.oFolder;
}

std::vector<std::filesystem::path> filesOf(std::size_t nTypes)
{
    const std::filesystem::path        oRoot = rootOf(nTypes);
    std::vector<std::filesystem::path> lstFile;
    for (std::size_t nType = 0; nType < nTypes; ++nType)
        lstFile.push_back(configFile(oRoot, nType));
    return lstFile;
}

double megabytesOf(std::size_t nTypes)
{
    double dBytes = 0;
    for (const std::filesystem::path& oFile : filesOf(nTypes))
        dBytes += static_cast<double>(std::filesystem::file_size(oFile));
    return dBytes / 1e6;
}

void openRoot(const std::filesystem::path& oRoot)
{
    std::string strError;
    if (!standalone::openServerRoot(oRoot.string(), strError))
        throw std::runtime_error(strError);
}
