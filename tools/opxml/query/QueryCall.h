// Calls an operation of the database with the arguments of a query, and finds out
// whether it has set its output. What an argument is read as, and how the output
// is looked at, follows from the operation's own parameters.
#ifndef OPERATIONXML_TOOLS_OPXML_QUERY_QUERYCALL_H
#define OPERATIONXML_TOOLS_OPXML_QUERY_QUERYCALL_H

#include "database/CXMLConfigDatabase.h"
#include "tools/opxml/query/QueryOperations.h"

#include <string>
#include <tuple>
#include <type_traits>
#include <utility>

inline StQueryAnswer yesNo(std::uint32_t ulResult, bool bYes)
{
    return {ulResult, bYes, ulResult == 0 && bYes};
}

// Operations with a flag as output always set it.
template <typename Call>
StQueryAnswer askFlag(Call fnCall)
{
    bool                bYes     = false;
    const std::uint32_t ulResult = fnCall(bYes);
    return yesNo(ulResult, bYes);
}

// Preset to what no XML text can be, so that an untouched output is told from
// every name that a file may hold.
template <typename Call>
StQueryAnswer askText(Call fnCall)
{
    static const std::string UNTOUCHED(1, '\0');
    std::string              strText  = UNTOUCHED;
    const std::uint32_t      ulResult = fnCall(strText);
    if (strText == UNTOUCHED)
        return {ulResult, nullptr, false};
    return {ulResult, std::move(strText), ulResult == 0};
}

// Every number may be an answer, so one that comes back as it went in is asked
// for again with another.
template <typename Call>
StQueryAnswer askNumber(Call fnCall)
{
    constexpr int       FIRST    = -2000000001;
    constexpr int       SECOND   = -2000000002;
    int                 nNumber  = FIRST;
    const std::uint32_t ulResult = fnCall(nNumber);
    if (nNumber == FIRST && ulResult == 0) // a failure would be logged twice
    {
        nNumber = SECOND;
        fnCall(nNumber);
    }
    const bool bUntouched = nNumber == (ulResult == 0 ? SECOND : FIRST);
    return bUntouched ? StQueryAnswer{ulResult, nullptr, false} : StQueryAnswer{ulResult, nNumber, ulResult == 0};
}

// An argument as the operation takes it.
template <typename Taken>
decltype(auto) argumentAs(const StQueryArgument& stArgument)
{
    using Plain = std::decay_t<Taken>;
    if constexpr (std::is_same_v<Plain, std::string>)
        return (stArgument.strText);
    else
        return static_cast<Plain>(stArgument.ulNumber);
}

// An operation whose last parameter is its output.
template <auto pfnOperation>
struct CQueryCall;

template <typename... Taken, std::uint32_t (CXMLConfigDatabase::*pfnOperation)(Taken...)>
struct CQueryCall<pfnOperation>
{
    using Parameters = std::tuple<Taken...>;
    using Output     = std::remove_reference_t<std::tuple_element_t<sizeof...(Taken) - 1, Parameters>>;

    template <std::size_t... nAt>
    static std::uint32_t call(const QueryArguments& lstArgument, Output& output, std::index_sequence<nAt...>)
    {
        return (CXMLConfigDatabase::getInstance()->*pfnOperation)(
            argumentAs<std::tuple_element_t<nAt, Parameters>>(lstArgument[nAt])..., output);
    }

    static StQueryAnswer ask(const QueryArguments& lstArgument)
    {
        const auto fnCall = [&lstArgument](Output& output)
        { return call(lstArgument, output, std::make_index_sequence<sizeof...(Taken) - 1>()); };
        if constexpr (std::is_same_v<Output, bool>)
            return askFlag(fnCall);
        else if constexpr (std::is_same_v<Output, std::string>)
            return askText(fnCall);
        else
            return askNumber(fnCall);
    }
};

template <auto pfnOperation>
StQueryAnswer ask(const QueryArguments& lstArgument)
{
    return CQueryCall<pfnOperation>::ask(lstArgument);
}

#endif
