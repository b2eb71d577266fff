#include "nuq-cloud/support/TestServer.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace cloudtest {
namespace {

const std::string kBegin = R"({"code":"success","message":"","data":)";
const std::string kParametersEn = R"("parameters":)" + DefinitionsJson("Nominal size", "Head");

std::string Component(const std::string& id, int categoryId, const std::string& code)
{
    return R"({"id":")" + id + R"(","version":3,"name":"Component )" + id + R"(","categoryId":)" +
           std::to_string(categoryId) + R"(,"categoryCode":")" + code +
           R"(","thumbnail":"thumbnails/pump/128.png","source":0,"publicComponentId":")" + id +
           R"(","status":"released"})";
}

class ComponentEndpoints : public ::testing::Test
{
protected:
    /// The ids of a page and its total.
    std::pair<int, std::vector<std::string>> Page(const std::string& query) const
    {
        const auto data = nlohmann::json::parse(m_server.ApiText("/v1/components?" + query)).at("data");
        std::vector<std::string> ids;
        for (const auto& component : data.at("list")) {
            ids.push_back(component.at("id").get<std::string>());
        }
        return {data.at("totalCount").get<int>(), ids};
    }

    const TestServer m_server;
};

using Ids = std::vector<std::string>;

TEST_F(ComponentEndpoints, GiveAPageInTheCataloguesOrder)
{
    EXPECT_EQ(m_server.ApiText("/v1/components?page=2&page_size=2"), kBegin + R"({"totalCount":7,"list":[)" +
                                                                         Component("1002", 3, "P.1.1") + ',' +
                                                                         Component("1003", 4, "P.1.2") + "]}}");
}

TEST_F(ComponentEndpoints, GiveAPageOfACategoryWithWhatIsBelowIt)
{
    EXPECT_EQ(Page("category_code=P"), std::make_pair(5, Ids{"1000", "1001", "1002", "1003", "1004"}));
    EXPECT_EQ(Page("category_code=P.1.2"), std::make_pair(2, Ids{"1003", "1004"}));
    EXPECT_EQ(Page("category_code=P.1.2&page=2&page_size=1"), std::make_pair(2, Ids{"1004"}));
    EXPECT_EQ(Page("category_code=E"), std::make_pair(0, Ids()));
}

TEST_F(ComponentEndpoints, GiveAnEmptyPageBeyondTheLastWithTheRightTotal)
{
    EXPECT_EQ(Page("page=2"), std::make_pair(7, Ids()));
    EXPECT_EQ(Page("page=2147483647&page_size=200"), std::make_pair(7, Ids()));
    EXPECT_EQ(Page("keyword=pump&page=3&page_size=3"), std::make_pair(5, Ids()));
    EXPECT_EQ(Page("page=4&page_size=2"), std::make_pair(7, Ids{"1006"}));
}

TEST_F(ComponentEndpoints, FindAKeywordInEitherLanguageAndCase)
{
    EXPECT_EQ(Page("keyword=DN50"), std::make_pair(3, Ids{"1000", "1003", "1005"}));
    EXPECT_EQ(Page("keyword=%E6%BD%9C%E6%B0%B4%E6%B3%B5"), std::make_pair(2, Ids{"1003", "1004"}));
    EXPECT_EQ(Page("keyword=%CE%A6400"), std::make_pair(1, Ids{"1006"})) << "capital phi";
    EXPECT_EQ(Page("keyword=valve"), std::make_pair(0, Ids()));
}

TEST_F(ComponentEndpoints, WantEveryWordOfAKeyword)
{
    EXPECT_EQ(Page("keyword=dn80+PUMP"), std::make_pair(2, Ids{"1001", "1004"}));
    EXPECT_EQ(Page("keyword=dn50%20pump&category_code=P.1.2"), std::make_pair(1, Ids{"1003"}));
}

