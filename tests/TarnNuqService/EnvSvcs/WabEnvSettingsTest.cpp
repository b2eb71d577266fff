#include "TarnNuqService/EnvSvcs/EnvServiceAccess.h"
#include "TarnNuqService/EnvSvcs/EnvServiceFixture.h"
#include "support/NamedCase.h"

using tarnnuq::EnvServiceAccess;
using testsupport::EnvironmentFiles;

namespace {

using Texts = std::map<std::wstring, std::wstring>;

struct SettingsCase : testsupport::NamedCase
{
    QByteArray xml;
    Texts settings;
};

class WabEnvSettingsTest : public testsupport::EnvServiceFixture, public ::testing::WithParamInterface<SettingsCase>
{
};

using WabEnvSettingsWithoutEnvironmentTest = testsupport::EnvServiceFixture;

/// A document type whose entities would expand to a thousand million characters.
QByteArray EntitiesWithoutEnd()
{
    QByteArray xml = "<!DOCTYPE envs [<!ENTITY e0 'aaaaaaaaaa'>";
    for (int level = 1; level < 9; ++level) {
        const QByteArray below = "&e" + QByteArray::number(level - 1) + ';';
        xml += "<!ENTITY e" + QByteArray::number(level) + " '" + below.repeated(10) + "'>";
    }
    return xml + "]><envs><env a='1'/><env b='&e8;'/></envs>";
}

} // namespace

TEST_P(WabEnvSettingsTest, AreTheAttributesOfTheElementsNamedEnv)
{
    EnvironmentFiles files;
    files.wab = GetParam().xml;
    folder.WriteAll(files);
    EXPECT_EQ(EnvServiceAccess::WabSettings(), GetParam().settings);
    EXPECT_EQ(tarnnuq::EnvService::GetPyxApiEndPoint(), L"http://qa.example/Api");
}

INSTANTIATE_TEST_SUITE_P(Xml, WabEnvSettingsTest,
    ::testing::Values(
        SettingsCase{{"NamesAndValuesTrimmedAndLowerCased"}, "<env NAME=' QA ' Url='&#9;HTTP://Host&#10;'/>",
            {{L"name", L"qa"}, {L"url", L"http://host"}}},
        SettingsCase{{"LaterAttributeWins"}, "<e><env a='1' b='1'/><env A='2'/></e>", {{L"a", L"2"}, {L"b", L"1"}}},
        SettingsCase{{"ElementNameInAnyCase"}, "<e><ENV a='1'/><Env b='2'/></e>", {{L"a", L"1"}, {L"b", L"2"}}},
        SettingsCase{{"NestedElements"}, "<env a='1'><env b='2'><x><env c='3'/></x></env></env>",
            {{L"a", L"1"}, {L"b", L"2"}, {L"c", L"3"}}},
        SettingsCase{{"OtherElementsAndText"}, "<envs a='1'>env x='2'<environment b='2'/><en c='3'/><env/></envs>", {}},
        SettingsCase{{"CommentsAreNoElements"}, "<e><!-- <env a='1'/> --><env b='2'/></e>", {{L"b", L"2"}}},
        SettingsCase{{"PrefixOfANameSpace"}, "<e xmlns:n='urn:n'><n:env n:a='1'/></e>", {{L"a", L"1"}}},
        SettingsCase{{"EmptyValue"}, "<env a=''/>", {{L"a", L""}}},
        SettingsCase{{"ChineseNamesAndValues"}, "<env 名='值 Ä'/>", {{L"名", L"值 ä"}}},
        SettingsCase{{"OtherEncoding"}, "<?xml version='1.0' encoding='ISO-8859-1'?><env a='\xe4'/>", {{L"a", L"ä"}}},
        SettingsCase{{"ErrorInTheMiddleKeepsWhatCameBefore"}, "<e><env a='1'/><env b='2'></e><env c='3'/>",
            {{L"a", L"1"}, {L"b", L"2"}}},
        SettingsCase{{"CutShort"}, "<e><env a='1'/><env b='2", {{L"a", L"1"}}},
        SettingsCase{{"DoubledAttributeIsAnError"}, "<e><env a='1'/><env b='2' b='3'/></e>", {{L"a", L"1"}}},
        SettingsCase{{"UndefinedEntityIsAnError"}, "<e><env a='1'/><env b='&nothing;'/></e>", {{L"a", L"1"}}},
        SettingsCase{{"EntitiesWithoutEndAreAnError"}, EntitiesWithoutEnd(), {{L"a", L"1"}}},
        SettingsCase{{"NoXml"}, "name=qa", {}}, SettingsCase{{"Empty"}, "", {}},
        SettingsCase{{"HalfAByteOrderMark"}, "\xef\xbb<env a='1'/>", {}}),
    testsupport::RowName());

TEST_F(WabEnvSettingsWithoutEnvironmentTest, AreCollectedWithoutAnEnvironmentOfTheHost)
{
    host.baseConfig.currentEnv.clear();
    folder.WriteAll();
    EXPECT_EQ(EnvServiceAccess::WabSettings(), (Texts{{L"name", L"qa"}, {L"stage", L"test"}}));
}
