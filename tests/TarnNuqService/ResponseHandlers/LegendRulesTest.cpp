#include "ResponseHandlers/LegendReader_p.h"

#include "Records/ILegend.h"
#include "ResponseHandlers/ThumbnailUrl_p.h"
#include "TarnNuqService/ResponseHandlers/RandomJson.h"

#include <gtest/gtest.h>

namespace {

using namespace testsupport;
using namespace tarnnuq;

ILegend Read(const char* key, const QJsonValue& value)
{
    QJsonObject object;
    object.insert(QLatin1String(key), value);
    ILegend legend;
    ReadLegend(object, ThumbnailUrl(QStringLiteral("http://x")), legend);
    return legend;
}

/// The views by their table: numbers from zero, then the words.
ILegend::LegendType ReferenceView(const QJsonValue& value)
{
    const ILegend::LegendType views[] = {ILegend::Plan, ILegend::Elevation, ILegend::Profile};
    if (value.isDouble()) {
        const double number = value.toDouble();
        const bool whole = number == std::trunc(number) && std::fabs(number + 0.5) < 2147483648.0;
        const double read = whole ? number : 0.0;
        return read >= 0.0 && read <= 2.0 ? views[static_cast<int>(read)] : ILegend::Unknown;
    }
    const QStringList words{QStringLiteral("PLAN"), QStringLiteral("ELEVATION"), QStringLiteral("PROFILE")};
    const int word = words.indexOf(value.toString().trimmed().toUpper());
    return value.isString() && word >= 0 ? views[word] : ILegend::Unknown;
}

TEST(LegendRulesTest, IdIsTheFixedPointTextReadBack)
{
    RandomJson random;
    for (int round = 0; round < RandomJson::Rounds; ++round) {
        const double number = random.Number();
        ASSERT_EQ(Read("id", number).Id, QString::number(number, 'f', 0).toLongLong()) << number;
    }
}

TEST(LegendRulesTest, IdThatIsNoNumberIsZero)
{
    RandomJson random;
    for (int round = 0; round < RandomJson::Rounds; ++round) {
        const QJsonValue value = random.Value({QStringLiteral("1"), QStringLiteral("2")});
        if (!value.isDouble()) {
            ASSERT_EQ(Read("id", value).Id, 0);
        }
    }
}

TEST(LegendRulesTest, ViewFollowsTheTable)
{
    const QStringList pieces{QStringLiteral(" "), QStringLiteral("plan"), QStringLiteral("PLAN"),
        QStringLiteral("Elevation"), QStringLiteral("profile"), QStringLiteral("\t"), QStringLiteral("0"),
        QStringLiteral("s")};
    RandomJson random;
    for (int round = 0; round < 10 * RandomJson::Rounds; ++round) {
        const QJsonValue value = random.Below(2) == 0 ? random.Value(pieces) : QJsonValue(random.Below(7) - 2);
        ASSERT_EQ(Read("placeholderType", value).Type, ReferenceView(value))
            << value.toString().toStdString() << value.toDouble();
    }
}

} // namespace
