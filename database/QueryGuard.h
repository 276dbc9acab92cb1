// Holds the database's mutex for one lookup or query, and first lets the
// start-up load end. ACE's condition gives up one level of the recursive mutex
// only, so the wait happens here, before a query goes deeper: waiting with the
// mutex held twice would keep everybody out for ever.
#ifndef OPERATIONXML_DATABASE_QUERYGUARD_H
#define OPERATIONXML_DATABASE_QUERYGUARD_H

#include "database/CXMLConfigDatabase.h"

#include <ace/Guard_T.h>

class CXMLConfigDatabase::CQueryGuard
{
public:
    explicit CQueryGuard(CXMLConfigDatabase& oDatabase) : m_oGuard(m_XMLConfigDBMutex) { oDatabase.waitUntilLoaded(); }

private:
    ACE_Guard<ACE_Recursive_Thread_Mutex> m_oGuard;
};

#endif
