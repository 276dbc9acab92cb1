// Locating and reading a table of the platform's fault management.
#include "alarm/AlarmTable.h"

#include "common/LogLine.h"
#include "common/XmlRead.h"
#include "platform/Paths.h"

#include <algorithm>
#include <charconv>
#include <system_error>

using namespace xercesc;

namespace
{
constexpr std::string_view WHITE_SPACE = " \t\n\v\f\r";

// No separator is added: the values of the environment carry their own.
std::string tablePath(const char* pszFileName)
{
    const std::string strLanguage = ns_kivosdk_wrap::GetEnvValue("OSS_LANG", false, true);
    const std::string strRoot     = ns_kivosdk_wrap::GetEnvValue("ENV_ROOT", false, true);
    return strRoot + "pub/i18n/" + strLanguage + pszFileName;
}

std::string quoted(std::string_view strText)
{
    return '"' + std::string(strText) + '"';
}
} // namespace

void CAlarmTable::read(const LocationInfo& stWhere, const char* pszFileName,
                       const std::function<void(const DOMElement&)>& fnRecord)
{
    m_strPath    = tablePath(pszFileName);
    m_pXmlParser = CXmlParser::create();
    if (m_pXmlParser == nullptr)
    {
        addProblem("the XML parser cannot be started");
        return logInfo(stWhere, "m_pXmlParser == NULL, Server config File :" + m_strPath);
    }
    m_pXmlParser->parseFile(m_strPath);
    if (m_pXmlParser->getDocument() == nullptr)
    {
        addProblem(problemText(m_pXmlParser->problem()));
        logFail(stWhere, DC_RESULT_XML_ERROR, "XercesDOMParser::getDocument failed :");
        return;
    }
    m_bIsRead = true;
    for (const DOMElement* pRecord : documentElements(*m_pXmlParser, u"record"))
    {
        ++m_ulRecord;
        if (pRecord == nullptr)
            logFail(stWhere, DC_RESULT_XML_ERROR, "pElm is null.");
        else
            fnRecord(*pRecord);
    }
    m_ulRecord = 0;
    m_pXmlParser->releaseDocument(); // the dictionary outlives it by the life of the process
}

std::optional<unsigned long> CAlarmTable::readNumber(const char* pszParam, std::string_view strText)
{
    const std::size_t nStart   = std::min(strText.find_first_not_of(WHITE_SPACE), strText.size());
    const char* const pszEnd   = strText.data() + strText.size();
    unsigned long     ulNumber = 0;
    const auto        stResult = std::from_chars(strText.data() + nStart, pszEnd, ulNumber);
    if (stResult.ec != std::errc())
    {
        const char* pszWhy = stResult.ec == std::errc::result_out_of_range ? " is too large" : " is no number";
        addProblem(quoted(strText) + " in " + quoted(pszParam) + pszWhy + " and is passed over");
        return std::nullopt;
    }
    const std::string_view strRest = strText.substr(static_cast<std::size_t>(stResult.ptr - strText.data()));
    if (strRest.find_first_not_of(WHITE_SPACE) != std::string_view::npos)
        addProblem(quoted(strText) + " in " + quoted(pszParam) + " is read as " + std::to_string(ulNumber));
    return ulNumber;
}

void CAlarmTable::addProblem(const std::string& strProblem)
{
    m_lstProblem.push_back(m_ulRecord == 0 ? strProblem : "record " + std::to_string(m_ulRecord) + ": " + strProblem);
}
