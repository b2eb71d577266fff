#include "TarnNuqService/CategorySvcs/PublicCategoryFixture.h"
#include "support/NamedCase.h"

#include <QMetaMethod>
#include <QSignalSpy>

using tarnnuq::ICategory;
using tarnnuq::PublicCategoryService;
using testsupport::CategoryBody;
using testsupport::CountsOf;
using testsupport::IdsOf;
using testsupport::NamesOf;
using testsupport::ScriptedResponse;
using testsupport::SuccessBody;

namespace {

using Ids = std::vector<int>;
using Counts = std::vector<int>;
using PublicCategoryReplyTest = testsupport::PublicCategoryFixture;

/// An answer that brings no categories.
struct FailureCase : testsupport::NamedCase
{
    ScriptedResponse response;
};

FailureCase BodyCase(const char* name, const QByteArray& body)
{
    return {{name}, ScriptedResponse::Json(body)};
}

class PublicCategoryFailureTest : public testsupport::PublicCategoryFixture,
                                  public ::testing::WithParamInterface<FailureCase>
{
};

/// One category in a list.
QByteArray OneCategory(const QByteArray& code)
{
    return "{\"code\":" + code + ",\"data\":[{\"id\":1,\"count\":5}]}";
}

} // namespace

TEST_F(PublicCategoryReplyTest, TheFirstReplyIsAnnouncedInTheOrderOfTheWeights)
{
    EXPECT_EQ(IdsOf(Request({{10, 0, 3}, {20, 0, 1}, {30, 0, 2}})), (Ids{20, 30, 10}));
}

TEST_F(PublicCategoryReplyTest, TheFirstReplyFillsTheseMembersAndNoOther)
{
    const QByteArray data = R"([{"id":7,"parentId":3,"name":"水泵 \"A\"","weight":1.25,"count":42,)"
                            R"("code":"C7","parentCode":"C3","isLeaf":true}])";
    const Categories categories = Request(ScriptedResponse::Json(SuccessBody(data)));
    ASSERT_EQ(categories.size(), 1);
    const ICategory& category = categories.front();
    EXPECT_EQ(category.Id, 7);
    EXPECT_EQ(category.ParentId, 3);
    EXPECT_EQ(category.Name, L"水泵 \"A\"");
    EXPECT_EQ(category.Weight, 1.25);
    EXPECT_EQ(category.Count, 42);
    EXPECT_EQ(category.Code, L"");
    EXPECT_EQ(category.ParentCode, L"");
    EXPECT_EQ(category.IdText, L"");
    EXPECT_EQ(category.ParentIdText, L"");
    EXPECT_TRUE(category.NamePath.empty());
    EXPECT_FALSE(category.IsLeaf);
}

TEST_F(PublicCategoryReplyTest, MembersThatAreMissingOrOfAnotherKindAreZeroOrEmpty)
{
    const QByteArray data = R"([{},5,null,[1],{"id":"8","parentId":true,"name":9,"weight":"1","count":null},)"
                            R"({"id":1.5,"count":3000000000,"parentId":-4}])";
    const Categories categories = Request(ScriptedResponse::Json(SuccessBody(data)));
    ASSERT_EQ(categories.size(), 6);
    for (const ICategory& category : categories) {
        EXPECT_EQ(category.Id, 0);
        EXPECT_EQ(category.Count, 0);
        EXPECT_EQ(category.Weight, 0.0);
        EXPECT_EQ(category.Name, L"");
    }
}

TEST_F(PublicCategoryReplyTest, ARefreshBringsCountsAndNothingElse)
{
    Request({{1, 0, 1, 10, "one"}, {2, 1, 2, 20, "two"}, {3, 1, 3, 30, "three"}});
    const Categories refreshed = Request({{2, 9, 0.5, 5, "renamed"}, {4, 0, 0, 7, "new"}});
    EXPECT_EQ(IdsOf(refreshed), (Ids{1, 2, 3}));
    EXPECT_EQ(CountsOf(refreshed), (Counts{0, 5, 0}));
    EXPECT_EQ(NamesOf(refreshed), (std::vector<std::wstring>{L"one", L"two", L"three"}));
    EXPECT_EQ(refreshed[1].ParentId, 1);
    EXPECT_EQ(refreshed[1].Weight, 2.0);
}

