#include "nuq-cloud/support/CloudProcess.h"
#include "support/NuqRunner.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <gtest/gtest.h>
#include <set>

namespace nuqtest {
namespace {

/// The program beside the real stand-in cloud with the bundled library.
class CloudSessionTest : public ::testing::Test
{
protected:
    CloudSessionTest()
        : cloud({QStringLiteral("--library"), QStringLiteral(NUQ_SAMPLE_LIBRARY), QStringLiteral("--port"),
              QStringLiteral("0"), QStringLiteral("--quiet"), QStringLiteral("--write-config"),
              runner.ApplicationFolder()})
    {
        runner.environment.insert(QStringLiteral("NUQ_TOKEN"), QStringLiteral("demo-token"));
        runner.environment.insert(QStringLiteral("NUQ_TOKEN_QA"), QStringLiteral("demo-token-qa"));
    }

    void SetUp() override { ASSERT_TRUE(cloud.WaitUntilReady()) << cloud.Errors(); }

    QJsonObject Document(const QStringList& arguments)
    {
        const NuqResult result = runner.Run(arguments + QStringList{QStringLiteral("--json")});
        EXPECT_EQ(result.code, 0) << arguments.join(QLatin1Char(' ')).toStdString() << "\n" << result.err;
        return QJsonDocument::fromJson(QByteArray::fromStdString(result.out)).object();
    }

    QJsonArray Categories() { return Document({"categories"}).value(QLatin1String("categories")).toArray(); }

    QString FirstComponentId()
    {
        const QJsonArray list = Document({"components"}).value(QLatin1String("components")).toArray();
        EXPECT_FALSE(list.isEmpty());
        return list.first().toObject().value(QLatin1String("id")).toString();
    }

    NuqRunner runner;
    cloudtest::CloudProcess cloud;
};

TEST_F(CloudSessionTest, CountsAreThoseOfTheListsTheyStandFor)
{
    const QJsonArray categories = Categories();
    ASSERT_GT(categories.size(), 2);
    for (const int at : {0, 1, categories.size() / 2, categories.size() - 1}) {
        const QJsonObject category = categories.at(at).toObject();
        const QString code = category.value(QLatin1String("code")).toString();
        const QJsonObject all = Document({"components", "--category", code, "--all"});
        std::set<QString> ids;
        for (const QJsonValue& component : all.value(QLatin1String("components")).toArray())
            ids.insert(component.toObject().value(QLatin1String("id")).toString());
        EXPECT_EQ(static_cast<int>(ids.size()), category.value(QLatin1String("count")).toInt()) << code.toStdString();
        EXPECT_EQ(all.value(QLatin1String("summary")).toObject().value(QLatin1String("totalCount")).toInt(),
            category.value(QLatin1String("count")).toInt());
    }
}

TEST_F(CloudSessionTest, TheServiceGivesTheSameCountsAsTheOwnRequest)
{
    const QJsonArray service = Document({"categories", "--service"}).value(QLatin1String("categories")).toArray();
    const QJsonArray own = Categories();
    ASSERT_EQ(service.size(), own.size());
    int total = 0;
    int serviceTotal = 0;
    for (int at = 0; at < own.size(); ++at) {
        total += own.at(at).toObject().value(QLatin1String("count")).toInt();
        serviceTotal += service.at(at).toObject().value(QLatin1String("count")).toInt();
    }
    EXPECT_EQ(total, serviceTotal);
}

TEST_F(CloudSessionTest, EveryCommandWorksInBothEnvironmentsAndLanguages)
{
    const QString id = FirstComponentId();
    const QString category = Document({"component", id})
                                 .value(QLatin1String("component"))
                                 .toObject()
                                 .value(QLatin1String("categoryCode"))
                                 .toString();
    const std::vector<QStringList> commands = {{"env"}, {"version"}, {"categories"}, {"categories", "--tree"},
        {"categories", "--keyword", "DN"}, {"categories", "--service"}, {"components"}, {"components", "--all"},
        {"components", "--category", category, "--page", "1", "--page-size", "3"}, {"component", id}, {"exists", id},
        {"specifications", id}, {"properties", category, "--cloud"}, {"projects"}, {"doctor"}, {"tour"}};
    for (const char* environment : {"prod", "qa"}) {
        for (const char* language : {"en", "zh"}) {
            for (const QStringList& command : commands) {
                const QStringList arguments = command + QStringList{"--environment", QLatin1String(environment),
                                                            "--lang", QLatin1String(language)};
                const NuqResult text = runner.Run(arguments);
                EXPECT_EQ(text.code, 0) << arguments.join(QLatin1Char(' ')).toStdString() << text.err;
                EXPECT_FALSE(text.out.empty());
                EXPECT_FALSE(Document(arguments).isEmpty());
            }
        }
    }
}

TEST_F(CloudSessionTest, PagesTogetherAreTheWholeList)
{
    QStringList paged;
    for (int page = 1; page <= 3; ++page) {
        const QJsonObject document = Document({"components", "--page-size", "2", "--page", QString::number(page)});
        for (const QJsonValue& component : document.value(QLatin1String("components")).toArray())
            paged << component.toObject().value(QLatin1String("id")).toString();
    }
    QStringList all;
    for (const QJsonValue& component :
        Document({"components", "--all", "--page-size", "50"}).value(QLatin1String("components")).toArray())
        all << component.toObject().value(QLatin1String("id")).toString();
    EXPECT_EQ(paged, all.mid(0, 6));
}

TEST_F(CloudSessionTest, LanguagesGiveOtherNamesForTheSameIds)
{
    const QString id = FirstComponentId();
    const auto name = [&](const char* language) {
        return Document({"component", id, "--lang", QLatin1String(language)})
            .value(QLatin1String("component"))
            .toObject()
            .value(QLatin1String("name"))
            .toString();
    };
    EXPECT_NE(name("en"), name("zh"));
}

TEST_F(CloudSessionTest, WrongTokensAndUnknownThingsHaveTheirCodes)
{
    EXPECT_EQ(runner.Run({"component", "no-such-component"}).code, 3);
    EXPECT_EQ(runner.Run({"specifications", "no-such-component"}).code, 3);
    EXPECT_EQ(runner.Run({"component", ".."}).code, 3);
    runner.environment.insert(QStringLiteral("NUQ_TOKEN"), QStringLiteral("wrong"));
    EXPECT_EQ(runner.Run({"categories"}).code, 4);
    EXPECT_EQ(runner.Run({"doctor"}).code, 7);
}

} // namespace
} // namespace nuqtest
