// Prefixes, the log filter, and which lines go round it.
#include "TestSupport.h"
#include "database/CXMLConfigDatabase.h"
#include "reader/CDevTypeXMLResReader.h"
#include "sections/CDevOpXMLConfig.h"
#include "standalone/LogSink.h"

namespace
{
TEST(LogLineTest, TheFilterSeesTheWholeLineSaveOfTheRegistryCall)
{
    standalone::setLogFilter([](std::string& strText) { strText = "<" + strText + ">"; });
    struct : CXMLConfigDatabase // loaded by nobody
    {
    } oDatabase;
    std::list<StAsnDevTypeVerXMLInfo*> lstNone;
    std::list<StAsnDevTypeVerXMLInfo*> lstRead;
    CDevOpXMLConfig().setPatchOperXMLConfig(nullptr, nullptr);
    oDatabase.storeDevTypeXMLConfig("X", lstNone);
    CDevTypeXMLResReader("X", "V", false).initialize("", "", true);
    std::multimap<std::string, StDeviceType> mapDeviceType;
    EXPECT_EQ(0x3B0F0002u, oDatabase.getExistDeviceTypes(mapDeviceType));
    EXPECT_THAT(logLinesWithPlace(),
                testing::ElementsAre(
                    "E 3B0004EE CDevOpXMLConfig::setPatchOperXMLConfig "
                    "<[DCServer]CDevOpXMLConfig::setPatchOperXMLConfig() pDOMParser is NULL :>",
                    "I CXMLConfigDatabase::storeDevTypeXMLConfig <[DCServer]Added device X to MAP.>",
                    "E 3B0F0002 CDevTypeXMLResReader::initialize <Call Function return Error:CDeviceAdapterInterface::"
                    "getInstance()->searchDeviceType(m_strDevType, m_strDevTypeVer, oStDeviceType)>",
                    "E 3B0F0002 CXMLConfigDatabase::getExistDeviceTypes Call Function return Error:"
                    "CDeviceAdapterInterface::getInstance()->getALLDLLInfo(strDllList)"));
}
} // namespace
