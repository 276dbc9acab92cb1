// CAddressTable: numbers by address. What a standard map takes of the memory for every
// single address is what most of its time goes to, and here are thousands of them for
// every file; this is one block, which is kept from file to file.
// Used by the catalog and lint. One thread.
#ifndef OPERATIONXML_CATALOG_ADDRESSTABLE_H
#define OPERATIONXML_CATALOG_ADDRESSTABLE_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace catalog
{
class CAddressTable
{
public:
    static constexpr std::size_t NONE = static_cast<std::size_t>(-1);

    void clear()
    {
        m_nUsed = 0;
        if (m_lstSlot.size() > MOST_KEPT)
            m_lstSlot = {};
        std::fill(m_lstSlot.begin(), m_lstSlot.end(), StSlot{});
    }

    void reserve(std::size_t nAddresses)
    {
        std::size_t nSlots = FIRST;
        while (nSlots < nAddresses * 2)
            nSlots *= 2;
        if (nSlots > m_lstSlot.size())
            grow(nSlots);
    }

    // An address that has a number gets this one.
    void put(const void* pAddress, std::size_t nNumber)
    {
        reserve(m_nUsed + 1);
        StSlot& stSlot = m_lstSlot[slotOf(pAddress)];
        m_nUsed += stSlot.pAddress == nullptr ? 1 : 0;
        stSlot = {pAddress, nNumber};
    }

    std::size_t find(const void* pAddress) const
    {
        return m_lstSlot.empty() ? NONE : m_lstSlot[slotOf(pAddress)].nNumber;
    }

private:
    struct StSlot
    {
        const void* pAddress = nullptr; // null: free
        std::size_t nNumber  = NONE;
    };

    static constexpr std::size_t FIRST     = 64;
    static constexpr std::size_t MOST_KEPT = 65536;

    // That of the address, or the free one where it belongs. At least half are free.
    std::size_t slotOf(const void* pAddress) const
    {
        constexpr std::uint64_t SPREAD = 0x9E3779B97F4A7C15; // of the golden section: neighbours come far apart
        const std::size_t       nMask  = m_lstSlot.size() - 1;
        std::size_t             nSlot  = (reinterpret_cast<std::uintptr_t>(pAddress) * SPREAD >> 32U) & nMask;
        while (m_lstSlot[nSlot].pAddress != nullptr && m_lstSlot[nSlot].pAddress != pAddress)
            nSlot = (nSlot + 1) & nMask;
        return nSlot;
    }

    void grow(std::size_t nSlots)
    {
        const std::vector<StSlot> lstOld = std::exchange(m_lstSlot, std::vector<StSlot>(nSlots));
        for (const StSlot& stOld : lstOld)
        {
            if (stOld.pAddress != nullptr)
                m_lstSlot[slotOf(stOld.pAddress)] = stOld;
        }
    }

    std::vector<StSlot> m_lstSlot; // as many as a power of two
    std::size_t         m_nUsed = 0;
};
} // namespace catalog

#endif
