// See FileKind.h.
#include "lint/FileKind.h"

#include "alarm/InitAlarmInfo.h"
#include "alarm/InitTblRegInfo.h"
#include "common/LogLine.h"
#include "common/XmlRead.h"
#include "filecheck/ParseXMLFile.h"
#include "platform/DeviceAdapter.h"
#include "reader/CCapacityXMLConfig.h"
#include "reader/CDevTypeXMLConfig.h"
#include "reader/SectionTable.h"
#include "records/ResultCodes.h"
#include "sections/CCheckOpXMLConfig.h"

#include <algorithm>
#include <cctype>

using namespace xercesc;

namespace lint
{
namespace
{
constexpr const char* DC_SOURCE = "FileKind";

bool has(const CXmlParser& oParser, const char16_t* pszName)
{
    return !oParser.elements(pszName).empty();
}

bool hasParam(const CXmlParser& oParser, const char16_t* pszParam)
{
    const ElementList& lstParam = oParser.elements(u"param");
    return std::any_of(lstParam.begin(), lstParam.end(),
                       [pszParam](const DOMElement* pParam)
                       { return XMLString::equals(pParam->getAttribute(u"name"), pszParam); });
}

bool endsWith(const std::string& strText, const std::string& strEnd)
{
    return strText.size() >= strEnd.size() &&
           strText.compare(strText.size() - strEnd.size(), strEnd.size(), strEnd) == 0;
}

// Task types stand in check files, too.
bool hasSection(const CXmlParser& oParser)
{
    bool bHas = false;
    forEachSection(
        [&](const auto& stSection)
        {
            const bool bTaskType = XMLString::equals(stSection.pszElement, u"TaskType");
            bHas                 = bHas || (!bTaskType && has(oParser, stSection.pszElement));
        });
    return bHas;
}

template <typename Root>
void readSectionsOf(CXmlParser& oParser, bool bModule)
{
    Root stRoot;
    forEachSection(
        [&](const auto& stSection)
        {
            if (!bModule || stSection.enModuleUse != EnModuleUse::None)
                stSection.read(&oParser, listOf(stRoot, stSection.pList));
        });
}

void readModule(CXmlParser& oParser)
{
    std::string               strName;
    StAsnModuleInfoVerXMLInfo stModule;
    CDevTypeXMLConfig().setModuleXMLConfig(&oParser, strName);
    CDevTypeXMLConfig().setDevTypeXMLConfig(&oParser, stModule);
    readSectionsOf<StAsnModuleInfoVerXMLInfo>(oParser, true);
}

// Every type and parameter: a server stops at the first mistake, and takes the first
// root of a file and the first parameter of a name. What comes behind those is told by
// a rule of its own.
void readFileCheck(CXmlParser& oParser)
{
    for (const DOMElement* pRoot : documentElements(oParser, u"zipcheck"))
    {
        for (const DOMElement& oType : CElements(pRoot, u"uncompressed_type"))
        {
            ParseXMLFile::valueOf(oType);
            for (const char16_t* pszName : ParseXMLFile::paramNames())
            {
                for (const DOMElement& oParam : CElements(&oType, pszName))
                    ParseXMLFile::valueOf(oParam);
            }
        }
    }
}

void readExplanations(const CXmlParser& oParser)
{
    for (const DOMElement* pRecord : CAlarmTable::records(oParser))
    {
        AlarmStaticInfo stAlarm;
        InitAlarmInfo::fillAlarmInfo(pRecord, stAlarm);
    }
}

void readRegistrations(const CXmlParser& oParser)
{
    std::size_t nFaultIds = 0;
    for (const DOMElement* pRecord : CAlarmTable::records(oParser))
    {
        unsigned long            ulDevType = 0;
        std::list<unsigned long> lstFaultId;
        for (const DOMElement& oParam : CElements(pRecord, u"param"))
            InitTblRegInfo::readParam(DC_HERE, oParam, ulDevType, lstFaultId, nFaultIds);
    }
}

// Every entry, whichever type it is for: a server reads the one of a type's sysoid.
void readCapacity(CXmlParser& oParser)
{
    CCapacityXMLConfig        oCapacity;
    std::list<StAsnOperation> lstOperation;
    for (const DOMElement* pEntry : documentElements(oParser, u"upgradecapacity"))
    {
        attrText(CAttributes(*pEntry), u"sysoid");
        oCapacity.fillOperInfo(pEntry, lstOperation);
    }
}

struct StKind
{
    EnFileKind  enKind;
    const char* pszText;
};

constexpr StKind KINDS[] = {
    {EnFileKind::Configuration, "a configuration file"},
    {EnFileKind::Module, "a module file"},
    {EnFileKind::Capacity, "a capacity document"},
    {EnFileKind::TelnetCheck, "a telnet check file"},
    {EnFileKind::FixedCheck, "a fixed check file"},
    {EnFileKind::AlarmExplanation, "an alarm explanation table"},
    {EnFileKind::AlarmRegistration, "an alarm registration table"},
    {EnFileKind::FileCheck, "a file of file-check rules"},
};
} // namespace

EnFileKind kindOfFile(const std::string& strPath, const CXmlParser& oParser)
{
    const std::string strName = strPath.substr(strPath.rfind('/') + 1);
    if (endsWith(strName, "dc_tbl_alm_exp_info.xml") || hasParam(oParser, u"AlarmID"))
        return EnFileKind::AlarmExplanation;
    if (endsWith(strName, "dc_tbl_RegInfo.xml") || hasParam(oParser, u"FaultIDList"))
        return EnFileKind::AlarmRegistration;
    if (strName == "file_check.xml" || has(oParser, u"zipcheck"))
        return EnFileKind::FileCheck;
    if (strPath.find("/fixedcheck/") != std::string::npos)
        return EnFileKind::FixedCheck;
    if (has(oParser, u"PreCheck") || has(oParser, u"PostCheck"))
        return EnFileKind::TelnetCheck;
    if (has(oParser, u"support") || strPath.find("/importscript/") != std::string::npos)
        return EnFileKind::Module;
    if (has(oParser, u"upgradecapacity") && !hasSection(oParser))
        return EnFileKind::Capacity;
    if (hasSection(oParser) || endsWith(strName, "ServerConfiguration.xml"))
        return EnFileKind::Configuration;
    if (has(oParser, u"DeviceType"))
        return EnFileKind::FixedCheck;
    return has(oParser, u"TaskType") ? EnFileKind::Configuration : EnFileKind::Unknown;
}

void readAs(EnFileKind enKind, CXmlParser& oParser)
{
    std::list<StAsnCheckOperationDef> lstCheck;
    switch (enKind)
    {
    case EnFileKind::Configuration:
        return readSectionsOf<StAsnDevTypeVerXMLInfo>(oParser, false);
    case EnFileKind::Module:
        return readModule(oParser);
    case EnFileKind::Capacity:
        return readCapacity(oParser);
    case EnFileKind::TelnetCheck:
        CCheckOpXMLConfig().setCheckOpConfigurationTelnet(&oParser, &lstCheck, EnCheckReportNone);
        return;
    case EnFileKind::FixedCheck:
        CCheckOpXMLConfig().setFixedCheckOpConfiguration(&oParser, &lstCheck);
        return;
    case EnFileKind::FileCheck:
        return readFileCheck(oParser);
    case EnFileKind::AlarmExplanation:
        return readExplanations(oParser);
    case EnFileKind::AlarmRegistration:
        return readRegistrations(oParser);
    case EnFileKind::Unknown:
        return;
    }
}

const char* kindText(EnFileKind enKind)
{
    for (const StKind& stKind : KINDS)
    {
        if (stKind.enKind == enKind)
            return stKind.pszText;
    }
    return "a file";
}
} // namespace lint
