// See DetailPacker.h.
#include "tools/opxml/report/DetailPacker.h"

#include "tools/opxml/report/Packing.h"

#include <utility>

PackedDetail CDetailPacker::pack(const std::string& strJson)
{
    // Deferred: done by whoever waits, as is what no thread could be started for.
    const std::launch enLaunch = m_nMost == 0 ? std::launch::deferred : std::launch::async | std::launch::deferred;
    // The text goes when it is packed: what may still be replaced is kept for long. Not moved
    // into async(), which tries it twice: after a thread that did not start it would be empty.
    auto         fnPack  = [strText = strJson]() mutable { return packed(std::exchange(strText, {})); };
    PackedDetail oPacked = std::async(enLaunch, fnPack).share();
    m_lstBegun.push_back(oPacked);
    while (m_lstBegun.size() > m_nMost)
    {
        m_lstBegun.front().wait();
        m_lstBegun.pop_front();
    }
    return oPacked;
}
