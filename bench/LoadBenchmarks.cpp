// The load against the bare parse: the reader of one type, the whole process,
// and where the time of a file goes.
#include "Measure.h"
#include "Roots.h"
#include "Targets.h"

#include "ConfigText.h"
#include "ServerRootText.h"
#include "common/XmlParser.h"
#include "reader/CDevTypeXMLResReader.h"

#include <deque>
#include <fmt/format.h>
#include <fstream>
#include <memory>
#include <stdexcept>

namespace
{
constexpr std::size_t CORPUS_TYPES  = 300;
constexpr std::size_t SLICE_TYPES   = 10;
constexpr std::size_t PROCESS_TYPES = 1000;

constexpr StTarget READER_TARGET  = {"load, one type after the other",
                                     "CPU of `readDevTypeVerXMLFile` ÷ bare parse of the same 300 files", "≤ 1.12",
                                     1.12};
constexpr StTarget PROCESS_TARGET = {
    "load, whole process", "CPU of `opxml load --jobs 1` on 1,000 types ÷ bare parse of their files", "≤ 1.20", 1.20};

using InfoList = std::list<StAsnDevTypeVerXMLInfo*>;

// One parser for all files, as in a load.
class COneParser : public CDocumentSource
{
public:
    COneParser()
    {
        m_pParser->keepBlocks();
        m_pParser->leaveOutTexts();
    }

