#include "nuq-cloud/support/TestServer.h"

#include <gtest/gtest.h>
#include <ostream>

namespace cloudtest {
namespace {

struct Refusal
{
    const char* path;
    int status;
    const char* body;
};

void PrintTo(const Refusal& item, std::ostream* out)
{
    *out << item.path;
}

class Refusals : public ::testing::TestWithParam<Refusal>
{
};

TEST_P(Refusals, SayWhatIsWrongInTheEnvelope)
{
    const TestServer server;
    const auto reply = server.Api(GetParam().path);
    EXPECT_EQ(reply.Status(), GetParam().status);
    EXPECT_EQ(reply.body, GetParam().body);
    EXPECT_EQ(reply.Header("Content-Type"), "application/json");
}

const char kNoAddress[] = R"({"code":"NOT_FOUND","message":"There is nothing at this address. )"
                          R"(The API begins at /api, files at /static.","data":null})";

INSTANTIATE_TEST_SUITE_P(All, Refusals,
    ::testing::Values(Refusal{"", 404, kNoAddress}, Refusal{"/", 404, kNoAddress}, Refusal{"/v1", 404, kNoAddress},
        Refusal{"/v1/components/", 404, kNoAddress}, Refusal{"/v1//components", 404, kNoAddress},
        Refusal{"/v1/components/1000/other", 404, kNoAddress}, Refusal{"/V1/components", 404, kNoAddress},
        Refusal{"/v1/components/nope", 404,
            R"({"code":"NOT_FOUND","message":"There is no component \"nope\".","data":null})"},
        Refusal{"/v1/components/1000%20", 404,
            R"({"code":"NOT_FOUND","message":"There is no component \"1000 \".","data":null})"},
        Refusal{"/v1/components/1000/specifications/DN51", 404,
            R"({"code":"NOT_FOUND","message":"There is no family type of component \"1000\" with the name \"DN51\".","data":null})"},
        Refusal{"/v1/categories/X/properties", 404,
            R"({"code":"NOT_FOUND","message":"There is no category with the code \"X\".","data":null})"},
        Refusal{"/v1/components?category_code=p", 404,
            R"({"code":"NOT_FOUND","message":"There is no category with the code \"p\".","data":null})"},
        Refusal{"/v1/metadata/placeholders", 400,
            R"({"code":"INVALID_PARAMETER","message":"Parameter \"category_code\" is \"\"; expected the code of a category.","data":null})"},
        Refusal{"/v1/metadata/placeholders?category_code=P&type=3", 400,
            R"({"code":"INVALID_PARAMETER","message":"Parameter \"type\" is \"3\"; expected a whole number from -1 to 2.","data":null})"},
        Refusal{"/v3/categories?major=3", 400,
            R"({"code":"INVALID_PARAMETER","message":"Parameter \"major\" is \"3\"; expected one of 0, 1, 2, or nothing.","data":null})"},
        Refusal{"/v3/categories?component_type=single", 400,
            R"({"code":"INVALID_PARAMETER","message":"Parameter \"component_type\" is \"single\"; expected one of system, or nothing.","data":null})"},
        Refusal{"/v1/components?page=0", 400,
            R"({"code":"INVALID_PARAMETER","message":"Parameter \"page\" is \"0\"; expected a whole number from 1 to 2147483647.","data":null})"},
        Refusal{"/v1/components?page_size=201", 400,
            R"({"code":"INVALID_PARAMETER","message":"Parameter \"page_size\" is \"201\"; expected a whole number from 1 to 200.","data":null})"},
        Refusal{"/v1/components?keyword=%FF", 400,
            R"({"code":"INVALID_PARAMETER","message":"The query holds a part that is not percent-encoded UTF-8 without NUL: \"%FF\".","data":null})"},
        Refusal{"/v1/components?keyword=a%00b", 400,
            R"({"code":"INVALID_PARAMETER","message":"The query holds a part that is not percent-encoded UTF-8 without NUL: \"a%00b\".","data":null})"},
        Refusal{"/v1/components/%ZZ", 400,
            R"({"code":"BAD_REQUEST","message":"The path holds a part that is longer than 512 bytes or not percent-encoded UTF-8 without NUL.","data":null})"},
        Refusal{"/v1/projects/none/components", 404,
            R"({"code":"NOT_FOUND","message":"There is no project \"none\".","data":null})"},
        Refusal{"/v1/projects/none/components/77/detail", 404,
            R"({"code":"NOT_FOUND","message":"There is no project \"none\".","data":null})"},
        Refusal{"/v1/projects/p1/components/79", 404,
            R"({"code":"NOT_FOUND","message":"There is no component of project \"p1\" with the id \"79\".","data":null})"},
        Refusal{"/v1/projects/p2/components/77", 404,
            R"({"code":"NOT_FOUND","message":"There is no component of project \"p2\" with the id \"77\".","data":null})"},
        Refusal{"/v1/projects/p1/components/list", 400,
            R"({"code":"INVALID_PARAMETER","message":"Parameter \"ids\" is \"\"; expected 1 to 200 ids with commas between them.","data":null})"},
        Refusal{"/v1/projects/p1/components/existence", 400,
            R"({"code":"INVALID_PARAMETER","message":"Parameter \"public_component_id\" is \"\"; expected the id of a component of the catalogue.","data":null})"}));

TEST(Refusal, LimitsKeywordsAndPathParts)
{
    const TestServer server;
    EXPECT_EQ(server.Api("/v1/components?keyword=" + std::string(200, 'a')).Status(), 200);
    EXPECT_EQ(server.Api("/v1/components?keyword=" + std::string(201, 'a')).Status(), 400);
    EXPECT_EQ(server.Api("/v1/components?category_code=" + std::string(129, 'a')).Status(), 400);
    EXPECT_EQ(server.Api("/v1/hox_design/category/mappings?software_version=" + std::string(65, '1')).Status(), 400);
    EXPECT_EQ(server.Api("/v1/components/" + std::string(512, 'a')).Status(), 404);
    EXPECT_EQ(server.Api("/v1/components/" + std::string(513, 'a')).Status(), 400);
}

TEST(Refusal, AnswersOtherMethodsWith405)
{
    const TestServer server;
    for (const char* method : {"POST", "PUT", "DELETE", "PATCH", "OPTIONS"}) {
        const auto reply = server.Api("/v1/components", {}, method);
        EXPECT_EQ(reply.Status(), 405) << method;
        EXPECT_EQ(reply.Header("Allow"), "GET, HEAD");
        EXPECT_EQ(reply.body,
            std::string(R"({"code":"METHOD_NOT_ALLOWED","message":"This address answers GET and HEAD, not )") + method +
                R"(.","data":null})");
    }
    EXPECT_EQ(Fetch(server.Port(), "/static/thumbnails/pump/128.png", {}, "DELETE").Status(), 405);
}

TEST(Refusal, KnowsNothingOutsideTheApiAndTheFiles)
{
    const TestServer server;
    for (const char* path : {"/", "/index.html", "/qa", "/qa/", "/qa/qa/api/v1/projects", "/apix", "/structure"}) {
        const auto reply = Fetch(server.Port(), path, {kToken});
        EXPECT_EQ(reply.Status(), 404) << path;
        EXPECT_EQ(reply.body, kNoAddress) << path;
    }
}

} // namespace
} // namespace cloudtest
