// The text of one server configuration file, all sections of the format in it.
// The generator writes it to disk. The same wish gives the same text everywhere.
#ifndef OPERATIONXML_BENCH_CONFIGTEXT_H
#define OPERATIONXML_BENCH_CONFIGTEXT_H

#include "Dice.h"
#include "XmlText.h"

#include <cstddef>
#include <cstdint>
#include <string>

struct StConfigWish
{
    std::size_t   nType  = 0;     // number of the device type: its file differs from every other
    std::size_t   nBytes = 96000; // the file gets this long, and up to one check item longer
    std::uint64_t ulSeed = 1;
    bool          bCheck = true; // false: no "CheckOperations"; other operations fill the file instead
};

// "RX 1001/S": unique for each number.
std::string deviceTypeName(std::size_t nType);

// A description such as "Fan trays: no active alarm"; outside ASCII now and then.
std::string describe(CDice& oDice);

std::string configText(const StConfigWish& stWish);

// The "CheckOperations" section, in as many check items as it takes to make the
// text nBytes long (CheckText.cpp).
void addChecks(CXmlText& oXml, CDice& oDice, const std::string& strSeries, std::size_t nBytes);

#endif
