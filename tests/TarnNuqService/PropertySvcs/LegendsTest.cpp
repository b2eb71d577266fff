#include "TarnNuqService/PropertySvcs/PropertyServiceFixture.h"
#include "TarnNuqService/ResponseHandlers/RecordText.h"
#include "support/NamedCase.h"

using tarnnuq::ILegend;
using testsupport::Describe;

namespace {

class LegendsTest : public testsupport::PropertyServiceFixture
{
protected:
    LegendsTest()
    {
        Service();
        host.logger.Clear();
        host.debugMessages.Clear();
    }

    std::vector<std::shared_ptr<ILegend>> Read(ILegend::LegendType type = ILegend::Plan)
    {
        return Service().GetLegends(L"code", type);
    }

    /// The only legend of this file.
    ILegend ReadFile(const std::wstring& file)
    {
        host.componentSql.legends = {{L"1", file}};
        const auto legends = Read();
        EXPECT_EQ(legends.size(), 1U);
        return legends.empty() ? ILegend() : *legends.front();
    }
};

/// A legend's file, the legend's name, and its image below the folder.
struct FileCase : testsupport::NamedCase
{
    std::wstring file;
    std::wstring legendName;
    std::wstring image;
};

class LegendFileTest : public LegendsTest, public ::testing::WithParamInterface<FileCase>
{
};

struct IdCase : testsupport::NamedCase
{
    std::wstring key;
    std::int64_t id;
};

class LegendIdTest : public LegendsTest, public ::testing::WithParamInterface<IdCase>
{
};

} // namespace

TEST_P(LegendFileTest, GivesNameAndImage)
{
    host.filePaths.product2DFolder = L"D:\\产品 2d";
    const ILegend legend = ReadFile(GetParam().file);
    EXPECT_EQ(legend.Name, GetParam().legendName);
    EXPECT_EQ(legend.Thumbnail, L"D:\\产品 2d\\" + GetParam().image);
}

INSTANTIATE_TEST_SUITE_P(Files, LegendFileTest,
    ::testing::Values(FileCase{{"InAFolder"}, L"pipes\\valve", L"valve", L"pipes\\valve.png"},
        FileCase{{"InFoldersOfFolders"}, L"a\\b\\c\\d", L"d", L"a\\b\\c\\d.png"},
        FileCase{{"WithoutAFolder"}, L"valve", L"valve", L"valve.png"}, FileCase{{"Empty"}, L"", L"", L".png"},
        FileCase{{"EndsInASeparator"}, L"pipes\\", L"", L"pipes\\.png"},
        FileCase{{"OnlyASeparator"}, L"\\", L"", L"\\.png"},
        FileCase{{"TwoSeparators"}, L"pipes\\\\valve", L"valve", L"pipes\\\\valve.png"},
        FileCase{{"SlashesSeparateNothing"}, L"pipes/valve", L"pipes/valve", L"pipes/valve.png"},
        FileCase{{"SlashBehindASeparator"}, L"a\\b/c", L"b/c", L"a\\b/c.png"},
        FileCase{{"HasAnEnding"}, L"pipes\\valve.png", L"valve.png", L"pipes\\valve.png.png"},
        FileCase{{"Chinese"}, L"管道\\闸阀", L"闸阀", L"管道\\闸阀.png"},
        FileCase{{"BeyondTheBasicPlane"}, L"a\\\U0001F6B0", L"\U0001F6B0", L"a\\\U0001F6B0.png"},
        FileCase{{"LooksLikeAFormat"}, L"%s\\%d%n%%", L"%d%n%%", L"%s\\%d%n%%.png"},
        FileCase{{"LooksLikeAPlaceMarker"}, L"%1\\%2", L"%2", L"%1\\%2.png"},
        FileCase{{"Blanks"}, L" a \\ b ", L" b ", L" a \\ b .png"},
        FileCase{{"Long"}, std::wstring(5000, L'x'), std::wstring(5000, L'x'), std::wstring(5000, L'x') + L".png"}),
    testsupport::RowName());

TEST_P(LegendIdTest, IsReadAsADecimalNumber)
{
    host.componentSql.legends = {{GetParam().key, L"file"}};
    const auto legends = Read();
    ASSERT_EQ(legends.size(), 1U);
    EXPECT_EQ(legends.front()->Id, GetParam().id);
    EXPECT_EQ(legends.front()->Name, L"file");
}

INSTANTIATE_TEST_SUITE_P(Keys, LegendIdTest,
    ::testing::Values(IdCase{{"Digits"}, L"17", 17}, IdCase{{"Zero"}, L"0", 0}, IdCase{{"Negative"}, L"-17", -17},
        IdCase{{"LeadingZeros"}, L"0017", 17}, IdCase{{"Beyond32Bits"}, L"12345678901", 12345678901},
        IdCase{{"Largest"}, L"9223372036854775807", 9223372036854775807},
        IdCase{{"Beyond64Bits"}, L"9223372036854775808", 0}, IdCase{{"NoNumber"}, L"abc", 0}, IdCase{{"Empty"}, L"", 0},
        IdCase{{"NumberAndLetters"}, L"12a", 0}, IdCase{{"Decimals"}, L"1.0", 0}, IdCase{{"Hexadecimal"}, L"0x10", 0}),
    testsupport::RowName());

