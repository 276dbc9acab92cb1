// A test with a server root of its own and no database alive before or after it:
// the log with the root's path written as ROOT, and small texts of records.
#ifndef OPERATIONXML_TESTS_READER_SERVERFIXTURE_H
#define OPERATIONXML_TESTS_READER_SERVERFIXTURE_H

#include "TestSupport.h"
#include "database/CXMLConfigDatabase.h"

#include <fmt/format.h>

#include <iterator>
#include <sstream>

using Lines = std::vector<std::string>;

class CServerTest : public testing::Test
{
protected:
    CServerTest() { CXMLConfigDatabase::finalize(); }
    ~CServerTest() override { CXMLConfigDatabase::finalize(); }

    // An inventory with this statement and the types "A" and "B", each with a file of its own name.
    void open(const std::string& strSql = "")
    {
        m_oRoot.open("INSERT INTO device_type (name, version) VALUES ('A', 'V1'), ('B', 'V2');"
                     "INSERT INTO config_file VALUES ('A', '" +
                     configPath("A.xml") + "'), ('B', '" + configPath("B.xml") + "');" + strSql);
    }

    static std::string configPath(const std::string& strName) { return "common/dc/conf/dc/devtype_xmlconf/" + strName; }

    void makeModuleFolder() const
    {
        std::filesystem::create_directories(m_oRoot.path() + "/etc/oss_cfg/dc/ne_script/importscript");
    }

    // Lines of the log with the root's path written as ROOT.
    Lines log(Lines lstLine = logLines()) const
    {
        for (std::string& strLine : lstLine)
        {
            for (std::size_t nAt = 0; (nAt = strLine.find(m_oRoot.path())) != std::string::npos;)
                strLine.replace(nAt, m_oRoot.path().size(), "ROOT");
        }
        return lstLine;
    }

    // The same in one text, every line with its end.
    std::string logText(const Lines& lstLine = logLines()) const
    {
        std::string strText;
        for (const std::string& strLine : log(lstLine))
            strText += strLine + "\n";
        return strText;
    }

    CTempServerRoot m_oRoot;
};

// Records that a test owns: freed at its end.
class COwnedRecords
{
public:
    COwnedRecords() = default;
    ~COwnedRecords()
    {
        for (const StAsnDevTypeVerXMLInfo* pInfo : lstInfo)
            delete pInfo;
    }
    COwnedRecords(const COwnedRecords&)            = delete;
    COwnedRecords& operator=(const COwnedRecords&) = delete;

    std::list<StAsnDevTypeVerXMLInfo*> lstInfo;
};

// The words of "a b c".
inline Lines words(const std::string& strText)
{
    std::istringstream oText(strText);
    return {std::istream_iterator<std::string>(oText), {}};
}

// "Save,Backup" of a list of records with ids.
template <typename Record>
std::string ids(const std::list<Record>& lstRecord)
{
    Lines lstId;
    for (const Record& stRecord : lstRecord)
        lstId.push_back(stRecord.strId);
    return fmt::format("{}", fmt::join(lstId, ","));
}

// A configuration file with these device operations: "<C><DeviceOperation>...".
inline std::string deviceFile(const std::vector<std::string>& lstId)
{
    std::string strXml;
    for (const std::string& strId : lstId)
        strXml += "<Operation id='" + strId + "'/>";
    return "<C><DeviceOperation>" + strXml + "</DeviceOperation></C>";
}

#endif
