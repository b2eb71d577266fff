#include "EnvSvcs/EnvService.h"
#include "TarnNuqService/EnvSvcs/EnvServiceAccess.h"
#include "TarnNuqService/EnvSvcs/EnvServiceFixture.h"
#include "support/NamedCase.h"

using tarnnuq::EnvService;
using tarnnuq::EnvServiceAccess;
using testsupport::EnvironmentFiles;

namespace {

using EnvServiceTest = testsupport::EnvServiceFixture;
using Texts = std::map<std::wstring, std::wstring>;

/// One content of a file that leads, or does not lead, from the environment "qa" to endpoints.
struct EndPointCase : testsupport::NamedCase
{
    QByteArray main;
    QByteArray map;
    QByteArray pyx;
    std::wstring environment;
    std::wstring api;
    std::wstring staticResources;
};

EndPointCase MainCase(const char* name, const QByteArray& main, bool leads = false)
{
    const EnvironmentFiles good;
    return {{name}, main, good.map, good.pyx, leads ? L"test" : L"", leads ? L"http://qa.example/Api" : L"",
        leads ? L"http://qa.example/Static" : L""};
}

EndPointCase MapCase(const char* name, const QByteArray& map, const std::wstring& environment)
{
    const EnvironmentFiles good;
    const bool leads = environment == L"test";
    return {{name}, good.main, map, good.pyx, environment, leads ? L"http://qa.example/Api" : L"",
        leads ? L"http://qa.example/Static" : L""};
}

EndPointCase PyxCase(
    const char* name, const QByteArray& pyx, const std::wstring& api, const std::wstring& staticResources = {})
{
    const EnvironmentFiles good;
    return {{name}, good.main, good.map, pyx, L"test", api, staticResources};
}

class EnvServiceEndPointsTest : public testsupport::EnvServiceFixture,
                                public ::testing::WithParamInterface<EndPointCase>
{
};

} // namespace

TEST_P(EnvServiceEndPointsTest, AreFoundByTheFiles)
{
    EnvironmentFiles files;
    files.main = GetParam().main;
    files.map = GetParam().map;
    files.pyx = GetParam().pyx;
    folder.WriteAll(files);
    EXPECT_EQ(EnvService::GetPyxCurrentEnv(), GetParam().environment);
    EXPECT_EQ(EnvService::GetPyxApiEndPoint(), GetParam().api);
    EXPECT_EQ(EnvService::GetPyxStaticEndPoint(), GetParam().staticResources);
}

INSTANTIATE_TEST_SUITE_P(MainFile, EnvServiceEndPointsTest,
    ::testing::Values(MainCase("Good", EnvironmentFiles().main, true),
        MainCase("NamesInAnotherCase",
            R"({"WAB_ENV":"/nuq_env_config/wab_env.xml","Pyx_env":"/nuq_env_config/pyx_env.json",)"
            R"("ENV_MAP":"/nuq_env_config/env_map.json"})"),
        MainCase("NumbersForTexts", R"({"wab_env":1,"pyx_env":2,"env_map":3})"),
        MainCase("NullForTexts", R"({"wab_env":null,"pyx_env":null,"env_map":null})"),
        MainCase("AnArray", R"([{"env_map":"/nuq_env_config/env_map.json"}])"),
        MainCase("NoJson", "wab_env=/nuq_env_config/wab_env.xml"),
        MainCase("WithoutTheLastBrace",
            R"({"wab_env":"","pyx_env":"/nuq_env_config/pyx_env.json","env_map":"/nuq_env_config/env_map.json")"),
        MainCase("TenThousandDeep", QByteArray(10000, '[') + QByteArray(10000, ']')),
        MainCase("InvalidUtf8", "{\"env_map\":\"/nuq_env_config/env_map.json\",\"pyx_env\":\"\xff\"}"),
        MainCase("PathsWithBlanksAround",
            R"({"wab_env":" /nuq_env_config/wab_env.xml","pyx_env":" /nuq_env_config/pyx_env.json",)"
            R"("env_map":" /nuq_env_config/env_map.json"})")),
    testsupport::RowName());

INSTANTIATE_TEST_SUITE_P(MapFile, EnvServiceEndPointsTest,
    ::testing::Values(MapCase("ValueTrimmedAndLowerCased", R"({"qa":" \tTEST\n "})", L"test"),
        MapCase("NameInAnotherCase", R"({"QA":"test","Qa":"test"})", L""),
        MapCase("NameWithBlanks", R"({" qa ":"test"})", L""), MapCase("NumberForText", R"({"qa":1})", L""),
        MapCase("BlankText", R"({"qa":"  "})", L""), MapCase("AnArray", R"(["qa","test"])", L""),
        MapCase("NoJson", "qa=test", L""), MapCase("UnknownToThePyxFile", R"({"qa":"Elsewhere"})", L"elsewhere")),
    testsupport::RowName());

