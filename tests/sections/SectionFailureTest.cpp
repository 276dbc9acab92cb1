// What every section answers and logs, exact to the blank, when an argument, the
// document or a lookup is missing. A lookup fails below an element that stands
// deeper in its own kind than any document may.
#include "ForeignXml.h"
#include "RecordText.h"
#include "platform/DeviceAdapter.h"
#include "reader/CCapacityXMLConfig.h"
#include "reader/CDevTypeXMLConfig.h"
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

// Becomes whatever argument an operation asks for.
struct StArguments
{
    XercesDOMParser*  pDOMParser;
    const DOMElement* pElement;
    bool              bList;

    operator XercesDOMParser*() const { return pDOMParser; }
    operator const DOMElement*() const { return pElement; }
    operator std::int32_t() const { return 2; }
    operator EnCheckReportType() const { return EnCheckReportNone; }
    operator std::string&() const { return out<std::string>(); }
    template <typename Record>
    operator std::list<Record>&() const
    {
        return out<std::list<Record>>();
    }
    template <typename Record>
    operator std::list<Record>*() const
    {
        return bList ? &out<std::list<Record>>() : nullptr;
    }
    template <typename Out>
    static Out& out()
    {
        static Out oOut;
        return oOut;
    }
};

using Call = std::function<std::uint32_t(const StArguments&)>;

template <typename Arg>
Arg convert(const StArguments& st)
{
    return st;
}

template <typename Parser, typename... Args>
Call call(std::uint32_t (Parser::*pfn)(Args...))
{
    return [pfn](const StArguments& st) { return (Parser().*pfn)(convert<Args>(st)...); };
}
#define CALL(type, operation) #type "::" #operation, call(&type::operation)

struct StFailureCase
{
    const char*   pszName; // Class::operation, as in the log
    Call          fnCall;
    const char*   pszNoSource;  // the parser or the element is null
    const char*   pszNoList;    // null: takes a reference, or leaves it to the readers
    const char*   pszNoContent; // the parser has no document, or the element cannot be looked through
    std::uint32_t ulNoArgument = DC_RESULT_XML_ERROR;
    std::uint32_t ulNoContent  = DC_RESULT_XML_ERROR;
};

constexpr const char* SAME   = "as without a source";
constexpr const char* LOOKUP = "DOMElement::getElementsByTagName failed :";
constexpr const char* NO_DOC = "XercesDOMParser::getDocument failed :";

