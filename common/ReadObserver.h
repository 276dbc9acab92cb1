// Who listens to the readers: what they look for in a document, which attributes
// they read and how, and which records they make. The catalog and lint stand on it;
// the readers know nothing of either.
// Off by default: one pointer for the process, tested where an element is looked
// for, an attribute is read, and a record begins and ends. A recorded read sets it
// for its own time, and hears its own thread only: others read on unheard.
#ifndef OPERATIONXML_COMMON_READOBSERVER_H
#define OPERATIONXML_COMMON_READOBSERVER_H

#include "platform/Export.h"

#include <xercesc/dom/DOM.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <list>
#include <mutex>
#include <string>
#include <string_view>

enum class EnFate; // common/RecordRead.h
struct StAsnOperation;

// How the text of an attribute is read.
enum class EnReadAs : std::int32_t
{
    Text,
    Number, // 32 bits, base 10
    Flag,   // a number, true when it is not 0
    Word,   // one of a table
};

// The words of a table of which every row has one as its strWord. The table itself is
// handed on, which is there for good: two are equal when they are of one table.
class CWordTable
{
public:
    CWordTable() = default;
    template <typename Row, std::size_t nRows>
    explicit CWordTable(const Row (&arRows)[nRows])
        : m_pRows(arRows), m_nRows(nRows),
          m_pfnWord([](const void* pRows, std::size_t nRow) { return static_cast<const Row*>(pRows)[nRow].strWord; })
    {
    }

    std::size_t      size() const { return m_nRows; }
    std::string_view operator[](std::size_t nRow) const { return m_pfnWord(m_pRows, nRow); }
    bool             operator==(const CWordTable& oOther) const { return m_pRows == oOther.m_pRows; }

private:
    const void* m_pRows                                     = nullptr; // null: no table
    std::size_t m_nRows                                     = 0;
    std::string_view (*m_pfnWord)(const void*, std::size_t) = nullptr;
};

struct StAttributeRead
{
    const xercesc::DOMElement& oElement;
    const char16_t*            pszName;
    const xercesc::DOMAttr*    pAttr; // null: the element has none of the name
    EnReadAs                   enReadAs;
    CWordTable                 oWords; // for a word
};

class OPERATIONXML_API CReadObserver
{
public:
    virtual ~CReadObserver();

    // A reader looks for the elements of a name below a node, at any depth; for
    // sections below the document itself.
    virtual void lookup(const xercesc::DOMNode& oBelow, const char16_t* pszName) = 0;

    // It has come to one of them.
    virtual void elementMet(const xercesc::DOMElement& oElement) = 0;

    virtual void attributeRead(const StAttributeRead& stRead) = 0;

    // The text of an element is read.
    virtual void textRead(const xercesc::DOMElement& oElement) = 0;

    // A record begins in a list, at the address where it stays; then it is kept, or
    // dropped with its address. The calls nest as the records do.
    virtual void recordBegun(const xercesc::DOMElement& oElement, const void* pRecord, const void* pList) = 0;
    virtual void recordEnded(const xercesc::DOMElement& oElement, const void* pRecord, EnFate enFate)     = 0;

    // A section, a row of their table, is about to be read into its list, which is empty.
    virtual void sectionRead(std::size_t /*nRow*/, const void* /*pList*/) {}

    // What a capacity document says for a type has been read: of its entry, or of none.
    virtual void capacityRead(const xercesc::XercesDOMParser& /*oDOMParser*/, const xercesc::DOMElement* /*pEntry*/,
                              const std::list<StAsnOperation>& /*lstCapacity*/)
    {
    }

    // A record of a module was appended to a device type as a copy.
    virtual void recordCopied(const void* pFrom, const void* pTo) = 0;

    // A record, of this id, is about to be taken out because of an entry of the capacity
    // list, or a parameter or option of one.
    virtual void recordPruned(const void* pRecord, const std::string& strId, const void* pCapacity) = 0;
};

namespace ReadObserver
{
OPERATIONXML_API extern std::atomic<CReadObserver*> g_pObserver;

// Whoever listens, or null.
inline CReadObserver* get()
{
    return g_pObserver.load(std::memory_order_relaxed);
}

// Whether what this thread reads is recorded: a server has told what goes with it
// (events) when it read the same for itself.
OPERATIONXML_API bool isRecorded();

// Those that hear a read; null: nobody.
struct StHearing
{
    CReadObserver* pObserver = nullptr;
    CReadObserver* pAlong    = nullptr;
};

// Lets an observer hear what this thread reads, until the end of the scope. One at a
// time in a process: a scope of another thread waits for the first. Within a scope of
// the same thread it takes the place of that one's observer for its own time.
class OPERATIONXML_API CScope
{
public:
    explicit CScope(CReadObserver& oObserver);
    ~CScope();
    CScope(const CScope&)            = delete;
    CScope& operator=(const CScope&) = delete;

private:
    std::unique_lock<std::recursive_mutex> m_oTurn;
    StHearing                              m_stOuter; // that hear again behind this scope
};

// Lets one more observer hear along what the one of this thread's scope hears, until the
// end of either of them: whoever needs what is read anyway need not read it again.
class OPERATIONXML_API CAlong
{
public:
    explicit CAlong(CReadObserver& oObserver);
    ~CAlong();
    CAlong(const CAlong&)            = delete;
    CAlong& operator=(const CAlong&) = delete;

private:
    std::unique_lock<std::recursive_mutex> m_oTurn;
};
} // namespace ReadObserver

#endif
