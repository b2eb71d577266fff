#include "Reading/TsvTable.h"

#include "Reading/SourceError.h"

#include <gtest/gtest.h>

namespace {

using samplelibrary::SourceError;
using samplelibrary::TsvTable;

std::string FaultOf(const std::function<void()>& action)
{
    try {
        action();
    } catch (const SourceError& fault) {
        return fault.what();
    }
    return "no fault";
}

TEST(TsvTable, ReadsRowsBelowItsHeader)
{
    const TsvTable table("t.tsv", "# comment\ncode\tname\n\nA\tone\r\n# more\nB\t\n");
    ASSERT_EQ(table.RowCount(), 2U);
    EXPECT_EQ(table.Cell(0, "name"), "one");
    EXPECT_EQ(table.Cell(1, "code"), "B");
    EXPECT_EQ(table.Cell(1, "name"), "");
    EXPECT_EQ(table.Where(1), "t.tsv:6");
}

TEST(TsvTable, NamesTheLineWithTheWrongNumberOfCells)
{
    EXPECT_EQ(FaultOf([] { TsvTable("t.tsv", "a\tb\n1\t2\n3\n"); }), "t.tsv:3: has 1 cells instead of 2");
}

TEST(TsvTable, NamesAMissingColumn)
{
    const TsvTable table("t.tsv", "a\n1\n");
    EXPECT_EQ(FaultOf([&] { table.Cell(0, "b"); }), "t.tsv: has no column \"b\"");
}

TEST(TsvTable, RefusesWhatIsNoWholeNumber)
{
    const TsvTable table("t.tsv", "a\tb\tc\n1\t1.5\tx\n");
    EXPECT_EQ(table.Integer(0, "a"), 1);
    EXPECT_EQ(FaultOf([&] { table.Integer(0, "b"); }), "t.tsv:2: \"1.5\" under \"b\" is no whole number");
    EXPECT_EQ(FaultOf([&] { table.Integer(0, "c"); }), "t.tsv:2: \"x\" under \"c\" is no whole number");
}

} // namespace
