#include "ResponseHandlers/ThumbnailUrl_p.h"
#include "TarnNuqService/ResponseHandlers/RandomJson.h"

#include <gtest/gtest.h>

namespace {

using namespace testsupport;
using tarnnuq::ThumbnailUrl;

/// What Qt makes of the template, the endpoint filled in first.
std::wstring Reference(const QString& endPoint, const QString& path)
{
    return path.isEmpty() ? std::wstring() : QStringLiteral("%1/%2").arg(endPoint).arg(path).toStdWString();
}

QStringList Pieces()
{
    return {QStringLiteral("%"), QStringLiteral("%1"), QStringLiteral("%2"), QStringLiteral("%02"),
        QStringLiteral("%L1"), QStringLiteral("%L2"), QStringLiteral("%10"), QStringLiteral("%99"),
        QStringLiteral("%%1"), QStringLiteral("%20"), QStringLiteral("/"), QStringLiteral("a.png"),
        QStringLiteral("http://x"), QStringLiteral(" "), QStringLiteral("风"), QStringLiteral("😀"), QString(QChar(0))};
}

TEST(ThumbnailUrlRulesTest, UrlIsTheTemplateFilledWithEndPointThenPath)
{
    RandomJson random;
    for (int round = 0; round < RandomJson::Rounds; ++round) {
        const QString endPoint = random.Text(Pieces(), 4);
        const QString path = random.Text(Pieces(), 4);
        ASSERT_EQ(ThumbnailUrl(endPoint).Join(path), Reference(endPoint, path))
            << endPoint.toStdString() << " | " << path.toStdString();
    }
}

TEST(ThumbnailUrlRulesTest, EndPointsWithEachKindOfMarkerAreFilledLikeQtDoes)
{
    for (const QString& endPoint : Pieces()) {
        for (const QString& path : Pieces()) {
            EXPECT_EQ(ThumbnailUrl(endPoint).Join(path), Reference(endPoint, path))
                << endPoint.toStdString() << " | " << path.toStdString();
        }
    }
}

TEST(ThumbnailUrlRulesTest, OneObjectJoinsManyPaths)
{
    const ThumbnailUrl url(QStringLiteral("http://x"));
    EXPECT_EQ(url.Join(QStringLiteral("a")), L"http://x/a");
    EXPECT_EQ(url.Join(QStringLiteral("b")), L"http://x/b");
}

TEST(ThumbnailUrlRulesTest, PathThatIsNoTextIsEmpty)
{
    const ThumbnailUrl url(QStringLiteral("http://x"));
    for (const QJsonValue& path : {QJsonValue(), QJsonValue(QJsonValue::Undefined), QJsonValue(5), QJsonValue(true),
             QJsonValue(QJsonArray{QStringLiteral("a")}), QJsonValue(QJsonObject{})}) {
        EXPECT_EQ(url.Join(path), L"");
    }
}

} // namespace
