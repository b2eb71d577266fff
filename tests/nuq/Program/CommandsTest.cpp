#include "support/NuqFixture.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

namespace nuqtest {
namespace {

using testsupport::ScriptedResponse;

const QByteArray kCategories = R"([
    {"id":1,"name":"给水 Water","code":"W","parentId":0,"parentCode":"","weight":1,"count":3},
    {"id":3,"name":"水泵","code":"W.B","parentId":1,"parentCode":"W","weight":3,"count":1},
    {"id":2,"name":"Pipes","code":"W.A","parentId":1,"parentCode":"W","weight":2.5,"count":2}])";

const QByteArray kComponent =
    R"({"id":"C1","version":2,"name":"Pump\u001b[31m 泵","categoryId":3,"categoryCode":"W.B","thumbnail":"t/1.png",
        "source":1,"publicComponentId":"P1","status":"released"})";

const QByteArray kDefinitions = R"([
    {"code":"dn","formula":"","groupName":"Sizes","id":"G-1","isEssential":true,"name":"Nominal diameter","unit":"mm",
     "unitCode":"MM","valueType":"Number","parameterType":"Length","values":{"50":"DN50"}},
    {"code":"on","groupName":"Other","id":"G-2","name":"Insulated","valueType":"Logic"}])";

QString Text(const char* text)
{
    return QString::fromUtf8(text);
}

class CommandsTest : public NuqFixture
{
protected:
    /// Whole output of a command that succeeds and says nothing on standard error.
    std::string OutputOf(const QStringList& arguments)
    {
        const NuqResult result = Run(arguments);
        EXPECT_EQ(result.code, 0);
        EXPECT_EQ(result.err, "");
        return result.out;
    }
};

TEST_F(CommandsTest, CategoriesAsTable)
{
    OnData("/v3/categories", kCategories);
    EXPECT_EQ(OutputOf({"categories"}), "ID  CODE  NAME        COUNT\n"
                                        "1   W     给水 Water      3\n"
                                        "3   W.B   水泵            1\n"
                                        "2   W.A   Pipes           2\n");
    EXPECT_EQ(OutputOf({"categories", "--lang", "zh"}), "编号  编码  名称        数量\n"
                                                        "1     W     给水 Water     3\n"
                                                        "3     W.B   水泵           1\n"
                                                        "2     W.A   Pipes          2\n");
    EXPECT_EQ(server.Requests().at(0).target, "/api/v3/categories?component_type=system&major=&software_version=0.1");
    EXPECT_EQ(server.Requests().at(0).Header("Authorization"), "secret-of-the-test");
    EXPECT_EQ(server.Requests().at(0).Header("Accept-Language"), "en");
    EXPECT_EQ(server.Requests().at(1).Header("Accept-Language"), "zh-CN");
}

TEST_F(CommandsTest, CategoriesAsTree)
{
    OnData("/v3/categories", kCategories);
    EXPECT_EQ(OutputOf({"categories", "--tree", "--keyword", "a b"}), "NAME        CODE  COUNT\n"
                                                                      "给水 Water  W         3\n"
                                                                      "├─ Pipes    W.A       2\n"
                                                                      "└─ 水泵     W.B       1\n");
    EXPECT_TRUE(server.Requests().at(0).target.endsWith("&keyword=a%20b"));
}

TEST_F(CommandsTest, CategoriesOfASearchAreThoseWithAMatch)
{
    OnData("/v3/categories", R"([
        {"id":1,"name":"Water","code":"W","count":1},{"id":2,"name":"Pipes","code":"W.A","parentId":1,"count":0},
        {"id":3,"name":"Pumps","code":"W.B","parentId":1,"count":1},{"id":4,"name":"Gas","code":"G","count":0}])");
    const std::string found = "ID  CODE  NAME   COUNT\n"
                              "1   W     Water      1\n"
                              "3   W.B   Pumps      1\n";
    EXPECT_EQ(OutputOf({"categories", "--keyword", "pump"}), found);
    EXPECT_EQ(OutputOf({"categories", "--keyword", "pump", "--tree"}), "NAME      CODE  COUNT\n"
                                                                       "Water     W         1\n"
                                                                       "└─ Pumps  W.B       1\n");
    EXPECT_EQ(OutputOf({"categories", "--keyword", "pump", "--all"}), "ID  CODE  NAME   COUNT\n"
                                                                      "1   W     Water      1\n"
                                                                      "2   W.A   Pipes      0\n"
                                                                      "3   W.B   Pumps      1\n"
                                                                      "4   G     Gas        0\n");
    EXPECT_EQ(OutputOf({"categories", "--keyword", ""}), OutputOf({"categories", "--keyword", "pump", "--all"}))
        << "empty categories belong to the catalogue";
    EXPECT_EQ(OutputOf({"categories", "--keyword", "pump", "--service"}).find("Gas") == std::string::npos, false)
        << "the service's list stays as it is";
}

