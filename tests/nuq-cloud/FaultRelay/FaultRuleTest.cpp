#include "FaultRelay/FaultRule.h"

#include "FaultRelay/FaultPlan.h"

#include <functional>
#include <gtest/gtest.h>

namespace nuqcloud {
namespace {

std::string ErrorOf(const std::function<void()>& work)
{
    try {
        work();
    } catch (const FaultSyntaxError& error) {
        return error.what();
    }
    return "no error";
}

std::string ErrorOf(const std::string& faults)
{
    return ErrorOf([&] { ParseFaults(faults); });
}

/// The faults that the plan chooses for so many requests, "-" for none.
std::string Choices(FaultPlan& plan, int count, const std::string& path = "/api", const std::string& method = "GET")
{
    std::string text;
    for (int i = 0; i < count; ++i) {
        const std::string chosen = FormatFaults(plan.Choose(method, path));
        text += (i == 0 ? "" : " ") + (chosen.empty() ? "-" : chosen);
    }
    return text;
}

TEST(Faults, AreReadWithDefaultsAndWrittenBack)
{
    const auto faults = ParseFaults(" delay=200 , status,stall,redirect=http://h/x?y=z ");
    EXPECT_EQ(FormatFaults(faults), "delay=200,status=500,stall,redirect=http://h/x?y=z");
    EXPECT_EQ(faults[1].number, 500);
    EXPECT_EQ(faults[2].number, -1);
    EXPECT_EQ(FormatFaults(ParseFaults(FormatFaults(faults))), FormatFaults(faults));
}

TEST(Faults, MayBeNone)
{
    EXPECT_TRUE(ParseFaults("").empty());
    EXPECT_TRUE(ParseFaults(" , ").empty());
}

TEST(Faults, AreRefusedWithWhatWasExpected)
{
    EXPECT_EQ(ErrorOf("bogus=1"), "There is no fault \"bogus\"; nuq-cloud --help lists those there are.");
    EXPECT_EQ(ErrorOf("status=199"), "Fault \"status=STATUS\" expects a whole number from 200 to 599, not \"199\".");
    EXPECT_EQ(ErrorOf("delay=1s"), "Fault \"delay=MS\" expects a whole number from 0 to 600000, not \"1s\".");
    EXPECT_EQ(ErrorOf("delay=-1"), "Fault \"delay=MS\" expects a whole number from 0 to 600000, not \"-1\".");
    EXPECT_EQ(ErrorOf("delay="), "Fault \"delay=MS\" expects a whole number from 0 to 600000, not \"\".");
    EXPECT_EQ(ErrorOf("html=1"), "Fault \"html\" takes no value.");
    EXPECT_EQ(ErrorOf("redirect"), "Fault \"redirect=URL\" expects a text of printable ASCII without blanks.");
    EXPECT_EQ(ErrorOf("redirect=a b"), "Fault \"redirect=URL\" expects a text of printable ASCII without blanks.");
}

TEST(Faults, HaveNamesOfTheirOwnAndAnEffect)
{
    std::vector<std::string> names;
    for (const FaultKind& kind : FaultKinds()) {
        EXPECT_EQ(FindFaultKind(kind.name)->effect, kind.effect) << "a name stands twice";
        EXPECT_EQ(kind.value == FaultValue::None, *kind.valueName == '\0') << kind.name;
        EXPECT_NE(*kind.effect, '\0') << kind.name;
    }
}

TEST(FaultRules, HaveAShortForm)
{
    const FaultRule rule = ParseFaultRule("delay=5,status=503@/api/v1#3");
    EXPECT_EQ(FormatFaults(rule.faults), "delay=5,status=503");
    EXPECT_EQ(rule.path, "/api/v1");
    EXPECT_EQ(rule.skip, 2U);
    EXPECT_EQ(rule.times, 1U);
    EXPECT_EQ(ParseFaultRule("html").path, "/");
    EXPECT_EQ(FormatFaults(ParseFaultRule("redirect=http://u@h/x@/static").faults), "redirect=http://u@h/x");
}

TEST(FaultRules, AreRefusedWhenTheyNameNothing)
{
    EXPECT_EQ(
        ErrorOf([] { ParseFaultRule("@/api"); }), "A rule names at least one fault, as in \"delay=200@/static\".");
    EXPECT_EQ(ErrorOf([] { ParseFaultRule("html#0"); }),
        "Behind \"#\" stands the number of the request that is hit, from 1 on.");
    EXPECT_EQ(ErrorOf([] { ParseFaultRule("html#x"); }),
        "Behind \"#\" stands the number of the request that is hit, from 1 on.");
}

TEST(FaultPlan, HitsTheNthRequestAlone)
{
    FaultPlan plan({ParseFaultRule("html#3")});
    EXPECT_EQ(Choices(plan, 5), "- - html - -");
}

TEST(FaultPlan, SparesThenHitsEveryNthSoOften)
{
    FaultRule rule = ParseFaultRule("html");
    rule.skip = 1;
    rule.every = 2;
    rule.times = 2;
    FaultPlan plan({rule});
    EXPECT_EQ(Choices(plan, 8), "- html - html - - - -");
}

TEST(FaultPlan, CountsOnlyRequestsThatFit)
{
    FaultRule rule = ParseFaultRule("html@/api/v1#2");
    rule.method = "GET";
    FaultPlan plan({rule});
    EXPECT_EQ(Choices(plan, 2, "/api/v2"), "- -");
    EXPECT_EQ(Choices(plan, 2, "/api/v1", "HEAD"), "- -");
    EXPECT_EQ(Choices(plan, 2, "/api/v1/x"), "- html");
}

TEST(FaultPlan, JoinsTheFaultsOfAllRulesThatHit)
{
    FaultPlan plan({ParseFaultRule("delay=1"), ParseFaultRule("html@/api")});
    plan.Add(ParseFaultRule("drip=9"));
    EXPECT_EQ(Choices(plan, 1), "delay=1,html,drip=9");
    EXPECT_EQ(Choices(plan, 1, "/"), "delay=1,drip=9");
}

TEST(FaultPlan, DrawsTheSameForTheSameSeed)
{
    FaultRule rule = ParseFaultRule("html");
    rule.probability = 0.5;
    FaultPlan plan({rule}, 7);
    FaultPlan same({rule}, 7);
    FaultPlan other({rule}, 8);
    const std::string choices = Choices(plan, 64);
    EXPECT_EQ(choices, Choices(same, 64));
    EXPECT_NE(choices, Choices(other, 64));
    EXPECT_NE(choices.find("html"), std::string::npos);
    EXPECT_NE(choices.find('-'), std::string::npos);
}

TEST(FaultPlan, HitsNothingOrEverythingAtTheEndsOfProbability)
{
    FaultRule never = ParseFaultRule("html");
    never.probability = 0.0;
    FaultPlan plan({never});
    EXPECT_EQ(Choices(plan, 3), "- - -");
}

TEST(FaultPlan, DrawsWithinTheLimit)
{
    FaultPlan plan;
    std::vector<int> seen(4);
    for (int i = 0; i < 200; ++i) {
        const std::int64_t drawn = plan.Random(3);
        ASSERT_TRUE(drawn >= 0 && drawn <= 3);
        ++seen[static_cast<std::size_t>(drawn)];
    }
    for (const int count : seen) {
        EXPECT_GT(count, 0);
    }
    EXPECT_EQ(plan.Random(0), 0);
}

} // namespace
} // namespace nuqcloud
