// Fuzz target: a server configuration document through all sections, as a device
// type's file and as each of the two check files.
#include "FuzzSupport.h"

#include "common/XmlLimits.h"
#include "reader/CDevTypeXMLResReader.h"
#include "records/ResultCodes.h"
#include "sections/CCheckOpXMLConfig.h"

#include <memory>

namespace
{
// All options on, so that what depends on a setting is read.
constexpr const char* SETTINGS = "INSERT INTO resource VALUES('BACKUP_PROGRAM_SUPPORT','1');"
                                 "INSERT INTO setting VALUES('WDM_SUPPORT_ISSU_UPGRADE','3');";

// Readers of the same element: the sections of a document, and the check files.
constexpr std::size_t SECTIONS = 16;

struct StReading
{
    std::uint32_t          ulResult = 0;
    StAsnDevTypeVerXMLInfo stInfo;
};

StReading readOnce(CXmlParser& oParser, std::string_view strXml)
{
    StReading stReading;
    oParser.parseText(strXml);
    stReading.ulResult = CDevTypeXMLResReader("AB 12/X", "V1", false).setDevXMLConfig(&oParser, &stReading.stInfo);
    auto& lstCheck     = stReading.stInfo.stOperationConfig.lstCheckOperation;
    CCheckOpXMLConfig().setCheckOpConfigurationTelnet(&oParser, &lstCheck, EnCheckReportText);
    CCheckOpXMLConfig().setFixedCheckOpConfiguration(&oParser, &lstCheck);
    return stReading;
}

// Equal configurations of two versions become one record that names both.
void requireOneRecord(const StAsnDevTypeVerXMLInfo& stFirst, const StAsnDevTypeVerXMLInfo& stSecond)
{
    CDevTypeXMLResReader               oReader("AB 12/X", "V1", true);
    std::list<StAsnDevTypeVerXMLInfo*> lstInfo;
    auto*                              pFirst  = new StAsnDevTypeVerXMLInfo(stFirst);
    auto*                              pSecond = new StAsnDevTypeVerXMLInfo(stSecond);
    oReader.compareAndAdd(lstInfo, pFirst, {"S1", ""});
    oReader.compareAndAdd(lstInfo, pSecond, {"S2", ""});
    require(lstInfo.size() == 1 && pSecond == nullptr, "equal configurations share one record");
    require(lstInfo.front()->lstDevVersion.back().strSoftVersion == "S2", "a shared record names every version");
    delete pFirst;
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    static const CFuzzRoot                   s_oRoot;
    static const bool                        s_bOpen   = (s_oRoot.open(SETTINGS), true);
    static const std::unique_ptr<CXmlParser> s_pReused = CXmlParser::create();
    require(s_bOpen && s_pReused != nullptr, "the parser starts");

    // A parser that has read anything else before reads like a new one.
    const std::string_view            strXml(reinterpret_cast<const char*>(pData), nSize);
    const std::unique_ptr<CXmlParser> pNew     = CXmlParser::create();
    const StReading                   stFirst  = readOnce(*pNew, strXml);
    const StReading                   stSecond = readOnce(*s_pReused, strXml);
    require(problemText(pNew->problem()) == problemText(s_pReused->problem()), "the same input has the same problem");
    requireSame(stFirst.stInfo, stSecond.stInfo);
    requireOneRecord(stFirst.stInfo, stSecond.stInfo);

    xercesc::DOMDocument* pDocument = pNew->getDocument();
    require((pDocument == nullptr) == pNew->problem().isSet(), "there is a document or a problem");
    if (pDocument == nullptr)
    {
        require(stFirst.ulResult == DC_RESULT_XML_ERROR, "a refused document is an error");
        require(stFirst.stInfo == StAsnDevTypeVerXMLInfo(), "a refused document leaves no records");
        return 0;
    }
    require(stFirst.ulResult == DC_RESULT_OK, "a document is read");
    const std::size_t nElements = pDocument->getElementsByTagName(u"*")->getLength();
    require(countRecords(stFirst.stInfo) <= SECTIONS * (nElements + XmlLimits::MAX_REPEATED_READS + 1),
            "the number of records is bounded");
    return 0;
}
