// CAlarmTable: what the two alarm dictionaries share: where the tables of the
// platform's fault management stand, and how one is read record by record. Base of
// InitAlarmInfo and InitTblRegInfo; what they make of a table's records is read by
// functions that need no instance, so that lint reads any table with them.
// Filled on one thread by the constructor of the dictionary; afterwards only
// read. The document is released as soon as the last record is taken.
#ifndef OPERATIONXML_ALARM_ALARMTABLE_H
#define OPERATIONXML_ALARM_ALARMTABLE_H

#include "common/ReadProblem.h"
#include "common/XmlParser.h"
#include "platform/Export.h"

#include <xercesc/dom/DOM.hpp>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

struct LocationInfo;

class OPERATIONXML_API CAlarmTable
{
public:
    // The file that was read, or should have been.
    const std::string& path() const { return m_strPath; }

    // Whether the file gave a document; if not, the problem says why, for tools.
    bool                 isRead() const { return m_bIsRead; }
    const StReadProblem& problem() const { return m_stProblem; }

    // The "record" elements of a table, in document order. The parser has a document.
    static ElementList records(const CXmlParser& oParser);

    // An unsigned decimal number: leading white space is skipped, reading stops
    // at the first character that is no digit (a sign is none). Empty without a
    // digit, and for a number that does not fit: a wrapped or capped id would be
    // that of another alarm.
    static std::optional<unsigned long> readNumber(std::string_view strText);

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

    // The record that is being read, counted from 1; 0 outside the load.
    unsigned long recordNumber() const { return m_ulRecord; }

private:
    std::string                 m_strPath;
    StReadProblem               m_stProblem;
    std::unique_ptr<CXmlParser> m_pXmlParser; // kept without its document; null when it cannot start
    bool                        m_bIsRead  = false;
    unsigned long               m_ulRecord = 0;
};

#endif
