#include "support/NuqFixture.h"
#include "support/SmallLibrary.h"

#include <QFile>

using nuqtest::NuqResult;

namespace {

/// The program with a small library in its application folder; no server is asked.
class LocalLibrary : public nuqtest::NuqFixture
{
protected:
    LocalLibrary() { nuqtest::WriteSmallLibrary(runner.ApplicationFolder()); }

    QString DatabaseFile() const { return runner.ApplicationFolder() + QStringLiteral("/library/components.db"); }

    std::string OutputOf(const QStringList& arguments) const
    {
        const NuqResult result = Run(arguments);
        EXPECT_EQ(result.code, 0) << result.err;
        return result.out;
    }
};

TEST_F(LocalLibrary, ShowsItsTree)
{
    EXPECT_EQ(OutputOf({"tree", "WAT"}), "NAME            CODE\n"
                                         "Water           WAT\n"
                                         "  Pumps         WAT.PMP\n"
                                         "    Water pump  WAT.PMP.W\n");
    EXPECT_EQ(OutputOf({"tree", "WAT.PMP.W", "--json"}),
        "{\"categories\":[\n"
        "{\"code\":\"WAT.PMP.W\",\"id\":\"12\",\"isLeaf\":true,\"name\":\"Water pump\","
        "\"namePath\":[\"Water\",\"Pumps\",\"Water pump\"],\"parentCode\":\"WAT.PMP\",\"parentId\":\"11\"}\n"
        "],\"schema\":1}\n");
    EXPECT_EQ(OutputOf({"tree", "WAT.PMP", "--lang", "zh"}), "名称      编码\n"
                                                             "  泵      WAT.PMP\n"
                                                             "    水泵  WAT.PMP.W\n");
}

TEST_F(LocalLibrary, ShowsPropertiesWithoutANetwork)
{
    EXPECT_EQ(OutputOf({"properties", "WAT.PMP.W", "--offline"}), "CODE      NAME      GROUP    TYPE  UNIT  REQUIRED\n"
                                                                  "Material  Material  General  Enum        yes\n");
    EXPECT_NE(
        OutputOf({"properties", "WAT.PMP.W", "--json"}).find("\"values\":{\"BRASS\":\"Brass\"}"), std::string::npos);
}

TEST_F(LocalLibrary, ListsLegendsOfOneViewOrAll)
{
    EXPECT_EQ(OutputOf({"legends", "WAT.PMP.W", "--view", "plan"}),
        "ID  VIEW  NAME  PICTURE\n"
        "21  plan  plan  APP/library/static/legends/pump/plan.png\n");
    EXPECT_EQ(OutputOf({"legends", "WAT.PMP.W", "--json"}),
        "{\"categoryCode\":\"WAT.PMP.W\",\"legends\":[\n"
        "{\"id\":\"21\",\"name\":\"plan\",\"picture\":\"APP/library/static/legends/pump/plan.png\","
        "\"standardSource\":\"\",\"view\":\"plan\"},\n"
        "{\"id\":\"22\",\"name\":\"elevation\",\"picture\":\"APP/library/static/legends/pump/elevation.png\","
        "\"standardSource\":\"\",\"view\":\"elevation\"}\n"
        "],\"schema\":1}\n");
    const NuqResult none = Run({"legends", "WAT.PMP"});
    EXPECT_EQ(none.code, 0);
    EXPECT_NE(none.err.find("The category has no legends; end categories have them."), std::string::npos);
}

TEST_F(LocalLibrary, FindsInBothLanguagesBySoundAndByValue)
{
    EXPECT_EQ(OutputOf({"search", "水泵"}), "KIND       CODE       NAME              FOUND BY\n"
                                            "category   WAT.PMP.W  Water pump        name\n"
                                            "component  C-1        Centrifugal pump  name\n");
    EXPECT_EQ(OutputOf({"search", "lxsb"}), "KIND       CODE  NAME              FOUND BY\n"
                                            "component  C-1   Centrifugal pump  pinyin\n");
    EXPECT_EQ(OutputOf({"search", "brass", "--json"}),
        "{\"hits\":[\n"
        "{\"categoryCode\":\"WAT.PMP.W\",\"code\":\"C-1\",\"foundBy\":\"value\",\"kind\":\"component\","
        "\"nameEn\":\"Centrifugal pump\",\"nameZh\":\"离心水泵\"}\n"
        "],\"schema\":1,\"text\":\"brass\",\"total\":1}\n");
    const NuqResult some = Run({"search", "pump", "--limit", "1"});
    EXPECT_NE(some.err.find("1 of 3 are listed; --limit lists more."), std::string::npos) << some.err;
    EXPECT_EQ(Run({"search", "pump", "--limit", "1", "--quiet"}).err, "");
}

TEST_F(LocalLibrary, NamesAnUnknownCategory)
{
    for (const char* command : {"tree", "properties", "legends"}) {
        const NuqResult result = Run({QString::fromLatin1(command), "NONE"});
        EXPECT_EQ(result.code, 3) << command;
        EXPECT_NE(result.err.find("The library on this machine has no category \"NONE\"."), std::string::npos)
            << result.err;
    }
}

TEST_F(LocalLibrary, SaysWhyItCannotBeUsed)
{
    QFile file(DatabaseFile());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write("no database at all, whatever its name says");
    file.close();
    for (const QStringList& command : {QStringList{"tree"}, QStringList{"search", "x"}, QStringList{"legends", "x"}}) {
        const NuqResult result = Run(command);
        EXPECT_EQ(result.code, 1);
        EXPECT_NE(result.err.find("The file APP/library/components.db is no component database"), std::string::npos)
            << result.err;
    }
    EXPECT_NE(Run({"tree", "--lang", "zh", "--json"}).out.find("\"code\":\"database.foreign\""), std::string::npos);
}

TEST_F(LocalLibrary, ListsLegendsAndMappingsOfTheCloud)
{
    OnData("/v1/metadata/placeholders",
        R"({"list":[{"id":"7","name":"Plan","placeholderType":0,"thumbnail":"/a.png","standardSource":"GB"}],"totalCount":1})");
    OnData("/v1/hox_design/category/mappings",
        R"([{"categoryId":3,"categoryCode":"W","name":["a","b"],"major":1,"componentEditorCategoryId":"9"}])");
    EXPECT_NE(OutputOf({"legends", "W", "--cloud", "--view", "plan"}).find("Plan"), std::string::npos);
    EXPECT_EQ(OutputOf({"mappings"}), "CODE  EDITOR ID  MAJOR  NAMES\n"
                                      "W     9          hvac   a; b\n");
}

} // namespace
