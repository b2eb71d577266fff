#include "zept/UniIdentity.h"

#include <gtest/gtest.h>
#include <map>
#include <utility>

using zept::UniIdentity;

namespace {

const UniIdentity Lower(L"0f8fad5b-d9cb-469f-a165-70867728950e");
const UniIdentity Upper(L"0F8FAD5B-D9CB-469F-A165-70867728950E");
const UniIdentity Braced(L"{0f8fad5b-d9cb-469f-a165-70867728950e}");
const UniIdentity Other(L"1f8fad5b-d9cb-469f-a165-70867728950e");

void ExpectDifferent(const std::wstring& left, const std::wstring& right)
{
    EXPECT_FALSE(UniIdentity(left) == UniIdentity(right));
    EXPECT_TRUE(UniIdentity(left) != UniIdentity(right));
    EXPECT_NE(UniIdentity(left) < UniIdentity(right), UniIdentity(right) < UniIdentity(left));
}

void ExpectEqual(const UniIdentity& left, const UniIdentity& right)
{
    EXPECT_TRUE(left == right);
    EXPECT_FALSE(left != right);
    EXPECT_FALSE(left < right);
    EXPECT_FALSE(right < left);
}

} // namespace

TEST(AnIdentity, GivesItsTextBackAsItCame)
{
    EXPECT_EQ(Upper.GetGuidString(), L"0F8FAD5B-D9CB-469F-A165-70867728950E");
    EXPECT_EQ(Braced.GetGuidString(), L"{0f8fad5b-d9cb-469f-a165-70867728950e}");
    EXPECT_EQ(UniIdentity(L" no guid 风 ").GetGuidString(), L" no guid 风 ");
}

TEST(AnIdentity, OfNothingHasAnEmptyText)
{
    EXPECT_EQ(UniIdentity().GetGuidString(), L"");
    ExpectEqual(UniIdentity(), UniIdentity(L""));
}

TEST(AnIdentity, IsEqualWhateverTheLetterCase)
{
    ExpectEqual(Lower, Upper);
}

TEST(AnIdentity, IsEqualWithAndWithoutBraces)
{
    ExpectEqual(Lower, Braced);
    ExpectEqual(Upper, Braced);
}

TEST(AnIdentity, DiffersFromAnotherGuid)
{
    ExpectDifferent(Lower.GetGuidString(), Other.GetGuidString());
}

TEST(AnIdentity, ThatIsNoGuidIsEqualToTheSameTextAlone)
{
    ExpectEqual(UniIdentity(L"width"), UniIdentity(L"width"));
    ExpectDifferent(L"width", L"Width");
    ExpectDifferent(L"width", L"{width}");
}

TEST(AnIdentity, IsNoGuidUnlessItsShapeIsRight)
{
    // One digit short, one too many, a hyphen moved, a letter that is no digit, an open brace, a blank in front.
    ExpectDifferent(L"0f8fad5b-d9cb-469f-a165-70867728950", L"0F8FAD5B-D9CB-469F-A165-70867728950");
    ExpectDifferent(L"0f8fad5b-d9cb-469f-a165-70867728950ee", L"0F8FAD5B-D9CB-469F-A165-70867728950EE");
    ExpectDifferent(L"0f8fad5bd-9cb-469f-a165-70867728950e", L"0F8FAD5BD-9CB-469F-A165-70867728950E");
    ExpectDifferent(L"gf8fad5b-d9cb-469f-a165-70867728950e", L"GF8FAD5B-D9CB-469F-A165-70867728950E");
    ExpectDifferent(L"{0f8fad5b-d9cb-469f-a165-70867728950e", L"0f8fad5b-d9cb-469f-a165-70867728950e");
    ExpectDifferent(L" 0f8fad5b-d9cb-469f-a165-70867728950e", L"0f8fad5b-d9cb-469f-a165-70867728950e");
}

TEST(AnIdentity, IsFoundInAMapByAnySpelling)
{
    const std::map<UniIdentity, int> map{{Lower, 1}, {Other, 2}};
    EXPECT_EQ(map.at(Upper), 1);
    EXPECT_EQ(map.at(Braced), 1);
    EXPECT_EQ(map.count(UniIdentity(L"width")), 0U);
}

TEST(AnIdentity, IsCopiedAndMovedWithItsMeaning)
{
    UniIdentity copy(Braced);
    ExpectEqual(copy, Lower);
    const UniIdentity moved(std::move(copy));
    EXPECT_EQ(moved.GetGuidString(), Braced.GetGuidString());
    ExpectEqual(moved, Upper);
}