// clang-format off
const StFailureCase CASES[] = {
    {CALL(CDevOpXMLConfig, setDevOperXMLConfig), "DOMElement::setDevOperXMLConfig(): pDOMParser pointer is NULL: ", nullptr, NO_DOC},
    {CALL(CDevOpXMLConfig, setTaskOperationXMLConfig), "CDevOpXMLConfig::setTaskOperationXMLConfig() pDOMParser is NULL :", nullptr, NO_DOC},
    {CALL(CDevOpXMLConfig, setPatchOperXMLConfig), "CDevOpXMLConfig::setPatchOperXMLConfig() pDOMParser is NULL :", nullptr, NO_DOC},
    {CALL(CCheckOpXMLConfig, setCheckOpConfiguration), "pDOMParser is null.", "oAsnCheckOperationLst is null.", "XercesDOMParser::getDocument failed."},
    {CALL(CCheckOpXMLConfig, setFixedCheckOpConfiguration), "pDOMParser is null.", "oAsnCheckOperationLst is null.", "XercesDOMParser::getDocument failed."},
    {CALL(CCheckOpXMLConfig, setCheckOpConfigurationTelnet), "pDOMParser is null.", "oAsnCheckOperationLst is null.", "XercesDOMParser::getDocument failed."},
    {CALL(CCustomOpXMLConfig, setCustomOperXMLConfig), "pDOMParser is NULL.", nullptr, NO_DOC},
    {CALL(COtherOpXMLConfig, setOtherOperXMLConfig), "Invalid para. NULL pointer.pDOMParser", "Invalid para. NULL pointer. pAsnOtherOperationLst", NO_DOC, DC_RESULT_INVALID_PARA},
    {CALL(CUpgradeOpXMLConfig, setUpgradeOperXMLConfig), "pDOMParser is null.", LOOKUP, NO_DOC},
    {CALL(CDevViewPopupMenuConfig, setDevViewPopupMenuConfig), NO_DOC, nullptr, NO_DOC},
    {CALL(CDevViewPopupMenuConfig, setDevViewTabConfig), NO_DOC, nullptr, NO_DOC},
    {CALL(CIsolationViewPopupMenuConfig, setIsolationViewPopupMenuConfig), "pDOMParser is null.", nullptr, "XercesDOMParser::getDocument failed."},
    {CALL(CPatchXMLConfig, setPatchStateConfiguraion), "Invalid para. NULL pointer.pDOMParser", "Invalid para. NULL pointer. pAsnPatchStateConfigLst", NO_DOC},
    {CALL(CPatchViewPopupMenuConfig, setPatchViewPopupMenuConfig), "Invalid para. NULL pointer.pDOMParser", "Invalid para. NULL pointer. pAsnPatchViewMenuOpList", NO_DOC},
    {CALL(CTaskXMLConfig, setTaskConfiguration), NO_DOC, LOOKUP, NO_DOC},
    // The readers of one element.
    {CALL(CDevOpXMLConfig, fillDevOperInfo), "DOMElement::getElementsByTagName failed or pAsnDevOperationLst is NULL:", SAME, "DOMElement::getElementsByTagName failed"},
    {CALL(CDevOpXMLConfig, fillTaskOperInfo), "DOMElement::getElementsByTagName failed or pAsnTaskOperationLst is NULL:", SAME, "DOMElement::getElementsByTagName failed."},
    {CALL(CDevOpXMLConfig, fillPatchOperInfo), "DOMElement::getElementsByTagName failed or pAsnPatchOperationLst is NULL :", SAME, "DOMElement::getElementsByTagName failed."},
    {CALL(CDevOpXMLConfig, fillOperParaInfo), LOOKUP, nullptr, LOOKUP},
    {CALL(CDevOpXMLConfig, fillOperOptionInfo), LOOKUP, nullptr, LOOKUP},
    {CALL(CDevOpXMLConfig, fillTaskConfigInfoOperation), LOOKUP, nullptr, LOOKUP},
    {CALL(CCheckOpXMLConfig, fillCheckOperInfo), "pOperElm is null.", "oAsnCheckOperationLst is null.", "pParaLst is null."},
    {CALL(CCheckOpXMLConfig, fillCheckType), "pOperElm is null.", " pParaLst is null.", " pParaLst is null."},
    {CALL(CCheckOpXMLConfig, fillCheckTypeTelnet), "pElmCheckType is null.", "pCheckItemLst is null.", "pParaLst is null."},
    {CALL(CCheckOpXMLConfig, fillFixedCheckType), "pElmCheckType is null.", "oAsnCheckOperationLst is null.", "pParaLst is null."},
    {CALL(CCheckOpXMLConfig, fillFixedCheckItem), "pElmCheckOperation is null.", "pCheckItemLst is null.", "pParaLst is null."},
    {CALL(CCustomOpXMLConfig, fillCustomOper), LOOKUP, LOOKUP, LOOKUP},
    {CALL(CCustomOpXMLConfig, fillResourceClass), LOOKUP, nullptr, LOOKUP},
    {CALL(CUpgradeOpXMLConfig, fillUpgradeOperInfo), LOOKUP, LOOKUP, LOOKUP},
    {CALL(CUpgradeOpXMLConfig, fillSubOperType), LOOKUP, nullptr, LOOKUP},
    {CALL(CUpgradeOpXMLConfig, fillSubParaType), LOOKUP, nullptr, LOOKUP},
    {CALL(CUpgradeOpXMLConfig, fillOperOptionInfo), LOOKUP, nullptr, LOOKUP},
    {CALL(CDevViewPopupMenuConfig, fillDevViewPopUpMenu), "DOMElement::getElementsByTagName failed or pAsnDevViewMenuDefList is NULL:", SAME, "DOMElement::getElementsByTagName failed."},
    {CALL(CIsolationViewPopupMenuConfig, fillIsolationViewPopUpMenu), "DOMElement::getElementsByTagName failed or pAsnIsolationViewMenuDefList is NULL.", SAME, "DOMElement::getElementsByTagName failed."},
    {CALL(CPatchXMLConfig, fillPatchType), LOOKUP, "Invalid para. NULL pointer. pAsnPatchStateConfigLst", "Invalid para. NULL pointer. pParaLst1"},
    {CALL(CPatchXMLConfig, fillPatchState), LOOKUP, LOOKUP, LOOKUP, DC_RESULT_XML_ERROR, 0},
    {CALL(CPatchXMLConfig, fillPatchItem), LOOKUP, LOOKUP, LOOKUP, DC_RESULT_XML_ERROR, 0},
    {CALL(CPatchViewPopupMenuConfig, fillPatchTypeInfo), "Invalid para. NULL pointer. pOperElm.",
     "Invalid para. NULL pointer. pAsnPatchViewMenuOpList", "Invalid para. NULL pointer. pParaLst"},
    {CALL(CPatchViewPopupMenuConfig, fillMenuOperLst), LOOKUP, LOOKUP, LOOKUP, DC_RESULT_XML_ERROR, 0},
    {CALL(CTaskXMLConfig, fillTaskOperInfo), LOOKUP, nullptr, LOOKUP},
    {CALL(CCapacityXMLConfig, fillOperInfo), LOOKUP, nullptr, LOOKUP},
    {CALL(CCapacityXMLConfig, fillOperParaInfo), LOOKUP, nullptr, LOOKUP},
    {CALL(CCapacityXMLConfig, fillOperOptionInfo), LOOKUP, nullptr, LOOKUP},
    {CALL(CDevTypeXMLConfig, fillDevTypeInfo), "pElm is null.", "DOMElement::getElementsByTagName failed or pDevTypeLst is NULL:", "DOMElement::getElementsByTagName failed"},
    {CALL(CTaskXMLConfig, fillTaskFeatureConfigInfo), "DOMElement::getElementsByTagName failed:", nullptr, "DOMElement::getElementsByTagName failed:"},
};
// clang-format on

