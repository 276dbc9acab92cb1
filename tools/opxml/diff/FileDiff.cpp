// Two configuration files compared by themselves. See RootDiff.h.
#include "catalog/FileCatalog.h"
#include "tools/opxml/catalog/ServerCatalogs.h"
#include "tools/opxml/diff/DiffCollector.h"
#include "tools/opxml/diff/RootDiff.h"
#include "tools/opxml/output/Exit.h"

#include <algorithm>

namespace
{
void requireConfiguration(const catalog::StTypeCatalog& stFile, const std::string& strFile)
{
    const auto fnFilled = [](const catalog::StSection& stSection) { return !stSection.lstEntry.empty(); };
    if (!stFile.lstConfiguration.empty() && std::none_of(stFile.lstConfiguration[0].lstSection.begin(),
                                                         stFile.lstConfiguration[0].lstSection.end(), fnFilled))
        throw CTrouble(strFile + ": nothing of a configuration stands in it");
}
} // namespace

StDiff diffFiles(const std::string& strOldFile, const std::string& strNewFile)
{
    const catalog::StTypeCatalog stOld = catalog::makeFileCatalog(strOldFile);
    const catalog::StTypeCatalog stNew = catalog::makeFileCatalog(strNewFile);
    requireConfiguration(stOld, strOldFile);
    requireConfiguration(stNew, strNewFile);
    if (stOld.lstConfiguration.empty() && stNew.lstConfiguration.empty())
        throw CTrouble("neither file can be read: " + whyNotRead(stOld) + "; " + whyNotRead(stNew));
    CDiffCollector oCollector;
    oCollector.add({}, diffTypes(stOld, stNew, {}), stOld.lstFile, stNew.lstFile);
    StDiff stDiff = oCollector.take();
    stDiff.nTypes = 1;
    return stDiff;
}