TEST_F(CommandsTest, CategoriesSayWhyThereAreNone)
{
    OnData("/v3/categories", R"([{"id":1,"name":"Water","code":"W","count":0}])");
    const NuqResult table = Run({"categories", "--keyword", "x"});
    EXPECT_EQ(table.code, 0);
    EXPECT_EQ(table.out, "ID  CODE  NAME  COUNT\n");
    EXPECT_EQ(table.err, "No category has a component that matches \"x\".\n");
    EXPECT_EQ(Run({"categories", "--keyword", "x", "--lang", "zh"}).err, "没有类别含有与“x”匹配的构件。\n");
    EXPECT_EQ(
        Run({"categories", "--keyword", "x", "--json"}).out, "{\"categories\":[],\"keyword\":\"x\",\"schema\":1}\n");
}

TEST_F(CommandsTest, CategoriesAsDocument)
{
    OnData("/v3/categories", kCategories);
    const std::string water =
        R"("id":"1","isLeaf":false,"name":"给水 Water","parentCode":"","parentId":"0","weight":1})";
    const std::string pumps = R"("id":"3","isLeaf":true,"name":"水泵","parentCode":"W","parentId":"1","weight":3})";
    const std::string pipes = R"("id":"2","isLeaf":true,"name":"Pipes","parentCode":"W","parentId":"1","weight":2.5})";
    EXPECT_EQ(OutputOf({"categories", "--json"}),
        "{\"categories\":[\n{\"code\":\"W\",\"count\":3," + water + ",\n{\"code\":\"W.B\",\"count\":1," + pumps +
            ",\n{\"code\":\"W.A\",\"count\":2," + pipes + "\n],\"keyword\":\"\",\"schema\":1}\n");
    EXPECT_EQ(OutputOf({"categories", "--json", "--tree"}),
        "{\"categories\":[\n{\"code\":\"W\",\"count\":3,\"depth\":0," + water +
            ",\n{\"code\":\"W.A\",\"count\":2,\"depth\":1," + pipes + ",\n{\"code\":\"W.B\",\"count\":1,\"depth\":1," +
            pumps + "\n],\"keyword\":\"\",\"schema\":1}\n");
}

TEST_F(CommandsTest, CategoriesOfTheService)
{
    OnData("/v3/categories", kCategories);
    EXPECT_EQ(OutputOf({"categories", "--service"}), "ID  CODE  NAME        COUNT\n"
                                                     "1         给水 Water      3\n"
                                                     "2         Pipes           2\n"
                                                     "3         水泵            1\n");
    EXPECT_EQ(OutputOf({"categories", "--service", "--json"}),
        "{\"categories\":[\n"
        "{\"count\":3,\"id\":\"1\",\"name\":\"给水 Water\",\"parentId\":\"0\",\"weight\":1},\n"
        "{\"count\":2,\"id\":\"2\",\"name\":\"Pipes\",\"parentId\":\"1\",\"weight\":2.5},\n"
        "{\"count\":1,\"id\":\"3\",\"name\":\"水泵\",\"parentId\":\"1\",\"weight\":3}\n],\"keyword\":\"\",\"schema\":1}"
        "\n");
}

TEST_F(CommandsTest, TheServiceThatSaysNothingIsAnError)
{
    On("/v3/categories", ScriptedResponse::Status(500));
    const NuqResult result = Run({"categories", "--service", "--json"});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.out,
        "{\"code\":\"service.no_categories\",\"details\":{\"hint\":\"Without --service the program names the "
        "reason.\"},"
        "\"message\":\"The public category service gave no categories, and it does not say why.\",\"schema\":1}\n");
    EXPECT_EQ(result.err, "nuq: The public category service gave no categories, and it does not say why.\n"
                          "     Without --service the program names the reason.\n");
}

