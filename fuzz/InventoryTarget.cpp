// Fuzz target: the inventory of a server root: a server.sql, or, when the input
// begins like one, a server.db.
#include "FuzzSupport.h"

#include "platform/CapacityDatabase.h"
#include "platform/DeviceAdapter.h"
#include "platform/DeviceDatabase.h"
#include "standalone/ServerRoot.h"

#include <system_error>

namespace
{
constexpr std::string_view DATABASE_START = "SQLite format 3";

// Asks the services for everything that they know of each device type.
std::size_t askAll()
{
    std::list<StDeviceType> lstType;
    require(CDeviceAdapterInterface::getInstance()->getALLDLLInfo(lstType) == 0, "the device types are listed");
    for (const StDeviceType& stType : lstType)
    {
        StDeviceType stFound;
        require(CDeviceAdapterInterface::getInstance()->searchDeviceType(stType.strDevType, stType.strDevTypeVer,
                                                                         stFound) == 0 &&
                    stFound.strDevType == stType.strDevType,
                "a listed device type is found");
        std::string                strText;
        EnCheckReportType          enReport = EnCheckReportNone;
        std::list<StAsnDevVersion> lstVersion;
        std::list<StCapacityInfo>  lstCapacity;
        std::list<StDeviceInfo>    lstDevice;
        CDeviceAdapterInterface::getInstance()->getServerConfigFile(stType.strDevType, strText);
        CDeviceAdapterInterface::getInstance()->getCheckFileAndType(stType.strDevType, strText, enReport);
        CDCDeviceInfoDB::getDevVerInfo(stType.strDevType, stType.strDevTypeVer, lstVersion);
        CDCDeviceInfoDB::getDevInfo(stType.strDevType, stType.strDevTypeVer, {}, lstDevice);
        CDCCapacityManagerDB::readCapacity(stType.strDevType, stType.strDevTypeVer, lstCapacity);
    }
    return lstType.size();
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    static const CFuzzRoot s_oRoot;
    const std::string_view strInput(reinterpret_cast<const char*>(pData), nSize);
    const bool             bDatabase = strInput.substr(0, DATABASE_START.size()) == DATABASE_START;
    const char*            pszName   = bDatabase ? "server.db" : "server.sql";
    std::error_code        oIgnored;
    std::filesystem::remove(s_oRoot.folder() / (bDatabase ? "server.sql" : "server.db"), oIgnored);
    require(s_oRoot.write(pszName, strInput), "the inventory is written");

    std::string strError;
    std::string strSecondError;
    const bool  bFirst = standalone::openServerRoot(s_oRoot.path(), strError);
    // No root was open before, so a refused one leaves none.
    std::list<StDeviceType> lstType;
    if (!bFirst)
        require(CDeviceAdapterInterface::getInstance()->getALLDLLInfo(lstType) == standalone::RESULT_NO_ROOT,
                "nothing is loaded of a refused inventory");
    const std::size_t nFirst = bFirst ? askAll() : 0;
    require(bFirst == strError.empty(), "a refused inventory has a message, a good one none");
    require(bFirst || strError.find(pszName) != std::string::npos, "the message names the file");
    require(standalone::openServerRoot(s_oRoot.path(), strSecondError) == bFirst && strError == strSecondError,
            "the same inventory is read or refused again");
    require((bFirst ? askAll() : 0) == nFirst, "the same inventory has the same types");
    standalone::closeServerRoot();
    for (const auto& oEntry : std::filesystem::directory_iterator(s_oRoot.folder()))
        require(oEntry.path().filename() == pszName, "reading an inventory leaves nothing beside it");
    return 0;
}
