#include "Output/Table.h"
#include "Output/FieldList.h"
#include "Output/TextWidth.h"
#include "Output/VisibleText.h"

#include <QString>
#include <gtest/gtest.h>

namespace nuq {
namespace {

TEST(TextWidth, CountsColumnsNotBytes)
{
    EXPECT_EQ(TextWidth(""), 0);
    EXPECT_EQ(TextWidth("abc"), 3);
    EXPECT_EQ(TextWidth("水泵A"), 5);
    EXPECT_EQ(TextWidth("ＤＮ５０"), 8) << "full-width forms";
    EXPECT_EQ(TextWidth("e\u0301"), 1) << "a combining accent takes no column";
    EXPECT_EQ(TextWidth("é"), 1);
    EXPECT_EQ(TextWidth("└─ "), 3);
    EXPECT_EQ(TextWidth("\xff\xfe"), 2) << "damaged bytes still take room";
    EXPECT_EQ(TextWidth("\033[1;32m水\033[0m"), 2) << "colours take none";
    EXPECT_EQ(TextWidth("\033[1"), 0);
}

TEST(TextWidth, CutsAtWholeCharacters)
{
    EXPECT_EQ(CutToWidth("abcdef", 6), "abcdef");
    EXPECT_EQ(CutToWidth("abcdef", 4), "abc…");
    EXPECT_EQ(CutToWidth("水泵房", 4), "水…");
    EXPECT_EQ(CutToWidth("水泵房", 5), "水泵…");
    EXPECT_EQ(CutToWidth("水", 1), "…");
}

TEST(VisibleText, ShowsWhatWouldActOnATerminal)
{
    EXPECT_EQ(VisibleText(QStringLiteral("a\nb\r\tc")), "a\\nb\\r\\tc");
    EXPECT_EQ(VisibleText(std::wstring_view(L"\x1b]0;title\x07\x9bm\x7f")), "\\x1b]0;title\\x07\\x9bm\\x7f");
    EXPECT_EQ(VisibleText(std::wstring_view(L"a\u202Eb\u2066c\u200Fd\uFEFF\u2028")),
        "a\\u202eb\\u2066c\\u200fd\\ufeff\\u2028");
    EXPECT_EQ(VisibleText(std::wstring_view(L"水泵 é 😀")), "水泵 é 😀");
}

TEST(Table, AlignsWideAndCombiningCharacters)
{
    Table table({{"NAME"}, {"N", Table::Align::Right}, {"UNIT"}}, Style());
    table.AddRow({"水泵", "5", "m³"});
    table.AddRow({"e\u0301", "1234", ""});
    table.AddRow({"pump set", "12", "mm"});
    EXPECT_EQ(table.Take(), "NAME         N  UNIT\n"
                            "水泵         5  m³\n"
                            "e\u0301         1234\n"
                            "pump set    12  mm\n");
}

TEST(Table, KeepsItsWidthsAndWritesTitlesOnce)
{
    Table table({{"A"}, {"B"}}, Style());
    table.AddRow({"long", "1"});
    EXPECT_EQ(table.Take(), "A     B\nlong  1\n");
    table.AddRow({"x", "2"});
    EXPECT_EQ(table.Take(), "x     2\n");
    EXPECT_EQ(table.Take(), "");
}

TEST(Table, ShrinksOnlyTheColumnsThatMay)
{
    Table table({{"ID"}, {"NAME", Table::Align::Left, true}, {"S"}}, Style(), 20);
    table.AddRow({"1234567", "a very long name of a component", "ok"});
    EXPECT_EQ(table.Take(), "ID       NAME      S\n1234567  a very …  ok\n");
}

TEST(Table, ColoursTitlesOnlyWhenAsked)
{
    Table table({{"A"}}, Style(true));
    table.AddRow({"1"});
    EXPECT_EQ(table.Take(), "\033[1mA\033[0m\n1\n");
}

TEST(Table, AlignsCellsOfDifferentColours)
{
    Table table({{""}, {"CHECK"}}, Style(true));
    table.AddRow({"\033[32m✓\033[0m", "clock"});
    table.AddRow({"\033[2m-\033[0m", "token"});
    table.AddRow({"", "→ mend it"});
    EXPECT_EQ(table.Take(), "   \033[1mCHECK\033[0m\n\033[32m✓\033[0m  clock\n\033[2m-\033[0m  token\n   → mend it\n");
}

TEST(FieldList, AlignsValues)
{
    FieldList fields;
    fields.Add("名称", "a");
    fields.Add("Id", "b");
    fields.Add("", "c");
    fields.Add("Empty", "");
    EXPECT_EQ(fields.Text(Style()), "名称   a\nId     b\n       c\nEmpty\n");
}

} // namespace
} // namespace nuq
