#include "ResponseHandlers/ProjectComponentResponseHandler.h"

#include "Records/IProjectComponent.h"
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
using testing::IsEmpty;

class ProjectComponentResponseHandlerTest : public MemoryFixture
{
protected:
    IProjectComponent MapComponent(const QByteArray& data)
    {
        const auto component = Map<ProjectComponentResponseHandler>(data);
        EXPECT_NE(component, nullptr);
        return component ? *component : IProjectComponent();
    }
};

/// The one-component reply does not have the status.
IProjectComponent GoodSingleComponent()
{
    IProjectComponent component = GoodComponent();
    component.Status.clear();
    return component;
}

TEST_F(ProjectComponentResponseHandlerTest, GoodComponentFillsEveryMemberButTheStatus)
{
    EXPECT_EQ(Describe(MapComponent(JsonText(GoodComponentObject()))), Describe(GoodSingleComponent()));
}

TEST_F(ProjectComponentResponseHandlerTest, UnknownMembersAloneGiveDefaults)
{
    EXPECT_EQ(Describe(MapComponent(R"({"unknown":1})")), Describe(IProjectComponent()));
}

TEST_F(ProjectComponentResponseHandlerTest, EmptyOrOtherPayloadGivesNullAlsoAfterAComponent)
{
    ProjectComponentResponseHandler handler;
    for (const char* data : {"{}", "null", "true", "5", R"("text")", "[]", R"([{"id":1}])"}) {
        EXPECT_NE(Map(handler, R"({"id":1})"), nullptr);
        EXPECT_EQ(Map(handler, data), nullptr) << data;
    }
    EXPECT_THAT(host.debugMessages.Warnings(), IsEmpty());
}

TEST_F(ProjectComponentResponseHandlerTest, NumericCategoryIdIsEmpty)
{
    EXPECT_EQ(MapComponent(R"({"categoryId":7})").CategoryId, L"");
    EXPECT_EQ(MapComponent(R"({"categoryId":"7"})").CategoryId, L"7");
}

TEST_F(ProjectComponentResponseHandlerTest, ThumbnailIsJoinedToTheStaticEndPointAsItIs)
{
    EXPECT_EQ(MapComponent(R"({"thumbnail":"/a.png"})").Thumbnail, L"http://static.example/res//a.png");
    EXPECT_EQ(
        MapComponent(R"({"thumbnail":"https://x/a.png"})").Thumbnail, L"http://static.example/res/https://x/a.png");
    EXPECT_EQ(MapComponent(R"({"thumbnail":"%1 %2/风.png"})").Thumbnail, L"http://static.example/res/%1 %2/风.png");
    EXPECT_EQ(MapComponent(R"({"thumbnail":" "})").Thumbnail, L"http://static.example/res/ ");
    EXPECT_EQ(MapComponent(R"({"thumbnail":"","id":1})").Thumbnail, L"");
}

TEST_F(ProjectComponentResponseHandlerTest, ComponentThatCannotBeMadeIsReportedAndNull)
{
    const auto component =
        MapWithoutMemory<ProjectComponentResponseHandler, IProjectComponent>(JsonText(GoodComponentObject()), 1);
    EXPECT_EQ(component, nullptr);
    ExpectWarning("ProjectComponentResponseHandler", L"m_result 为空");
}

class ProjectComponentMemberTest : public HandlerFixture,
                                   public testing::WithParamInterface<MemberRow<IProjectComponent>>
{
};

INSTANTIATE_TEST_SUITE_P(, ProjectComponentMemberTest, testing::ValuesIn(ComponentMembers()), RowName());

TEST_P(ProjectComponentMemberTest, MissingOrOfAnotherTypeIsItsDefault)
{
    ExpectDefaultForOtherTypes(GetParam(), GoodComponentObject(), GoodSingleComponent(),
        [this](const QJsonObject& object) { return Map<ProjectComponentResponseHandler>(JsonText(object)); });
}

class ProjectComponentIdTest : public HandlerFixture, public testing::WithParamInterface<IdRow>
{
};

INSTANTIATE_TEST_SUITE_P(, ProjectComponentIdTest, testing::ValuesIn(IdRows()), RowName());

TEST_P(ProjectComponentIdTest, IsKeptAsText)
{
    const QByteArray id = GetParam().json;
    const auto component =
        Map<ProjectComponentResponseHandler>("{\"version\":1,\"id\":" + id + ",\"publicComponentId\":" + id + '}');
    ASSERT_NE(component, nullptr);
    EXPECT_EQ(component->Id, GetParam().text);
    EXPECT_EQ(component->PublicComponentId, GetParam().text);
}

class ProjectComponentNumberTest : public HandlerFixture, public testing::WithParamInterface<NumberRow>
{
};

INSTANTIATE_TEST_SUITE_P(, ProjectComponentNumberTest, testing::ValuesIn(NumberRows()), RowName());

TEST_P(ProjectComponentNumberTest, IsReadWhenItIsAWhole32BitNumber)
{
    const QByteArray number = GetParam().json;
    const auto component =
        Map<ProjectComponentResponseHandler>("{\"version\":" + number + ",\"source\":" + number + '}');
    ASSERT_NE(component, nullptr);
    EXPECT_EQ(component->Version, GetParam().value);
    EXPECT_EQ(component->Source, GetParam().value);
}

} // namespace