TEST_F(ComponentEndpoints, TakePatternSignsOfAKeywordLiterally)
{
    EXPECT_EQ(Page("keyword=%25"), std::make_pair(1, Ids{"1002"}));
    EXPECT_EQ(Page("keyword=_"), std::make_pair(1, Ids{"1002"}));
    EXPECT_EQ(Page("keyword=%5C"), std::make_pair(0, Ids()));
    EXPECT_EQ(Page("keyword='"), std::make_pair(0, Ids()));
}

TEST_F(ComponentEndpoints, CutAPageOfMatchesOnlyFromTheCategory)
{
    EXPECT_EQ(Page("keyword=dn50&category_code=P&page=2&page_size=1"), std::make_pair(2, Ids{"1003"}));
}

TEST_F(ComponentEndpoints, GiveDetails)
{
    EXPECT_EQ(m_server.ApiText("/v1/components/1004", {"Accept-Language: zh"}),
        kBegin + R"({"id":"1004","version":3,"name":"构件 1004","categoryId":4,"categoryCode":"P.1.2",)"
                 R"("thumbnail":"thumbnails/pump/128.png","source":0,"publicComponentId":"1004","status":"released",)"
                 R"("familyTypeNames":["DN50","1/2\""],)"
                 R"("thumbnailSizes":[{"size":"64","thumbnails":["thumbnails/pump/64.png"]}]}})");
}

TEST_F(ComponentEndpoints, GiveAllSpecificationsAndLeaveOutValuesThatAreNotGiven)
{
    EXPECT_EQ(m_server.ApiText("/v1/components/1000/specifications"),
        kBegin + '{' + kParametersEn +
            R"(,"familyTypes":[{"name":"DN50","parameterValues":[{"name":"Nominal size","value":"50"}]},)"
            R"({"name":"1/2\"","parameterValues":[{"name":"Nominal size","value":"15"},)"
            R"({"name":"Head","value":"3.5"}]}]}})");
}

TEST_F(ComponentEndpoints, NameParametersAndValuesInOneLanguage)
{
    const auto data =
        nlohmann::json::parse(m_server.ApiText("/v1/components/1000/specifications", {"Accept-Language: zh"}))
            .at("data");
    EXPECT_EQ(data.at("parameters").at(0).at("name"), "公称直径");
    EXPECT_EQ(data.at("familyTypes").at(0).at("parameterValues").at(0).at("name"), "公称直径");
}

TEST_F(ComponentEndpoints, GiveOneSpecificationByANameWithASlash)
{
    EXPECT_EQ(m_server.ApiText("/v1/components/1000/specifications/1%2F2%22"),
        kBegin + '{' + kParametersEn +
            R"(,"familyType":{"name":"1/2\"","parameterValues":[{"name":"Nominal size","value":"15"},)"
            R"({"name":"Head","value":"3.5"}]}}})");
}

TEST_F(ComponentEndpoints, GiveSpecificationsWithoutParametersWhereTheCategoryHasNone)
{
    EXPECT_EQ(m_server.ApiText("/v1/components/1005/specifications/DN50"),
        kBegin + R"({"parameters":[],"familyType":{"name":"DN50","parameterValues":[]}}})");
}

TEST_F(ComponentEndpoints, AnswerTheQaEnvironmentAlike)
{
    const auto reply =
        Fetch(m_server.Port(), "/qa/api/v1/components?page_size=3", {"Authorization: bearer demo-token-qa"});
    EXPECT_EQ(reply.body, m_server.ApiText("/v1/components?page_size=3"));
}

TEST_F(ComponentEndpoints, AnswerHeadWithTheSameHeadersAndNoBody)
{
    const auto get = m_server.Api("/v1/components", {"X-Request-Id: a"});
    const auto head = m_server.Api("/v1/components", {"X-Request-Id: a"}, "HEAD");
    EXPECT_EQ(head.head, get.head);
    EXPECT_EQ(head.body, "");
}

} // namespace
} // namespace cloudtest
