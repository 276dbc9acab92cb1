// The JSON form of the records: every field under exactly its name, in declared
// order; enumerations as numbers, lists as arrays in list order, texts as UTF-8.
// Scripts are written on this: fields are added, never renamed.
#ifndef OPERATIONXML_TOOLS_OPXML_OUTPUT_RECORDJSON_H
#define OPERATIONXML_TOOLS_OPXML_OUTPUT_RECORDJSON_H

#include "records/ModuleRecords.h"

#include <nlohmann/json.hpp>

#include <list>
#include <string>

using Json = nlohmann::ordered_json;

Json toJson(const StAsnDevTypeVerXMLInfo& stInfo);

// All records of one storage key.
Json toJson(const std::list<StAsnDevTypeVerXMLInfo*>& lstInfo);

// As text, with two blanks a level, shifted right by nIndent. Bytes that are not
// UTF-8 are replaced, so that the output always is JSON.
std::string jsonText(const Json& oJson, std::size_t nIndent = 0);

// On one line.
std::string jsonLine(const Json& oJson);

#endif
