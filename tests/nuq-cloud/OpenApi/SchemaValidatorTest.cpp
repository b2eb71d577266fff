#include "nuq-cloud/OpenApi/SchemaValidator.h"

#include <gtest/gtest.h>
#include <ostream>

namespace cloudtest {
namespace {

using Json = nlohmann::json;

const Json kDocument = Json::parse(R"({"s":{"type":"integer"},"indirect":{"$ref":"#/s"}})");

struct Rule
{
    const char* schema;
    const char* good;
    const char* bad;
    const char* error;
};

void PrintTo(const Rule& rule, std::ostream* out)
{
    *out << rule.schema;
}

class SchemaRules : public ::testing::TestWithParam<Rule>
{
};

TEST_P(SchemaRules, AcceptAndRefuse)
{
    const SchemaValidator validator(kDocument);
    const Json schema = Json::parse(GetParam().schema);
    EXPECT_EQ(validator.Validate(schema, Json::parse(GetParam().good)), std::vector<std::string>());
    EXPECT_EQ(validator.Validate(schema, Json::parse(GetParam().bad)), std::vector<std::string>{GetParam().error});
}

INSTANTIATE_TEST_SUITE_P(All, SchemaRules,
    ::testing::Values(Rule{R"({"type":"integer"})", "1", "1.5", "the value is no integer"},
        Rule{R"({"type":"number"})", "1.5", "\"1\"", "the value is no number"},
        Rule{R"({"type":"null"})", "null", "0", "the value is no null"},
        Rule{R"({"type":"boolean"})", "false", "0", "the value is no boolean"},
        Rule{R"({"enum":[1,"a"]})", "\"a\"", "2", "the value is none of [1,\"a\"]"},
        Rule{R"({"const":""})", "\"\"", "null", "the value is not \"\""},
        Rule{R"({"minimum":1})", "1", "0", "the value is below 1"},
        Rule{R"({"maximum":1})", "1", "2", "the value is above 1"},
        Rule{R"({"minLength":2})", "\"泵泵\"", "\"泵\"", "the value is shorter than 2"},
        Rule{R"({"maxLength":1})", "\"泵\"", "\"ab\"", "the value is longer than 1"},
        Rule{R"({"maxItems":1})", "[1]", "[1,2]", "the value has more than 1"},
        Rule{R"({"pattern":"^a+$"})", "\"aa\"", "\"ab\"", "the value does not match \"^a+$\""},
        Rule{R"({"required":["a"]})", "{\"a\":null}", "{}", "the value has no a"},
        Rule{R"({"properties":{"a":{"type":"string"}}})", "{\"a\":\"\",\"b\":1}", "{\"a\":1}", "/a is no string"},
        Rule{R"({"properties":{"a":{}},"additionalProperties":false})", "{\"a\":1}", "{\"b\":1}",
            "the value has a member b that is not described"},
        Rule{R"({"additionalProperties":{"type":"string"}})", "{\"a\":\"\"}", "{\"a\":1}", "/a is no string"},
        Rule{R"({"items":{"$ref":"#/indirect"}})", "[1,2]", "[1,\"2\"]", "/1 is no integer"}));

TEST(SchemaRule, ThatIsNotKnownIsAnError)
{
    EXPECT_EQ(SchemaValidator(kDocument).Validate(Json::parse(R"({"multipleOf":2})"), 2),
        std::vector<std::string>{"the value has a schema with the keyword multipleOf, which is not known"});
}

} // namespace
} // namespace cloudtest