TEST_F(CommandsTest, ComponentsOfOnePage)
{
    OnData("/v1/components", R"({"totalCount":1234,"list":[)" + kComponent + "]}");
    const NuqResult table =
        Run({"components", "--category", "W.B", "--keyword", Text("泵"), "--page", "3", "--page-size", "1"});
    EXPECT_EQ(table.code, 0);
    EXPECT_EQ(table.out, "ID  CATEGORY  NAME             VERSION  STATUS\n"
                         "C1  W.B       Pump\\x1b[31m 泵        2  released\n");
    EXPECT_EQ(table.err, "3-3 of 1 234\n");
    EXPECT_EQ(
        server.Requests().at(0).target, "/api/v1/components?category_code=W.B&keyword=%E6%B3%B5&page=3&page_size=1");
    EXPECT_EQ(Run({"components", "--lang", "zh"}).err, "第 1-1 个，共 1 234 个\n");
    EXPECT_EQ(Run({"components", "--quiet"}).err, "");
    EXPECT_EQ(OutputOf({"components", "--json"}),
        "{\"components\":[\n{\"categoryCode\":\"W.B\",\"categoryId\":\"3\",\"id\":\"C1\",\"name\":\"Pump\\u001b[31m "
        "泵\","
        "\"publicComponentId\":\"P1\",\"source\":1,\"status\":\"released\","
        "\"thumbnail\":\"http://127.0.0.1:PORT/static/t/1.png\",\"version\":2}\n],"
        "\"page\":1,\"pageSize\":20,\"schema\":1,\"totalCount\":1234}\n");
}

TEST_F(CommandsTest, ComponentsSayWhyThereAreNone)
{
    OnData("/v1/components", R"({"totalCount":0,"list":[]})");
    EXPECT_EQ(Run({"components"}).err, "There are no components here.\n");
    EXPECT_EQ(Run({"components", "--keyword", "x"}).err, "No component matches \"x\" here.\n");
    EXPECT_EQ(Run({"components", "--all"}).err, "There are no components here.\n");
    OnData("/v1/projects/P/components", R"({"totalCount":41,"list":[]})");
    EXPECT_EQ(Run({"components", "--project", "P", "--page", "9"}).err, "The last page is page 3.\n");
}

class AllComponentsTest : public CommandsTest
{
protected:
    AllComponentsTest()
    {
        OnPage(1, R"({"id":"1"},{"id":"2"})");
        OnPage(2, R"({"id":"3"})");
    }

    void OnPage(int page, const QByteArray& list)
    {
        OnData("/v1/components?category_code=&keyword=&page=" + QByteArray::number(page) + "&page_size=2",
            "{\"totalCount\":3,\"list\":[" + list + "]}");
    }

    static std::string Component(const std::string& id)
    {
        return R"({"categoryCode":"","categoryId":"","id":")" + id +
               R"(","name":"","publicComponentId":"","source":0,"status":"","thumbnail":"","version":0})";
    }
};

TEST_F(AllComponentsTest, AsTable)
{
    EXPECT_EQ(OutputOf({"components", "--all", "--page-size", "2"}), "ID  CATEGORY  NAME  VERSION  STATUS\n"
                                                                     "1                         0\n"
                                                                     "2                         0\n"
                                                                     "3                         0\n");
}

TEST_F(AllComponentsTest, AsOneDocument)
{
    EXPECT_EQ(OutputOf({"components", "--all", "--page-size", "2", "--json"}),
        "{\"components\":[\n" + Component("1") + ",\n" + Component("2") + ",\n" + Component("3") +
            "\n],\"schema\":1,\"summary\":{\"changed\":false,\"count\":3,\"totalCount\":3}}\n");
}

TEST_F(AllComponentsTest, AsLines)
{
    EXPECT_EQ(OutputOf({"components", "--all", "--page-size", "2", "--json", "--stream"}),
        "{\"component\":" + Component("1") + "}\n{\"component\":" + Component("2") + "}\n{\"component\":" +
            Component("3") + "}\n{\"schema\":1,\"summary\":{\"changed\":false,\"count\":3,\"totalCount\":3}}\n");
}