TEST_F(LegendsTest, FillsARecordWhole)
{
    host.componentSql.legends = {{L"42", L"pipes\\valve"}};
    ILegend expected;
    expected.Id = 42;
    expected.Name = L"valve";
    expected.Type = ILegend::Profile;
    expected.Thumbnail = L"C:\\product\\2d\\pipes\\valve.png";
    const auto legends = Read(ILegend::Profile);
    ASSERT_EQ(legends.size(), 1U);
    EXPECT_EQ(Describe(*legends.front()), Describe(expected));
}

TEST_F(LegendsTest, StandInTheOrderOfTheirIdTexts)
{
    host.componentSql.legends = {{L"9", L"c"}, {L"10", L"b"}, {L"-1", L"a"}, {L"x", L"d"}};
    std::vector<std::wstring> names;
    for (const auto& spLegend : Read()) {
        names.push_back(spLegend->Name);
    }
    EXPECT_EQ(names, (std::vector<std::wstring>{L"a", L"b", L"c", L"d"}));
}

TEST_F(LegendsTest, AsksTheProductsDatabaseForTheCategoryAndTheView)
{
    for (const ILegend::LegendType type : {ILegend::Unknown, ILegend::Plan, ILegend::Elevation, ILegend::Profile}) {
        Service().GetLegends(L"分类 1", type);
    }
    const auto& questions = host.componentSql.questions;
    ASSERT_EQ(questions.size(), 4U);
    for (int number = 0; number < 4; ++number) {
        const auto& question = questions[static_cast<std::size_t>(number)];
        EXPECT_EQ(question.dbPath, L"C:\\product\\components.db");
        EXPECT_EQ(question.categoryCode, L"分类 1");
        EXPECT_EQ(static_cast<int>(question.type), number);
    }
}

TEST_F(LegendsTest, HandsANumberOutsideTheViewsOn)
{
    host.componentSql.legends = {{L"1", L"a"}};
    const auto legends = Read(static_cast<ILegend::LegendType>(77));
    EXPECT_EQ(static_cast<int>(host.componentSql.questions.front().type), 77);
    EXPECT_EQ(static_cast<int>(legends.front()->Type), 77);
}

TEST_F(LegendsTest, OfACategoryWithoutAnyAreNone)
{
    EXPECT_TRUE(Read().empty());
    testsupport::ExpectWarnings(host, {});
}

TEST_F(LegendsTest, OfALookUpThatFailsAreNoneWhateverItFilledIn)
{
    host.componentSql.legends = {{L"1", L"a"}};
    host.componentSql.succeeds = false;
    EXPECT_TRUE(Read().empty());
    testsupport::ExpectWarnings(host, {});
}

TEST_F(LegendsTest, WithoutADatabaseAreNone)
{
    host.Remove(&hostsdk::HostServices::componentSql);
    EXPECT_TRUE(Read().empty());
    testsupport::ExpectWarnings(host, {});
}

TEST_F(LegendsTest, WithoutPathsHaveImagesBelowNothing)
{
    host.Remove(&hostsdk::HostServices::filePaths);
    EXPECT_EQ(ReadFile(L"pipes\\valve").Thumbnail, L"\\pipes\\valve.png");
    EXPECT_EQ(host.componentSql.questions.front().dbPath, L"");
}

TEST_F(LegendsTest, AFolderThatLooksLikeAFormatIsTakenAsItIs)
{
    host.filePaths.product2DFolder = L"%s%n\\%1";
    EXPECT_EQ(ReadFile(L"a").Thumbnail, L"%s%n\\%1\\a.png");
}

TEST_F(LegendsTest, AreReadAfreshEachTime)
{
    EXPECT_EQ(ReadFile(L"a").Name, L"a");
    EXPECT_EQ(ReadFile(L"b").Name, L"b");
}

TEST_F(LegendsTest, LogNothing)
{
    ReadFile(L"a");
    EXPECT_TRUE(host.logger.Records().empty());
}

namespace {

/// Notes what is asked of the paths and the database, in order.
class NotingDatabase final : public tarn::TarnFilePathSettings
{
public:
    mutable std::vector<std::string> calls;

protected:
    std::wstring DoGetCurrentProductDBFilePath() const override { return calls.emplace_back("database"), L"db"; }
    std::wstring DoGetCurrentProduct2DFolderPath() const override { return calls.emplace_back("folder"), L"2d"; }
};

} // namespace

TEST_F(LegendsTest, AskForBothPathsOnceWhateverIsFound)
{
    NotingDatabase paths;
    hostsdk::HostServices services = hostsdk::Installed();
    services.filePaths = &paths;
    hostsdk::Install(services);
    Read();
    host.componentSql.legends = {{L"1", L"a"}, {L"2", L"b"}};
    Read();
    EXPECT_EQ(paths.calls, (std::vector<std::string>{"database", "folder", "database", "folder"}));
}
