// Packs details on threads of their own while the next type is read. Called while types
// are read; one thread calls, and those that pack have ended when their text is there.
// They use nothing but their own text, so that whoever holds a detail may wait for it
// whenever it is convenient; what they throw arrives there.
#ifndef OPERATIONXML_TOOLS_OPXML_REPORT_DETAILPACKER_H
#define OPERATIONXML_TOOLS_OPXML_REPORT_DETAILPACKER_H

#include <cstddef>
#include <deque>
#include <future>
#include <string>

// As it stands in the page, once it is packed.
using PackedDetail = std::shared_future<std::string>;

class CDetailPacker
{
public:
    // The calling thread included.
    explicit CDetailPacker(std::size_t nThreads) : m_nMost(nThreads - 1) {}

    // Waits for an earlier one when too many are being packed.
    PackedDetail pack(const std::string& strJson);

    // How many may be in work when pack() has returned.
    std::size_t most() const { return m_nMost; }

private:
    const std::size_t        m_nMost;
    std::deque<PackedDetail> m_lstBegun; // the last ones, in order
};

#endif