TEST_F(AllComponentsTest, EndsWithTheErrorWhenAPageIsMissing)
{
    OnData("/v1/components?category_code=X&keyword=&page=1&page_size=2",
        R"({"totalCount":4,"list":[{"id":"1"},{"id":"2"}]})");
    On("/v1/components?category_code=X&keyword=&page=2&page_size=2",
        ScriptedResponse::Json(R"({"code":"BROKEN","message":"Out of order.","data":null})", 500));
    const std::string details =
        "\"details\":{\"address\":\"http://127.0.0.1:PORT/api/v1/"
        "components?category_code=X&keyword=&page=2&page_size=2\","
        "\"evidence\":[\"content type: application/json\"],"
        "\"hint\":\"Try again later; if it stays so, tell the operator of the server.\",\"httpStatus\":500,"
        "\"original\":\"Error transferring "
        "http://127.0.0.1:PORT/api/v1/components?category_code=X&keyword=&page=2&page_"
        "size=2 - server replied: Internal Server Error\",\"request\":2,\"serverCode\":\"BROKEN\","
        "\"serverMessage\":\"Out of order.\",\"tries\":1}";
    const std::string sentence =
        "The components could not be loaded. 127.0.0.1:PORT reports a fault of its own (HTTP 500).";
    const QStringList command = {"components", "-c", "X", "--all", "--page-size", "2", "--json"};

    const NuqResult lines = Run(command + QStringList{"--stream"});
    EXPECT_EQ(lines.code, 6);
    EXPECT_EQ(lines.out, "{\"component\":" + Component("1") + "}\n{\"component\":" + Component("2") +
                             "}\n{\"error\":{\"code\":\"server.fault\"," + details + ",\"message\":\"" + sentence +
                             "\"},\"schema\":1}\n");

    const NuqResult document = Run(command);
    EXPECT_EQ(document.code, 6);
    EXPECT_EQ(document.out, "{\"components\":[\n" + Component("1") + ",\n" + Component("2") +
                                "\n],\"error\":{\"code\":\"server.fault\"," + details + ",\"message\":\"" + sentence +
                                "\"},\"schema\":1,\"summary\":{\"changed\":false,\"count\":2,\"totalCount\":4}}\n");
    EXPECT_EQ(document.err, "nuq: " + sentence +
                                "\n     The server says: Out of order.\n     Try again later; if it stays so, tell the "
                                "operator of the server.\n");
}

TEST_F(AllComponentsTest, IsAnOrdinaryErrorWhenTheFirstPageIsMissing)
{
    On("/v1/components?category_code=X&keyword=&page=1&page_size=2", ScriptedResponse::Status(403));
    const NuqResult document = Run({"components", "-c", "X", "--all", "--page-size", "2", "--json"});
    EXPECT_EQ(document.code, 4);
    EXPECT_EQ(document.out.substr(0, 33), R"({"code":"auth.forbidden","details)");
}

TEST_F(AllComponentsTest, AsOneDocumentWithoutComponents)
{
    OnData("/v1/components?category_code=X&keyword=&page=1&page_size=2", R"({"totalCount":0,"list":[]})");
    const NuqResult document = Run({"components", "-c", "X", "--all", "--page-size", "2", "--json"});
    EXPECT_EQ(document.code, 0);
    EXPECT_EQ(document.out,
        "{\"components\":[],\"schema\":1,\"summary\":{\"changed\":false,\"count\":0,\"totalCount\":0}}\n");
    EXPECT_EQ(document.err, "There are no components here.\n");
}

TEST_F(CommandsTest, OneComponent)
{
    OnData("/v1/components/C1",
        R"({"id":"C1","version":2,"name":"泵 A","categoryId":3,"categoryCode":"W.B","source":1,"status":"released",
            "familyTypeNames":["DN15","DN20"],
            "thumbnailSizes":[{"size":"128","thumbnails":["b.png"]},{"size":"64","thumbnails":["a.png","c.png"]}]})");
    EXPECT_EQ(OutputOf({"component", "C1"}), "Id            C1\n"
                                             "Name          泵 A\n"
                                             "Category      W.B\n"
                                             "Version       2\n"
                                             "Status        released\n"
                                             "Family types  DN15\n"
                                             "              DN20\n"
                                             "Thumbnails     64 px  http://127.0.0.1:PORT/static/a.png\n"
                                             "               64 px  http://127.0.0.1:PORT/static/c.png\n"
                                             "              128 px  http://127.0.0.1:PORT/static/b.png\n");
    EXPECT_EQ(OutputOf({"component", "C1", "--json"}),
        "{\"component\":{\"categoryCode\":\"W.B\",\"categoryId\":\"3\",\"familyTypeNames\":[\"DN15\",\"DN20\"],"
        "\"id\":\"C1\",\"name\":\"泵 A\",\"source\":1,\"status\":\"released\",\"thumbnails\":{"
        "\"128\":[\"http://127.0.0.1:PORT/static/b.png\"],"
        "\"64\":[\"http://127.0.0.1:PORT/static/a.png\",\"http://127.0.0.1:PORT/static/c.png\"]},\"version\":2},"
        "\"schema\":1}\n");
}

