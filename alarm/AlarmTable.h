// CAlarmTable: what the two alarm dictionaries share: where the tables of the
// platform's fault management stand, how one is read record by record, and what
// of it had to be passed over. Base of InitAlarmInfo and InitTblRegInfo.
// Filled on one thread by the constructor of the dictionary; afterwards only
// read. The document is released as soon as the last record is taken.
#ifndef OPERATIONXML_ALARM_ALARMTABLE_H
#define OPERATIONXML_ALARM_ALARMTABLE_H

#include "common/XmlParser.h"
#include "platform/Export.h"

#include <xercesc/dom/DOM.hpp>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct LocationInfo;

class OPERATIONXML_API CAlarmTable
{
public:
    // The file that was read, or should have been.
    const std::string& path() const { return m_strPath; }

    // Whether the file gave a document; if not, the one problem says why.
    bool isRead() const { return m_bIsRead; }

    // For tools: what is wrong with the file, for the people who write it: why there is no
    // document, or what the load passed over, in the order it was met. Nothing
    // here is logged; the server runs on as if the mistakes were not there.
    const std::vector<std::string>& problems() const { return m_lstProblem; }

protected:
    CAlarmTable() noexcept                     = default; // whatever fails later, there is an instance
    ~CAlarmTable()                             = default;
    CAlarmTable(const CAlarmTable&)            = delete;
    CAlarmTable& operator=(const CAlarmTable&) = delete;

    // Parses the file and hands over its "record" elements in document order.
    // Without a parser or a document it logs why and hands over none. The file is
    // named by its path below the language folder.
    void read(const LocationInfo& stWhere, const char* pszFileName,
              const std::function<void(const xercesc::DOMElement&)>& fnRecord);

    // An unsigned decimal number: leading white space is skipped, reading stops
    // at the first character that is no digit (a sign is none). Empty without a
    // digit, and for a number that does not fit: a wrapped or capped id would be
    // that of another alarm.
    std::optional<unsigned long> readNumber(const char* pszParam, std::string_view strText);

    // Notes a mistake under the number of the record that is being read.
    void addProblem(const std::string& strProblem);

    // The record that is being read, counted from 1; 0 outside the load.
    unsigned long recordNumber() const { return m_ulRecord; }

private:
    std::string                 m_strPath;
    std::vector<std::string>    m_lstProblem;
    std::unique_ptr<CXmlParser> m_pXmlParser; // kept without its document; null when it cannot start
    bool                        m_bIsRead  = false;
    unsigned long               m_ulRecord = 0;
};

#endif
