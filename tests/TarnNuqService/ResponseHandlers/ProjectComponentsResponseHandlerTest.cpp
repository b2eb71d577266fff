#include "ResponseHandlers/ProjectComponentsResponseHandler.h"

#include "Records/IProjectComponent.h"
#include "TarnNuqService/ResponseHandlers/ComponentSample.h"
#include "TarnNuqService/ResponseHandlers/MemberCheck.h"
#include "TarnNuqService/ResponseHandlers/MemoryFixture.h"
#include "TarnNuqService/ResponseHandlers/RecordText.h"
#include "support/NamedCase.h"

#include <gmock/gmock.h>

namespace {

using namespace testsupport;
using namespace tarnnuq;
using testing::IsEmpty;
using testing::SizeIs;

class ProjectComponentsResponseHandlerTest : public MemoryFixture
{
};

TEST_F(ProjectComponentsResponseHandlerTest, GoodComponentFillsEveryMember)
{
    const auto components = Map<ProjectComponentsResponseHandler>(JsonText(QJsonArray{GoodComponentObject()}));
    ASSERT_THAT(components, SizeIs(1));
    EXPECT_EQ(Describe(components[0]), Describe(GoodComponent()));
}

TEST_F(ProjectComponentsResponseHandlerTest, NumericCategoryIdIsKeptAsText)
{
    const auto components = Map<ProjectComponentsResponseHandler>(R"([{"categoryId":7}])");
    ASSERT_THAT(components, SizeIs(1));
    EXPECT_EQ(components[0]->CategoryId, L"7");
}

TEST_F(ProjectComponentsResponseHandlerTest, ElementThatIsNoObjectGivesDefaults)
{
    const auto components = Map<ProjectComponentsResponseHandler>(R"([{}, null, true, 5, "text", [{"id":1}]])");
    ASSERT_THAT(components, SizeIs(6));
    for (const auto& component : components) {
        EXPECT_EQ(Describe(component), Describe(IProjectComponent()));
    }
}

TEST_F(ProjectComponentsResponseHandlerTest, PayloadThatIsNoArrayGivesAnEmptyListAlsoAfterAFullOne)
{
    ProjectComponentsResponseHandler handler;
    for (const char* data : {"[]", "{}", "null", "true", "5", R"("text")", R"({"list":[{}]})"}) {
        EXPECT_THAT(Map(handler, "[{}]"), SizeIs(1));
        EXPECT_THAT(Map(handler, data), IsEmpty()) << data;
    }
}

TEST_F(ProjectComponentsResponseHandlerTest, TenThousandComponentsKeepTheirOrder)
{
    QJsonArray data;
    for (int version = 0; version < 10000; ++version) {
        data.append(With(GoodComponentObject(), "version", version));
    }
    const auto components = Map<ProjectComponentsResponseHandler>(JsonText(data));
    ASSERT_THAT(components, SizeIs(10000));
    for (int version = 0; version < 10000; ++version) {
        ASSERT_EQ(components[static_cast<std::size_t>(version)]->Version, version);
    }
}

TEST_F(ProjectComponentsResponseHandlerTest, ComponentThatCannotBeMadeIsReportedAndSkipped)
{
    const auto components = MapWithoutMemory<ProjectComponentsResponseHandler, IProjectComponent>(
        R"([{"id":"1"},{"id":"2"},{"id":"3"}])", 2);
    ExpectWarning("ProjectComponentsResponseHandler", L"spProjectComponent 为空");
    ASSERT_THAT(components, SizeIs(2));
    EXPECT_EQ(components[0]->Id, L"1");
    EXPECT_EQ(components[1]->Id, L"3");
}

class ProjectComponentsMemberTest : public HandlerFixture,
                                    public testing::WithParamInterface<MemberRow<IProjectComponent>>
{
};

INSTANTIATE_TEST_SUITE_P(, ProjectComponentsMemberTest, testing::ValuesIn(ComponentMembers()), RowName());

TEST_P(ProjectComponentsMemberTest, MissingOrOfAnotherTypeIsItsDefault)
{
    ExpectDefaultForOtherTypes(GetParam(), GoodComponentObject(), GoodComponent(), [this](const QJsonObject& object) {
        return Only(Map<ProjectComponentsResponseHandler>(JsonText(QJsonArray{object})));
    });
}

class ProjectComponentsIdTest : public HandlerFixture, public testing::WithParamInterface<IdRow>
{
};

INSTANTIATE_TEST_SUITE_P(, ProjectComponentsIdTest, testing::ValuesIn(IdRows()), RowName());

TEST_P(ProjectComponentsIdTest, IsKeptAsText)
{
    const QByteArray id = GetParam().json;
    const auto components = Map<ProjectComponentsResponseHandler>(
        "[{\"id\":" + id + ",\"categoryId\":" + id + ",\"publicComponentId\":" + id + "}]");
    ASSERT_THAT(components, SizeIs(1));
    EXPECT_EQ(components[0]->Id, GetParam().text);
    EXPECT_EQ(components[0]->CategoryId, GetParam().text);
    EXPECT_EQ(components[0]->PublicComponentId, GetParam().text);
}

} // namespace
