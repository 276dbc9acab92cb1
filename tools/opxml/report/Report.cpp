// See Report.h. The details come first in the page: they are written while the types
// are read, and only then it is known what stands in the matrix.
#include "tools/opxml/report/Report.h"

#include "tools/opxml/diff/RootDiff.h"
#include "tools/opxml/report/Comparison.h"
#include "tools/opxml/report/Packing.h"
#include "tools/opxml/report/PageFile.h"
#include "tools/opxml/report/PageJson.h"
#include "tools/opxml/report/PagePieces.h"
#include "tools/opxml/report/ReadReport.h"

#include <fmt/chrono.h>
#include <fmt/format.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <system_error>

namespace
{
std::string timeText()
{
    return fmt::format("{:%Y-%m-%dT%H:%M:%SZ}",
                       fmt::gmtime(std::chrono::system_clock::to_time_t(std::chrono::system_clock::now())));
}

std::string wholePath(const std::string& strPath)
{
    std::error_code             oProblem;
    const std::filesystem::path oPath = std::filesystem::weakly_canonical(strPath, oProblem);
    return oProblem ? strPath : oPath.string();
}

std::string headText(const std::string& strTitle)
{
    std::string       strHead = PAGE_HEAD;
    const std::string strMark = "@TITLE@";
    for (std::size_t nAt = strHead.find(strMark); nAt != std::string::npos; nAt = strHead.find(strMark, nAt))
    {
        const std::string strHtml = htmlText(strTitle);
        strHead.replace(nAt, strMark.size(), strHtml);
        nAt += strHtml.size();
    }
    return strHead;
}

std::string summary(const StReportWish& stWish, const StReport& stReport, std::size_t nBytes)
{
    const auto nFailed = std::count_if(stReport.lstRow.begin(), stReport.lstRow.end(),
                                       [](const StReportRow& stRow) { return !stRow.strProblem.empty(); });
    return fmt::format("{}: {} rows, {} columns, {} failed, {:.1f} MB", stWish.strOutput, stReport.lstRow.size(),
                       stReport.oColumns.all().size(), nFailed, static_cast<double>(nBytes) / 1e6);
}
} // namespace

std::string writeReport(const StReportWish& stWish)
{
    StReport stReport;
    stReport.strRoot  = wholePath(stWish.strRoot);
    stReport.strTitle = stWish.strTitle.empty()
                            ? "Operations of " + std::filesystem::path(stReport.strRoot).filename().string()
                            : stWish.strTitle;
    stReport.strMade  = timeText();
    stReport.strTool  = stWish.strTool;

    CPageFile  oPage(stWish.strOutput);
    DetailSink fnDetail;
    oPage.write(headText(stReport.strTitle));
    if (stWish.bDetails)
    {
        fnDetail = [&oPage](std::size_t nDetail, const std::string& strPacked)
        {
            oPage.write(fmt::format("<script type=\"text/plain\" id=\"d{}\">", nDetail));
            oPage.write(strPacked);
            oPage.write("</script>\n");
        };
    }
    StDiff stDiff;
    if (!stWish.strCompare.empty())
        stDiff = diffRoots(stWish.strCompare, stWish.strRoot); // leaves the second one open
    readReport(stWish.strRoot, stWish.bLint, fnDetail, stReport);
    addGone(stDiff, stReport);
    Json oJson = pageJson(stReport);
    if (!stWish.strCompare.empty())
        oJson["comparison"] = comparisonJson(stDiff, wholePath(stWish.strCompare));
    oPage.write("<script type=\"application/json\" id=\"data\">");
    oPage.write(scriptJson(oJson));
    oPage.write("</script>\n");
    oPage.write(PAGE_TAIL);
    oPage.finish();
    return summary(stWish, stReport, oPage.bytes());
}
