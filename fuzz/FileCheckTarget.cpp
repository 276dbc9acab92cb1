// Fuzz target: the file-check rules.
#include "FuzzSupport.h"

#include "filecheck/ParseXMLFile.h"
#include "records/ResultCodes.h"

#include <algorithm>

namespace
{
bool isSame(const UncompressedType& stLeft, const UncompressedType& stRight)
{
    return stLeft.strUncompressedSuffix == stRight.strUncompressedSuffix && stLeft.strMaxSize == stRight.strMaxSize &&
           stLeft.strFileMaxSize == stRight.strFileMaxSize &&
           stLeft.strWholeFileMaxSize == stRight.strWholeFileMaxSize && stLeft.strMaxCount == stRight.strMaxCount &&
           stLeft.strFileSuffix == stRight.strFileSuffix;
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    static const CFuzzRoot s_oRoot;
    require(s_oRoot.write("file_check.xml", std::string_view(reinterpret_cast<const char*>(pData), nSize)),
            "the rules are written");

    const std::string     strPath = s_oRoot.path() + "/file_check.xml";
    ParseXMLFile::TypeMap mapFirst;
    ParseXMLFile::TypeMap mapSecond;
    const std::uint32_t   ulResult = ParseXMLFile::GetXMLInfo(strPath, mapFirst);
    require(ulResult == ParseXMLFile::GetXMLInfo(strPath, mapSecond), "the same file gives the same result");
    require(std::equal(mapFirst.begin(), mapFirst.end(), mapSecond.begin(), mapSecond.end(),
                       [](const auto& oLeft, const auto& oRight)
                       { return oLeft.first == oRight.first && isSame(oLeft.second, oRight.second); }),
            "the same file gives the same rules");
    require(ulResult == DC_RESULT_OK || ulResult == DC_RESULT_XML_ERROR, "a file is read or an XML error");
    require(ulResult != DC_RESULT_OK || !mapFirst.empty(), "a file without rules is no success");
    require(mapFirst.count("") == 0, "a type without a name is refused");
    return 0;
}
