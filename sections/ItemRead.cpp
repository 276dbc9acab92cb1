// Parameters and options, for every section that has them.
#include "sections/ItemRead.h"

using namespace xercesc;

std::uint32_t readOptions(const StOptionReader& stOptions, const DOMElement* pParameter,
                          std::list<StAsnOptionInfo>& lstOut)
{
    return readRecords(stOptions, pParameter, optionElements(pParameter), &lstOut,
                       [&stOptions](const CAttributes& oOption, StAsnOptionInfo& stOption)
                       {
                           stOption.strId   = attrText(oOption, u"id");
                           stOption.ulValue = attrNumber(oOption, u"value");
                           if (stOptions.bTarget)
                               stOption.strTarget = attrText(oOption, u"target");
                           return stOptions.pfnJudge == nullptr ? EnFate::Kept : stOptions.pfnJudge(stOption);
                       });
}

std::uint32_t readParameters(const StParameterReader& stParameters, const DOMElement* pOperation,
                             std::list<StAsnOperParamDef>& lstOut, const char16_t* pszName)
{
    return readRecords(stParameters, pOperation, CElements(pOperation, pszName), &lstOut,
                       [&stParameters](const CAttributes& oParameter, StAsnOperParamDef& stParam)
                       { return readParameter(stParameters, oParameter, stParam); });
}
