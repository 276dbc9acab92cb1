// Locating and reading a table of the platform's fault management.
#include "alarm/AlarmTable.h"

#include "common/LogLine.h"
#include "common/XmlRead.h"
#include "platform/Paths.h"
#include "records/ServerNames.h"

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
    const std::string strLanguage = ns_kivosdk_wrap::GetEnvValue(ServerNames::LANGUAGE, false, true);
    const std::string strRoot     = ns_kivosdk_wrap::GetEnvValue(ServerNames::ENV_ROOT, false, true);
    return strRoot + "pub/i18n/" + strLanguage + pszFileName;
}
} // namespace

void CAlarmTable::read(const LocationInfo& stWhere, const char* pszFileName,
                       const std::function<void(const DOMElement&)>& fnRecord)
{
    m_strPath    = tablePath(pszFileName);
    m_pXmlParser = CXmlParser::create();
    if (m_pXmlParser == nullptr)
    {
        m_stProblem.strText = "the XML parser cannot be started";
        return logInfo(stWhere, "m_pXmlParser == NULL, Server config File :" + m_strPath);
    }
    m_pXmlParser->parseFile(m_strPath);
    if (m_pXmlParser->getDocument() == nullptr)
    {
        m_stProblem = m_pXmlParser->problem();
        logFail(stWhere, DC_RESULT_XML_ERROR, "XercesDOMParser::getDocument failed :");
        return;
    }
    m_bIsRead = true;
    for (const DOMElement* pRecord : records(*m_pXmlParser))
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

ElementList CAlarmTable::records(const CXmlParser& oParser)
{
    return documentElements(oParser, u"record");
}

std::optional<unsigned long> CAlarmTable::readNumber(std::string_view strText)
{
    const std::size_t nStart   = std::min(strText.find_first_not_of(WHITE_SPACE), strText.size());
    unsigned long     ulNumber = 0;
    const auto        stResult = std::from_chars(strText.data() + nStart, strText.data() + strText.size(), ulNumber);
    return stResult.ec == std::errc() ? std::optional(ulNumber) : std::nullopt;
}
