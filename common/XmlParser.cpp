// Parsing a file safely: start-up of Xerces, reading the bytes, options, limits,
// and what is left after a failure.
#include "common/XmlParser.h"

#include "common/XmlRead.h"

#include <xercesc/sax/ErrorHandler.hpp>
#include <xercesc/sax/InputSource.hpp>
#include <xercesc/sax/SAXParseException.hpp>
#include <xercesc/util/BinMemInputStream.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/SecurityManager.hpp>
#include <xercesc/validators/DTD/DTDEntityDecl.hpp>

#include <cerrno>
#include <fcntl.h>
#include <mutex>
#include <new>
#include <sys/stat.h>
#include <system_error>
#include <time.h>
#include <unistd.h>
#include <utility>

using namespace xercesc;

namespace
{
// Keeps the place and text of the first fatal error instead of throwing it.
class CFirstError : public ErrorHandler
{
public:
    explicit CFirstError(StReadProblem& stProblem) : m_stProblem(stProblem) {}

    void warning(const SAXParseException& /*oProblem*/) override {}
    void error(const SAXParseException& /*oProblem*/) override {}
    void fatalError(const SAXParseException& oProblem) override
    {
        if (m_stProblem.isSet())
            return;
        m_stProblem.ulLine   = static_cast<std::uint32_t>(oProblem.getLineNumber());
        m_stProblem.ulColumn = static_cast<std::uint32_t>(oProblem.getColumnNumber());
        m_stProblem.strText  = toLocal(oProblem.getMessage());
    }
    void resetErrors() override {}

private:
    StReadProblem& m_stProblem;
};

// Ends a parse where a limit is passed.
struct StLimitPassed
{
    std::string strProblem;
};

// Hands a text to the parser piece by piece, and no further once the parse has
// taken far longer than a text of this size can need: several of the parser's
// tables are searched one by one where names are many, or chosen to collide. CPU
// time of the thread, so that a busy machine refuses no file that is fine.
class CTimedStream : public BinMemInputStream
{
public:
    explicit CTimedStream(std::string_view strText)
        : BinMemInputStream(reinterpret_cast<const XMLByte*>(strText.data()), strText.size(), BufOpt_Reference),
          m_dLatest(cpuSeconds() + XmlLimits::MIN_CPU_SECONDS +
                    XmlLimits::CPU_SECONDS_PER_BYTE * static_cast<double>(strText.size()))
    {
    }

    XMLSize_t readBytes(XMLByte* pToFill, XMLSize_t nMax) override
    {
        if (cpuSeconds() > m_dLatest)
            throw StLimitPassed{"the file takes too long to parse"};
        return BinMemInputStream::readBytes(pToFill, nMax);
    }

private:
    static double cpuSeconds()
    {
        timespec stNow = {};
        ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &stNow);
        return static_cast<double>(stNow.tv_sec) + static_cast<double>(stNow.tv_nsec) / 1e9;
    }

    double m_dLatest; // CPU time of this thread
};

class CTextSource : public InputSource
{
public:
    explicit CTextSource(std::string_view strText) : InputSource(u"file"), m_strText(strText) {}

    BinInputStream* makeStream() const override { return new CTimedStream(m_strText); } // the parser deletes it

private:
    std::string_view m_strText;
};

class CEntityLimit : public SecurityManager
{
public:
    CEntityLimit() { setEntityExpansionLimit(XmlLimits::MAX_ENTITY_EXPANSION); }
};

// Keeps one initialisation of Xerces for the life of the process: the alarm
// dictionaries hold parsers until exit, and Terminate is not safe against
// another thread's parser.
bool initialiseXerces()
{
    static std::mutex           s_oMutex;
    static bool                 s_bDone = false;
    std::lock_guard<std::mutex> oGuard(s_oMutex);
    if (s_bDone)
        return true;
    try
    {
        XMLPlatformUtils::Initialize();
        s_bDone = true;
    }
    catch (const XMLException&)
    {
        return false;
    }
    return true;
}

std::string errnoText(int nErrno)
{
    return std::generic_category().message(nErrno);
}

// Closes a file descriptor on every path.
class CFile
{
public:
    // Never waits: a pipe opens at once and is then refused.
    explicit CFile(const std::string& strPath) : m_nFd(::open(strPath.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)) {}
    ~CFile()
    {
        if (m_nFd >= 0)
            ::close(m_nFd);
    }
    CFile(const CFile&)            = delete;
    CFile& operator=(const CFile&) = delete;

    // Reads the whole file; returns why it could not, or an empty text.
    std::string read(std::string& strBytes) const
    {
        struct stat stStatus = {};
        if (m_nFd < 0 || ::fstat(m_nFd, &stStatus) != 0)
            return errnoText(errno);
        if (!S_ISREG(stStatus.st_mode))
            return "not a regular file";
        if (static_cast<std::size_t>(stStatus.st_size) > XmlLimits::MAX_FILE_BYTES)
            return "the file is larger than " + std::to_string(XmlLimits::MAX_FILE_BYTES >> 20) + " MB";
        strBytes.resize(static_cast<std::size_t>(stStatus.st_size));
        std::size_t nRead = 0;
        while (nRead < strBytes.size())
        {
            const ssize_t nChunk = ::read(m_nFd, strBytes.data() + nRead, strBytes.size() - nRead);
            if (nChunk < 0 && errno == EINTR)
                continue;
            if (nChunk < 0)
                return errnoText(errno);
            if (nChunk == 0)
                return "the file became shorter while it was read";
            nRead += static_cast<std::size_t>(nChunk);
        }
        return {};
    }

private:
    int m_nFd;
};
} // namespace

std::unique_ptr<CXmlParser> CXmlParser::create()
{
    if (!initialiseXerces())
        return nullptr;
    return std::unique_ptr<CXmlParser>(new CXmlParser());
}

