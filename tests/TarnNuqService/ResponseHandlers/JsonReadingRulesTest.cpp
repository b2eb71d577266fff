#include "ResponseHandlers/JsonReading_p.h"
#include "TarnNuqService/ResponseHandlers/RandomJson.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

using namespace testsupport;
using namespace tarnnuq;

QStringList IdPieces()
{
    return {QStringLiteral("0"), QStringLiteral("17"), QStringLiteral("-"), QStringLiteral("."), QStringLiteral("e"),
        QStringLiteral(" "), QStringLiteral("风"), QStringLiteral("%1"), QString(QChar(0))};
}

TEST(JsonReadingRulesTest, IdTextOfANumberIsItsFixedPointTextWithoutDecimals)
{
    RandomJson random;
    for (int round = 0; round < RandomJson::Rounds; ++round) {
        const double number = random.Number();
        ASSERT_EQ(IdText(number), QString::number(number, 'f', 0).toStdWString()) << number;
    }
}

TEST(JsonReadingRulesTest, IdTextOfEveryWholeNumberAroundThePowersOfTwoIsExact)
{
    for (int power = 0; power < 63; ++power) {
        for (const qint64 shift : {-2, -1, 0, 1, 2}) {
            const qint64 number = (qint64(1) << power) + shift;
            const double read = static_cast<double>(number);
            EXPECT_EQ(IdText(QJsonValue(number)), QString::number(read, 'f', 0).toStdWString()) << number;
            EXPECT_EQ(IdText(QJsonValue(-number)), QString::number(-read, 'f', 0).toStdWString()) << -number;
        }
    }
}

TEST(JsonReadingRulesTest, WideTextIsWhatQtMakesOfAText)
{
    RandomJson random;
    for (int round = 0; round < RandomJson::Rounds; ++round) {
        QString text;
        for (int length = random.Below(40); length > 0; --length) {
            // Every code unit, the surrogates more often than the others.
            text += QChar(random.Below(2) == 0 ? random.Below(0x10000) : 0xD7F0 + random.Below(0x820));
        }
        ASSERT_EQ(WideText(text), text.toStdWString()) << "round " << round;
    }
    EXPECT_EQ(WideText(QString()), L"");
}

TEST(JsonReadingRulesTest, IdTextOfATextIsThatText)
{
    RandomJson random;
    for (int round = 0; round < RandomJson::Rounds; ++round) {
        const QString text = random.Text(IdPieces());
        ASSERT_EQ(IdText(text), text.toStdWString());
    }
}

TEST(JsonReadingRulesTest, IdTextOfAnythingElseIsEmpty)
{
    for (const QJsonValue& value : {QJsonValue(), QJsonValue(QJsonValue::Undefined), QJsonValue(true),
             QJsonValue(QJsonArray{1}), QJsonValue(QJsonObject{{QStringLiteral("id"), 1}})}) {
        EXPECT_EQ(IdText(value), L"");
    }
}

TEST(JsonReadingRulesTest, IntIsTheNumberWhenItIsAWhole32BitOneAndElseZero)
{
    RandomJson random;
    for (int round = 0; round < 10 * RandomJson::Rounds; ++round) {
        const double number = random.Number();
        const bool fits = number == std::trunc(number) && number >= std::numeric_limits<int>::min() &&
                          number <= std::numeric_limits<int>::max();
        const QJsonObject object{{QStringLiteral("n"), number}};
        ASSERT_EQ(IntMember(object, QLatin1String("n")), fits ? static_cast<int>(number) : 0) << number;
    }
}

TEST(JsonReadingRulesTest, MembersOfAnotherTypeAreDefaults)
{
    RandomJson random;
    for (int round = 0; round < RandomJson::Rounds; ++round) {
        QJsonObject object;
        const QJsonValue value = random.Value(IdPieces());
        object.insert(QStringLiteral("m"), value);
        ASSERT_EQ(TextMember(object, QLatin1String("m")),
            value.isString() ? value.toString().toStdWString() : std::wstring());
        ASSERT_EQ(BoolMember(object, QLatin1String("m")), value.isBool() && value.toBool());
        if (!value.isDouble()) {
            ASSERT_EQ(IntMember(object, QLatin1String("m")), 0);
        }
    }
}

} // namespace
