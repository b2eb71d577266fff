#include "Catalogue/Keyword.h"
#include "Catalogue/Positions.h"
#include "Catalogue/SearchIndex.h"

#include <gtest/gtest.h>

namespace nuqcloud {
namespace {

using Words = std::vector<std::string>;

SearchIndex Index(const Words& texts)
{
    SearchIndex index;
    for (const std::string& text : texts) {
        index.Add(text);
    }
    return index;
}

TEST(KeywordWords, AreLowerCaseAndSplitAtBlanks)
{
    EXPECT_EQ(KeywordWords("  Pump\t DN50\xE3\x80\x80水泵 "), (Words{"pump", "dn50", "水泵"}));
    EXPECT_EQ(KeywordWords(" \xE3\x80\x80 "), Words());
    EXPECT_EQ(KeywordWords(""), Words());
}

TEST(SearchIndex, FindsEveryTextWithAllWordsInAnyOrder)
{
    const SearchIndex index = Index({"pump dn50", "fan dn50", "pump dn80", "dn50 pump"});
    EXPECT_EQ(index.Find({"pump"}), (Positions{0, 2, 3}));
    EXPECT_EQ(index.Find({"dn50", "pump"}), (Positions{0, 3}));
    EXPECT_EQ(index.Find({"ump", "80"}), (Positions{2}));
    EXPECT_EQ(index.Find({"valve"}), Positions());
}

TEST(SearchIndex, FindsATextOnceHoweverOftenItHoldsTheWord)
{
    EXPECT_EQ(Index({"aaaa", "b", "aa"}).Find({"a"}), (Positions{0, 2}));
}

TEST(SearchIndex, DoesNotMatchAcrossTwoTexts)
{
    EXPECT_EQ(Index({"ab", "cd", ""}).Find({"bc"}), Positions());
    EXPECT_EQ(Index({"", "", "x"}).Find({"x"}), (Positions{2}));
}

TEST(SearchIndex, TakesPatternSignsLiterally)
{
    EXPECT_EQ(Index({"100%", "100x", "a_b", "axb"}).Find({"%"}), (Positions{0}));
    EXPECT_EQ(Index({"100%", "100x", "a_b", "axb"}).Find({"a_b"}), (Positions{2}));
}

TEST(SearchIndex, MatchesEverythingWithoutAWord)
{
    EXPECT_EQ(Index({"a", "b"}).Find({}), (Positions{0, 1}));
    EXPECT_EQ(Index({}).Find({"a"}), Positions());
}

TEST(Positions, AreCountedAndSlicedWithinARange)
{
    const Positions positions{1, 3, 5, 7, 9};
    EXPECT_EQ(CountIn(positions, {3, 5}), 3);
    EXPECT_EQ(CountIn(positions, {0, 100}), 5);
    EXPECT_EQ(CountIn(positions, {4, 1}), 0);
    EXPECT_EQ(SliceIn(positions, {3, 5}, 1, 10), (Positions{5, 7}));
    EXPECT_EQ(SliceIn(positions, {0, 100}, 4, 2), (Positions{9}));
    EXPECT_EQ(SliceIn(positions, {0, 100}, 429496729200, 200), Positions());
    EXPECT_EQ(Intersection(positions, {0, 3, 9, 10}), (Positions{3, 9}));
}

} // namespace
} // namespace nuqcloud
