// See CatalogMaker.h.
#include "catalog/CatalogMaker.h"

#include "catalog/PlacedSource.h"
#include "catalog/SectionMaker.h"
#include "database/CXMLConfigDatabase.h"
#include "platform/DeviceAdapter.h"
#include "reader/CDevTypeXMLResReader.h"
#include "reader/CModuleXMLResReader.h"
#include "reader/ModuleAppend.h"
#include "records/ResultCodes.h"

#include <list>
#include <map>
#include <utility>

namespace catalog
{
namespace
{
// Roots that nobody else owns.
struct StOwnedRoots
{
    StOwnedRoots() = default;
    ~StOwnedRoots()
    {
        for (const StAsnDevTypeVerXMLInfo* pInfo : lstInfo)
            delete pInfo;
    }
    StOwnedRoots(const StOwnedRoots&)            = delete;
    StOwnedRoots& operator=(const StOwnedRoots&) = delete;

    std::list<StAsnDevTypeVerXMLInfo*> lstInfo;
};
} // namespace

class CCatalogMaker::CImpl
{
public:
    explicit CImpl(const DocumentSink& fnParsed)
        : m_oModuleSource(m_oModuleRecorder, EnOrigin::Module, fnParsed),
          m_oSource(m_oRecorder, EnOrigin::OwnFile, fnParsed)
    {
    }

    void readModules()
    {
        m_oModuleSource.begin({}, {});
        CModuleXMLResReader oReader;
        {
            const ReadObserver::CScope oScope(m_oModuleRecorder);
            oReader.readFrom(m_oModuleSource);
            oReader.parseXMLOfDirs(moduleFolder(), m_mapModule); // what failed stands with the files
        }
        m_oModuleRecorder.endModules();
        m_lstModuleProblem = oReader.problems();
        for (const StModuleLoad& stLoad : oReader.files())
            m_lstModule.push_back(moduleCatalog(stLoad));
        m_lstModuleFile = m_oModuleSource.files();
        m_oModuleSource.end();
        // A name listed twice appends the module twice.
        for (const auto& [strName, stModule] : m_mapModule)
        {
            for (const std::string& strSupported : stModule.lstSupportDevType)
                m_mapModulesOfType[strSupported].push_back(&stModule);
        }
    }

    void expect(const std::vector<StTypeName>& lstType)
    {
        std::vector<StLoadType> lstLoad;
        lstLoad.reserve(lstType.size());
        for (const StTypeName& stName : lstType)
        {
            StDeviceType stType;
            CDeviceAdapterInterface::getInstance()->searchDeviceType(stName.strDevType, stName.strDevTypeVer, stType);
            lstLoad.push_back({CXMLConfigDatabase::trans2TelnetDevType(stName.strDevType, stName.strDevTypeVer),
                               stType.enConfigFileType == EnConfigFileCommon, isCapacityType(stType)});
        }
        m_oSource.expect(lstLoad);
        m_bExpects = true;
    }

    StTypeCatalog make(const std::string& strDevType, const std::string& strDevTypeVer, const ReadSink& fnRead)
    {
        StTypeCatalog stType;
        stType.strDevType    = strDevType;
        stType.strDevTypeVer = strDevTypeVer;
        stType.strKey        = CXMLConfigDatabase::trans2TelnetDevType(strDevType, strDevTypeVer);
        StDeviceType stDeviceType;
        const bool   bKnown    = CDeviceAdapterInterface::getInstance()->searchDeviceType(strDevType, strDevTypeVer,
                                                                                          stDeviceType) == DC_RESULT_OK;
        const bool   bCapacity = bKnown && isCapacityType(stDeviceType);
        stType.strDevSysOid    = stDeviceType.strDevSysOid;
        stType.stPlan          = makeConfigPlan(stType.strKey, strDevTypeVer, bCapacity);
        m_oRecorder.clear();
        m_oSource.begin(stType.stPlan, m_lstModuleFile);
        StOwnedRoots oRoots;
        {
            const ReadObserver::CScope oScope(m_oRecorder);
            read(stType, bCapacity, fnRead, oRoots.lstInfo);
        }
        for (const StAsnDevTypeVerXMLInfo* pInfo : oRoots.lstInfo)
            stType.lstConfiguration.push_back(configuration(*pInfo));
        stType.lstFile             = m_oSource.files();
        stType.lstCapacityDocument = m_oRecorder.takeCapacity();
        m_oRecorder.clear(); // the addresses die with the records
        if (m_bExpects)      // else anything may be wanted again
            m_oSource.end();
        return stType;
    }