TEST_F(PublicCategoryReplyTest, ANewCategoryNeverEntersTheCache)
{
    Request({{1}});
    Request({{1}, {2}});
    EXPECT_EQ(IdsOf(Request({{2}})), Ids{1});
    EXPECT_EQ(Service().GetCategoryById(L"2"), nullptr);
}

TEST_F(PublicCategoryReplyTest, OfTwoCategoriesWithOneIdTheFirstGetsTheCount)
{
    Request({{1, 0, 1, 10, "first"}, {1, 0, 2, 20, "second"}, {2, 0, 3, 30, ""}});
    EXPECT_EQ(CountsOf(Request({{1, 0, 0, 5, ""}})), (Counts{5, 0, 0}));
}

TEST_F(PublicCategoryReplyTest, OfTwoCountsForOneIdTheLaterHolds)
{
    Request({{1}, {2, 0, 1}});
    EXPECT_EQ(CountsOf(Request({{1, 0, 0, 5}, {1, 0, 0, 6}})), (Counts{6, 0}));
}

TEST_F(PublicCategoryReplyTest, AnElementWithoutAnIdCountsForTheCategoryZero)
{
    Request({{0, 0, 1}, {1, 0, 2}});
    EXPECT_EQ(CountsOf(Request(ScriptedResponse::Json(SuccessBody(R"([{"count":4},"no object"])")))), (Counts{0, 0}));
    EXPECT_EQ(CountsOf(Request(ScriptedResponse::Json(SuccessBody(R"(["no object",{"count":4}])")))), (Counts{4, 0}));
}

TEST_F(PublicCategoryReplyTest, AnEmptyFirstReplyLeavesTheFirstLoadToTheNext)
{
    EXPECT_TRUE(Request(std::vector<testsupport::CategoryRow>()).isEmpty());
    EXPECT_EQ(IdsOf(Request({{1}, {2, 0, 1}})), (Ids{1, 2}));
}

TEST_F(PublicCategoryReplyTest, AnEmptyRefreshSetsEveryCountToZero)
{
    Request({{1, 0, 0, 10}, {2, 0, 1, 20}});
    const Categories refreshed = Request(std::vector<testsupport::CategoryRow>());
    EXPECT_EQ(IdsOf(refreshed), (Ids{1, 2}));
    EXPECT_EQ(CountsOf(refreshed), (Counts{0, 0}));
}

TEST_F(PublicCategoryReplyTest, AnErrorsBodyIsAppliedAllTheSame)
{
    const Categories loaded = Request(ScriptedResponse::Json(CategoryBody({{1, 0, 0, 10}}), 500));
    EXPECT_EQ(CountsOf(loaded), Counts{10});
    const Categories refreshed = Request(ScriptedResponse::Json(CategoryBody({{1, 0, 0, 11}}), 404));
    EXPECT_EQ(CountsOf(refreshed), Counts{11});
}

TEST_F(PublicCategoryReplyTest, ABodyThatEndsBeforeItsLengthIsAppliedAsFarAsItCame)
{
    const QByteArray body = CategoryBody({{1, 0, 0, 10}});
    const Categories loaded = Request(ScriptedResponse::Json(body).WithDeclaredLength(body.size() + 1));
    EXPECT_EQ(CountsOf(loaded), Counts{10});
}

TEST_P(PublicCategoryFailureTest, OfTheFirstLoadIsAnnouncedAndLeavesItToTheNext)
{
    EXPECT_TRUE(Request(GetParam().response).isEmpty());
    EXPECT_EQ(IdsOf(Request({{1}})), Ids{1});
}

TEST_P(PublicCategoryFailureTest, OfARefreshIsAnnouncedWithEveryCountZero)
{
    Request({{1, 0, 2, 10, "one"}, {2, 0, 1, 20, "two"}});
    const Categories refreshed = Request(GetParam().response);
    EXPECT_EQ(IdsOf(refreshed), (Ids{2, 1}));
    EXPECT_EQ(CountsOf(refreshed), (Counts{0, 0}));
    EXPECT_EQ(NamesOf(refreshed), (std::vector<std::wstring>{L"two", L"one"}));
}

