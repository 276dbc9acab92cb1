// Armed faults hit the call they name.
#include "TestSupport.h"

#include "platform/Settings.h"

using standalone::CFaultPoint;

namespace
{
std::uint32_t readResource()
{
    std::string strValue;
    return CSysCommonFunc::readResourceFile("R", strValue);
}

TEST(FaultPoint, CountsCallsFromWhenItIsArmed)
{
    CTempServerRoot oRoot;
    oRoot.open("INSERT INTO resource VALUES('R','v');");
    EXPECT_EQ(0u, readResource());
    {
        CFaultPoint oSecond("CSysCommonFunc::readResourceFile", 2, 7u);
        CFaultPoint oOther("CDCSettingInfoTab::getValueByParam", 0, 9u);
        EXPECT_EQ(0u, readResource());
        EXPECT_EQ(7u, readResource());
        EXPECT_EQ(0u, readResource());
        CFaultPoint oEvery("CSysCommonFunc::readResourceFile", 0, 6u);
        EXPECT_EQ(6u, readResource());
        EXPECT_EQ(6u, readResource());
    }
    EXPECT_EQ(0u, readResource());
}

TEST(FaultPoint, ThrowsWhatItIsGivenAndRefusesOtherNames)
{
    const CFaultPoint oFault("CSysCommonFunc::readResourceFile", 1, std::make_exception_ptr(42));
    EXPECT_THROW(readResource(), int);
    EXPECT_NE(0u, readResource());
    EXPECT_THROW(CFaultPoint("KIVO_OS::opendi", 0, 7u), std::invalid_argument);
}
} // namespace