TEST_F(CommandsTest, OneComponentOfAProject)
{
    OnData("/v1/projects/P/components/C1/detail", R"({"id":"C1"})");
    EXPECT_EQ(Run({"component", "C1", "--project", "P"}).code, 0);
}

TEST_F(CommandsTest, Specifications)
{
    OnData("/v1/components/C1/specifications",
        "{\"parameters\":" + kDefinitions +
            R"(,"familyTypes":[{"name":"A","parameterValues":[{"name":"Nominal diameter","value":"50"},
               {"name":"Insulated","value":" TRUE "}]},{"name":"B","parameterValues":[]}]})");
    EXPECT_EQ(OutputOf({"specifications", "C1"}), "TYPE  PARAMETER         VALUE  UNIT\n"
                                                  "A     Insulated          true\n"
                                                  "A     Nominal diameter   DN50  mm\n"
                                                  "B     Insulated             -\n"
                                                  "B     Nominal diameter      -  mm\n");
    EXPECT_EQ(OutputOf({"specifications", "C1", "--json"}),
        "{\"componentId\":\"C1\",\"schema\":1,\"specifications\":[\n{\"name\":\"A\",\"parameters\":[\n"
        "{\"code\":\"on\",\"groupName\":\"Other\",\"id\":\"G-2\",\"isValueSpecified\":true,\"name\":\"Insulated\","
        "\"unit\":\"\",\"value\":\"true\",\"valueText\":\"true\",\"valueType\":\"Logic\"},\n"
        "{\"code\":\"dn\",\"groupName\":\"Sizes\",\"id\":\"G-1\",\"isValueSpecified\":true,\"name\":\"Nominal "
        "diameter\","
        "\"unit\":\"mm\",\"value\":\"50\",\"valueText\":\"DN50\",\"valueType\":\"Number\"}\n]},\n{\"name\":\"B\","
        "\"parameters\":[\n"
        "{\"code\":\"on\",\"groupName\":\"Other\",\"id\":\"G-2\",\"isValueSpecified\":false,\"name\":\"Insulated\","
        "\"unit\":\"\",\"value\":\"\",\"valueText\":\"\",\"valueType\":\"Logic\"},\n"
        "{\"code\":\"dn\",\"groupName\":\"Sizes\",\"id\":\"G-1\",\"isValueSpecified\":false,\"name\":\"Nominal "
        "diameter\","
        "\"unit\":\"mm\",\"value\":\"\",\"valueText\":\"\",\"valueType\":\"Number\"}\n]}\n]}\n");
}

TEST_F(CommandsTest, OneSpecificationIsAskedForByItsEncodedName)
{
    OnData("/v1/components/C1/specifications/DN%2050%2F65",
        "{\"parameters\":" + kDefinitions +
            R"(,"familyType":{"name":"DN 50/65","parameterValues":[{"name":"Nominal diameter","value":"50"}]}})");
    EXPECT_EQ(OutputOf({"specifications", "C1", "--type", "DN 50/65"}), "TYPE      PARAMETER         VALUE  UNIT\n"
                                                                        "DN 50/65  Insulated             -\n"
                                                                        "DN 50/65  Nominal diameter   DN50  mm\n");
}

TEST_F(CommandsTest, Properties)
{
    OnData("/v1/categories/W.B/properties",
        "{\"categoryId\":3,\"categoryName\":\"Pumps\",\"propertyList\":" + kDefinitions + "}");
    EXPECT_EQ(OutputOf({"properties", "W.B", "--cloud"}), "CODE  NAME              GROUP  TYPE    UNIT  REQUIRED\n"
                                                          "on    Insulated         Other  Logic         no\n"
                                                          "dn    Nominal diameter  Sizes  Number  mm    yes\n");
    const std::string out = OutputOf({"properties", "W.B", "--cloud", "--json"});
    const std::string begin =
        "{\"categoryCode\":\"W.B\",\"categoryId\":\"3\",\"categoryName\":\"Pumps\",\"properties\":[\n"
        "{\"code\":\"on\",\"formula\":\"\",\"groupName\":\"Other\",\"id\":\"G-2\"";
    EXPECT_EQ(out.substr(0, begin.size()), begin);
    EXPECT_NE(out.find("\"valueType\":\"Number\",\"values\":{\"50\":\"DN50\"}}\n],\"schema\":1}\n"), std::string::npos);
}

