#include "Faults/Scenario.h"

#include <QTemporaryDir>
#include <fstream>
#include <gtest/gtest.h>

namespace nuqcloud {
namespace {

class Scenarios : public ::testing::Test
{
protected:
    std::string Write(const std::string& text) const
    {
        std::ofstream(m_file, std::ios::binary) << text;
        return m_file;
    }

    std::string ErrorOf(const std::string& text) const
    {
        try {
            ReadScenario(Write(text));
        } catch (const ScenarioError& error) {
            return error.what();
        }
        return "no error";
    }

    QTemporaryDir m_folder;
    const std::string m_file = m_folder.filePath(QStringLiteral("情景.json")).toStdString();
    const std::string m_place = "The scenario \"" + m_file + '"';
};

TEST_F(Scenarios, AreReadWithAllTheirMembers)
{
    const Scenario scenario = ReadScenario(Write(R"({"schema":1,"seed":42,"rules":[
        {"fault":"status=503,delay=5","method":"GET","path":"/api/v1","skip":1,"every":2,"times":3,"probability":0.25},
        {"fault":"html"}]})"));
    EXPECT_EQ(scenario.seed, 42U);
    ASSERT_EQ(scenario.rules.size(), 2U);
    const FaultRule& rule = scenario.rules[0];
    EXPECT_EQ(FormatFaults(rule.faults), "status=503,delay=5");
    EXPECT_EQ(rule.method, "GET");
    EXPECT_EQ(rule.path, "/api/v1");
    EXPECT_EQ(rule.skip, 1U);
    EXPECT_EQ(rule.every, 2U);
    EXPECT_EQ(rule.times, 3U);
    EXPECT_EQ(rule.probability, 0.25);
    EXPECT_EQ(scenario.rules[1].path, "/");
    EXPECT_EQ(scenario.rules[1].every, 1U);
    EXPECT_EQ(scenario.rules[1].probability, 1.0);
}

TEST_F(Scenarios, SlowEveryRequestDownWithLatencyAndJitter)
{
    const Scenario scenario = ReadScenario(Write(R"({"schema":1,"latencyMs":20,"jitterMs":30})"));
    ASSERT_EQ(scenario.rules.size(), 1U);
    EXPECT_EQ(FormatFaults(scenario.rules[0].faults), "delay=20,jitter=30");
    EXPECT_TRUE(ReadScenario(Write(R"({"schema":1})")).rules.empty());
}

TEST_F(Scenarios, AreRefusedWithPlaceAndReason)
{
    EXPECT_EQ(ErrorOf(R"({"schema":2})"), m_place + ": \"schema\" is not a whole number from 1 to 1.");
    EXPECT_EQ(ErrorOf(R"({})"), m_place + ": \"schema\" is not 1.");
    EXPECT_EQ(ErrorOf(R"([])"), m_place + " is not an object.");
    EXPECT_EQ(ErrorOf(R"({"schema":1,"sead":1})"), m_place + " has a member \"sead\" that is not known.");
    EXPECT_EQ(ErrorOf(R"({"schema":1,"rules":{}})"), m_place + ": \"rules\" is not an array.");
    EXPECT_EQ(ErrorOf(R"({"schema":1,"rules":[{"fault":"html"},7]})"), m_place + ", rule 2 is not an object.");
    EXPECT_EQ(ErrorOf(R"({"schema":1,"rules":[{}]})"),
        m_place + ", rule 1: \"fault\" is not a fault such as \"status=503\".");
    EXPECT_EQ(ErrorOf(R"({"schema":1,"rules":[{"fault":"htlm"}]})"),
        m_place +
            ", rule 1: \"fault\" is not usable: There is no fault \"htlm\"; nuq-cloud --help lists those there are..");
    EXPECT_EQ(ErrorOf(R"({"schema":1,"rules":[{"fault":"html","every":0}]})"),
        m_place + ", rule 1: \"every\" is not a whole number from 1 to 4294967295.");
    EXPECT_EQ(ErrorOf(R"({"schema":1,"rules":[{"fault":"html","probability":1.5}]})"),
        m_place + ", rule 1: \"probability\" is not a number from 0 to 1.");
    EXPECT_EQ(
        ErrorOf(R"({"schema":1,"rules":[{"fault":"html","path":7}]})"), m_place + ", rule 1: \"path\" is not a text.");
}

TEST_F(Scenarios, SayWhereTheyAreNotJson)
{
    EXPECT_EQ(ErrorOf("{\"schema\":1,}"), m_place + " is not JSON: byte 13.");
    EXPECT_EQ(ErrorOf(""), m_place + " is not JSON: byte 1.");
}

TEST_F(Scenarios, SayThatTheyCannotBeRead)
{
    try {
        ReadScenario("/nowhere/scenario.json");
        FAIL();
    } catch (const ScenarioError& error) {
        EXPECT_STREQ(error.what(), "Cannot read the scenario \"/nowhere/scenario.json\".");
    }
}

} // namespace
} // namespace nuqcloud
