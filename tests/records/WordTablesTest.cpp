// Words and the numbers that the client knows them by, and the switch of the
// fixed checks.
#include "records/WordTables.h"
#include "TestSupport.h"
#include "records/Vocabulary.h"

#include <fmt/format.h>

using namespace DCAsn1ClientToServer;

namespace
{
TEST(WordTablesTest, TaskTypesHaveTwoNumbers)
{
    const struct
    {
        const char*  pszName;
        std::int32_t nTaskType;   // -1: no such name
        std::int32_t nConfigType; // of the task configuration
    } CASES[] = {
        {"SoftwareUpgrade", 0, 0},        {"SoftwareDowngrade", 1, 1},          {"PatchUpdate", 2, 2},
        {"PackageUpgrade", 4, 4},         {"SimulationPackageUpgrade", 3, 3},   {"PackageDowngrade", 9, 13},
        {"PackageDiffusion", 5, 5},       {"PackageDiffusionDowngrade", 8, 12}, {"OLTAgentUpgrade", 7, 7},
        {"OpticalModuleUpgrade", 14, 15}, {"NuboMeterUpgrade", 16, 16},         {"ConfTransferUpgradeTask", 17, 17},
        {"softwareupgrade", -1, -1},      {"PackageUpgrade ", -1, -1},          {"", -1, -1},
    };
    for (const auto& stCase : CASES)
    {
        SCOPED_TRACE(stCase.pszName);
        const StTaskTypeWord* pWord = findTaskType(stCase.pszName);
        EXPECT_EQ(stCase.nTaskType, getTaskTypeByName(stCase.pszName));
        EXPECT_EQ(stCase.nConfigType, pWord == nullptr ? -1 : std::int32_t{pWord->enConfigType});
    }
}

TEST(WordTablesTest, FixedChecksAreOnAtExactlyOne)
{
    CTempServerRoot oRoot;
    for (const char* pszRow :
         {"", "'DC', 'FIXED_CHECK_ITEM', 1", "'DC', 'FIXED_CHECK_ITEM', 0", "'DC', 'FIXED_CHECK_ITEM', 2",
          "'DC', 'FIXED_CHECK_ITEM', -1", "'XX', 'FIXED_CHECK_ITEM', 1"})
    {
        SCOPED_TRACE(pszRow);
        oRoot.open(*pszRow == '\0' ? "" : fmt::format("INSERT INTO config_item VALUES ({});", pszRow));
        EXPECT_EQ(pszRow == std::string("'DC', 'FIXED_CHECK_ITEM', 1"), isFixedCheckEnabled());
    }
}
} // namespace
