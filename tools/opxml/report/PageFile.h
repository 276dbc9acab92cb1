// A file that is written in a stream and is there whole or not at all: until finish() it
// has no name, so that nothing of it stays, whatever ends the program. Where the file
// system has no files without a name it has a temporary one beside the final one.
#ifndef OPERATIONXML_TOOLS_OPXML_REPORT_PAGEFILE_H
#define OPERATIONXML_TOOLS_OPXML_REPORT_PAGEFILE_H

#include <cstddef>
#include <cstdio>
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
    void              giveName();
    [[noreturn]] void fail(const std::string& strPath) const;

    std::string m_strPath;
    std::string m_strTemporary;
    bool        m_bNamed = false; // m_strTemporary is there
    std::FILE*  m_pFile  = nullptr;
    std::size_t m_nBytes = 0;
};

#endif
