#include "nuq-cloud/support/TestServer.h"

#include <gtest/gtest.h>

namespace cloudtest {
namespace {

const std::string kBegin = R"({"code":"success","message":"","data":)";

class CategoryEndpoints : public ::testing::Test
{
protected:
    const TestServer m_server;
};

TEST_F(CategoryEndpoints, ListTheWholeTreeWithCounts)
{
    EXPECT_EQ(m_server.ApiText("/v3/categories?component_type=system&major=&software_version=0.1"),
        kBegin +
            R"([{"id":1,"name":"Category P","code":"P","parentId":0,"parentCode":"","weight":1.5,"count":5},)"
            R"({"id":2,"name":"Category P.1","code":"P.1","parentId":1,"parentCode":"P","weight":2.5,"count":5},)"
            R"({"id":3,"name":"Category P.1.1","code":"P.1.1","parentId":2,"parentCode":"P.1","weight":3.5,"count":3},)"
            R"({"id":4,"name":"Category P.1.2","code":"P.1.2","parentId":2,"parentCode":"P.1","weight":4.5,"count":2},)"
            R"({"id":5,"name":"Category H","code":"H","parentId":0,"parentCode":"","weight":5.5,"count":2},)"
            R"({"id":6,"name":"Category H.1","code":"H.1","parentId":5,"parentCode":"H","weight":6.5,"count":2},)"
            R"({"id":7,"name":"Category E","code":"E","parentId":0,"parentCode":"","weight":7.5,"count":0}]})");
}

TEST_F(CategoryEndpoints, FilterTheTreeByMajor)
{
    EXPECT_EQ(m_server.ApiText("/v3/categories?major=2"),
        kBegin + R"([{"id":7,"name":"Category E","code":"E","parentId":0,"parentCode":"","weight":7.5,"count":0}]})");
    EXPECT_EQ(m_server.ApiText("/v3/categories?major=1&keyword=roof"),
        kBegin +
            R"([{"id":5,"name":"Category H","code":"H","parentId":0,"parentCode":"","weight":5.5,"count":1},)"
            R"({"id":6,"name":"Category H.1","code":"H.1","parentId":5,"parentCode":"H","weight":6.5,"count":1}]})");
}

TEST_F(CategoryEndpoints, NameTheTreeInTheClientsLanguage)
{
    EXPECT_EQ(m_server.ApiText("/v3/categories?major=2", {"Accept-Language: zh-CN,zh;q=0.9,en;q=0.8"}),
        kBegin + R"([{"id":7,"name":"类别 E","code":"E","parentId":0,"parentCode":"","weight":7.5,"count":0}]})");
}

TEST_F(CategoryEndpoints, CountEverythingForAKeywordOfBlanks)
{
    EXPECT_EQ(m_server.ApiText("/v3/categories?keyword=%20%E3%80%80"), m_server.ApiText("/v3/categories"));
}

TEST_F(CategoryEndpoints, ListPlaceholdersOfAView)
{
    EXPECT_EQ(m_server.ApiText("/v1/metadata/placeholders?category_code=P.1.1&type=0&page_size=20&page=1"
                               "&software_version=0.1"),
        kBegin + R"({"totalCount":1,"list":[{"id":12345678901,"name":"Plan","thumbnail":"legends/pump/plan.png",)"
                 R"("placeholderType":0,"standardSource":"GB/T 50106"}]}})");
}

TEST_F(CategoryEndpoints, ListPlaceholdersOfAllViewsPageByPage)
{
    EXPECT_EQ(m_server.ApiText(
                  "/v1/metadata/placeholders?category_code=P.1.1&type=-1&page_size=1&page=2", {"Accept-Language: zh"}),
        kBegin + R"({"totalCount":2,"list":[{"id":8,"name":"立面图","thumbnail":"legends/pump/elevation.png",)"
                 R"("placeholderType":1,"standardSource":""}]}})");
    EXPECT_EQ(m_server.ApiText("/v1/metadata/placeholders?category_code=P.1.1&page=3&page_size=1"),
        kBegin + R"({"totalCount":2,"list":[]}})");
    EXPECT_EQ(
        m_server.ApiText("/v1/metadata/placeholders?category_code=H.1"), kBegin + R"({"totalCount":0,"list":[]}})");
}

TEST_F(CategoryEndpoints, ListTheEditorsMapping)
{
    EXPECT_EQ(m_server.ApiText("/v1/hox_design/category/mappings?software_version=0.1"),
        kBegin + R"([{"componentEditorCategoryId":"E-3","categoryId":3,"categoryCode":"P.1.1",)"
                 R"("name":["泵","Pump"],"major":0}]})");
}

TEST_F(CategoryEndpoints, GiveACategorysProperties)
{
    EXPECT_EQ(m_server.ApiText("/v1/categories/P.1.1/properties"),
        kBegin + R"({"categoryId":3,"categoryName":"Category P.1.1","propertyList":)" +
            DefinitionsJson("Nominal size", "Head") + "}}");
    EXPECT_EQ(m_server.ApiText("/v1/categories/P.1.1/properties", {"Accept-Language: zh"}),
        kBegin + R"({"categoryId":3,"categoryName":"类别 P.1.1","propertyList":)" +
            DefinitionsJson("公称直径", "扬程") + "}}");
}

TEST_F(CategoryEndpoints, GiveNoPropertiesForACategoryWithoutATemplate)
{
    EXPECT_EQ(m_server.ApiText("/v1/categories/P/properties", {"Accept-Language: zh"}),
        kBegin + R"({"categoryId":1,"categoryName":"类别 P","propertyList":[]}})");
}

} // namespace
} // namespace cloudtest
