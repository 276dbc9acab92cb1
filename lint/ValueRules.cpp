// Words, numbers and flags that read as something else than is written. What counts
// is how the readers asked for an attribute.
#include "common/XmlRead.h"
#include "lint/DocumentRules.h"
#include "lint/Nearness.h"
#include "records/WordTables.h"

#include <algorithm>
#include <cctype>
#include <limits>

using namespace xercesc;

namespace lint
{
namespace
{
constexpr std::string_view BLANKS = " \t\r\n";

std::string quoted(std::string_view strText)
{
    return "\"" + std::string(strText) + "\"";
}

std::string_view trimmed(std::string_view strText)
{
    const std::size_t nBegin = strText.find_first_not_of(BLANKS);
    if (nBegin == std::string_view::npos)
        return {};
    return strText.substr(nBegin, strText.find_last_not_of(BLANKS) - nBegin + 1);
}

// Whether the digits of a number, sign and all, lie within what 32 bits hold, signed
// or not.
bool fits(std::string_view strNumber)
{
    const bool        bNegative = strNumber[0] == '-';
    const std::size_t nDigits   = strNumber.find_first_of("123456789");
    if (nDigits == std::string_view::npos)
        return true;
    const std::string_view strDigits = strNumber.substr(nDigits);
    if (strDigits.size() > 10)
        return false;
    std::uint64_t ulValue = 0;
    for (const char cDigit : strDigits)
        ulValue = ulValue * 10 + static_cast<std::uint64_t>(cDigit - '0');
    return ulValue <= (bNegative ? std::uint64_t{1} << 31 : std::numeric_limits<std::uint32_t>::max());
}

bool isTaskTypeTable(const std::vector<std::string_view>& lstWord)
{
    return std::find(lstWord.begin(), lstWord.end(), std::begin(TASK_TYPE_WORDS)->strWord) != lstWord.end();
}

class CValueCheck
{
public:
    CValueCheck(const StReadDocument& stRead, CFileReport& oReport, StLostNames& stLost)
        : m_stRead(stRead), m_oReport(oReport), m_stLost(stLost)
    {
    }

    void check(const DOMElement& oElement)
    {
        for (const StAskedAttribute& stAsked : m_stRead.oMarks.attributes(oElement))
        {
            if (stAsked.pAttr == nullptr || stAsked.enReadAs == EnReadAs::Text)
                continue;
            const std::string strValue = toLocal(stAsked.pAttr->getValue());
            if (stAsked.enReadAs == EnReadAs::Word)
                checkWord(oElement, stAsked, strValue);
            else
                checkNumber(oElement, stAsked, strValue);
        }
        for (const DOMElement* pChild = oElement.getFirstElementChild(); pChild != nullptr;
             pChild                   = pChild->getNextElementSibling())
            check(*pChild);
    }

private:
    void checkWord(const DOMElement& oElement, const StAskedAttribute& stAsked, const std::string& strValue)
    {
        const std::vector<std::string_view>& lstWord = stAsked.lstWord;
        if (std::find(lstWord.begin(), lstWord.end(), strValue) != lstWord.end())
            return;
        const std::string strName = toLocal(stAsked.pszName);
        const bool        bTask   = isTaskTypeTable(lstWord);
        const auto        itWord  = std::find(lstWord.begin(), lstWord.end(), trimmed(strValue));
        if (itWord != lstWord.end() && itWord->size() != strValue.size())
            return add("outer-blank", oElement, stAsked,
                       quoted(strValue) + " is none of the words of " + quoted(strName) + " because of its blank",
                       {"write " + quoted(*itWord)});
        std::vector<std::string> lstKnown;
        for (const std::string_view strWord : lstWord)
        {
            if (!strWord.empty())
                lstKnown.emplace_back(strWord);
        }
        const std::string strNear = nearestName(strValue, lstKnown);
        const bool        bTable =
            m_stRead.enKind == EnFileKind::AlarmExplanation || m_stRead.enKind == EnFileKind::AlarmRegistration;
        add(bTask    ? "unknown-task-type"
            : bTable ? "unknown-parameter"
                     : "unknown-word",
            oElement, stAsked,
            bTask    ? "there is no task type " + quoted(strValue)
            : bTable ? "there is no parameter " + quoted(strValue) + ": it is passed over"
                     : quoted(strValue) + " is none of the words of " + quoted(strName),
            {strNear.empty() ? "words read here: " + listText(lstKnown) : "did you mean " + quoted(strNear) + "?"});
    }

    void checkNumber(const DOMElement& oElement, const StAskedAttribute& stAsked, const std::string& strValue)
    {
        const bool             bFlag   = stAsked.enReadAs == EnReadAs::Flag;
        const std::string      strName = quoted(toLocal(stAsked.pszName));
        const std::string_view strText = trimmed(strValue);
        const std::size_t      nSign   = !strText.empty() && (strText[0] == '-' || strText[0] == '+') ? 1 : 0;
        std::size_t            nEnd    = nSign;
        while (nEnd < strText.size() && std::isdigit(static_cast<unsigned char>(strText[nEnd])) != 0)
            ++nEnd;
        const std::string strReads = std::to_string(toNumber(strValue));
        if (nEnd == nSign)
            return add("number-missing", oElement, stAsked,
                       quoted(strValue) +
                           (bFlag ? " reads as no, like every text without digits" : " has no digits and reads as 0") +
                           " (" + strName + ")",
                       {bFlag ? "write \"1\" for yes, \"0\" for no" : "write a number"});
        if (nEnd < strText.size())
            return add("number-tail", oElement, stAsked,
                       quoted(strValue) + " reads as " + strReads + ": " + strName + " is a number",
                       {"write the digits alone"});
        if (!fits(strText))
            return add("number-range", oElement, stAsked,
                       quoted(strValue) + " does not fit into 32 bits and reads as " + strReads + " (" + strName + ")",
                       {});
        if (strText.size() != strValue.size())
            add("outer-blank", oElement, stAsked, "a blank stands around the number of " + strName,
                {"write " + quoted(strText)});
    }

    void add(const char* pszRule, const DOMElement& oElement, const StAskedAttribute& stAsked, std::string strMessage,
             std::vector<std::string> lstHelp)
    {
        m_stLost.setText.insert(toLocal(oElement.getAttribute(u"id")));
        m_oReport.add(pszRule, m_stRead.oPlaces.valueSpot(oElement, stAsked.pszName), std::move(strMessage),
                      subjectOf(oElement) + "@" + toLocal(stAsked.pszName) + "=", std::move(lstHelp));
    }

    const StReadDocument& m_stRead;
    CFileReport&          m_oReport;
    StLostNames&          m_stLost;
};
} // namespace

void checkValues(const StReadDocument& stRead, CFileReport& oReport, StLostNames& stLost)
{
    CValueCheck(stRead, oReport, stLost).check(*stRead.oDocument.getDocumentElement());
}
} // namespace lint
