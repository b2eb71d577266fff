#include "Http/ByteRange.h"

#include <gtest/gtest.h>
#include <ostream>

namespace nuqcloud {
namespace {

struct Case
{
    const char* header;
    std::size_t size;
    ByteRange::Kind kind;
    std::size_t first;
    std::size_t length;
};

void PrintTo(const Case& item, std::ostream* out)
{
    *out << item.header << " of " << item.size;
}

class ByteRanges : public ::testing::TestWithParam<Case>
{
};

TEST_P(ByteRanges, AreChosenByTheHeader)
{
    const Case& item = GetParam();
    const ByteRange range = ChooseRange(item.header, item.size);
    EXPECT_EQ(range.kind, item.kind);
    EXPECT_EQ(range.first, item.first);
    EXPECT_EQ(range.length, item.length);
}

constexpr auto kWhole = ByteRange::Kind::Whole;
constexpr auto kPart = ByteRange::Kind::Part;
constexpr auto kNone = ByteRange::Kind::Unsatisfiable;

INSTANTIATE_TEST_SUITE_P(All, ByteRanges,
    ::testing::Values(Case{"", 100, kWhole, 0, 100}, Case{"bytes=0-9", 100, kPart, 0, 10},
        Case{"bytes=99-99", 100, kPart, 99, 1}, Case{"bytes=90-", 100, kPart, 90, 10},
        Case{"bytes=90-1000", 100, kPart, 90, 10}, Case{"bytes=-10", 100, kPart, 90, 10},
        Case{"bytes=-1000", 100, kPart, 0, 100}, Case{"bytes=100-", 100, kNone, 0, 0},
        Case{"bytes=-0", 100, kNone, 0, 0}, Case{"bytes=0-0", 0, kNone, 0, 0}, Case{"bytes=9-3", 100, kWhole, 0, 100},
        Case{"bytes=a-b", 100, kWhole, 0, 100}, Case{"bytes=-", 100, kWhole, 0, 100},
        Case{"bytes=5", 100, kWhole, 0, 100}, Case{"items=0-9", 100, kWhole, 0, 100},
        Case{"bytes=0-9,20-29", 100, kWhole, 0, 100}, Case{"bytes=99999999999999999999999-", 100, kWhole, 0, 100}));

} // namespace
} // namespace nuqcloud
