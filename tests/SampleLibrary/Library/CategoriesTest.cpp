#include "support/BuiltLibrary.h"

#include <QFile>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <set>

namespace {

TEST(Categories, HoldElevenDisciplinesSeventyFourKindsAndHundredsOfEndCategories)
{
    BuiltLibrary library;
    EXPECT_EQ(library.Count("SELECT count(*) FROM category WHERE level = 0"), 11);
    EXPECT_EQ(library.Count("SELECT count(DISTINCT kind) FROM category WHERE level = 1"), 74);
    EXPECT_GE(library.Count("SELECT count(*) FROM category WHERE level = 2"), 400);
    EXPECT_GE(library.Count("SELECT count(*) FROM component"), 5000);
    EXPECT_GE(library.Count("SELECT min(json_array_length(family_types)) FROM component"), 1);
    EXPECT_GE(library.Count("SELECT sum(json_array_length(family_types)) / count(*) FROM component"), 4);
}

TEST(Categories, DescriptionSaysWhatTheDatabaseHolds)
{
    BuiltLibrary library;
    QFile file(QString::fromStdString(library.Folder() + "/library.json"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const nlohmann::json description = nlohmann::json::parse(file.readAll().toStdString());
    EXPECT_EQ(description.at("schema"), 1);
    EXPECT_EQ(description.at("components"), library.Count("SELECT count(*) FROM component"));
    EXPECT_EQ(description.at("categories"), library.Count("SELECT count(*) FROM category"));
    EXPECT_EQ(description.at("sourceDigest").get<std::string>().size(), 64U);
    EXPECT_EQ(library.Count("PRAGMA user_version"), 1);
    EXPECT_EQ(library.Texts("PRAGMA journal_mode"), std::vector<std::string>{"delete"});
    EXPECT_EQ(library.Texts("PRAGMA integrity_check"), std::vector<std::string>{"ok"});
}

TEST(Categories, NameTheirParentByIdAndCode)
{
    BuiltLibrary library;
    EXPECT_EQ(
        library.Count("SELECT count(*) FROM category c WHERE level > 0 AND NOT EXISTS (SELECT 1 FROM category p WHERE "
                      "p.id = c.parent_id AND p.code = c.parent_code AND p.level = c.level - 1 AND p.major = c.major)"),
        0);
    EXPECT_EQ(
        library.Count("SELECT count(*) FROM category WHERE level = 0 AND (parent_id <> 0 OR parent_code <> '')"), 0);
    EXPECT_EQ(
        library.Count("SELECT count(*) FROM category c WHERE level < 2 AND NOT EXISTS (SELECT 1 FROM category k WHERE "
                      "k.parent_code = c.code)"),
        0);
    EXPECT_EQ(library.Count("SELECT count(*) FROM category WHERE id < 1 OR id > 2147483647"), 0);
}

TEST(Categories, HaveCodesThatNeedNoEncodingInUrls)
{
    BuiltLibrary library;
    EXPECT_EQ(library.Count("SELECT count(*) FROM category WHERE code GLOB '*[^A-Za-z0-9._~-]*' OR code = ''"), 0);
    EXPECT_EQ(library.Count("SELECT count(*) FROM component WHERE id GLOB '*[^A-Za-z0-9._~-]*' OR id = ''"), 0);
}

TEST(Categories, HaveNamesInBothLanguagesThatDifferAmongSiblings)
{
    BuiltLibrary library;
    EXPECT_EQ(library.Count("SELECT count(*) FROM category WHERE name_zh = '' OR name_en = ''"), 0);
    EXPECT_EQ(library.Count("SELECT count(*) FROM category WHERE name_en GLOB '*[^ -~]*'"), 0);
    for (const std::string name : {"name_zh", "name_en"}) {
        EXPECT_EQ(library.Count("SELECT count(*) FROM (SELECT 1 FROM category GROUP BY parent_code, " + name +
                                " HAVING count(*) > 1)"),
            0);
    }
}

TEST(Categories, HaveWeightsInDepthFirstOrder)
{
    BuiltLibrary library;
    const std::vector<std::string> byWeight = library.Texts("SELECT code FROM category ORDER BY weight");
    std::vector<std::string> open;
    for (const std::string& code : byWeight) {
        const std::string parent =
            library.Texts("SELECT parent_code FROM category WHERE code = '" + code + "'").front();
        while (!open.empty() && open.back() != parent) {
            open.pop_back();
        }
        ASSERT_EQ(open.empty() ? "" : open.back(), parent) << code << " does not stand below its parent";
        open.push_back(code);
    }
    EXPECT_EQ(
        library.Count("SELECT count(DISTINCT weight) FROM category"), library.Count("SELECT count(*) FROM category"));
}

TEST(Categories, CoverTheirComponentsByRangesOfPositions)
{
    BuiltLibrary library;
    const std::int64_t total = library.Count("SELECT count(*) FROM component");
    EXPECT_EQ(library.Count("SELECT min(position) FROM component"), 0);
    EXPECT_EQ(library.Count("SELECT max(position) FROM component"), total - 1);
    EXPECT_EQ(library.Count("SELECT sum(component_count) FROM category WHERE level = 0"), total);
    EXPECT_EQ(library.Count("SELECT count(*) FROM category c WHERE level < 2 AND component_count <> "
                            "(SELECT sum(component_count) FROM category k WHERE k.parent_code = c.code)"),
        0);
    EXPECT_EQ(library.Count("SELECT count(*) FROM category c WHERE level < 2 AND first_position <> "
                            "(SELECT min(first_position) FROM category k WHERE k.parent_code = c.code)"),
        0);
    EXPECT_EQ(library.Count("SELECT count(*) FROM component p LEFT JOIN category c ON c.code = p.category_code WHERE "
                            "c.level IS NOT 2 OR p.position < c.first_position OR "
                            "p.position >= c.first_position + c.component_count"),
        0);
}

TEST(Categories, HaveAnEndCategoryForEachPredefinedType)
{
    BuiltLibrary library;
    // Every kind of the standard has at least as many end categories as it has predefined types.
    QFile file(QStringLiteral(SAMPLE_LIBRARY_ELEMENTS));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    std::map<std::string, std::int64_t> typeCounts;
    const QString text = QString::fromUtf8(file.readAll());
    for (const QString& line : text.split(QLatin1Char('\n'), Qt::SkipEmptyParts).mid(1)) {
        const QStringList cells = line.split(QLatin1Char(','));
        typeCounts[cells[1].toStdString()] += cells[2] == QLatin1String("NOTDEFINED") ? 0 : 1;
    }
    EXPECT_EQ(typeCounts.size(), 74U);
    std::map<std::string, std::int64_t> endCounts;
    for (const std::string& kind : library.Texts("SELECT kind FROM category WHERE level = 2")) {
        std::string element = "Ifc";
        bool isStart = true;
        for (const char letter : kind) {
            element += letter == '-' ? std::string()
                                     : std::string(1, isStart ? static_cast<char>(std::toupper(letter)) : letter);
            isStart = letter == '-';
        }
        ++endCounts[element];
    }
    for (const auto& [element, count] : typeCounts) {
        EXPECT_GE(endCounts[element], std::max<std::int64_t>(1, count)) << element;
    }
}

TEST(Components, HaveLastingIdsNamesAndSearchTexts)
{
    BuiltLibrary library;
    EXPECT_EQ(library.Count(
                  "SELECT count(*) FROM component WHERE name_zh = '' OR name_en = '' OR version < 1 OR status = ''"),
        0);
    EXPECT_EQ(library.Count(
                  "SELECT count(*) FROM (SELECT 1 FROM component GROUP BY category_code, name_en HAVING count(*) > 1)"),
        0);
    EXPECT_EQ(library.Count(
                  "SELECT count(*) FROM (SELECT 1 FROM component GROUP BY category_code, name_zh HAVING count(*) > 1)"),
        0);
    EXPECT_EQ(
        library.Count("SELECT count(*) FROM component WHERE instr(search, lower(id)) = 0 OR instr(search, name_zh) = 0 "
                      "AND name_zh NOT GLOB '*[A-Z]*' OR instr(search, lower(name_en)) = 0 OR "
                      "instr(search, lower(category_code)) = 0"),
        0);
    EXPECT_EQ(library.Texts("SELECT name_en FROM component WHERE id = 'C105801-001'"),
        std::vector<std::string>{"Hot-dip galvanized steel pipe, threaded, PN10, hot-dip galvanizing"});
}

} // namespace
