// Words, numbers and flags that read as something else than is written. What counts
// is how the readers asked for an attribute.
#include "common/XmlText.h"
#include "lint/DocumentRules.h"
#include "lint/Nearness.h"
#include "lint/Phrases.h"
#include "records/WordTables.h"

#include <algorithm>
#include <cctype>
#include <limits>

namespace lint
{
namespace
{
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

    void run()
    {
        for (const StReadElement& stElement : m_stRead.oTree.elements())
        {
            if (m_oReport.isFull())
                return;
            for (const StWrittenAttribute& stWritten : stElement.lstAttribute)
            {
                const StAskedAttribute* pAsked = stWritten.pAsked;
                if (pAsked == nullptr || pAsked->enReadAs == EnReadAs::Text)
                    continue;
                if (pAsked->enReadAs == EnReadAs::Word)
                    checkWord(stElement, *pAsked, stWritten.strValue);
                else if (!isPlainNumber(stWritten.strValue))
                    checkNumber(stElement, *pAsked, stWritten.strValue);
            }
        }
    }

private:
    void checkWord(const StReadElement& stElement, const StAskedAttribute& stAsked, std::string_view strValue)
    {
        const std::vector<std::string_view>& lstWord = stAsked.lstWord;
        if (stAsked.isWord(strValue))
            return;
        const std::string& strName = stAsked.strName;
        const bool         bTask   = isTaskTypeTable(lstWord);
        const auto         itWord  = std::find(lstWord.begin(), lstWord.end(), trimmed(strValue));
        if (itWord != lstWord.end() && itWord->size() != strValue.size())
            return add("outer-blank", stElement, stAsked,
                       inQuotes(strValue) + " is none of the words of " + inQuotes(strName) + " because of its blank",
                       {"write " + inQuotes(*itWord)});
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
            stElement, stAsked,
            bTask    ? "there is no task type " + inQuotes(strValue)
            : bTable ? "there is no parameter " + inQuotes(strValue) + ": it is passed over"
                     : inQuotes(strValue) + " is none of the words of " + inQuotes(strName),
            {strNear.empty() ? "words read here: " + listText(lstKnown) : "did you mean " + inQuotes(strNear) + "?"});
    }

    // Digits alone, of which so few fit into 32 bits: as nearly all numbers are.
    static bool isPlainNumber(std::string_view strValue)
    {
        return !strValue.empty() && strValue.size() < 10 &&
               std::all_of(strValue.begin(), strValue.end(),
                           [](char cDigit) { return cDigit >= '0' && cDigit <= '9'; });
    }

    void checkNumber(const StReadElement& stElement, const StAskedAttribute& stAsked, std::string_view strValue)
    {
        const bool             bFlag   = stAsked.enReadAs == EnReadAs::Flag;
        const std::string      strName = inQuotes(stAsked.strName);
        const std::string_view strText = trimmed(strValue);
        const std::size_t      nSign   = !strText.empty() && (strText[0] == '-' || strText[0] == '+') ? 1 : 0;
        std::size_t            nEnd    = nSign;
        while (nEnd < strText.size() && std::isdigit(static_cast<unsigned char>(strText[nEnd])) != 0)
            ++nEnd;
        const std::string strReads = std::to_string(toNumber(std::string(strValue)));
        if (nEnd == nSign)
            return add("number-missing", stElement, stAsked,
                       inQuotes(strValue) +
                           (bFlag ? " reads as no, like every text without digits" : " has no digits and reads as 0") +
                           " (" + strName + ")",
                       {bFlag ? "write \"1\" for yes, \"0\" for no" : "write a number"});
        if (nEnd < strText.size())
            return add("number-tail", stElement, stAsked,
                       inQuotes(strValue) + " reads as " + strReads + ": " + strName + " is a number",
                       {"write the digits alone"});
        if (!fits(strText))
            return add(
                "number-range", stElement, stAsked,
                inQuotes(strValue) + " does not fit into 32 bits and reads as " + strReads + " (" + strName + ")", {});
        if (strText.size() != strValue.size())
            add("outer-blank", stElement, stAsked, "a blank stands around the number of " + strName,
                {"write " + inQuotes(strText)});
    }

    void add(const char* pszRule, const StReadElement& stElement, const StAskedAttribute& stAsked,
             std::string strMessage, std::vector<std::string> lstHelp)
    {
        m_stLost.setText.insert(std::string(stElement.value("id")));
        m_oReport.add(pszRule, m_stRead.oPlaces.valueSpot(*stElement.pElement, stAsked.strName), std::move(strMessage),
                      stElement.subject() + "@" + stAsked.strName + "=", std::move(lstHelp));
    }

    const StReadDocument& m_stRead;
    CFileReport&          m_oReport;
    StLostNames&          m_stLost;
};
} // namespace

void checkValues(const StReadDocument& stRead, CFileReport& oReport, StLostNames& stLost)
{
    CValueCheck(stRead, oReport, stLost).run();
}
} // namespace lint
