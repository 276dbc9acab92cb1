// Result codes by name, and texts and names that are looked for.
#ifndef OPERATIONXML_TOOLS_OPXML_OUTPUT_NAMES_H
#define OPERATIONXML_TOOLS_OPXML_OUTPUT_NAMES_H

#include <cstdint>
#include <string>
#include <vector>

// "989857004 (0x3B0004EC, DC_RESULT_INVALID_PARA)".
std::string resultText(std::uint32_t ulResult);
std::string resultName(std::uint32_t ulResult);

// Whether a text holds another. Case is folded for ASCII letters only; UTF-8 texts
// hold each other byte by byte.
bool mentions(const std::string& strText, const std::string& strPart);

// Whether a text is as a pattern says: "*" stands for any text, "?" for one character;
// case is folded likewise.
bool matchesPattern(const std::string& strText, const std::string& strPattern);

// "; did you mean A, B or C?" for the names nearest to a misspelt one; empty
// when none is near.
std::string nearestNames(const std::string& strMisspelt, const std::vector<std::string>& lstName);

#endif
