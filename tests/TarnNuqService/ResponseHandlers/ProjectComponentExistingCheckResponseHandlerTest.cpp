#include "ResponseHandlers/ProjectComponentExistingCheckResponseHandler.h"

#include "Records/ProjectComponentExistingCheck.h"
#include "TarnNuqService/ResponseHandlers/JsonShapes.h"
#include "TarnNuqService/ResponseHandlers/MemoryFixture.h"
#include "TarnNuqService/ResponseHandlers/NumberRow.h"
#include "TarnNuqService/ResponseHandlers/RecordText.h"
#include "support/NamedCase.h"

#include <gmock/gmock.h>

namespace {

using namespace testsupport;
using namespace tarnnuq;
using testing::IsEmpty;
using Check = ProjectComponentExistingCheck;
using Handler = ProjectComponentExistingCheckResponseHandler;

class ProjectComponentExistingCheckResponseHandlerTest : public MemoryFixture
{
protected:
    Check MapCheck(const QByteArray& data)
    {
        const auto check = Map<Handler>(data);
        EXPECT_NE(check, nullptr);
        return check ? *check : Check();
    }
};

TEST_F(ProjectComponentExistingCheckResponseHandlerTest, GoodReplyFillsEveryMember)
{
    const Check check = MapCheck(R"({"exist":true,"version":5})");
    EXPECT_TRUE(check.Exist);
    EXPECT_EQ(check.Version, 5);
}

TEST_F(ProjectComponentExistingCheckResponseHandlerTest, AbsentComponentIsAResult)
{
    const Check check = MapCheck(R"({"exist":false,"version":5})");
    EXPECT_FALSE(check.Exist);
    EXPECT_EQ(check.Version, 5);
}

TEST_F(ProjectComponentExistingCheckResponseHandlerTest, EmptyOrOtherPayloadGivesNullAlsoAfterAResult)
{
    Handler handler;
    for (const char* data : {"{}", "null", "true", "5", R"("text")", "[]", R"([{"exist":true}])"}) {
        EXPECT_NE(Map(handler, R"({"exist":true})"), nullptr);
        EXPECT_EQ(Map(handler, data), nullptr) << data;
    }
    EXPECT_THAT(host.debugMessages.Warnings(), IsEmpty());
}

TEST_F(ProjectComponentExistingCheckResponseHandlerTest, UnknownMembersAloneGiveDefaults)
{
    EXPECT_EQ(Describe(MapCheck(R"({"Exist":true,"unknown":1})")), Describe(Check()));
}

TEST_F(ProjectComponentExistingCheckResponseHandlerTest, ExistOfAnotherTypeIsFalse)
{
    for (const JsonShape& shape : ShapesExcept({QJsonValue::Bool})) {
        const QJsonObject data{{QStringLiteral("version"), 5}};
        const Check check = MapCheck(JsonText(With(data, "exist", shape.value)));
        EXPECT_FALSE(check.Exist) << shape.name;
        EXPECT_EQ(check.Version, 5) << shape.name;
    }
}

TEST_F(ProjectComponentExistingCheckResponseHandlerTest, VersionOfAnotherTypeIsZero)
{
    for (const JsonShape& shape : ShapesExcept({QJsonValue::Double})) {
        const QJsonObject data{{QStringLiteral("exist"), true}};
        const Check check = MapCheck(JsonText(With(data, "version", shape.value)));
        EXPECT_TRUE(check.Exist) << shape.name;
        EXPECT_EQ(check.Version, 0) << shape.name;
    }
}

TEST_F(ProjectComponentExistingCheckResponseHandlerTest, ResultThatCannotBeMadeIsReportedAndNull)
{
    EXPECT_EQ((MapWithoutMemory<Handler, Check>(R"({"exist":true})", 1)), nullptr);
    ExpectWarning("ProjectComponentExistingCheckResponseHandler", L"m_result 为空");
}

class ExistingCheckNumberTest : public HandlerFixture, public testing::WithParamInterface<NumberRow>
{
};

INSTANTIATE_TEST_SUITE_P(, ExistingCheckNumberTest, testing::ValuesIn(NumberRows()), RowName());

TEST_P(ExistingCheckNumberTest, VersionIsReadWhenItIsAWhole32BitNumber)
{
    const auto check = Map<Handler>(QByteArray("{\"version\":") + GetParam().json + '}');
    ASSERT_NE(check, nullptr);
    EXPECT_EQ(check->Version, GetParam().value);
}

} // namespace
