#include "Output/JsonWriter.h"

#include <QString>
#include <cmath>
#include <gtest/gtest.h>

namespace nuq {
namespace {

std::string Written(const std::wstring& text)
{
    JsonWriter json;
    json.Text(std::wstring_view(text));
    return json.Buffer();
}

std::string Written(double number)
{
    JsonWriter json;
    json.Number(number);
    return json.Buffer();
}

TEST(JsonWriter, WritesObjectsAndArrays)
{
    JsonWriter json;
    json.BeginObject();
    json.Key("a");
    json.BeginArray();
    json.Number(std::int64_t{1});
    json.Null();
    json.BeginObject();
    json.EndObject();
    json.EndArray();
    json.Member("b", true);
    json.Member("c", "text");
    json.Member("d", QStringLiteral("文"));
    json.Member("e", std::int64_t{-9007199254740993});
    json.EndObject();
    EXPECT_EQ(json.Take(), "{\"a\":[1,null,{}],\"b\":true,\"c\":\"text\",\"d\":\"文\",\"e\":-9007199254740993}\n");
    EXPECT_EQ(json.Buffer(), "");
}

TEST(JsonWriter, PutsElementsOfAListOnLinesOfTheirOwn)
{
    JsonWriter json;
    json.BeginArray(true);
    json.Number(std::int64_t{1});
    json.BeginArray();
    json.Number(std::int64_t{2});
    json.Number(std::int64_t{3});
    json.EndArray();
    json.EndArray();
    EXPECT_EQ(json.Buffer(), "[\n1,\n[2,3]\n]");
    json.Clear();
    json.BeginArray(true);
    json.EndArray();
    EXPECT_EQ(json.Buffer(), "[]");
}

TEST(JsonWriter, EscapesWhatJsonAndTerminalsMustNotSee)
{
    EXPECT_EQ(Written(L"a\"b\\c\nd\te/"), "\"a\\\"b\\\\c\\nd\\u0009e/\"");
    EXPECT_EQ(Written(std::wstring(L"\0\x1b[31m\x7f\x9b", 8)), "\"\\u0000\\u001b[31m\\u007f\\u009b\"");
}

TEST(JsonWriter, WritesUtf8ForEveryPlane)
{
    EXPECT_EQ(Written(L"é水\U0001F600"), "\"é水😀\"");
}

TEST(JsonWriter, ReplacesLoneSurrogates)
{
    EXPECT_EQ(Written(std::wstring(1, static_cast<wchar_t>(0xD800)) + L"x"), "\"\xEF\xBF\xBDx\"");
    EXPECT_EQ(Written(std::wstring(1, static_cast<wchar_t>(0xDFFF))), "\"\xEF\xBF\xBD\"");
}

TEST(JsonWriter, WritesNumbersThatReadBackTheSame)
{
    EXPECT_EQ(Written(1.0), "1");
    EXPECT_EQ(Written(0.1), "0.1");
    EXPECT_EQ(Written(-2.5e300), "-2.5e+300");
    EXPECT_EQ(Written(std::nan("")), "null");
    EXPECT_EQ(Written(HUGE_VAL), "null");
}

TEST(JsonWriter, WritesIdsAsTexts)
{
    JsonWriter json;
    json.NumberAsText(-2147483648LL);
    EXPECT_EQ(json.Buffer(), "\"-2147483648\"");
}

TEST(JsonWriter, WritesLongTextsWhereverASpecialCharacterStands)
{
    for (const std::size_t at : {0, 1, 254, 255, 256, 257, 511, 512, 599}) {
        std::wstring text(600, L'x');
        std::string expected(600, 'x');
        text[at] = L'"';
        expected.replace(at, 1, "\\\"");
        EXPECT_EQ(Written(text), "\"" + expected + "\"") << at;
    }
}

TEST(JsonWriter, EscapesKeysFromOutside)
{
    JsonWriter json;
    json.BeginObject();
    json.Key(std::wstring(L"a\"b"));
    json.Bool(false);
    json.Key(std::wstring(L"水"));
    json.Bool(true);
    json.EndObject();
    EXPECT_EQ(json.Buffer(), "{\"a\\\"b\":false,\"水\":true}");
}

} // namespace
} // namespace nuq