INSTANTIATE_TEST_SUITE_P(Answers, PublicCategoryFailureTest,
    ::testing::Values(FailureCase{{"HttpErrorWithoutBody"}, ScriptedResponse::Status(500)},
        FailureCase{{"Unauthorized"}, ScriptedResponse::Json(R"({"code":"UNAUTHORIZED","data":null})", 401)},
        FailureCase{{"HalfABody"},
            ScriptedResponse::Json(OneCategory("\"success\"")).CutAt(ScriptedResponse::CutPoint::WithinBody)},
        BodyCase("EmptyBody", ""), BodyCase("NoJson", "<html>"),
        BodyCase("CutShort", OneCategory("\"success\"").chopped(1)),
        BodyCase("MoreBehind", OneCategory("\"success\"") + "x"),
        BodyCase("AnArray", "[" + OneCategory("\"success\"") + "]"),
        BodyCase("TenThousandDeep", QByteArray(10000, '[') + QByteArray(10000, ']')),
        BodyCase("InvalidUtf8", "{\"code\":\"success\",\"data\":[{\"id\":1,\"name\":\"\xff\"}]}"),
        BodyCase("CodeOfAFailure", OneCategory("\"fail\"")), BodyCase("CodeInUpperCase", OneCategory("\"SUCCESS\"")),
        BodyCase("CodeWithABlankInFront", OneCategory("\" success\"")),
        BodyCase("CodeWithABlankBehind", OneCategory("\"success \"")),
        BodyCase("CodeThatIsANumber", OneCategory("200")), BodyCase("CodeThatIsTrue", OneCategory("true")),
        BodyCase("NoCode", R"({"success":true,"data":[{"id":1}]})"), BodyCase("NoData", R"({"code":"success"})"),
        BodyCase("DataIsNull", SuccessBody("null")), BodyCase("DataIsAnObject", SuccessBody(R"({"id":1,"count":5})")),
        BodyCase("DataIsAText", SuccessBody("\"[]\""))),
    testsupport::RowName());

TEST_F(PublicCategoryReplyTest, RepliesAreAppliedInTheOrderInWhichTheyFinish)
{
    server.Enqueue(
        ScriptedResponse::Json(CategoryBody({{1, 0, 0, 10}, {2, 0, 1, 20}})).Delayed(std::chrono::milliseconds(150)));
    server.Enqueue(ScriptedResponse::Json(CategoryBody({{2, 0, 5, 22}, {3, 0, 6, 33}})));
    Service().RequestCategories(QStringLiteral("slow"));
    ASSERT_TRUE(testsupport::WaitFor([this] { return server.Requests().size() == 1; }));
    Service().RequestCategories(QStringLiteral("quick"));
    ASSERT_TRUE(testsupport::WaitFor([this] { return announced.size() == 2; }));
    // The quick one has filled the cache, the slow one only counts.
    EXPECT_EQ(IdsOf(announced[0]), (Ids{2, 3}));
    EXPECT_EQ(CountsOf(announced[0]), (Counts{22, 33}));
    EXPECT_EQ(IdsOf(announced[1]), (Ids{2, 3}));
    EXPECT_EQ(CountsOf(announced[1]), (Counts{20, 0}));
}

TEST_F(PublicCategoryReplyTest, AReceiversCopyIsItsOwn)
{
    const Categories first = Request({{1, 0, 0, 10, "one"}});
    Service().GetCategoryById(L"1")->Name = L"written";
    EXPECT_EQ(first.front().Name, L"one");
    Request({{1, 0, 0, 11, ""}});
    EXPECT_EQ(first.front().Count, 10);
    EXPECT_EQ(announced.back().front().Count, 11);
    announced.back().front().Count = 99;
    EXPECT_EQ(Service().GetCategoryById(L"1")->Count, 11);
}