    std::vector<StModuleCatalog> m_lstModule;
    std::vector<StReadProblem>   m_lstModuleProblem;
    CReadRecorder                m_oModuleRecorder;
    CReadRecorder                m_oRecorder{&m_oModuleRecorder};
    CPlacedSource                m_oModuleSource;
    CPlacedSource                m_oSource;

private:
    void read(StTypeCatalog& stType, bool bCapacity, const ReadSink& fnRead,
              std::list<StAsnDevTypeVerXMLInfo*>& lstInfo)
    {
        CDevTypeXMLResReader oReader(stType.strKey, stType.strDevTypeVer, bCapacity);
        oReader.readFrom(m_oSource);
        oReader.initializeCheck();
        stType.ulResult = oReader.readDevTypeVerXMLFile(lstInfo);
        stType.stOrigin = oReader.origin();
        if (fnRead)
            fnRead(stType.ulResult);
        if (stType.ulResult != DC_RESULT_OK || lstInfo.empty())
            return;
        // Modules name the type, never its telnet key, and the first record gets them.
        const auto itModules = m_mapModulesOfType.find(stType.strDevType);
        if (itModules == m_mapModulesOfType.end())
            return;
        for (const StAsnModuleInfoVerXMLInfo* pModule : itModules->second)
            appendModule(*pModule, *lstInfo.front());
    }

    StConfiguration configuration(const StAsnDevTypeVerXMLInfo& stInfo) const
    {
        StConfiguration stConfiguration;
        for (const StAsnDevVersion& stVersion : stInfo.lstDevVersion)
            stConfiguration.lstVersion.push_back({stVersion.strSoftVersion, stVersion.strPatchVersion});
        stConfiguration.lstSection = makeSections(m_oRecorder, stInfo, {});
        return stConfiguration;
    }

    StModuleCatalog moduleCatalog(const StModuleLoad& stLoad)
    {
        StModuleCatalog stCatalog;
        stCatalog.strFile          = stLoad.strFile;
        stCatalog.ulFile           = m_oModuleSource.numberOf(stLoad.strFile);
        const StModuleHead& stHead = m_oModuleRecorder.module(stCatalog.ulFile);
        stCatalog.strName          = stHead.strName;
        stCatalog.stName           = stHead.stName;
        stCatalog.lstSupported     = stHead.lstSupported;
        stCatalog.ulResult         = stLoad.ulResult;
        stCatalog.stProblem        = stLoad.stProblem;
        const auto itModule        = m_mapModule.find(stLoad.strName);
        if (stLoad.ulResult == DC_RESULT_OK && itModule != m_mapModule.end())
            stCatalog.lstSection = makeSections(m_oModuleRecorder, itModule->second, stHead.lstLost);
        return stCatalog;
    }

    std::map<std::string, std::vector<const StAsnModuleInfoVerXMLInfo*>> m_mapModulesOfType; // by plain type name

    ModuleInfoMap            m_mapModule;
    std::vector<std::string> m_lstModuleFile;
    bool                     m_bExpects = false;
};

CCatalogMaker::CCatalogMaker(const DocumentSink& fnParsed) : m_pImpl(std::make_unique<CImpl>(fnParsed))
{
    try
    {
        m_pImpl->readModules();
    }
    catch (...) // half the modules would be a wrong answer
    {
        m_pImpl = std::make_unique<CImpl>(fnParsed);
    }
}

CCatalogMaker::~CCatalogMaker() = default;

void CCatalogMaker::expect(const std::vector<StTypeName>& lstType)
try
{
    m_pImpl->expect(lstType);
}
catch (...) // all is read the same, on one thread
{
}

StTypeCatalog CCatalogMaker::make(const std::string& strDevType, const std::string& strDevTypeVer,
                                  const ReadSink& fnRead)
try
{
    return m_pImpl->make(strDevType, strDevTypeVer, fnRead);
}
catch (...)
{
    StTypeCatalog stFailed;
    stFailed.ulResult = DC_RESULT_XML_ERROR;
    return stFailed;
}

const std::vector<StModuleCatalog>& CCatalogMaker::modules() const
{
    return m_pImpl->m_lstModule;
}

const std::vector<StReadProblem>& CCatalogMaker::moduleProblems() const
{
    return m_pImpl->m_lstModuleProblem;
}
} // namespace catalog
