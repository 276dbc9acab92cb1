// The findings of one file while it is checked: each mistake once, the allowed ones
// taken out, then all of them in the order of the file. One thread at a time.
#ifndef OPERATIONXML_LINT_FILEREPORT_H
#define OPERATIONXML_LINT_FILEREPORT_H

#include "catalog/SourceText.h"
#include "lint/Lint.h"

#include <cstddef>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace lint
{
using catalog::CSourceText;
using catalog::StSpot;

// "opxml-lint: allow RULE because TEXT" in front of an element: holds from the
// comment to the end of that element.
struct StAllowance
{
    std::string strRule;
    StSpot      stSpot; // of the comment
    StSpot      stEnd;  // where the element ends
    bool        bUsed = false;
};

// As many findings of one file are told: more help nobody, and a file may hold a
// mistake in every few bytes.
constexpr std::size_t MAX_FINDINGS = 10'000;

class CFileReport
{
public:
    // Without a text the findings carry no source line.
    CFileReport(std::string strFile, std::shared_ptr<const CSourceText> pText);

    const std::string& file() const { return m_strFile; }
    void               showLinesOf(std::shared_ptr<const CSourceText> pText) { m_pText = std::move(pText); }

    // Notes a finding under a rule of the table. A second finding of the same rule,
    // place and message is the same mistake seen again. A severity of its own
    // overrides the rule's.
    void add(const char* pszRule, const StSpot& stSpot, std::string strMessage, std::string strSubject,
             std::vector<std::string> lstHelp = {});
    void add(const char* pszRule, EnSeverity enSeverity, const StSpot& stSpot, std::string strMessage,
             std::string strSubject, std::vector<std::string> lstHelp = {});

    // The same for what is no mistake when another one is told, that of misspelling
    // this name.
    void addUnlessMeant(const std::string& strName, const char* pszRule, const StSpot& stSpot, std::string strMessage,
                        std::string strSubject, std::vector<std::string> lstHelp);
    void setMeant(const std::string& strName) { m_setMeant.insert(strName); }

    // Nothing more is told of the file: whoever looks for more may stop.
    bool isFull() const { return m_lstFinding.size() >= MAX_FINDINGS; }

    // Takes a comment of the file: an allowance holds to the given end, one that is
    // not understood is a finding, and any other comment is none of ours.
    void takeComment(const std::string& strComment, const StSpot& stSpot, const StSpot& stEnd);

    // Hands the findings over in order and forgets them. Allowances that nothing
    // needed are findings, too; of several for one finding the innermost is needed.
    void flush(const FindingSink& fnFinding);

private:
    struct StDoubtful
    {
        std::string strName;
        StFinding   stFinding;
    };

    void addCertain();
    void dropAllowed(std::vector<StFinding>& lstFinding);

    std::string                        m_strFile;
    std::shared_ptr<const CSourceText> m_pText;
    std::vector<StFinding>             m_lstFinding;
    std::vector<StDoubtful>            m_lstDoubtful;
    std::set<std::string>              m_setMeant;
    std::vector<StAllowance>           m_lstAllowance;
};
} // namespace lint

#endif