INSTANTIATE_TEST_SUITE_P(PyxFile, EnvServiceEndPointsTest,
    ::testing::Values(
        PyxCase("NamesTrimmedAndLowerCased", R"({"test":{"  API ":"http://h/a","\tStatic\n":"http://h/s"}})",
            L"http://h/a", L"http://h/s"),
        PyxCase("ValuesAsWritten", R"({"test":{"api":" HTTP://Host/Api/ ","static":"%1/静态?A=B"}})",
            L" HTTP://Host/Api/ ", L"%1/静态?A=B"),
        PyxCase("LastInKeyOrderOfNamesThatAreTheSame",
            R"({"test":{"api":"lower","API":"upper"," api":"blank","zero":"z"}})", L"lower"),
        PyxCase("NumberForText", R"({"test":{"api":5,"static":"http://h/s"}})", L"", L"http://h/s"),
        PyxCase("EnvironmentInAnotherCase", R"({"TEST":{"api":"http://h/a"}})", L""),
        PyxCase("EnvironmentNoObject", R"({"test":["api","http://h/a"]})", L""),
        PyxCase("OtherEnvironmentOnly", R"({"production":{"api":"http://h/a","static":"http://h/s"}})", L""),
        PyxCase("AnArray", R"([{"test":{"api":"http://h/a"}}])", L""), PyxCase("NoJson", "test: api", L""),
        PyxCase("CutShort", R"({"test":{"api":"http://h/a")", L"")),
    testsupport::RowName());

TEST_F(EnvServiceTest, EnvironmentNamesMayBeChinese)
{
    host.baseConfig.currentEnv = "测试";
    EnvironmentFiles files;
    files.map = R"({"测试":"预发布"})";
    files.pyx = R"({"预发布":{"api":"http://h/a"}})";
    folder.WriteAll(files);
    EXPECT_EQ(EnvService::GetPyxCurrentEnv(), L"预发布");
    EXPECT_EQ(EnvService::GetPyxApiEndPoint(), L"http://h/a");
}

TEST_F(EnvServiceTest, ANameOfNothingButBlanksIsNoEndPoint)
{
    EnvironmentFiles files;
    files.pyx = R"({"test":{"":"1","  ":"2","Other Name ":"3","api":""}})";
    folder.WriteAll(files);
    EXPECT_EQ(EnvServiceAccess::PyxEndPoints(), (Texts{{L"api", L""}, {L"other name", L"3"}}));
}

TEST_F(EnvServiceTest, EndPointsAreSearchedByTheWholeNameInItsCase)
{
    const Texts map{{L"a", L"1"}, {L"api", L"2"}, {L"api2", L"3"}};
    EXPECT_EQ(EnvServiceAccess::FindEndPoint(map, L"api"), L"2");
    EXPECT_EQ(EnvServiceAccess::FindEndPoint(map, L"API"), L"");
    EXPECT_EQ(EnvServiceAccess::FindEndPoint(map, L"ap"), L"");
    EXPECT_EQ(EnvServiceAccess::FindEndPoint(map, L""), L"");
    EXPECT_EQ(EnvServiceAccess::FindEndPoint({}, L"api"), L"");
}

TEST_F(EnvServiceTest, WithoutAMainFileEveryEndPointIsEmptyOnEveryCall)
{
    for (int call = 0; call < 3; ++call) {
        EXPECT_EQ(EnvService::GetPyxApiEndPoint(), L"");
        EXPECT_EQ(EnvService::GetPyxStaticEndPoint(), L"");
        EXPECT_EQ(EnvService::GetPyxCurrentEnv(), L"");
    }
}

TEST_F(EnvServiceTest, AnEndPointThatWasNotFoundIsLookedUpAgain)
{
    EXPECT_EQ(EnvService::GetPyxApiEndPoint(), L"");
    EXPECT_EQ(EnvService::GetPyxStaticEndPoint(), L"");
    folder.WriteAll();
    EnvServiceAccess::ReadFilesAgain();
    EXPECT_EQ(EnvService::GetPyxApiEndPoint(), L"http://qa.example/Api");
    EXPECT_EQ(EnvService::GetPyxStaticEndPoint(), L"http://qa.example/Static");
}

TEST_F(EnvServiceTest, AnEndPointThatWasFoundStaysAsItIs)
{
    folder.WriteAll();
    EXPECT_EQ(EnvService::GetPyxApiEndPoint(), L"http://qa.example/Api");
    folder.WriteEndPoints(QStringLiteral("http://new/a"), QStringLiteral("http://new/s"));
    EnvServiceAccess::ReadFilesAgain();
    EXPECT_EQ(EnvService::GetPyxApiEndPoint(), L"http://qa.example/Api");
    EXPECT_EQ(EnvService::GetPyxStaticEndPoint(), L"http://new/s");
}

TEST_F(EnvServiceTest, ReadingTheFilesAgainAddsToWhatWasThere)
{
    EnvironmentFiles files;
    files.wab = "<env first='1' second='1'/>";
    files.pyx = R"({"test":{"first":"1","second":"1"}})";
    folder.WriteAll(files);
    EnvServiceAccess::PyxEndPoints();
    files.wab = "<env second='2' third='2'/>";
    files.pyx = R"({"test":{"second":"2","third":"2"}})";
    folder.WriteAll(files);
    EnvServiceAccess::ReadFilesAgain();
    const Texts expected{{L"first", L"1"}, {L"second", L"2"}, {L"third", L"2"}};
    EXPECT_EQ(EnvServiceAccess::WabSettings(), expected);
    EXPECT_EQ(EnvServiceAccess::PyxEndPoints(), expected);
}

TEST_F(EnvServiceTest, ALaterChangeOfTheHostsEnvironmentIsNoticedByItsOwnNameOnly)
{
    folder.WriteAll();
    EXPECT_EQ(EnvService::GetPyxApiEndPoint(), L"http://qa.example/Api");
    host.baseConfig.currentEnv = "prod";
    EXPECT_EQ(EnvService::GetPyxApiEndPoint(), L"http://qa.example/Api");
    EXPECT_EQ(EnvService::GetPyxStaticEndPoint(), L"http://qa.example/Static");
    EXPECT_EQ(EnvService::GetPyxCurrentEnv(), L"test");
    EXPECT_EQ(EnvService::GetWabCurrentEnv(), L"prod");
}