TEST_F(CommandsTest, ProjectsAndExistence)
{
    OnData("/v1/projects", R"([{"id":"P1","name":"医院"},{"id":"P2","name":"Station"}])");
    OnData("/v1/projects/P1/components/existence", R"({"exist":true,"version":4})");
    OnData("/v1/projects/P2/components/existence", R"({"exist":false,"version":0})");
    OnData("/v1/projects/P9/components/existence", R"({"exist":false,"version":0})");
    EXPECT_EQ(OutputOf({"projects"}), "ID  NAME\nP1  医院\nP2  Station\n");
    EXPECT_EQ(OutputOf({"projects", "--json"}),
        "{\"projects\":[\n{\"id\":\"P1\",\"name\":\"医院\"},\n{\"id\":\"P2\",\"name\":\"Station\"}\n],\"schema\":1}\n");
    EXPECT_EQ(OutputOf({"exists", "C 1"}), "PROJECT  NAME     EXISTS  VERSION\n"
                                           "P1       医院     yes           4\n"
                                           "P2       Station  no            -\n");
    EXPECT_EQ(server.Requests().back().Query(), "public_component_id=C%201");
    EXPECT_EQ(OutputOf({"exists", "C1", "--project", "P2", "--json"}),
        "{\"componentId\":\"C1\",\"projects\":[\n"
        "{\"exists\":false,\"projectId\":\"P2\",\"projectName\":\"Station\",\"version\":0}\n],\"schema\":1}\n");
    EXPECT_EQ(OutputOf({"exists", "C1", "--project", "P9"}), "PROJECT  NAME  EXISTS  VERSION\n"
                                                             "P9             no            -\n");
}

TEST_F(CommandsTest, EnvironmentWithoutConnectionAndToken)
{
    const std::string out = OutputOf({"env"});
    EXPECT_EQ(out, "Environment         prod  (default)\n"
                   "Known environments  prod, qa\n"
                   "Interface           http://127.0.0.1:PORT/api\n"
                   "Static files        http://127.0.0.1:PORT/static\n"
                   "Structure           http://127.0.0.1:PORT/structure\n"
                   "Sign-in             environment variable NUQ_TOKEN\n"
                   "Application folder  APP  (environment variable NUQ_APP_DIR)\n"
                   "Settings file       HOME/.config/tarnnuq/settings.json\n"
                   "Thumbnail folder    HOME/.cache/tarnnuq/thumbnails\n"
                   "Log file            HOME/.local/state/tarnnuq/nuq.log\n");
    const std::string chinese = OutputOf({"env", "--lang", "zh"});
    EXPECT_NE(chinese.find("登录            环境变量 NUQ_TOKEN\n"), std::string::npos) << chinese;
    EXPECT_NE(chinese.find("APP  (环境变量 NUQ_APP_DIR)\n"), std::string::npos) << chinese;
    EXPECT_EQ(OutputOf({"env", "--json"}),
        "{\"api\":\"http://127.0.0.1:PORT/api\",\"applicationFolder\":\"APP\",\"environment\":\"prod\","
        "\"knownEnvironments\":[\"prod\",\"qa\"],\"logFile\":\"HOME/.local/state/tarnnuq/nuq.log\","
        "\"mappedEnvironment\":\"production\",\"schema\":1,\"settingsFile\":\"HOME/.config/tarnnuq/settings.json\","
        "\"signIn\":\"environment variable NUQ_TOKEN\",\"static\":\"http://127.0.0.1:PORT/static\","
        "\"structure\":\"http://127.0.0.1:PORT/structure\",\"thumbnailFolder\":\"HOME/.cache/tarnnuq/thumbnails\"}\n");
    EXPECT_EQ(server.ConnectionCount(), 0);
}

