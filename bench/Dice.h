// CDice: numbers that depend on the seed alone, on every machine (the standard
// distributions differ between libraries). Used by the generator only.
#ifndef OPERATIONXML_BENCH_DICE_H
#define OPERATIONXML_BENCH_DICE_H

#include <cstddef>
#include <cstdint>

class CDice
{
public:
    explicit CDice(std::uint64_t ulSeed) : m_ulState(ulSeed) {}

    // The next number (splitmix64).
    std::uint64_t next()
    {
        std::uint64_t ulMixed = m_ulState += 0x9E3779B97F4A7C15u;
        ulMixed               = (ulMixed ^ (ulMixed >> 30)) * 0xBF58476D1CE4E5B9u;
        ulMixed               = (ulMixed ^ (ulMixed >> 27)) * 0x94D049BB133111EBu;
        return ulMixed ^ (ulMixed >> 31);
    }

    std::size_t below(std::size_t nEnd) { return static_cast<std::size_t>(next() % nEnd); }
    bool        oneIn(std::size_t nOften) { return below(nOften) == 0; }

    template <typename Table>
    const auto& pick(const Table& arTable)
    {
        return arTable[below(sizeof(arTable) / sizeof(arTable[0]))];
    }

private:
    std::uint64_t m_ulState;
};

#endif
