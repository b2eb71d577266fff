#include "nuq-cloud/support/TestServer.h"

#include <gtest/gtest.h>

namespace cloudtest {
namespace {

const std::string kBegin = R"({"code":"success","message":"","data":)";
const std::string kMembers77 = R"("id":"77","version":1,"name":"Component 1003","categoryId":4,)"
                               R"("categoryCode":"P.1.2","thumbnail":"thumbnails/pump/128.png","source":1,)"
                               R"("publicComponentId":"1003","status":"used")";
const std::string kMembers78 = R"("id":"78","version":3,"name":"Component 1005","categoryId":6,)"
                               R"("categoryCode":"H.1","thumbnail":"thumbnails/pump/128.png","source":1,)"
                               R"("publicComponentId":"1005","status":"used")";

class ProjectEndpoints : public ::testing::Test
{
protected:
    std::string Project(const std::string& path) const { return m_server.ApiText("/v1/projects/p1/components" + path); }

    const TestServer m_server;
};

TEST_F(ProjectEndpoints, ListTheProjects)
{
    EXPECT_EQ(m_server.ApiText("/v1/projects"),
        kBegin + R"([{"id":"p1","name":"Project one"},{"id":"p2","name":"Empty project"}]})");
    EXPECT_EQ(m_server.ApiText("/v1/projects", {"Accept-Language: zh"}),
        kBegin + R"([{"id":"p1","name":"一号项目"},{"id":"p2","name":"空项目"}]})");
}

TEST_F(ProjectEndpoints, GiveAPageOfAProjectsComponents)
{
    const std::string both = R"({"totalCount":2,"list":[{)" + kMembers77 + "},{" + kMembers78 + "}]}}";
    EXPECT_EQ(Project(""), kBegin + both);
    EXPECT_EQ(Project("?keyword=dn50"), kBegin + both);
    EXPECT_EQ(Project("?page=2&page_size=1"), kBegin + R"({"totalCount":2,"list":[{)" + kMembers78 + "}]}}");
    EXPECT_EQ(Project("?category_code=P"), kBegin + R"({"totalCount":1,"list":[{)" + kMembers77 + "}]}}");
    EXPECT_EQ(Project("?keyword=fan&category_code=H"), kBegin + R"({"totalCount":1,"list":[{)" + kMembers78 + "}]}}");
    EXPECT_EQ(Project("?keyword=fan&category_code=P"), kBegin + R"({"totalCount":0,"list":[]}})");
    EXPECT_EQ(m_server.ApiText("/v1/projects/p2/components"), kBegin + R"({"totalCount":0,"list":[]}})");
}

TEST_F(ProjectEndpoints, ListComponentsInTheOrderOfTheirIdsAndSkipUnknownOnes)
{
    EXPECT_EQ(Project("/list?ids=78,,99,77"), kBegin + "[{" + kMembers78 + "},{" + kMembers77 + "}]}");
    EXPECT_EQ(Project("/list?ids=99"), kBegin + "[]}");
}

TEST_F(ProjectEndpoints, LimitTheNumberOfIds)
{
    std::string ids = "77";
    for (int i = 1; i < 200; ++i) {
        ids += ",1";
    }
    EXPECT_EQ(m_server.Api("/v1/projects/p1/components/list?ids=" + ids).Status(), 200);
    const auto reply = m_server.Api("/v1/projects/p1/components/list?ids=" + ids + ",1");
    EXPECT_EQ(reply.Status(), 400);
    EXPECT_NE(reply.body.find("expected 1 to 200 ids with commas between them."), std::string::npos);
}

TEST_F(ProjectEndpoints, TellWhetherAComponentIsThereAndWhichVersion)
{
    EXPECT_EQ(Project("/existence?public_component_id=1003"), kBegin + R"({"exist":true,"version":1}})");
    EXPECT_EQ(Project("/existence?public_component_id=1000"), kBegin + R"({"exist":false,"version":0}})");
    EXPECT_EQ(Project("/existence?public_component_id=none"), kBegin + R"({"exist":false,"version":0}})");
}

TEST_F(ProjectEndpoints, GiveOneComponentAndItsDetail)
{
    EXPECT_EQ(Project("/77"), kBegin + '{' + kMembers77 + "}}");
    EXPECT_EQ(
        Project("/77/detail"), kBegin + '{' + kMembers77 +
                                   R"(,"familyTypeNames":["DN50","1/2\""],)"
                                   R"("thumbnailSizes":[{"size":"64","thumbnails":["thumbnails/pump/64.png"]}]}})");
}

TEST_F(ProjectEndpoints, GiveSpecificationsOfThePublicComponent)
{
    EXPECT_EQ(Project("/77/specifications"), m_server.ApiText("/v1/components/1003/specifications"));
    EXPECT_EQ(Project("/77/specifications/DN50"), m_server.ApiText("/v1/components/1003/specifications/DN50"));
}

} // namespace
} // namespace cloudtest
