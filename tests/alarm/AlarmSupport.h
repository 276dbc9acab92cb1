// What the alarm tests share: a server root whose tables are read afresh.
#ifndef OPERATIONXML_TESTS_ALARM_ALARMSUPPORT_H
#define OPERATIONXML_TESTS_ALARM_ALARMSUPPORT_H

#include "TestSupport.h"
#include "alarm/InitAlarmInfo.h"
#include "alarm/InitTblRegInfo.h"

#include <string>

constexpr const char* ALARM_FILE    = "kivo/fm/dc_tbl_alm_exp_info.xml";
constexpr const char* TRANSFER_FILE = "kivo/fm/dc_tbl_RegInfo.xml";

class CAlarmRoot : public CTempServerRoot
{
public:
    explicit CAlarmRoot(const std::string& strRoot = "${ROOT}/", const std::string& strLanguage = "en_US/")
    {
        open("INSERT INTO environment VALUES ('ENV_ROOT','" + strRoot + "'),('OSS_LANG','" + strLanguage + "');");
        forget();
    }
    ~CAlarmRoot() { forget(); }

    // The dictionaries as they read these records now.
    InitAlarmInfo&  alarms(const std::string& strRecords) { return *readNow<InitAlarmInfo>(ALARM_FILE, strRecords); }
    InitTblRegInfo& transfers(const std::string& strRecords)
    {
        return *readNow<InitTblRegInfo>(TRANSFER_FILE, strRecords);
    }

private:
    template <typename Table>
    Table* readNow(const std::string& strFile, const std::string& strRecords)
    {
        write("pub/i18n/en_US/" + strFile, "<table>" + strRecords + "</table>");
        Table::Destroy();
        return Table::Instance();
    }
    static void forget()
    {
        InitAlarmInfo::Destroy();
        InitTblRegInfo::Destroy();
    }
};

#endif
