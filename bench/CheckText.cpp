// The checks of a generated configuration file.
#include "ConfigText.h"
#include "Words.h"

#include <algorithm>
#include <iterator>

namespace
{
constexpr std::size_t NESTING_EVERY = 20; // one sub item in so many has sub items of its own

void addSubItem(CXmlText& oXml, CDice& oDice, const std::string& strId, const std::string& strKey,
                std::string_view strLimit)
{
    const std::string   strText      = describe(oDice);
    const XmlAttributes lstAttribute = {
        {"id", strId},      {"description", strText}, {"cmdKey", strKey},        {"selected", "1"},
        {"isCompare", "0"}, {"compareType", "1"},     {"compareParam", strLimit}};
    if (!oDice.oneIn(NESTING_EVERY))
        return oXml.leaf("SubItem", lstAttribute);
    oXml.open("SubItem", lstAttribute);
    oXml.leaf("SubItem", {{"id", strId + ".redundant"}, {"description", describe(oDice)}, {"selected", "0"}});
    oXml.close();
}

void addCheck(CXmlText& oXml, CDice& oDice, const std::string& strSeries, const std::string& strId)
{
    const std::string_view strLimit = oDice.pick(Words::LIMITS);
    std::string            strKey   = "CMD_" + strId;
    std::transform(strKey.begin(), strKey.end(), strKey.begin(),
                   [](char cChar)
                   { return 'a' <= cChar && cChar <= 'z' ? static_cast<char>(cChar - 'a' + 'A') : cChar; });
    const bool bBoards = oDice.oneIn(3);
    oXml.open("Parameter", {{"id", strId},
                            {"description", describe(oDice)},
                            {"cmdKey", strKey},
                            {"subItemFrom", bBoards ? "BOARDS" : "ITEMS"},
                            {"selected", oDice.oneIn(5) ? "0" : "1"},
                            {"isCompare", oDice.oneIn(3) ? "1" : "0"},
                            {"compareType", std::to_string(oDice.below(4))},
                            {"compareParam", strLimit},
                            {"integated", oDice.oneIn(10) ? "1" : ""}});
    const std::size_t nItems = bBoards ? std::size(Words::BOARDS) : 2 + oDice.below(3);
    for (std::size_t nItem = 0; nItem < nItems; ++nItem)
    {
        std::string strItem = strSeries;
        strItem.append("-").append(Words::BOARDS[nItem]);
        addSubItem(oXml, oDice, std::string(strId).append(".").append(strItem),
                   std::string(strKey).append("_").append(strItem), strLimit);
    }
    oXml.close();
}
} // namespace

void addChecks(CXmlText& oXml, CDice& oDice, const std::string& strSeries, std::size_t nBytes)
{
    constexpr std::string_view END    = "    </Operation>\n  </CheckOperations>\n";
    const std::size_t          nStart = oXml.size();
    const std::size_t          nEnd   = std::max(nBytes, END.size()) - END.size();
    oXml.open("CheckOperations");
    for (std::size_t nOper = 0; nOper == 0 || oXml.size() < nEnd; ++nOper)
    {
        const std::string_view strOperId = Words::CHECK_OPERATIONS[nOper % std::size(Words::CHECK_OPERATIONS)];
        oXml.open("Operation", {{"id", strOperId}, {"operationLevel", "DeviceLevel"}, {"isCancelable", "1"}});
        // The last operation ends where the file does, the others in equal parts.
        const std::size_t nPart =
            nStart + (nEnd - std::min(nStart, nEnd)) * (nOper + 1) / std::size(Words::CHECK_OPERATIONS);
        for (std::size_t nItem = 0; nItem == 0 || (oXml.size() < nPart && oXml.size() < nEnd); ++nItem)
        {
            std::string strId(Words::CHECKS[nItem % std::size(Words::CHECKS)]);
            if (nItem >= std::size(Words::CHECKS))
                strId += std::to_string(nItem / std::size(Words::CHECKS) + 1);
            addCheck(oXml, oDice, strSeries, strId);
        }
        oXml.close();
    }
    oXml.close();
}
