#include "ResponseHandlers/DetailedProjectComponentResponseHandler.h"

#include "Records/IDetailedProjectComponent.h"
#include "TarnNuqService/ResponseHandlers/ComponentSample.h"
#include "TarnNuqService/ResponseHandlers/MemberCheck.h"
#include "TarnNuqService/ResponseHandlers/MemoryFixture.h"
#include "TarnNuqService/ResponseHandlers/NumberRow.h"
#include "TarnNuqService/ResponseHandlers/RecordText.h"
#include "support/NamedCase.h"

#include <gmock/gmock.h>

namespace {

using namespace testsupport;
using namespace tarnnuq;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Key;
using testing::Pair;

class DetailedProjectComponentResponseHandlerTest : public MemoryFixture
{
protected:
    IDetailedProjectComponent MapComponent(const QByteArray& data)
    {
        const auto component = Map<DetailedProjectComponentResponseHandler>(data);
        EXPECT_NE(component, nullptr);
        return component ? *component : IDetailedProjectComponent();
    }

    auto MapThumbnails(const QByteArray& sizes)
    {
        return MapComponent("{\"thumbnailSizes\":" + sizes + '}').Thumbnails;
    }
};

QJsonObject GoodObject()
{
    const QJsonObject size{{QStringLiteral("size"), QStringLiteral("64")},
        {QStringLiteral("thumbnails"), QJsonArray{QStringLiteral("64/a.png"), QStringLiteral("64/b.png")}}};
    QJsonObject object = GoodComponentObject();
    object.insert(QStringLiteral("familyTypeNames"), QJsonArray{QStringLiteral("DN200"), QStringLiteral("DN100")});
    object.insert(QStringLiteral("thumbnailSizes"), QJsonArray{size});
    return object;
}

/// The detailed reply's thumbnail and public component are not read.
IDetailedProjectComponent GoodDetailedComponent()
{
    IDetailedProjectComponent component;
    static_cast<IProjectComponent&>(component) = GoodComponent();
    component.Thumbnail.clear();
    component.PublicComponentId.clear();
    component.FamilyTypeNames = {L"DN200", L"DN100"};
    component.Thumbnails[L"64"] = {L"http://static.example/res/64/a.png", L"http://static.example/res/64/b.png"};
    return component;
}

TEST_F(DetailedProjectComponentResponseHandlerTest, GoodComponentFillsEveryMemberButThumbnailAndPublicComponent)
{
    EXPECT_EQ(Describe(MapComponent(JsonText(GoodObject()))), Describe(GoodDetailedComponent()));
}

TEST_F(DetailedProjectComponentResponseHandlerTest, UnknownMembersAloneGiveDefaults)
{
    EXPECT_EQ(Describe(MapComponent(R"({"unknown":1})")), Describe(IDetailedProjectComponent()));
}

TEST_F(DetailedProjectComponentResponseHandlerTest, EmptyOrOtherPayloadGivesNullAlsoAfterAComponent)
{
    DetailedProjectComponentResponseHandler handler;
    for (const char* data : {"{}", "null", "true", "5", R"("text")", "[]", R"([{"id":1}])"}) {
        EXPECT_NE(Map(handler, R"({"id":1})"), nullptr);
        EXPECT_EQ(Map(handler, data), nullptr) << data;
    }
    EXPECT_THAT(host.debugMessages.Warnings(), IsEmpty());
}

TEST_F(DetailedProjectComponentResponseHandlerTest, FamilyTypeNamesKeepTheirOrderAndAnEntryForWhatIsNoText)
{
    EXPECT_THAT(MapComponent(R"({"familyTypeNames":["b",1,null,true,["x"],{"x":"y"},"","a","b"]})").FamilyTypeNames,
        ElementsAre(L"b", L"", L"", L"", L"", L"", L"", L"a", L"b"));
}

TEST_F(DetailedProjectComponentResponseHandlerTest, ThumbnailsAreOrderedBySizeAsText)
{
    EXPECT_THAT(MapThumbnails(R"([{"size":"64","thumbnails":["a"]},{"size":"128","thumbnails":["b"]}])"),
        ElementsAre(Pair(L"128", ElementsAre(L"http://static.example/res/b")),
            Pair(L"64", ElementsAre(L"http://static.example/res/a"))));
}

TEST_F(DetailedProjectComponentResponseHandlerTest, OfTwoListsWithOneSizeTheLaterIsKept)
{
    EXPECT_THAT(MapThumbnails(R"([{"size":"64","thumbnails":["a","b"]},{"size":"064","thumbnails":["c"]}])"),
        ElementsAre(Pair(L"64", ElementsAre(L"http://static.example/res/c"))));
}

TEST_F(DetailedProjectComponentResponseHandlerTest, SizeIsWrittenInDecimal)
{
    EXPECT_THAT(MapThumbnails(R"([{"size":"-1"},{"size":"+7"},{"size":"2147483647"}])"),
        ElementsAre(Key(std::wstring(L"-1")), Key(std::wstring(L"2147483647")), Key(std::wstring(L"7"))));
}

TEST_F(DetailedProjectComponentResponseHandlerTest, SizeThatIsNoDecimalTextIsZero)
{
    for (const char* size : {"64", "64.0", "true", "null", R"("")", R"("64px")", R"("2147483648")", R"("6.4")",
             R"("0x40")", "[64]", "{}"}) {
        EXPECT_THAT(MapThumbnails(QByteArray("[{\"size\":") + size + "}]"), ElementsAre(Key(std::wstring(L"0"))))
            << size;
    }
    EXPECT_THAT(MapThumbnails(R"([{"thumbnails":["a"]}])"), ElementsAre(Key(std::wstring(L"0"))));
}

TEST_F(DetailedProjectComponentResponseHandlerTest, EmptyPathIsAnEmptyEntry)
{
    EXPECT_THAT(MapThumbnails(R"([{"size":"1","thumbnails":["a","",null,5,["x"],"b"]}])"),
        ElementsAre(Pair(
            L"1", ElementsAre(L"http://static.example/res/a", L"", L"", L"", L"", L"http://static.example/res/b"))));
}

TEST_F(DetailedProjectComponentResponseHandlerTest, SizeWithoutThumbnailsHasAnEmptyList)
{
    for (const char* thumbnails : {"null", R"("a")", "{}", "5", "[]"}) {
        EXPECT_THAT(MapThumbnails(QByteArray(R"([{"size":"1","thumbnails":)") + thumbnails + "}]"),
            ElementsAre(Pair(L"1", IsEmpty())))
            << thumbnails;
    }
}

TEST_F(DetailedProjectComponentResponseHandlerTest, EntryThatIsNoObjectIsSizeZero)
{
    EXPECT_THAT(MapThumbnails(R"([null, 5, "64", ["64"], {}])"), ElementsAre(Pair(L"0", IsEmpty())));
}

TEST_F(DetailedProjectComponentResponseHandlerTest, TenThousandSizesAndNamesAreAllThere)
{
    QJsonArray sizes;
    QJsonArray names;
    for (int number = 0; number < 10000; ++number) {
        sizes.append(QJsonObject{{QStringLiteral("size"), QString::number(number)}});
        names.append(QString::number(number));
    }
    const auto component = MapComponent(
        JsonText(QJsonObject{{QStringLiteral("thumbnailSizes"), sizes}, {QStringLiteral("familyTypeNames"), names}}));
    EXPECT_EQ(component.Thumbnails.size(), 10000u);
    ASSERT_EQ(component.FamilyTypeNames.size(), 10000u);
    EXPECT_EQ(component.FamilyTypeNames.back(), L"9999");
}

TEST_F(DetailedProjectComponentResponseHandlerTest, ComponentThatCannotBeMadeIsReportedAndNull)
{
    const auto component =
        MapWithoutMemory<DetailedProjectComponentResponseHandler, IDetailedProjectComponent>(JsonText(GoodObject()), 1);
    EXPECT_EQ(component, nullptr);
    ExpectWarning("DetailedProjectComponentResponseHandler", L"m_result 为空");
}

using DetailRow = MemberRow<IDetailedProjectComponent>;

class DetailedProjectComponentMemberTest : public HandlerFixture, public testing::WithParamInterface<DetailRow>
{
};

const std::vector<DetailRow>& Members()
{
    using Component = IDetailedProjectComponent;
    static const std::vector<DetailRow> rows{
        {"id", {QJsonValue::String, QJsonValue::Double}, [](Component& component) { component.Id.clear(); }},
        {"version", {QJsonValue::Double}, [](Component& component) { component.Version = 0; }},
        {"name", {QJsonValue::String}, [](Component& component) { component.Name.clear(); }},
        {"categoryId", {QJsonValue::String, QJsonValue::Double},
            [](Component& component) { component.CategoryId.clear(); }},
        {"categoryCode", {QJsonValue::String}, [](Component& component) { component.CategoryCode.clear(); }},
        {"source", {QJsonValue::Double}, [](Component& component) { component.Source = 0; }},
        {"status", {QJsonValue::String}, [](Component& component) { component.Status.clear(); }},
        {"familyTypeNames", {QJsonValue::Array}, [](Component& component) { component.FamilyTypeNames.clear(); }},
        {"thumbnailSizes", {QJsonValue::Array}, [](Component& component) { component.Thumbnails.clear(); }}};
    return rows;
}

INSTANTIATE_TEST_SUITE_P(, DetailedProjectComponentMemberTest, testing::ValuesIn(Members()), RowName());

TEST_P(DetailedProjectComponentMemberTest, MissingOrOfAnotherTypeIsItsDefault)
{
    ExpectDefaultForOtherTypes(GetParam(), GoodObject(), GoodDetailedComponent(),
        [this](const QJsonObject& object) { return Map<DetailedProjectComponentResponseHandler>(JsonText(object)); });
}

class DetailedProjectComponentIdTest : public HandlerFixture, public testing::WithParamInterface<IdRow>
{
};

INSTANTIATE_TEST_SUITE_P(, DetailedProjectComponentIdTest, testing::ValuesIn(IdRows()), RowName());

TEST_P(DetailedProjectComponentIdTest, IsKeptAsText)
{
    const QByteArray id = GetParam().json;
    const auto component =
        Map<DetailedProjectComponentResponseHandler>("{\"version\":1,\"id\":" + id + ",\"categoryId\":" + id + '}');
    ASSERT_NE(component, nullptr);
    EXPECT_EQ(component->Id, GetParam().text);
    EXPECT_EQ(component->CategoryId, GetParam().text);
}

class DetailedProjectComponentNumberTest : public HandlerFixture, public testing::WithParamInterface<NumberRow>
{
};

INSTANTIATE_TEST_SUITE_P(, DetailedProjectComponentNumberTest, testing::ValuesIn(NumberRows()), RowName());

TEST_P(DetailedProjectComponentNumberTest, IsReadWhenItIsAWhole32BitNumber)
{
    const QByteArray number = GetParam().json;
    const auto component =
        Map<DetailedProjectComponentResponseHandler>("{\"version\":" + number + ",\"source\":" + number + '}');
    ASSERT_NE(component, nullptr);
    EXPECT_EQ(component->Version, GetParam().value);
    EXPECT_EQ(component->Source, GetParam().value);
}

} // namespace
