#include "Text/JsonWriter.h"

#include <gtest/gtest.h>
#include <limits>

namespace nuqcloud {
namespace {

TEST(JsonWriter, PutsCommasBetweenMembersAndElements)
{
    JsonWriter out;
    out.BeginObject().Key("a").Integer(-1).Key("b").BeginArray().Text("x").Null().Boolean(true).BeginObject();
    out.EndObject().EndArray().Key("c").Raw("[1]").EndObject();
    EXPECT_EQ(out.Take(), R"({"a":-1,"b":["x",null,true,{}],"c":[1]})");
}

TEST(JsonWriter, EscapesWhatJsonRequiresAndNothingElse)
{
    JsonWriter out;
    out.Text("\"\\\n\r\t\x01\x1f/泵\x7f");
    EXPECT_EQ(out.Take(), "\"\\\"\\\\\\n\\r\\t\\u0001\\u001f/泵\x7f\"");
}

TEST(JsonWriter, WritesNumbersShortAndExact)
{
    JsonWriter out;
    out.BeginArray().Number(1.0).Number(0.1).Number(3.5).Integer(std::numeric_limits<std::int64_t>::min()).EndArray();
    EXPECT_EQ(out.Take(), "[1,0.1,3.5,-9223372036854775808]");
}

TEST(JsonWriter, IsEmptyAfterItsTextWasTaken)
{
    JsonWriter out;
    out.BeginArray().Integer(1).EndArray();
    out.Take();
    out.BeginArray().EndArray();
    EXPECT_EQ(out.Take(), "[]");
}

} // namespace
} // namespace nuqcloud
