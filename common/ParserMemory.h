// CParserMemory: what an XML parser allocates through. It counts, for a limit that
// cannot be seen otherwise, and on request keeps the large blocks that the parser
// frees for its next document, which wants the same ones again: the allocator of the
// process would give them back to the system after each document and fetch them anew.
// A base of CXmlParser, since the parser that allocates through it must die first.
// Belongs to whoever has the parser, one thread at a time, and moves with it.
#ifndef OPERATIONXML_COMMON_PARSERMEMORY_H
#define OPERATIONXML_COMMON_PARSERMEMORY_H

#include "platform/Export.h"

#include <xercesc/framework/MemoryManager.hpp>

#include <cstddef>

class OPERATIONXML_API CParserMemory : private xercesc::MemoryManager
{
public:
    // From now on freed blocks are kept; a fixed amount, whatever the documents take.
    void keepBlocks() { m_bKeeps = true; }

    // The memory of the parser and its document, with what is kept.
    std::size_t bytesHeld() const { return m_nHeld; }

protected:
    CParserMemory() = default;
    ~CParserMemory() override;
    CParserMemory(const CParserMemory&)            = delete;
    CParserMemory& operator=(const CParserMemory&) = delete;

    xercesc::MemoryManager* memory() { return this; }
    std::size_t             allocations() const { return m_nAllocations; }

private:
    struct StBlock; // stands before the bytes of every block

    void*                   allocate(XMLSize_t nSize) override;
    void                    deallocate(void* pBytes) override;
    xercesc::MemoryManager* getExceptionMemoryManager() override;

    StBlock* takeKept(std::size_t nSize);
    void     free(StBlock* pBlock);
    void     freeOldest();

    std::size_t m_nAllocations = 0;
    std::size_t m_nHeld        = 0;
    bool        m_bKeeps       = false;
    StBlock*    m_pKept        = nullptr; // the block freed last, which leads to those before it
    std::size_t m_nKept        = 0;       // bytes of all of them
};

#endif
