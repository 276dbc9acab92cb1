// A file that is written in a stream and is there whole or not at all: it has a
// temporary name beside the final one until finish().
#ifndef OPERATIONXML_TOOLS_OPXML_REPORT_PAGEFILE_H
#define OPERATIONXML_TOOLS_OPXML_REPORT_PAGEFILE_H

#include <cstddef>
#include <fstream>
#include <string>
#include <string_view>

class CPageFile
{
public:
    // All of these throw CTrouble; without finish() nothing stays.
    explicit CPageFile(std::string strPath);
    ~CPageFile();
    CPageFile(const CPageFile&)            = delete;
    CPageFile& operator=(const CPageFile&) = delete;

    void write(std::string_view strText);
    void finish();

    std::size_t bytes() const { return m_nBytes; }

private:
    [[noreturn]] void fail(const std::string& strPath) const;

    std::string   m_strPath;
    std::string   m_strTemporary;
    std::ofstream m_oFile;
    std::size_t   m_nBytes = 0;
    bool          m_bOpen  = false;
};

#endif