TEST(SectionFailureTest, NamesWhatIsMissing)
{
    const auto  pUnparsed = CXmlParser::create();
    CParsedXml  oParsed("");
    CForeignXml oForeign(nested("X", 17));
    for (const StFailureCase& stCase : CASES)
    {
        SCOPED_TRACE(stCase.pszName);
        const auto fnExpect = [&](const StArguments& stArguments, std::uint32_t ulCode, const char* pszText)
        {
            EXPECT_EQ(ulCode, stCase.fnCall(stArguments));
            std::vector<std::string> lstLine;
            if (pszText != nullptr)
                lstLine = {fmt::format("E {:08X} {} [DCServer]{}", ulCode != 0 ? ulCode : DC_RESULT_XML_ERROR,
                                       stCase.pszName, pszText)};
            EXPECT_EQ(lstLine, logLinesWithPlace());
            clearLog();
        };
        const char* const pszNoList    = stCase.pszNoList == SAME ? stCase.pszNoSource : stCase.pszNoList;
        const bool        bIgnoresList = pszNoList == nullptr;
        fnExpect({nullptr, nullptr, true}, stCase.ulNoArgument, stCase.pszNoSource);
        fnExpect({oParsed.parser(), oParsed.root(), false}, bIgnoresList ? 0 : stCase.ulNoArgument, pszNoList);
        fnExpect({pUnparsed.get(), oForeign.innermost(u"X"), true}, stCase.ulNoContent, stCase.pszNoContent);
        // Two faults at once: the first one checked is told. A missing parser that counts as a missing document
        // comes after the list.
        const bool bListFirst = stCase.pszNoSource == NO_DOC && !bIgnoresList;
        fnExpect({nullptr, nullptr, false}, stCase.ulNoArgument, bListFirst ? pszNoList : stCase.pszNoSource);
        fnExpect({pUnparsed.get(), oForeign.innermost(u"X"), false},
                 bIgnoresList ? stCase.ulNoContent : stCase.ulNoArgument,
                 bIgnoresList ? stCase.pszNoContent : pszNoList);
    }
}

// A missing list is no failure here, and is said once for every section.
TEST(SectionFailureTest, CustomOperationsWithoutAListAreSaidPerSection)
{
    CParsedXml oXml("<CustomOperations/><CustomOperations/>");
    EXPECT_EQ(0u, CCustomOpXMLConfig().setCustomOperXMLConfig(oXml.parser(), nullptr));
    const std::string strLine =
        "E 3B0004EC CCustomOpXMLConfig::setCustomOperXMLConfig [DCServer]pAsnCustomOperationList is NULL.";
    EXPECT_THAT(logLinesWithPlace(), testing::ElementsAre(strLine, strLine));
}
} // namespace
