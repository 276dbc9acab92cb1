// See ParserMemory.h.
#include "common/ParserMemory.h"

#include <xercesc/util/PlatformUtils.hpp>

#include <utility>

using xercesc::MemoryManager;
using xercesc::XMLPlatformUtils;

namespace
{
constexpr std::size_t LARGE    = 16384;                // the smallest piece in which a document grows
constexpr std::size_t MAX_KEPT = std::size_t{4} << 20; // the document of a file of 250 KB
} // namespace

struct alignas(std::max_align_t) CParserMemory::StBlock
{
    std::size_t nSize; // of the bytes behind it
    StBlock*    pNext; // while it is kept: the block freed before it
};

CParserMemory::~CParserMemory()
{
    while (m_pKept != nullptr)
        freeOldest();
}

void* CParserMemory::allocate(XMLSize_t nSize)
{
    ++m_nAllocations;
    StBlock* pBlock = takeKept(nSize);
    if (pBlock == nullptr)
    {
        pBlock        = static_cast<StBlock*>(XMLPlatformUtils::fgMemoryManager->allocate(sizeof(StBlock) + nSize));
        pBlock->nSize = nSize;
        m_nHeld += nSize;
    }
    return pBlock + 1;
}

void CParserMemory::deallocate(void* pBytes)
{
    if (pBytes == nullptr)
        return;
    StBlock* const pBlock = static_cast<StBlock*>(pBytes) - 1;
    if (!m_bKeeps || pBlock->nSize < LARGE || pBlock->nSize > MAX_KEPT)
        return free(pBlock);
    while (m_pKept != nullptr && m_nKept + pBlock->nSize > MAX_KEPT) // by and by what nothing asks for goes
        freeOldest();
    m_nKept += pBlock->nSize;
    pBlock->pNext = m_pKept;
    m_pKept       = pBlock;
}

MemoryManager* CParserMemory::getExceptionMemoryManager()
{
    return XMLPlatformUtils::fgMemoryManager;
}

CParserMemory::StBlock* CParserMemory::takeKept(std::size_t nSize)
{
    if (nSize < LARGE)
        return nullptr;
    for (StBlock** ppBlock = &m_pKept; *ppBlock != nullptr; ppBlock = &(*ppBlock)->pNext)
    {
        StBlock* const pBlock = *ppBlock;
        if (pBlock->nSize != nSize)
            continue;
        *ppBlock = pBlock->pNext;
        m_nKept -= nSize;
        return pBlock;
    }
    return nullptr;
}

void CParserMemory::freeOldest()
{
    StBlock** ppBlock = &m_pKept;
    while ((*ppBlock)->pNext != nullptr)
        ppBlock = &(*ppBlock)->pNext;
    m_nKept -= (*ppBlock)->nSize;
    free(std::exchange(*ppBlock, nullptr));
}

void CParserMemory::free(StBlock* pBlock)
{
    m_nHeld -= pBlock->nSize;
    XMLPlatformUtils::fgMemoryManager->deallocate(pBlock);
}