CXmlParser::CXmlParser()
{
    static CEntityLimit s_oEntityLimit; // every parser only reads it
    setSecurityManager(&s_oEntityLimit);
    setDisableDefaultEntityResolution(true);
}

void CXmlParser::releaseDocument()
{
    m_mapElements.clear();
    m_oNesting        = {};
    m_bInEmptyElement = false;
    m_nEntityText     = 0;
    m_stProblem       = {};
    fParseInProgress  = false; // left set by a parse that ran out of memory
    resetDocumentPool();
}

void CXmlParser::parseFile(const std::string& strPath)
{
    std::string strBytes;
    std::string strProblem = CFile(strPath).read(strBytes);
    if (strProblem.empty())
        parseText(strBytes);
    else
    {
        releaseDocument();
        m_stProblem.strText = std::move(strProblem);
    }
    if (m_stProblem.isSet())
        m_stProblem.strFile = strPath;
    tellReadListener(m_stProblem);
}

void CXmlParser::parseText(std::string_view strXml)
{
    releaseDocument();
    StReadProblem stProblem;
    try
    {
        CFirstError oFirstError(stProblem);
        setErrorHandler(&oFirstError);
        parse(CTextSource(strXml));
        if (!stProblem.isSet() && getErrorCount() != 0)
            stProblem.strText = "the parser reported an error";
        else if (!stProblem.isSet() && (getDocument() == nullptr || getDocument()->getDocumentElement() == nullptr))
            stProblem.strText = "the document has no root element";
    }
    catch (const StLimitPassed& stPassed)
    {
        stProblem.strText = stPassed.strProblem;
    }
    catch (const OutOfMemoryException&)
    {
        stProblem.strText = "out of memory";
    }
    catch (const std::bad_alloc&)
    {
        stProblem.strText = "out of memory";
    }
    catch (const XMLException& oProblem)
    {
        stProblem.strText = toLocal(oProblem.getMessage());
    }
    catch (const DOMException& oProblem)
    {
        stProblem.strText = toLocal(oProblem.getMessage());
    }
    catch (const SAXException& oProblem)
    {
        stProblem.strText = toLocal(oProblem.getMessage());
    }
    setErrorHandler(nullptr);
    if (!stProblem.isSet())
        return;
    releaseDocument(); // a half-read document is no document
    m_stProblem = std::move(stProblem);
}

// A parameter entity, and the default of an attribute, are expanded before
// anything can count it. Device types need neither.
void CXmlParser::entityDecl(const DTDEntityDecl& oEntity, bool bIsParameter, bool bIsIgnored)
{
    if (bIsParameter)
        throw StLimitPassed{"the document type declares a parameter entity"};
    m_nEntityText += oEntity.getValueLen();
    if (m_nEntityText > XmlLimits::MAX_ENTITY_TEXT)
        throw StLimitPassed{"the document type declares too much text as entities"};
    XercesDOMParser::entityDecl(oEntity, bIsParameter, bIsIgnored);
}

void CXmlParser::startAttList(const DTDElementDecl& /*oElement*/)
{
    throw StLimitPassed{"the document type declares attributes"};
}

void CXmlParser::startElement(const XMLElementDecl& oDecl, unsigned int nUri, const XMLCh* pszPrefix,
                              const RefVectorOf<XMLAttr>& lstAttr, XMLSize_t nAttrs, bool bIsEmpty, bool bIsRoot)
{
    m_bInEmptyElement = bIsEmpty; // the base ends an empty element before it returns
    XercesDOMParser::startElement(oDecl, nUri, pszPrefix, lstAttr, nAttrs, bIsEmpty, bIsRoot);
    if (!bIsEmpty)
        openElement();
}

void CXmlParser::endElement(const XMLElementDecl& oDecl, unsigned int nUri, bool bIsRoot, const XMLCh* pszPrefix)
{
    if (std::exchange(m_bInEmptyElement, false))
        openElement();
    m_oNesting.close();
    XercesDOMParser::endElement(oDecl, nUri, bIsRoot, pszPrefix);
}

void CXmlParser::openElement()
{
    const auto*  pElement = static_cast<const DOMElement*>(fCurrentParent);
    const XMLCh* pszName  = pElement->getTagName();
    if (const char* pszPassed = m_oNesting.open(pszName))
        throw StLimitPassed{limitText(pszName, pszPassed)};
    m_mapElements[pszName].push_back(pElement);
    if (m_oNesting.isRepeated())
        checkContent(attributeText(*pElement));
}

void CXmlParser::docCharacters(const XMLCh* pszText, XMLSize_t nLength, bool bIsCData)
{
    checkContent(nLength);
    XercesDOMParser::docCharacters(pszText, nLength, bIsCData);
}

void CXmlParser::docComment(const XMLCh* pszText)
{
    checkContent(XMLString::stringLen(pszText));
    XercesDOMParser::docComment(pszText);
}

void CXmlParser::docPI(const XMLCh* pszTarget, const XMLCh* pszData)
{
    checkContent(XMLString::stringLen(pszData));
    XercesDOMParser::docPI(pszTarget, pszData);
}

void CXmlParser::checkContent(std::size_t nCharacters)
{
    if (!m_oNesting.isRepeated())
        return;
    if (const char* pszPassed = m_oNesting.content(nCharacters))
        throw StLimitPassed{limitText(m_oNesting.openName(), pszPassed)};
}

const ElementList& CXmlParser::elements(const char16_t* pszName) const
{
    static const ElementList s_lstNone;
    for (const auto& [pszStored, lstElement] : m_mapElements)
    {
        if (XMLString::equals(pszStored, pszName))
            return lstElement;
    }
    return s_lstNone;
}
