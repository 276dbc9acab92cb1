// Whether a type is read from the same bytes on both sides, so that it need not be read
// at all. One thread.
#ifndef OPERATIONXML_TOOLS_OPXML_DIFF_SAMEFILES_H
#define OPERATIONXML_TOOLS_OPXML_DIFF_SAMEFILES_H

#include "tools/opxml/diff/ServerSide.h"

#include <map>
#include <string>
#include <utility>

class CSameFiles
{
public:
    // Both plans must have been made; false where it cannot be told.
    bool isSame(const StSideType& stOld, const StConfigPlan& stOldPlan, const StSideType& stNew,
                const StConfigPlan& stNewPlan);

    // The bytes of two files; remembered, since many types may share a file.
    bool isSameFile(const std::string& strOld, const std::string& strNew);

private:
    bool isSamePlanned(const StPlannedFile& stOld, const StPlannedFile& stNew);
    bool isSameVersion(const StVersionPlan& stOld, const StVersionPlan& stNew);

    std::map<std::pair<std::string, std::string>, bool> m_mapSame;
};

#endif
