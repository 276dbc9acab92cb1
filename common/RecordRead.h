// How every record of the library is made from an XML element: in place, in the
// list that keeps it, so that its address stands for it from the first attribute
// to the last query.
// Called by the parsers of sections, check files, capacity documents and modules,
// nested as the records are. Stateless; works on the caller's list.
#ifndef OPERATIONXML_COMMON_RECORDREAD_H
#define OPERATIONXML_COMMON_RECORDREAD_H

#include "common/XmlRead.h"

#include <list>
#include <type_traits>

// What becomes of an element: a record, or none and why.
enum class EnFate
{
    Kept,
    NotIntegrated,    // a check item that the device does not have ("integated")
    HiddenInClient,   // a check item that the client does not show ("GUI")
    NoProgramFile,    // an option of the program file, which this server does not back up
    NoServiceUpgrade, // a menu entry for in-service upgrade, which this server is not set up for
    UnknownTaskType,  // kept, it would read as a software upgrade
    UpgradeLacksStep, // an upgrade of which a part could not be looked up must not be offered
    LookupFailed,     // what stands below it could not be looked up, and was needed
};

// The end of the record made last: takes it off again unless it is kept.
template <typename Record>
void endRecord(const xercesc::DOMElement& oElement, std::list<Record>& lstOut, EnFate enFate)
{
    if (CReadObserver* pObserver = ReadObserver::get())
        pObserver->recordEnded(oElement, &lstOut.back(), enFate);
    if (enFate != EnFate::Kept)
        lstOut.pop_back();
}

// Appends a fresh record and has it filled: fnFill(attributes, record) says what
// becomes of it. One that is not kept is taken off again, also when fnFill throws.
template <typename Record, typename Fill>
EnFate readRecord(const xercesc::DOMElement& oElement, std::list<Record>& lstOut, const Fill& fnFill)
{
    static_assert(std::is_same_v<std::invoke_result_t<const Fill&, const CAttributes&, Record&>, EnFate>,
                  "whoever fills a record says what becomes of it");
    Record& stRecord = lstOut.emplace_back();
    if (CReadObserver* pObserver = ReadObserver::get())
        pObserver->recordBegun(oElement, &stRecord, &lstOut);
    EnFate enFate = EnFate::LookupFailed;
    try
    {
        enFate = fnFill(CAttributes(oElement), stRecord);
    }
    catch (...)
    {
        endRecord(oElement, lstOut, enFate);
        throw;
    }
    endRecord(oElement, lstOut, enFate);
    return enFate;
}

#endif
