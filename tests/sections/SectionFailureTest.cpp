// What every section answers and logs, exact to the blank, when an argument, the
// document or a lookup is missing. A lookup fails below an element that stands
// deeper in its own kind than any document may.
#include "ForeignXml.h"
#include "RecordText.h"
#include "platform/DeviceAdapter.h"
#include "records/ResultCodes.h"
#include "sections/CCheckOpXMLConfig.h"
#include "sections/CCustomOpXMLConfig.h"
#include "sections/CDevOpXMLConfig.h"
#include "sections/CDevViewPopupMenuConfig.h"
#include "sections/CIsolationViewPopupMenuConfig.h"
#include "sections/COtherOpXMLConfig.h"
#include "sections/CPatchViewPopupMenuConfig.h"
#include "sections/CPatchXMLConfig.h"
#include "sections/CTaskXMLConfig.h"
#include "sections/CUpgradeOpXMLConfig.h"

namespace
{
using xercesc::DOMElement;
using xercesc::XercesDOMParser;

constexpr const char* NO_LOOKUP = "DOMElement::getElementsByTagName failed :";
constexpr const char* NO_DOC    = "XercesDOMParser::getDocument failed :";

// An operation under test, with a list of its own or without one.
template <typename Source>
using Call = std::function<std::uint32_t(Source*, bool bList)>;

template <typename Parser, typename Record, typename Source>
Call<Source> call(std::uint32_t (Parser::*pfn)(Source*, std::list<Record>*))
{
    return [pfn](Source* pSource, bool bList)
    {
        std::list<Record> lstOut;
        return (Parser().*pfn)(pSource, bList ? &lstOut : nullptr);
    };
}
template <typename Parser, typename Out>
Call<const DOMElement> call(std::uint32_t (Parser::*pfn)(const DOMElement*, Out&))
{
    return [pfn](const DOMElement* pElement, bool /*bList*/)
    {
        Out oOut;
        return (Parser().*pfn)(pElement, oOut);
    };
}

// Checks code and log of one failing call. An empty text expects neither.
void expectFailure(std::uint32_t ulResult, std::uint32_t ulExpected, const std::string& strPlace, const char* pszText)
{
    const bool bLogs = pszText != nullptr;
    EXPECT_EQ(ulExpected, ulResult);
    EXPECT_EQ(bLogs ? Lines{fmt::format("E {:08X} {} [DCServer]{}", ulExpected != 0 ? ulExpected : DC_RESULT_XML_ERROR,
                                        strPlace, pszText)}
                    : Lines{},
              logLinesWithPlace());
    clearLog();
}

struct StEntryCase
{
    const char*           pszName; // Class::operation, as in the log
    Call<XercesDOMParser> fnCall;
    const char*           pszNoParser;
    const char*           pszNoList; // null: answered by the readers below
    const char*           pszNoDocument;
    std::uint32_t         ulNoArgument = DC_RESULT_XML_ERROR;
};

const StEntryCase ENTRIES[] = {
    {"CDevOpXMLConfig::setDevOperXMLConfig", call(&CDevOpXMLConfig::setDevOperXMLConfig),
     "DOMElement::setDevOperXMLConfig(): pDOMParser pointer is NULL: ", nullptr, NO_DOC},
    {"CDevOpXMLConfig::setTaskOperationXMLConfig", call(&CDevOpXMLConfig::setTaskOperationXMLConfig),
     "CDevOpXMLConfig::setTaskOperationXMLConfig() pDOMParser is NULL :", nullptr, NO_DOC},
    {"CDevOpXMLConfig::setPatchOperXMLConfig", call(&CDevOpXMLConfig::setPatchOperXMLConfig),
     "CDevOpXMLConfig::setPatchOperXMLConfig() pDOMParser is NULL :", nullptr, NO_DOC},
    {"CCheckOpXMLConfig::setCheckOpConfiguration", call(&CCheckOpXMLConfig::setCheckOpConfiguration),
     "pDOMParser is null.", "oAsnCheckOperationLst is null.", "XercesDOMParser::getDocument failed."},
    {"CCheckOpXMLConfig::setFixedCheckOpConfiguration", call(&CCheckOpXMLConfig::setFixedCheckOpConfiguration),
     "pDOMParser is null.", "oAsnCheckOperationLst is null.", "XercesDOMParser::getDocument failed."},
    {"CCheckOpXMLConfig::setCheckOpConfigurationTelnet",
     [](XercesDOMParser* pDOMParser, bool bList)
     {
         std::list<StAsnCheckOperationDef> lstOut;
         return CCheckOpXMLConfig().setCheckOpConfigurationTelnet(pDOMParser, bList ? &lstOut : nullptr,
                                                                  EnCheckReportNone);
     },
     "pDOMParser is null.", "oAsnCheckOperationLst is null.", "XercesDOMParser::getDocument failed."},
    {"CCustomOpXMLConfig::setCustomOperXMLConfig", call(&CCustomOpXMLConfig::setCustomOperXMLConfig),
     "pDOMParser is NULL.", nullptr, NO_DOC},
    {"COtherOpXMLConfig::setOtherOperXMLConfig", call(&COtherOpXMLConfig::setOtherOperXMLConfig),
     "Invalid para. NULL pointer.pDOMParser", "Invalid para. NULL pointer. pAsnOtherOperationLst", NO_DOC,
     DC_RESULT_INVALID_PARA},
    {"CUpgradeOpXMLConfig::setUpgradeOperXMLConfig", call(&CUpgradeOpXMLConfig::setUpgradeOperXMLConfig),
     "pDOMParser is null.", NO_LOOKUP, NO_DOC},
    {"CDevViewPopupMenuConfig::setDevViewPopupMenuConfig", call(&CDevViewPopupMenuConfig::setDevViewPopupMenuConfig),
     NO_DOC, nullptr, NO_DOC},
    {"CDevViewPopupMenuConfig::setDevViewTabConfig", call(&CDevViewPopupMenuConfig::setDevViewTabConfig), NO_DOC,
     nullptr, NO_DOC},
    {"CIsolationViewPopupMenuConfig::setIsolationViewPopupMenuConfig",
     call(&CIsolationViewPopupMenuConfig::setIsolationViewPopupMenuConfig), "pDOMParser is null.", nullptr,
     "XercesDOMParser::getDocument failed."},
    {"CPatchXMLConfig::setPatchStateConfiguraion", call(&CPatchXMLConfig::setPatchStateConfiguraion),
     "Invalid para. NULL pointer.pDOMParser", "Invalid para. NULL pointer. pAsnPatchStateConfigLst", NO_DOC},
    {"CPatchViewPopupMenuConfig::setPatchViewPopupMenuConfig",
     call(&CPatchViewPopupMenuConfig::setPatchViewPopupMenuConfig), "Invalid para. NULL pointer.pDOMParser",
     "Invalid para. NULL pointer. pAsnPatchViewMenuOpList", NO_DOC},
    {"CTaskXMLConfig::setTaskConfiguration", call(&CTaskXMLConfig::setTaskConfiguration), NO_DOC, NO_LOOKUP, NO_DOC},
};

TEST(SectionFailureTest, EntriesNameWhatIsMissing)
{
    CUnparsedXml oUnparsed;
    CParsedXml   oParsed("");
    for (const StEntryCase& stCase : ENTRIES)
    {
        SCOPED_TRACE(stCase.pszName);
        expectFailure(stCase.fnCall(nullptr, true), stCase.ulNoArgument, stCase.pszName, stCase.pszNoParser);
        expectFailure(stCase.fnCall(oUnparsed.parser(), true), DC_RESULT_XML_ERROR, stCase.pszName,
                      stCase.pszNoDocument);
        expectFailure(stCase.fnCall(oParsed.parser(), false), stCase.pszNoList == nullptr ? 0 : stCase.ulNoArgument,
                      stCase.pszName, stCase.pszNoList);
    }
}

struct StFillCase
{
    const char*            pszName;
    Call<const DOMElement> fnCall;
    const char*            pszNoElement;
    const char*            pszNoList; // null: takes a reference
    const char*            pszNoLookup;
    std::uint32_t          ulNoLookup = DC_RESULT_XML_ERROR;
};

// A call of an operation that takes one argument more.
template <typename Record, typename Between>
Call<const DOMElement> callWith(std::uint32_t (CCheckOpXMLConfig::*pfn)(const DOMElement*, Between, std::list<Record>*),
                                Between between)
{
    return [pfn, between](const DOMElement* pElement, bool bList)
    {
        std::list<Record> lstOut;
        return (CCheckOpXMLConfig().*pfn)(pElement, between, bList ? &lstOut : nullptr);
    };
}
template <typename Record>
Call<const DOMElement> callNamed(std::uint32_t (CUpgradeOpXMLConfig::*pfn)(const DOMElement*, const char16_t*,
                                                                           std::list<Record>&))
{
    return [pfn](const DOMElement* pElement, bool /*bList*/)
    {
        std::list<Record> lstOut;
        return (CUpgradeOpXMLConfig().*pfn)(pElement, u"X", lstOut);
    };
}

const char16_t* const PARAMETER = u"Parameter";
const StFillCase      FILLS[]   = {
           {"CDevOpXMLConfig::fillDevOperInfo", call(&CDevOpXMLConfig::fillDevOperInfo),
            "DOMElement::getElementsByTagName failed or pAsnDevOperationLst is NULL:",
            "DOMElement::getElementsByTagName failed or pAsnDevOperationLst is NULL:",
            "DOMElement::getElementsByTagName failed"},
           {"CDevOpXMLConfig::fillTaskOperInfo", call(&CDevOpXMLConfig::fillTaskOperInfo),
            "DOMElement::getElementsByTagName failed or pAsnTaskOperationLst is NULL:",
            "DOMElement::getElementsByTagName failed or pAsnTaskOperationLst is NULL:",
            "DOMElement::getElementsByTagName failed."},
           {"CDevOpXMLConfig::fillPatchOperInfo", call(&CDevOpXMLConfig::fillPatchOperInfo),
            "DOMElement::getElementsByTagName failed or pAsnPatchOperationLst is NULL :",
            "DOMElement::getElementsByTagName failed or pAsnPatchOperationLst is NULL :",
            "DOMElement::getElementsByTagName failed."},
           {"CDevOpXMLConfig::fillOperParaInfo", call(&CDevOpXMLConfig::fillOperParaInfo), NO_LOOKUP, nullptr, NO_LOOKUP},
           {"CDevOpXMLConfig::fillOperOptionInfo", call(&CDevOpXMLConfig::fillOperOptionInfo), NO_LOOKUP, nullptr, NO_LOOKUP},
           {"CDevOpXMLConfig::fillTaskConfigInfoOperation", call(&CDevOpXMLConfig::fillTaskConfigInfoOperation), NO_LOOKUP,
            nullptr, NO_LOOKUP},
           {"CCheckOpXMLConfig::fillCheckOperInfo", call(&CCheckOpXMLConfig::fillCheckOperInfo), "pOperElm is null.",
            "oAsnCheckOperationLst is null.", "pParaLst is null."},
           {"CCheckOpXMLConfig::fillCheckType", callWith(&CCheckOpXMLConfig::fillCheckType, PARAMETER), "pOperElm is null.",
            " pParaLst is null.", " pParaLst is null."},
           {"CCheckOpXMLConfig::fillCheckTypeTelnet", callWith(&CCheckOpXMLConfig::fillCheckTypeTelnet, PARAMETER),
            "pElmCheckType is null.", "pCheckItemLst is null.", "pParaLst is null."},
           {"CCheckOpXMLConfig::fillFixedCheckType", callWith(&CCheckOpXMLConfig::fillFixedCheckType, 2),
            "pElmCheckType is null.", "oAsnCheckOperationLst is null.", "pParaLst is null."},
           {"CCheckOpXMLConfig::fillFixedCheckItem", call(&CCheckOpXMLConfig::fillFixedCheckItem),
            "pElmCheckOperation is null.", "pCheckItemLst is null.", "pParaLst is null."},
           {"CCustomOpXMLConfig::fillCustomOper", call(&CCustomOpXMLConfig::fillCustomOper), NO_LOOKUP, NO_LOOKUP, NO_LOOKUP},
           {"CCustomOpXMLConfig::fillResourceClass", call(&CCustomOpXMLConfig::fillResourceClass), NO_LOOKUP, nullptr,
            NO_LOOKUP},
           {"CUpgradeOpXMLConfig::fillUpgradeOperInfo", call(&CUpgradeOpXMLConfig::fillUpgradeOperInfo), NO_LOOKUP, NO_LOOKUP,
            NO_LOOKUP},
           {"CUpgradeOpXMLConfig::fillSubOperType", callNamed(&CUpgradeOpXMLConfig::fillSubOperType), NO_LOOKUP, nullptr,
            NO_LOOKUP},
           {"CUpgradeOpXMLConfig::fillSubParaType", callNamed(&CUpgradeOpXMLConfig::fillSubParaType), NO_LOOKUP, nullptr,
            NO_LOOKUP},
           {"CUpgradeOpXMLConfig::fillOperOptionInfo", call(&CUpgradeOpXMLConfig::fillOperOptionInfo), NO_LOOKUP, nullptr,
            NO_LOOKUP},
           {"CDevViewPopupMenuConfig::fillDevViewPopUpMenu", call(&CDevViewPopupMenuConfig::fillDevViewPopUpMenu),
            "DOMElement::getElementsByTagName failed or pAsnDevViewMenuDefList is NULL:",
            "DOMElement::getElementsByTagName failed or pAsnDevViewMenuDefList is NULL:",
            "DOMElement::getElementsByTagName failed."},
           {"CIsolationViewPopupMenuConfig::fillIsolationViewPopUpMenu",
            call(&CIsolationViewPopupMenuConfig::fillIsolationViewPopUpMenu),
            "DOMElement::getElementsByTagName failed or pAsnIsolationViewMenuDefList is NULL.",
            "DOMElement::getElementsByTagName failed or pAsnIsolationViewMenuDefList is NULL.",
            "DOMElement::getElementsByTagName failed."},
           {"CPatchXMLConfig::fillPatchType", call(&CPatchXMLConfig::fillPatchType), NO_LOOKUP,
            "Invalid para. NULL pointer. pAsnPatchStateConfigLst", "Invalid para. NULL pointer. pParaLst1"},
           {"CPatchXMLConfig::fillPatchState", call(&CPatchXMLConfig::fillPatchState), NO_LOOKUP, NO_LOOKUP, NO_LOOKUP, 0},
           {"CPatchXMLConfig::fillPatchItem", call(&CPatchXMLConfig::fillPatchItem), NO_LOOKUP, NO_LOOKUP, NO_LOOKUP, 0},
           {"CPatchViewPopupMenuConfig::fillPatchTypeInfo", call(&CPatchViewPopupMenuConfig::fillPatchTypeInfo),
            "Invalid para. NULL pointer. pOperElm.", "Invalid para. NULL pointer. pAsnPatchViewMenuOpList",
            "Invalid para. NULL pointer. pParaLst"},
           {"CPatchViewPopupMenuConfig::fillMenuOperLst", call(&CPatchViewPopupMenuConfig::fillMenuOperLst), NO_LOOKUP,
            NO_LOOKUP, NO_LOOKUP, 0},
           {"CTaskXMLConfig::fillTaskOperInfo", call(&CTaskXMLConfig::fillTaskOperInfo), NO_LOOKUP, nullptr, NO_LOOKUP},
           {"CTaskXMLConfig::fillTaskFeatureConfigInfo", call(&CTaskXMLConfig::fillTaskFeatureConfigInfo),
            "DOMElement::getElementsByTagName failed:", nullptr, "DOMElement::getElementsByTagName failed:"},
};

TEST(SectionFailureTest, ReadersNameWhatIsMissing)
{
    CParsedXml  oParsed("");
    CForeignXml oForeign(nested("X", 17));
    for (const StFillCase& stCase : FILLS)
    {
        SCOPED_TRACE(stCase.pszName);
        expectFailure(stCase.fnCall(nullptr, true), DC_RESULT_XML_ERROR, stCase.pszName, stCase.pszNoElement);
        expectFailure(stCase.fnCall(oParsed.root(), false), stCase.pszNoList == nullptr ? 0 : DC_RESULT_XML_ERROR,
                      stCase.pszName, stCase.pszNoList);
        expectFailure(stCase.fnCall(oForeign.innermost(u"X"), true), stCase.ulNoLookup, stCase.pszName,
                      stCase.pszNoLookup);
    }
}

// A missing list is no failure here, and is said once for every section.
TEST(SectionFailureTest, CustomOperationsWithoutAListAreSaidPerSection)
{
    CParsedXml oXml("<CustomOperations/><CustomOperations/>");
    EXPECT_EQ(0u, CCustomOpXMLConfig().setCustomOperXMLConfig(oXml.parser(), nullptr));
    const std::string strLine =
        "E 3B0004EC CCustomOpXMLConfig::setCustomOperXMLConfig [DCServer]pAsnCustomOperationList is NULL.";
    EXPECT_EQ((Lines{strLine, strLine}), logLinesWithPlace());
}
} // namespace
