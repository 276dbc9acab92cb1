// Fingerprints of findings, and the file that holds the ones an old tree starts
// with. A fingerprint says which rule, which file and what it is about, not where,
// so it stays when lines move; the third finding about one thing is told from the
// second by its number.
#ifndef OPERATIONXML_TOOLS_OPXML_LINT_BASELINE_H
#define OPERATIONXML_TOOLS_OPXML_LINT_BASELINE_H

#include "lint/Lint.h"

#include <map>
#include <set>
#include <string>

class CFingerprints
{
public:
    // The fingerprint of the next finding, in the order of the findings.
    std::string next(const lint::StFinding& stFinding, const std::string& strFile);

private:
    std::map<std::string, unsigned> m_mapTimes; // of each subject so far
};

class CBaseline
{
public:
    // Reads a baseline file; throws CTrouble.
    void read(const std::string& strPath);

    // Whether the baseline holds it. Every fingerprint covers one finding.
    bool covers(const std::string& strFingerprint) const { return m_setKnown.count(strFingerprint) != 0; }

    void add(const std::string& strFingerprint, const std::string& strRule, const std::string& strFile);

    // Writes what was added, sorted, so that two versions compare well: whole or not
    // at all. Throws CTrouble.
    void write(const std::string& strPath) const;

private:
    std::set<std::string>                         m_setKnown;
    std::set<std::pair<std::string, std::string>> m_setLine; // file and rule, then the line
};

#endif
