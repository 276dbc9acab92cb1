// The description of the records' fields is whole, equality compares all of them
// but the named ones, and order in a list matters.
#include "TestSupport.h"
#include "records/RecordFields.h"

#include <set>
#include <utility>

namespace
{
// A value that fits any member, for counting the members of a record.
struct StAny
{
    template <typename Member>
    operator Member() const;
};
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wmissing-field-initializers" // on purpose; clang++ names each
template <typename Record, std::size_t... nAt>
constexpr auto takes(std::index_sequence<nAt...>) -> decltype(Record{(static_cast<void>(nAt), StAny())...}, true)
{
    return true;
}
#pragma GCC diagnostic pop
template <typename Record>
constexpr bool takes(...)
{
    return false;
}
template <typename Record, std::size_t nMembers = 0>
constexpr std::size_t countMembers()
{
    if constexpr (takes<Record>(std::make_index_sequence<nMembers + 1>()))
        return countMembers<Record, nMembers + 1>();
    else
        return nMembers;
}

// Gives a field of any kind another value.
struct StChange
{
    void operator()(bool& bField) const { bField = !bField; }
    void operator()(std::int32_t& nField) const { ++nField; }
    void operator()(std::uint32_t& ulField) const { ++ulField; }
    void operator()(std::string& strField) const { strField = "x"; }
    template <typename Enum>
    void operator()(AsnEnum<Enum>& enField) const
    {
        enField = static_cast<Enum>(enField.number() + 1);
    }
    template <typename Element>
    void operator()(std::list<Element>& lstField) const
    {
        lstField.resize(1);
    }
    template <typename Record>
    void operator()(Record& stField) const // all of it
    {
        std::apply([&](const auto&... stMember) { ((*this)(stField.*(stMember.pMember)), ...); },
                   fieldsOf(static_cast<const Record*>(nullptr)));
    }
};

template <typename Record>
void expectComparesAllBut(const std::set<std::string>& setLeftOut)
{
    static_assert(countMembers<Record>() == std::tuple_size_v<decltype(fieldsOf(static_cast<Record*>(nullptr)))>,
                  "records/RecordFields.h describes every member once");
    const Record          stDefault;
    Record                stRecord;
    std::set<std::string> setName;
    std::set<std::string> setNotCompared;
    visitFields(stRecord,
                [&](const char* pszName, auto /*stKind*/, auto& field)
                {
                    const auto before = field;
                    StChange()(field);
                    EXPECT_EQ(stDefault == stRecord, stRecord == stDefault) << pszName;
                    if (stDefault == stRecord)
                        setNotCompared.insert(pszName);
                    field = before;
                    EXPECT_TRUE(stDefault == stRecord) << pszName;
                    EXPECT_TRUE(setName.insert(pszName).second) << pszName << " twice";
                });
    EXPECT_EQ(setLeftOut, setNotCompared) << typeid(Record).name();
}

template <typename... Records>
void expectComparesAll()
{
    (expectComparesAllBut<Records>({}), ...);
}

TEST(RecordEqualityTest, ComparesEveryFieldButThese)
{
    expectComparesAll<StAsnDevVersion, StAsnDevTypeInfo, StAsnOptionInfo, StAsnCustomOperationDef,
                      StAsnOtherOperationDef, StAsnMenuOpDef, StAsnPatchItem, StAsnPatchStateDef, StAsnPatchDef,
                      StAsnPatchTypeMenuDef, StAsnTaskConfigInfoOperation, StAsnUpgradeSubOperationDef,
                      StAsnUpgradeOperationDef, StAsnDCErrorCodeInfo, StAsnOperationConfig, StAsnViewConfig>();
    expectComparesAllBut<StAsnOperParamDef>({"strSelected"});
    expectComparesAllBut<StAsnOperation>({"bExtFlag", "bIsSupported"});
    expectComparesAllBut<StAsnCheckType>({"strExtInfo"});
    expectComparesAllBut<StAsnCheckOperationDef>({"bIsCancelable"});
    expectComparesAllBut<StAsnTaskOperationDef>({"strIsSelect", "strIsPauseBeforeOP"});
    expectComparesAllBut<StAsnTaskConfigOperation>({"strSelected"});
    // Two roots of one content are equal, whatever type and versions they are of.
    expectComparesAllBut<StAsnDevTypeVerXMLInfo>({"strDevType", "strDevTypeVer", "lstDevVersion"});
}

TEST(RecordEqualityTest, SeesOrderAndTheDeepestRecord)
{
    StAsnCheckType stTop;
    stTop.lstSubItem.resize(2);
    stTop.lstSubItem.front().lstSubItem.resize(2);
    StAsnCheckType stDeep                                        = stTop;
    stDeep.lstSubItem.front().lstSubItem.front().strCompareParam = "x";
    EXPECT_FALSE(stTop == stDeep);
    StAsnCheckType stTurned = stDeep;
    stTurned.lstSubItem.front().lstSubItem.reverse();
    EXPECT_FALSE(stDeep == stTurned);
}
} // namespace
