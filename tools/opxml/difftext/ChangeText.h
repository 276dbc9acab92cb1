// The room difftext/: the answer of a comparison (diff/Diff.h) as text for people,
// markdown for a review, and JSON for programs; a source for each. Here is what they
// share: one change in words.
#ifndef OPERATIONXML_TOOLS_OPXML_DIFFTEXT_CHANGETEXT_H
#define OPERATIONXML_TOOLS_OPXML_DIFFTEXT_CHANGETEXT_H

#include "tools/opxml/diff/Diff.h"

#include <array>
#include <cstddef>
#include <string>
#include <vector>

// "device operation Backup"; "device type" for one as a whole.
std::string subjectText(const StChange& stChange);

// "lost", "isCancelable 1 → 0", …, with the rename that it may be.
std::string whatText(const StChange& stChange);

// "FILE:LINE:COLUMN", one of two sides or both with an arrow; empty without a place.
std::string siteText(const StDiff& stDiff, const StDiffSite& stSite);
std::string placeText(const StDiff& stDiff, const StDiffPlace& stPlace);

// Their types: "LX 2400/S V3.7, V3.8; Quill C4 V4 (V5.0)". Empty where two files were
// compared.
std::string typesText(const StDiff& stDiff, const std::vector<StDiffSite>& lstSite);

// How many registry entries that are.
std::size_t countTypes(const std::vector<StDiffSite>& lstSite);

// Changes of each impact, in their order, and in words: "2 breaking, 1 cosmetic".
using ImpactCounts = std::array<std::size_t, 3>;
ImpactCounts countImpacts(const StDiff& stDiff);
std::string  impactsText(const StDiff& stDiff);

// "101 core-1 (10.0.0.1), LX 2400/S V3.7".
std::string deviceText(const StHurtDevice& stDevice);

// "3 device types", "1 device".
std::string countText(std::size_t nCount, const char* pszWhat);

#endif