    void parse(const std::string& strFile, EnConfigSource /*enSource*/, std::shared_ptr<CXmlParser>& pParser) override
    {
        pParser = m_pParser;
        pParser->parseFile(strFile);
    }

private:
    std::shared_ptr<CXmlParser> m_pParser = CXmlParser::create();
};

// Reads some types of the corpus, as the database does, and keeps their records
// until the caller is done: freeing them is no part of a load.
double readTypes(std::size_t nFirst, std::size_t nTypes, std::deque<InfoList>& lstRead)
{
    static COneParser s_oParser;
    const double      dStart = cpuSeconds();
    for (std::size_t nType = nFirst; nType < nFirst + nTypes; ++nType)
    {
        CDevTypeXMLResReader oReader(deviceTypeName(nType), TYPE_VERSION, false);
        oReader.readFrom(s_oParser);
        if (oReader.readDevTypeVerXMLFile(lstRead.emplace_back()) != 0)
            throw std::runtime_error("cannot read " + deviceTypeName(nType));
    }
    return cpuSeconds() - dStart;
}

void freeRecords(std::deque<InfoList>& lstRead)
{
    for (const InfoList& lstInfo : lstRead)
        for (const StAsnDevTypeVerXMLInfo* pInfo : lstInfo)
            delete pInfo;
    lstRead.clear();
}

std::string figureText(const StComparison& stComparison, std::size_t nTypes)
{
    const double dPerType = 1e3 / static_cast<double>(nTypes);
    return fmt::format("{:.2f} ({:.2f} ms ÷ {:.2f} ms a file)", stComparison.dRatio, stComparison.dOne * dPerType,
                       stComparison.dOther * dPerType);
}

void measureReader(benchmark::State& oState)
{
    openRoot(rootOf(CORPUS_TYPES));
    const auto           lstFile = filesOf(CORPUS_TYPES);
    std::deque<InfoList> lstRead;
    const StComparison   stComparison = alternateSlices(
          CORPUS_TYPES / SLICE_TYPES,
          [&](std::size_t nSlice)
          {
            if (nSlice == 0)
                freeRecords(lstRead);
            return readTypes(nSlice * SLICE_TYPES, SLICE_TYPES, lstRead);
        },
          [&](std::size_t nSlice)
          {
            const auto itFirst = lstFile.begin() + static_cast<std::ptrdiff_t>(nSlice * SLICE_TYPES);
            return bareParse({itFirst, itFirst + SLICE_TYPES});
        });
    freeRecords(lstRead);
    oState.SetIterationTime(stComparison.dOne);
    answer(oState, READER_TARGET, stComparison.dRatio, figureText(stComparison, CORPUS_TYPES));
}

double loadByTool(const std::string& strRoot)
{
    const StChild stChild = runChild({OPXML_PROGRAM, "--root", strRoot, "--jobs", "1", "load"});
    if (stChild.nExit != 0)
        throw std::runtime_error("opxml load failed");
    return stChild.dCpu;
}

void measureProcess(benchmark::State& oState)
{
    const std::string strRoot = rootOf(PROCESS_TYPES).string();
    const auto        lstFile = filesOf(PROCESS_TYPES);

    // Half of the bare parse before the process and half behind it: the speed of the
    // machine drifts over such seconds.
    const auto         itMiddle     = lstFile.begin() + PROCESS_TYPES / 2;
    double             dBefore      = 0;
    const StComparison stComparison = alternate(
        [&]
        {
            dBefore = bareParse({lstFile.begin(), itMiddle});
            return loadByTool(strRoot);
        },
        [&] {
            return dBefore + bareParse({itMiddle, lstFile.end()});
        });
    oState.SetIterationTime(stComparison.dOne);
    answer(oState, PROCESS_TARGET, stComparison.dRatio, figureText(stComparison, PROCESS_TYPES));
}

// Seconds of the whole corpus in each step of a load; the steps are run one by
// one with the library's own pieces.
struct StPhases
{
    double dRead    = 0; // the bytes of the files
    double dParse   = 0; // these bytes into a document, as a load does it
    double dRecords = 0; // the sections
    double dRest    = 0; // what a whole read takes beyond these
};

std::string readBytes(const std::filesystem::path& oFile)
{
    std::string strBytes(std::filesystem::file_size(oFile), '\0');
    std::ifstream(oFile, std::ios::binary).read(strBytes.data(), static_cast<std::streamsize>(strBytes.size()));
    return strBytes;
}

StPhases timePhases()
{
    StPhases   stPhases;
    const auto pParser = CXmlParser::create();
    pParser->keepBlocks();
    pParser->leaveOutTexts();
    for (const std::filesystem::path& oFile : filesOf(CORPUS_TYPES))
    {
        const double      dStart   = cpuSeconds();
        const std::string strBytes = readBytes(oFile);
        const double      dRead    = cpuSeconds();
        pParser->parseText(strBytes);
        const double           dParsed = cpuSeconds();
        CDevTypeXMLResReader   oReader("", "", false);
        StAsnDevTypeVerXMLInfo stInfo;
        const double           dReady = cpuSeconds();
        oReader.setDevXMLConfig(pParser.get(), &stInfo);
        stPhases.dRecords += cpuSeconds() - dReady;
        stPhases.dRead += dRead - dStart;
        stPhases.dParse += dParsed - dRead;
    }
    std::deque<InfoList> lstRead;
    stPhases.dRest = readTypes(0, CORPUS_TYPES, lstRead) - stPhases.dRead - stPhases.dParse - stPhases.dRecords;
    freeRecords(lstRead);
    return stPhases;
}

void measurePhases(benchmark::State& oState)
{
    constexpr std::pair<const char*, double StPhases::*> PHASES[] = {{"read", &StPhases::dRead},
                                                                     {"parse", &StPhases::dParse},
                                                                     {"records", &StPhases::dRecords},
                                                                     {"rest", &StPhases::dRest}};
    openRoot(rootOf(CORPUS_TYPES));
    std::vector<StPhases> lstRound;
    for (int nRound = 0; nRound < ROUNDS; ++nRound)
        lstRound.push_back(timePhases());
    double dTotal = 0;
    for (const auto& [pszName, pPhase] : PHASES)
    {
        std::vector<double> lstSeconds;
        for (const StPhases& stRound : lstRound)
            lstSeconds.push_back(stRound.*pPhase);
        const double dSeconds    = median(lstSeconds);
        oState.counters[pszName] = dSeconds * 1e3 / CORPUS_TYPES; // ms a file
        dTotal += dSeconds;
    }
    oState.SetIterationTime(dTotal);
}
} // namespace

void addLoadBenchmarks()
{
    measureOnce("load/reader", measureReader, {READER_TARGET});
    measureOnce("load/process", measureProcess, {PROCESS_TARGET});
    measureOnce("load/phases", measurePhases, {});
}