TEST_F(PublicCategoryReplyTest, WhatIsWrittenIntoTheCacheIsAnnouncedNext)
{
    Request({{1, 0, 1, 10, "one"}, {2, 0, 2, 20, "two"}});
    ICategory* category = Service().GetCategoryById(L"1");
    category->Name = L"renamed";
    category->Weight = 3;
    const Categories refreshed = Request({{1, 0, 0, 5, "one"}});
    EXPECT_EQ(IdsOf(refreshed), (Ids{2, 1}));
    EXPECT_EQ(NamesOf(refreshed), (std::vector<std::wstring>{L"two", L"renamed"}));
    EXPECT_EQ(CountsOf(refreshed), (Counts{0, 5}));
}

TEST_F(PublicCategoryReplyTest, AnIdWrittenIntoTheCacheIsTheOneThatCounts)
{
    Request({{1, 0, 1}, {2, 0, 2}});
    Service().GetCategoryById(L"1")->Id = 8;
    EXPECT_EQ(Service().GetCategoryById(L"1"), nullptr);
    EXPECT_EQ(CountsOf(Request({{1, 0, 0, 5}, {8, 0, 0, 6}})), (Counts{6, 0}));
}

TEST_F(PublicCategoryReplyTest, TheCacheMayBeReadAndRequestedAgainWhileItIsAnnounced)
{
    ICategory* found = nullptr;
    QObject::connect(&Service(), &PublicCategoryService::OnCategoriesUpdated, [&](const Categories& categories) {
        found = Service().GetCategoryById(L"1");
        if (categories.front().Count == 10) {
            server.Enqueue(ScriptedResponse::Json(CategoryBody({{1, 0, 0, 11}})));
            Service().RequestCategories(QString());
        }
    });
    Request({{1, 0, 0, 10}});
    ASSERT_TRUE(testsupport::WaitFor([this] { return announced.size() == 2; }));
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->Count, 11);
}

TEST_F(PublicCategoryReplyTest, AQueuedReceiverGetsTheListAsItWas)
{
    std::vector<Counts> received;
    QObject receiver;
    QObject::connect(
        &Service(), &PublicCategoryService::OnCategoriesUpdated, &receiver,
        [&received](const Categories& categories) { received.push_back(CountsOf(categories)); }, Qt::QueuedConnection);
    Request({{1, 0, 0, 10}});
    Request({{1, 0, 0, 11}});
    EXPECT_TRUE(testsupport::WaitFor([&received] { return received.size() == 2; }));
    EXPECT_EQ(received, (std::vector<Counts>{{10}, {11}}));
}

TEST_F(PublicCategoryReplyTest, ASignalSpyKeepsTheLists)
{
    const QSignalSpy spy(&Service(), &PublicCategoryService::OnCategoriesUpdated);
    const QSignalSpy spyByName(&Service(), SIGNAL(OnCategoriesUpdated(QList<ICategory>)));
    Request({{1, 0, 0, 10}});
    Request({{1, 0, 0, 11}});
    ASSERT_EQ(spy.count(), 2);
    ASSERT_EQ(spyByName.count(), 2);
    EXPECT_EQ(CountsOf(spy[0][0].value<Categories>()), Counts{10});
    EXPECT_EQ(CountsOf(spyByName[1][0].value<Categories>()), Counts{11});
}

TEST_F(PublicCategoryReplyTest, ItsOnlySignalIsTheAnnouncement)
{
    const QMetaObject& meta = PublicCategoryService::staticMetaObject;
    EXPECT_STREQ(meta.className(), "tarnnuq::PublicCategoryService");
    ASSERT_EQ(meta.methodCount() - meta.methodOffset(), 1);
    const QMetaMethod signal = meta.method(meta.methodOffset());
    EXPECT_EQ(signal.methodType(), QMetaMethod::Signal);
    EXPECT_EQ(signal.methodSignature(), "OnCategoriesUpdated(QList<ICategory>)");
}

TEST_F(PublicCategoryReplyTest, ThereIsOneInstanceWithoutAParent)
{
    PublicCategoryService* service = PublicCategoryService::Get();
    EXPECT_EQ(service, PublicCategoryService::Get());
    EXPECT_EQ(service->parent(), nullptr);
    EXPECT_NE(service, &Service());
    EXPECT_EQ(service->GetCategoryById(L"1"), nullptr);
}
