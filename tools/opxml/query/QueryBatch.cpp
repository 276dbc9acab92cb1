// See QueryBatch.h. Reads and writes in blocks: lines may have any length and come
// by the million.
#include "tools/opxml/query/QueryBatch.h"

#include "tools/opxml/output/Exit.h"
#include "tools/opxml/output/Terminal.h"
#include "tools/opxml/query/QuestionReader.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <string_view>
#include <unistd.h>

namespace
{
constexpr std::size_t BLOCK = 65536;

class CInputFile
{
public:
    explicit CInputFile(const std::string& strFile)
        : m_strFile(strFile), m_nFile(strFile == "-" ? STDIN_FILENO : ::open(strFile.c_str(), O_RDONLY | O_CLOEXEC))
    {
        if (m_nFile < 0)
            fail("open");
    }
    ~CInputFile()
    {
        if (m_nFile != STDIN_FILENO)
            ::close(m_nFile);
    }
    CInputFile(const CInputFile&)            = delete;
    CInputFile& operator=(const CInputFile&) = delete;

    // Appends what there is, waiting while there is nothing. False at the end.
    bool read(std::string& strBuffer) const
    {
        const std::size_t nBefore = strBuffer.size();
        strBuffer.resize(nBefore + BLOCK);
        ssize_t nRead = 0;
        do
            nRead = ::read(m_nFile, &strBuffer[nBefore], BLOCK);
        while (nRead < 0 && errno == EINTR);
        strBuffer.resize(nBefore + (nRead > 0 ? static_cast<std::size_t>(nRead) : 0));
        if (nRead < 0)
            fail("read");
        return nRead > 0;
    }

private:
    [[noreturn]] void fail(const char* pszWhat) const
    {
        // NOLINTNEXTLINE(concurrency-mt-unsafe): one thread
        throw CTrouble(std::string("cannot ") + pszWhat + " " + m_strFile + ": " + std::strerror(errno));
    }

    std::string m_strFile;
    int         m_nFile;
};

// Collects output; handed on when it is much, or when the input has to be waited for.
class COutputBuffer
{
public:
    void add(const std::string& strLine)
    {
        m_strText += strLine;
        if (m_strText.size() >= BLOCK)
            flush();
    }

    void flush()
    {
        print(m_strText);
        m_strText.clear();
        if (std::fflush(stdout) != 0)
            throw CTrouble("cannot write the output");
    }

private:
    std::string m_strText;
};

std::string errorLine(unsigned long ulLine, const std::string& strName, const std::string& strError)
{
    Json oLine = {{"line", ulLine}};
    if (!strName.empty())
        oLine["op"] = strName;
    oLine["error"] = strError;
    return jsonLine(oLine) + "\n";
}

class CBatch
{
public:
    void answer(std::string_view strLine)
    {
        ++m_ulLine;
        std::string             strError;
        const StQueryOperation* pOperation = nullptr;
        if (m_oReader.read(strLine))
            pOperation = findOperation(m_oReader.name(), m_oReader.arguments(), strError);
        else
            strError = m_oReader.error();
        if (pOperation != nullptr)
            m_oOutput.add(answerLine(*pOperation, pOperation->pfnAsk(m_oReader.arguments())));
        else
            m_oOutput.add(errorLine(m_ulLine, m_oReader.name(), strError));
        m_bAllAnswered = m_bAllAnswered && pOperation != nullptr;
    }

    void flush() { m_oOutput.flush(); }
    bool isAllAnswered() const { return m_bAllAnswered; }

private:
    CQuestionReader m_oReader;
    COutputBuffer   m_oOutput;
    unsigned long   m_ulLine       = 0;
    bool            m_bAllAnswered = true;
};
} // namespace

std::string answerLine(const StQueryOperation& stOperation, const StQueryAnswer& stAnswer,
                       const StQueryReason& stReason)
{
    // Written out, as it is the greater part of the work on a simple question.
    std::string strLine = "{\"op\":\"";
    strLine += stOperation.pszName;
    strLine += "\",\"result\":" + std::to_string(stAnswer.ulResult) + ",\"answer\":";
    strLine +=
        stAnswer.oAnswer.is_boolean() ? (stAnswer.oAnswer == true ? "true" : "false") : jsonLine(stAnswer.oAnswer);
    if (!stReason.strWhy.empty())
        strLine += ",\"why\":" + jsonLine(stReason.strWhy);
    if (!stReason.strOffer.empty())
        strLine += ",\"offer\":" + jsonLine(stReason.strOffer);
    return strLine += "}\n";
}

bool answerBatch(const std::string& strFile)
{
    const CInputFile oInput(strFile);
    CBatch           oBatch;
    std::string      strBuffer;
    std::size_t      nSearched = 0; // of an unfinished line: it is not searched again
    while (oInput.read(strBuffer))
    {
        std::size_t nStart = 0;
        std::size_t nEnd   = strBuffer.find('\n', nSearched);
        for (; nEnd != std::string::npos; nEnd = strBuffer.find('\n', nStart))
        {
            oBatch.answer(std::string_view(strBuffer).substr(nStart, nEnd - nStart));
            nStart = nEnd + 1;
        }
        strBuffer.erase(0, nStart);
        nSearched = strBuffer.size();
        oBatch.flush();
    }
    if (!strBuffer.empty())
        oBatch.answer(strBuffer);
    oBatch.flush();
    return oBatch.isAllAnswered();
}
