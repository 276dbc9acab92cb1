// CParseAhead: parses the files of a load, or of a recorded read, ahead on threads of
// its own, while the reading thread makes records of the documents that are finished.
// Made and asked by that thread (LoadDocuments.h); its own have ended when it is gone.
// They call neither the platform nor the log, and what they could not do is left to
// the reading thread. A document is handed over whole, with its parser and its memory.
#ifndef OPERATIONXML_READER_PARSEAHEAD_H
#define OPERATIONXML_READER_PARSEAHEAD_H

#include "reader/ParserPool.h"

#include <condition_variable>
#include <cstddef>
#include <mutex>
#include <string>
#include <thread>
#include <unordered_map>
#include <vector>

class CParseAhead
{
public:
    // The files in the order in which they are wanted, each once. Threads that cannot
    // be started are done without.
    CParseAhead(CParserPool& oPool, const std::vector<std::string>& lstFile, std::size_t nWorkers);
    ~CParseAhead();
    CParseAhead(const CParseAhead&)            = delete;
    CParseAhead& operator=(const CParseAhead&) = delete;

    // The file is wanted now, and the ones before it no longer. What was parsed of it;
    // no parser when nobody has begun with it, and nobody will. While another thread is at
    // it, this one parses others ahead, or waits.
    StParsedFile take(const std::string& strFile);

    // Nothing more is parsed ahead, and what was is given up: memory has run out. That a
    // thread meets this too ends its work.
    void stop() noexcept;

private:
    enum class EnState
    {
        Waiting, // nobody has begun with it
        Begun,
        Ready,
        Passed, // it was taken, or is left to the reading thread
    };

    struct StAhead
    {
        const std::string* pFile;
        EnState            enState = EnState::Waiting;
        StParsedFile       stParsed;   // when it is ready
        std::size_t        nBytes = 0; // what it is taken to need, once it is ready what it needs
    };

    using Lock = std::unique_lock<std::mutex>;

    void startWorkers(std::size_t nWorkers);
    void work() noexcept;
    bool mayBegin() const;
    void parseNext(Lock& oLock);
    bool fits(StAhead& stAhead, const StFileState& stState);
    void pass(StAhead& stAhead);
    void passUntil(std::size_t nPlace);

    CParserPool&                                 m_oPool;
    std::unordered_map<std::string, std::size_t> m_mapPlace;
    std::vector<std::thread>                     m_lstWorker;

    // All below is guarded by m_oMutex.
    std::mutex              m_oMutex;
    std::condition_variable m_oChanged;
    std::vector<StAhead>    m_lstAhead;    // its length stays
    std::size_t             m_nWanted = 0; // the first file that was not asked for yet
    std::size_t             m_nNext   = 0; // the first one that nobody has begun with
    std::size_t             m_nBytes  = 0; // of all that are begun or ready
    std::size_t             m_nWindow = 0; // how far ahead of m_nWanted one may begin
    bool                    m_bEnd    = false;
};

#endif
