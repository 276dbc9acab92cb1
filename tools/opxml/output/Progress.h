// A progress bar on stderr while device types are read; nothing when stderr is no
// terminal.
#ifndef OPERATIONXML_TOOLS_OPXML_OUTPUT_PROGRESS_H
#define OPERATIONXML_TOOLS_OPXML_OUTPUT_PROGRESS_H

#include <cstddef>

class CProgress
{
public:
    // Follows the load of all registered types, or the reads of so many, from here on,
    // until the object dies.
    CProgress();
    explicit CProgress(std::size_t nTypes);

    // The same where not every type is read: whoever goes through them calls step().
    enum class EnSteps
    {
        Heard,
        Told,
    };
    CProgress(std::size_t nTypes, EnSteps enSteps);
    ~CProgress();
    CProgress(const CProgress&)            = delete;
    CProgress& operator=(const CProgress&) = delete;

    // One more type is done.
    void step();

private:
    bool        m_bShown;
    std::size_t m_nTotal = 0;
    std::size_t m_nDone  = 0;
};

#endif
