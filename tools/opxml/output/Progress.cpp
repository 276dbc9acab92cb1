// See Progress.h.
#include "tools/opxml/output/Progress.h"

#include "platform/DeviceAdapter.h"
#include "standalone/LogSink.h"
#include "tools/opxml/output/Terminal.h"

#include <fmt/format.h>

#include <algorithm>
#include <list>
#include <string_view>

namespace
{
constexpr std::size_t BAR_WIDTH = 40;

std::size_t registeredCount()
{
    std::list<StDeviceType> lstDeviceType;
    CDeviceAdapterInterface::getInstance()->getALLDLLInfo(lstDeviceType); // a failure shows in the load itself
    return lstDeviceType.size();
}
} // namespace

CProgress::CProgress() : CProgress(registeredCount())
{
}

CProgress::CProgress(std::size_t nTypes) : CProgress(nTypes, EnSteps::Heard)
{
}

CProgress::CProgress(std::size_t nTypes, EnSteps enSteps)
    : m_bShown(isTerminal(stderr)), m_nTotal(std::max<std::size_t>(nTypes, 1))
{
    if (!m_bShown || enSteps == EnSteps::Told)
        return;
    // Every registry entry is read by one call of this operation.
    standalone::setTraceListener(
        [this](const LocationInfo& stWhere)
        {
            if (std::string_view(stWhere.pszFunction) == "readDevTypeVerXMLFile")
                step();
        });
}

CProgress::~CProgress()
{
    if (!m_bShown)
        return;
    standalone::setTraceListener({});
    fmt::print(stderr, "\r{:{}}\r", "", BAR_WIDTH + 30);
}

void CProgress::step()
{
    ++m_nDone;
    if (!m_bShown)
        return;
    const std::size_t nFilled = std::min(BAR_WIDTH, BAR_WIDTH * m_nDone / m_nTotal);
    // Redrawn when it grows, not for every one of ten thousand types.
    if (nFilled == BAR_WIDTH * (m_nDone - 1) / m_nTotal && m_nDone != m_nTotal)
        return;
    fmt::print(stderr, "\r[{:#<{}}{:{}}] {}/{} types", "", nFilled, "", BAR_WIDTH - nFilled, m_nDone, m_nTotal);
    std::fflush(stderr);
}
