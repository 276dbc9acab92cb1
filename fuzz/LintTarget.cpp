// Fuzz target: lint of one file, as each kind of file that it may be. Whatever the
// file holds, lint ends, says the same twice, and names places that are there.
#include "FuzzSupport.h"

#include "lint/Lint.h"

#include <string>
#include <vector>

namespace
{
constexpr lint::EnFileKind KINDS[] = {
    lint::EnFileKind::Unknown,   lint::EnFileKind::Configuration,    lint::EnFileKind::Module,
    lint::EnFileKind::Capacity,  lint::EnFileKind::TelnetCheck,      lint::EnFileKind::FixedCheck,
    lint::EnFileKind::FileCheck, lint::EnFileKind::AlarmExplanation, lint::EnFileKind::AlarmRegistration,
};

std::vector<lint::StFinding> findingsOf(const std::string& strPath, lint::EnFileKind enKind)
{
    std::vector<lint::StFinding> lstFinding;
    lint::lintFile(strPath, enKind,
                   [&lstFinding](const lint::StFinding& stFinding) { lstFinding.push_back(stFinding); });
    return lstFinding;
}

bool isInOrder(const lint::StFinding& stLeft, const lint::StFinding& stRight)
{
    return stLeft.ulLine != stRight.ulLine ? stLeft.ulLine < stRight.ulLine : stLeft.ulColumn <= stRight.ulColumn;
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    static const CFuzzRoot s_oRoot;
    // The first byte chooses the kind.
    const auto        enKind  = KINDS[nSize == 0 ? 0 : pData[0] % std::size(KINDS)];
    const std::string strPath = s_oRoot.path() + "/file.xml";
    require(s_oRoot.write("file.xml", nSize == 0
                                          ? std::string_view()
                                          : std::string_view(reinterpret_cast<const char*>(pData) + 1, nSize - 1)),
            "the file is written");

    const std::vector<lint::StFinding> lstFirst  = findingsOf(strPath, enKind);
    const std::vector<lint::StFinding> lstSecond = findingsOf(strPath, enKind);
    require(lstFirst.size() == lstSecond.size(), "the same file gives the same number of findings");
    for (std::size_t nAt = 0; nAt < lstFirst.size(); ++nAt)
    {
        const lint::StFinding& stFinding = lstFirst[nAt];
        require(stFinding.strMessage == lstSecond[nAt].strMessage, "the same file gives the same findings");
        require(nAt == 0 || isInOrder(lstFirst[nAt - 1], stFinding), "findings come in the order of the file");
        require(lint::findRule(stFinding.strRule) != nullptr, "every finding has its rule");
        require(stFinding.ulLine != 0 || stFinding.ulColumn == 0, "a column is one of a line");
    }
    return 0;
}
