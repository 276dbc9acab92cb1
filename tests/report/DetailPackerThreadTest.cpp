// Details are packed the same on any number of threads, and where none can be started.
#include "tools/opxml/report/DetailPacker.h"
#include "tools/opxml/report/Packing.h"

#include <gtest/gtest.h>

#include <pthread.h>
#include <string>
#include <vector>

namespace
{
struct StPackerCase
{
    const char* pszName;
    std::size_t nThreads;
    bool        bStart;
};

class DetailPackerThreadTest : public testing::TestWithParam<StPackerCase>
{
protected:
    DetailPackerThreadTest()
    {
        ::pthread_getattr_default_np(&m_stBefore);
        pthread_attr_t stGreedy;
        ::pthread_getattr_default_np(&stGreedy);
        if (!GetParam().bStart) // there is no room for such a stack
            ::pthread_attr_setstacksize(&stGreedy, std::size_t{1} << 47U);
        ::pthread_setattr_default_np(&stGreedy);
    }
    ~DetailPackerThreadTest() override { ::pthread_setattr_default_np(&m_stBefore); }

private:
    pthread_attr_t m_stBefore = {};
};

TEST_P(DetailPackerThreadTest, PacksAllOfThem)
{
    std::vector<std::string>  lstText;
    std::vector<PackedDetail> lstPacked;
    CDetailPacker             oPacker(GetParam().nThreads);
    for (std::size_t nAt = 0; nAt < 40; ++nAt)
    {
        lstText.emplace_back(1 + 1000 * (nAt % 7), static_cast<char>('0' + nAt));
        lstPacked.push_back(oPacker.pack(lstText.back()));
    }
    for (std::size_t nAt = 0; nAt < lstText.size(); ++nAt)
        EXPECT_EQ(packed(lstText[nAt]), lstPacked[nAt].get()) << nAt;
}
INSTANTIATE_TEST_SUITE_P(Report, DetailPackerThreadTest,
                         testing::Values(StPackerCase{"One", 1, true}, StPackerCase{"Two", 2, true},
                                         StPackerCase{"Eight", 8, true}, StPackerCase{"NoneStarts", 8, false}),
                         [](const auto& stInfo) { return std::string(stInfo.param.pszName); });
} // namespace