TEST_F(CommandsTest, AnUnknownEnvironmentIsSaidSo)
{
    const NuqResult result = Run({"env", "--environment", "nowhere"});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.err, "This environment has no address of the interface; \"nuq doctor\" says what to mend.\n");
}

TEST_F(CommandsTest, Version)
{
    EXPECT_EQ(OutputOf({"--version"}), "nuq 0.1.0\n");
    EXPECT_EQ(OutputOf({"--version", "--json"}), OutputOf({"version", "--json"}));
    EXPECT_EQ(OutputOf({"version"}).substr(0, 13), "nuq 0.1.0\nQt ");
}

TEST_F(CommandsTest, TheTourShowsEveryStepWithItsCommand)
{
    OnData("/v3/categories", kCategories);
    OnData("/v1/components", R"({"totalCount":7,"list":[)" + kComponent + "]}");
    OnData("/v1/components/C1", R"({"id":"C1","name":"Pump","familyTypeNames":["DN15"]})");
    OnData("/v1/components/C1/specifications/DN15",
        "{\"parameters\":" + kDefinitions +
            R"(,"familyType":{"name":"DN15","parameterValues":[{"name":"Nominal diameter","value":"15"}]}})");
    const NuqResult result = Run({"tour"});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.out, "The catalogue has 3 categories; these are the first level\n"
                          "$ nuq categories --tree\n"
                          "NAME        CODE  COUNT\n"
                          "给水 Water  W         3\n\n"
                          "Pipes: the first of 7 components\n"
                          "$ nuq components --category W.A --page-size 5\n"
                          "ID  CATEGORY  NAME             VERSION  STATUS\n"
                          "C1  W.B       Pump\\x1b[31m 泵        2  released\n\n"
                          "One component with its family types and pictures\n"
                          "$ nuq component C1\n"
                          "Id            C1\nName          Pump\nCategory\nVersion       0\nStatus\n"
                          "Family types  DN15\n\n"
                          "Some of its values as DN15\n"
                          "$ nuq specifications C1 --type DN15\n"
                          "TYPE  PARAMETER         VALUE  UNIT\n"
                          "DN15  Nominal diameter     15  mm\n\n"
                          "A search: \"DN50\" is found in 7 components\n"
                          "$ nuq components --keyword DN50 --page-size 5\n"
                          "ID  CATEGORY  NAME             VERSION  STATUS\n"
                          "C1  W.B       Pump\\x1b[31m 泵        2  released\n\n");
    EXPECT_EQ(result.err, "Next: \"nuq --help\" for all commands, \"--json\" for scripts, \"nuq doctor\" if something "
                          "fails.\n");
}

TEST_F(CommandsTest, TheTourOfAnEmptyCatalogueEnds)
{
    OnData("/v3/categories", "[]");
    OnData("/v1/components", R"({"totalCount":0,"list":[]})");
    EXPECT_EQ(Run({"tour"}).code, 0);
}

TEST_F(CommandsTest, WriteTheTokenNowhere)
{
    OnData("/v3/categories", kCategories);
    On("/v1/projects", ScriptedResponse::Status(401));
    std::string everything;
    for (const QStringList& command : {QStringList{"categories", "-vvv"}, QStringList{"projects", "-vvv", "--json"},
             QStringList{"env"}, QStringList{"doctor", "--json"}}) {
        const NuqResult result = Run(command);
        everything += result.out + result.err;
    }
    QDirIterator files(runner.HomeFolder(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    int count = 0;
    while (files.hasNext()) {
        QFile file(files.next());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        everything += file.readAll().toStdString();
        ++count;
    }
    EXPECT_GT(count, 0) << "the log was looked at";
    EXPECT_NE(everything.find("Authorization"), std::string::npos) << "the header was logged";
    EXPECT_EQ(everything.find("secret-of-the-test"), std::string::npos);
}

TEST_F(CommandsTest, DrawADeepChainInBoundedWidth)
{
    QByteArray categories;
    for (int id = 1; id <= 3000; ++id)
        categories += (id == 1 ? "" : ",") + QByteArray("{\"id\":") + QByteArray::number(id) +
                      ",\"parentId\":" + QByteArray::number(id - 1) + "}";
    OnData("/v3/categories", "[" + categories + "]");
    EXPECT_LT(OutputOf({"categories", "--tree"}).size(), 3000u * 400);
}

} // namespace
} // namespace nuqtest
