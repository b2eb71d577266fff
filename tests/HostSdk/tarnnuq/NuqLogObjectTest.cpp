#include "tarnnuq/NuqLogObject.h"

#include <gtest/gtest.h>

using tarnnuq::NuqLogObject;

namespace {

const QString Chinese = QStringLiteral("风管");

void ExpectSingleText(const NuqLogObject& record, const QString& text)
{
    EXPECT_EQ(record.Text(), text);
    EXPECT_EQ(record.Parts(), QStringList(text));
}

} // namespace

TEST(ALogRecord, TakesAQString)
{
    ExpectSingleText(NuqLogObject(Chinese), Chinese);
}

TEST(ALogRecord, TakesAWideString)
{
    ExpectSingleText(NuqLogObject(std::wstring(L"风管")), Chinese);
}

TEST(ALogRecord, TakesNarrowTextAsUtf8)
{
    ExpectSingleText(NuqLogObject("\xE9\xA3\x8E\xE7\xAE\xA1"), Chinese);
}

TEST(ALogRecord, TakesWideText)
{
    ExpectSingleText(NuqLogObject(L"风管"), Chinese);
}

TEST(ALogRecord, TakesANullPointerAsAnEmptyText)
{
    ExpectSingleText(NuqLogObject(static_cast<const char*>(nullptr)), QString());
    ExpectSingleText(NuqLogObject(static_cast<const wchar_t*>(nullptr)), QString());
}

TEST(ALogRecord, ReplacesInvalidBytes)
{
    ExpectSingleText(NuqLogObject("a\xFF"), QStringLiteral("a\uFFFD"));
}

TEST(ALogRecord, KeepsCharactersBeyondTheBasicPlane)
{
    ExpectSingleText(NuqLogObject(L"\U00020000"), QStringLiteral("\U00020000"));
}

TEST(ALogRecord, OfTwoPartsKeepsThemApart)
{
    const NuqLogObject record{"caption: ", std::wstring(L"value")};
    EXPECT_EQ(record.Parts(), (QStringList{QStringLiteral("caption: "), QStringLiteral("value")}));
    EXPECT_EQ(record.Text(), QStringLiteral("caption: value"));
}

TEST(ALogRecord, OfTwoNarrowTextsIsNotTakenForAnIteratorPair)
{
    const NuqLogObject record{"first", "second"};
    EXPECT_EQ(record.Parts(), (QStringList{QStringLiteral("first"), QStringLiteral("second")}));
}

TEST(ALogRecord, OfTwoWideTextsIsNotTakenForAnIteratorPair)
{
    const NuqLogObject record{L"first", L"second"};
    EXPECT_EQ(record.Parts(), (QStringList{QStringLiteral("first"), QStringLiteral("second")}));
}

TEST(ALogRecord, KeepsEmptyParts)
{
    const NuqLogObject record{"Authorization header: ", std::wstring()};
    EXPECT_EQ(record.Parts(), (QStringList{QStringLiteral("Authorization header: "), QString()}));
}

TEST(ALogRecord, OfCompositesHasAllTheirParts)
{
    const NuqLogObject inner{"b", "c"};
    const NuqLogObject record{"a", inner, "d"};
    EXPECT_EQ(record.Parts().join(QLatin1Char('|')), QStringLiteral("a|b|c|d"));
}

TEST(ALogRecord, WithoutPartsIsEmpty)
{
    const NuqLogObject record(std::initializer_list<NuqLogObject>{});
    EXPECT_TRUE(record.Parts().isEmpty());
    EXPECT_TRUE(record.Text().isEmpty());
}

TEST(ALogRecord, IsCopiedWithItsParts)
{
    const NuqLogObject record{"a", "b"};
    const NuqLogObject byCopy(record);
    const NuqLogObject byBraces{record};
    EXPECT_EQ(byCopy.Parts(), record.Parts());
    EXPECT_EQ(byBraces.Parts(), record.Parts());
}
