#include "support/BuilderProcess.h"
#include "support/BuiltLibrary.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

struct BadOption
{
    const char* Name;
    QStringList Arguments;
    const char* Part; ///< of the message
};

class BadOptions : public testing::TestWithParam<BadOption>
{
};

TEST_P(BadOptions, GiveOneHelpfulLineAndCode2)
{
    const BuilderRun run = RunBuilderProcess(GetParam().Arguments);
    EXPECT_EQ(run.ExitCode, 2);
    EXPECT_EQ(run.Output, "");
    EXPECT_EQ(run.Errors.find("sample-library-builder: "), 0U) << run.Errors;
    EXPECT_NE(run.Errors.find(GetParam().Part), std::string::npos) << run.Errors;
    EXPECT_EQ(std::count(run.Errors.begin(), run.Errors.end(), '\n'), 1) << run.Errors;
}

INSTANTIATE_TEST_SUITE_P(CommandLine, BadOptions,
    testing::Values(BadOption{"NoFolder", {}, "OUT"}, BadOption{"UnknownOption", {"x", "--colour"}, "--colour"},
        BadOption{"NoComponents", {"x", "--components", "0"}, "--components"},
        BadOption{"ComponentsNoNumber", {"x", "--components", "many"}, "--components"},
        BadOption{"TooManyComponents", {"x", "--components", "10000001"}, "--components"},
        BadOption{"NegativeComponents", {"x", "--components", "-5"}, "--components"},
        BadOption{"TooManyEndCategories", {"x", "--end-categories", "40001"}, "--end-categories"},
        BadOption{"NoJobs", {"x", "--jobs", "0"}, "--jobs"}, BadOption{"TwoFolders", {"x", "y"}, "y"}),
    [](const testing::TestParamInfo<BadOption>& row) { return row.param.Name; });

TEST(CommandLine, TellsItsVersion)
{
    const BuilderRun run = RunBuilderProcess({QStringLiteral("--version")});
    EXPECT_EQ(run.ExitCode, 0);
    EXPECT_EQ(run.Output, "sample-library-builder " SAMPLE_LIBRARY_VERSION "\n");
}

TEST(CommandLine, HelpNamesEveryOption)
{
    const BuilderRun run = RunBuilderProcess({QStringLiteral("--help")});
    EXPECT_EQ(run.ExitCode, 0);
    for (const char* option :
        {"OUT", "--components", "--end-categories", "--force", "--jobs", "--quiet", "--version", "--help"}) {
        EXPECT_NE(run.Output.find(option), std::string::npos) << option;
    }
    EXPECT_EQ(run.Errors, "");
}

TEST(CommandLine, BuildsAsManyComponentsAndEndCategoriesAsAsked)
{
    const QTemporaryDir place;
    const QString folder = place.filePath(QStringLiteral("库 library"));
    const BuilderRun run = RunBuilderProcess({folder, QStringLiteral("--components"), QStringLiteral("333"),
        QStringLiteral("--end-categories"), QStringLiteral("77")});
    EXPECT_EQ(run.ExitCode, 0) << run.Errors;
    EXPECT_EQ(run.Errors, "");
    BuiltLibrary library(folder.toStdString());
    EXPECT_EQ(library.Count("SELECT count(*) FROM component"), 333);
    EXPECT_EQ(library.Count("SELECT count(*) FROM category WHERE level = 2"), 77);
    EXPECT_EQ(library.Count("SELECT count(*) FROM category WHERE level = 2 AND component_count = 0"), 0);
    EXPECT_EQ(run.Output, "built " + folder.toStdString() + ": 333 components in " +
                              std::to_string(library.Count("SELECT count(*) FROM category")) + " categories\n");
}

TEST(CommandLine, MoreComponentsComeAsFurtherSeriesWithTheSameIdsForTheFirst)
{
    const QTemporaryDir place;
    const QString folder = place.filePath(QStringLiteral("many"));
    ASSERT_EQ(
        RunBuilderProcess({folder, QStringLiteral("--components"), QStringLiteral("3000"),
                              QStringLiteral("--end-categories"), QStringLiteral("40"), QStringLiteral("--quiet")})
            .ExitCode,
        0);
    BuiltLibrary many(folder.toStdString());
    BuiltLibrary bundled;
    EXPECT_EQ(many.Count("SELECT count(*) FROM component"), 3000);
    EXPECT_GT(many.Count("SELECT count(*) FROM component WHERE name_en LIKE '%, series 2'"), 100);
    EXPECT_EQ(many.Count(
                  "SELECT count(*) FROM (SELECT 1 FROM component GROUP BY category_code, name_zh HAVING count(*) > 1)"),
        0);
    for (const std::string& id : many.Texts("SELECT id FROM component WHERE id LIKE '%-001' LIMIT 10")) {
        EXPECT_EQ(many.Texts("SELECT name_zh || family_types FROM component WHERE id = '" + id + "'"),
            bundled.Texts("SELECT name_zh || family_types FROM component WHERE id = '" + id + "'"));
    }
}

TEST(CommandLine, MoreEndCategoriesComeAsFurtherGroups)
{
    const QTemporaryDir place;
    const QString folder = place.filePath(QStringLiteral("wide"));
    ASSERT_EQ(
        RunBuilderProcess({folder, QStringLiteral("--components"), QStringLiteral("1500"),
                              QStringLiteral("--end-categories"), QStringLiteral("1400"), QStringLiteral("--quiet")})
            .ExitCode,
        0);
    BuiltLibrary library(folder.toStdString());
    EXPECT_EQ(library.Count("SELECT count(*) FROM category WHERE level = 2"), 1400);
    EXPECT_GT(library.Count("SELECT count(*) FROM category WHERE code LIKE '%-G2' AND name_zh LIKE '% 2组'"), 600);
    EXPECT_EQ(
        library.Count("SELECT count(DISTINCT code) FROM category"), library.Count("SELECT count(*) FROM category"));
    EXPECT_EQ(library.Count("SELECT sum(component_count) FROM category WHERE level = 1"), 1500);
}

} // namespace
