#include "FamilyFiles/Formulas/FormulaSet.h"

#include <chrono>
#include <cmath>
#include <gmock/gmock.h>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace familyfiles {
namespace {

using ::testing::ElementsAre;

FormulaVariable Length(std::string name, std::string formula = {}, std::string unit = "mm")
{
    return {std::move(name), StorageType::FloatingPoint, std::move(unit), std::move(formula)};
}

FormulaVariable Whole(std::string name, std::string formula = {})
{
    return {std::move(name), StorageType::Integer, {}, std::move(formula)};
}

FormulaVariable Flag(std::string name, std::string formula = {})
{
    return {std::move(name), StorageType::YesNo, {}, std::move(formula)};
}

FormulaVariable Words(std::string name, std::string formula = {})
{
    return {std::move(name), StorageType::Text, {}, std::move(formula)};
}

FormulaSet Made(std::vector<FormulaVariable> variables)
{
    Reason reason;
    std::optional<FormulaSet> set = FormulaSet::Make(std::move(variables), reason);
    EXPECT_TRUE(set) << reason.english;
    return std::move(set.value());
}

Reason RefusalOf(std::vector<FormulaVariable> variables)
{
    Reason reason;
    EXPECT_FALSE(FormulaSet::Make(std::move(variables), reason));
    return reason;
}

TEST(FormulaSet, WorksOutDrivenVariablesInTheOrderOfTheirNeeds)
{
    const FormulaSet set = Made({Length("C", "B*2"), Length("B", "A+1"), Length("A"), Length("D", "C+B+A")});
    std::vector<Value> values{0.0, 0.0, 10.0, 0.0};
    Reason reason;
    ASSERT_TRUE(set.Evaluate(values, reason)) << reason.english;
    EXPECT_THAT(values, ElementsAre(Value(22.0), Value(11.0), Value(10.0), Value(43.0)));
    EXPECT_THAT(set.Order(), ElementsAre(1, 0, 3));
}

TEST(FormulaSet, ReplacesWhatDrivenVariablesHadBefore)
{
    const FormulaSet set = Made({Length("A"), Length("B", "A+1")});
    std::vector<Value> values{1.0, 999.0};
    Reason reason;
    ASSERT_TRUE(set.Evaluate(values, reason));
    EXPECT_THAT(values, ElementsAre(Value(1.0), Value(2.0)));
}

TEST(FormulaSet, HandlesAllStorageTypes)
{
    const FormulaSet set = Made({Words("型号"), Flag("保温"), Whole("n"), Length("宽度"),
        Length("W", "型号==\"DN100\" ? 宽度+50 : 宽度"), Words("T", "保温 ? \"有\" : \"无\""),
        Flag("F", "n > 3 && !保温"), Whole("N", "n*1.5"), Whole("M", "-n*1.5"), Whole("Y", "保温")});
    std::vector<Value> values{std::string("DN100"), true, 5, 100.0, 0.0, std::string(), false, 0, 0, 0};
    Reason reason;
    ASSERT_TRUE(set.Evaluate(values, reason)) << reason.english;
    EXPECT_EQ(values[4], Value(150.0));
    EXPECT_EQ(values[5], Value(std::string("有")));
    EXPECT_EQ(values[6], Value(false));
    EXPECT_EQ(values[7], Value(8)) << "7.5 is rounded away from 0";
    EXPECT_EQ(values[8], Value(-8));
    EXPECT_EQ(values[9], Value(1));
}

TEST(FormulaSet, WorksInBaseUnitsAndGivesEachItsOwn)
{
    const FormulaSet set =
        Made({Length("L", {}, "m"), Length("W", "L + 50", "mm"), Length("H", "L + 50", "m"), Length("I", "2in", "in"),
            {"Q", StorageType::FloatingPoint, "L/s", {}}, {"V", StorageType::FloatingPoint, "m3/h", "Q*2"},
            {"P", StorageType::FloatingPoint, "W", "1.5"}, {"A", StorageType::FloatingPoint, "m2", "L*L"},
            {"R", StorageType::FloatingPoint, "rad", "180deg"}, {"N", StorageType::Integer, "m", "L"}});
    std::vector<Value> values{2.0, 0.0, 0.0, 0.0, 10.0, 0.0, 0.0, 0.0, 0.0, 0};
    Reason reason;
    ASSERT_TRUE(set.Evaluate(values, reason)) << reason.english;
    EXPECT_EQ(values[1], Value(2050.0));
    EXPECT_EQ(values[2], Value(2.05));
    EXPECT_EQ(values[3], Value(2.0));
    EXPECT_DOUBLE_EQ(std::get<double>(values[5]), 72.0);
    EXPECT_EQ(values[6], Value(1500.0)) << "a plain number is in the base unit, kW";
    EXPECT_EQ(values[7], Value(4.0));
    EXPECT_DOUBLE_EQ(std::get<double>(values[8]), 3.14159265358979323846);
    EXPECT_EQ(values[9], Value(2));
    EXPECT_EQ(set.ScopeOf(values).Number(0), 2000.0);
}

TEST(FormulaSet, RefusesARingAndNamesItsMembers)
{
    const Reason reason =
        RefusalOf({Length("A"), Length("D", "B"), Length("B", "C+A"), Length("C", "E"), Length("E", "B*2")});
    EXPECT_EQ(reason.code, "formula.cycle");
    EXPECT_EQ(reason.subject, "B");
    EXPECT_EQ(reason.english, R"(Formulas need each other in a ring: "B" needs "C" needs "E" needs "B".)");
    EXPECT_EQ(reason.chinese, "公式循环引用：“B”依赖“C”依赖“E”依赖“B”。");
}

TEST(FormulaSet, RefusesAVariableThatNeedsItself)
{
    const Reason reason = RefusalOf({Length("W", "W+1")});
    EXPECT_EQ(reason.code, "formula.cycle");
    EXPECT_EQ(reason.english, R"(Formulas need each other in a ring: "W" needs "W".)");
}

TEST(FormulaSet, ShortensALongRing)
{
    std::vector<FormulaVariable> ring;
    for (int i = 0; i < 1000; ++i) {
        ring.push_back(Length("v" + std::to_string(i), "v" + std::to_string((i + 1) % 1000)));
    }
    const Reason reason = RefusalOf(std::move(ring));
    EXPECT_EQ(reason.english,
        R"(Formulas need each other in a ring: "v0" needs "v1" needs "v2" needs "v3" needs "v4" needs "v5" needs "v6" needs "v7" needs … needs "v0".)");
}

TEST(FormulaSet, RefusesTwoVariablesOfOneName)
{
    const Reason reason = RefusalOf({Length("W"), Length("W")});
    EXPECT_EQ(reason.code, "formula.duplicate-name");
    EXPECT_EQ(reason.english, R"(There are two parameters "W".)");
}

TEST(FormulaSet, RefusesAnUnknownUnit)
{
    const Reason reason = RefusalOf({Length("W", {}, "furlong")});
    EXPECT_EQ(reason.code, "formula.unknown-unit");
    EXPECT_EQ(reason.english, R"(The unit "furlong" of "W" is not known.)");
}

struct MisfitRow
{
    const char* name;
    FormulaVariable variable;
    const char* code;
    const char* english;
    const char* chinese;
};

void PrintTo(const MisfitRow& row, std::ostream* out)
{
    *out << row.name;
}

class FormulaMisfit : public ::testing::TestWithParam<MisfitRow>
{
};

TEST_P(FormulaMisfit, NamesTheParameterAndTheReason)
{
    const Reason reason = RefusalOf({Length("A"), GetParam().variable});
    EXPECT_EQ(reason.code, GetParam().code);
    EXPECT_EQ(reason.subject, "W");
    EXPECT_EQ(reason.english, GetParam().english);
    EXPECT_EQ(reason.chinese, GetParam().chinese);
}

INSTANTIATE_TEST_SUITE_P(Results, FormulaMisfit,
    ::testing::Values(MisfitRow{"SuffixOfAnotherQuantity", Length("W", "5kW"), "formula.wrong-unit",
                          R"(The formula of "W" gives a value of power, but its unit is "mm".)",
                          "“W”的公式得到的是功率，而其单位是“mm”。"},
        MisfitRow{"AreaForLength", Length("W", "A*A"), "formula.wrong-unit",
            R"(The formula of "W" gives a value of area, but its unit is "mm".)",
            "“W”的公式得到的是面积，而其单位是“mm”。"},
        MisfitRow{"LengthForAngle", Length("W", "A", "deg"), "formula.wrong-unit",
            R"(The formula of "W" gives a value of length, but its unit is "deg".)",
            "“W”的公式得到的是长度，而其单位是“deg”。"},
        MisfitRow{"TextForNumber", Length("W", "\"a\""), "formula.wrong-kind",
            R"(The formula of "W" gives a text, but a number is needed.)", "“W”的公式得到的是文本，而需要的是数值。"},
        MisfitRow{"NumberForText", Words("W", "A"), "formula.wrong-kind",
            R"(The formula of "W" gives a number, but a text is needed.)", "“W”的公式得到的是数值，而需要的是文本。"},
        MisfitRow{"NumberForFlag", Flag("W", "A"), "formula.wrong-kind",
            R"(The formula of "W" gives a number, but a yes/no value is needed.)",
            "“W”的公式得到的是数值，而需要的是是/否值。"},
        MisfitRow{"FlagForText", Words("W", "A>1"), "formula.wrong-kind",
            R"(The formula of "W" gives a yes/no value, but a text is needed.)",
            "“W”的公式得到的是是/否值，而需要的是文本。"},
        MisfitRow{"SyntaxError", Length("W", "A+"), "formula.syntax", R"(The formula of "W" ends too early.)",
            "“W”的公式不完整。"}),
    [](const auto& row) { return row.param.name; });

TEST(FormulaSet, TakesPlainNumbersForAnyUnit)
{
    Made({Length("A"), Length("W", "5", "kW"), Length("V", "A/A", "kW"), Length("U", "A", "")});
}

TEST(FormulaSet, ChangesNothingWhenOneFails)
{
    const FormulaSet set = Made({Length("A"), Length("B", "A+1"), Length("W", "1/(A-10)"), Length("C", "A+2")});
    std::vector<Value> values{10.0, 1.0, 2.0, 3.0};
    const std::vector<Value> before = values;
    Reason reason;
    EXPECT_FALSE(set.Evaluate(values, reason));
    EXPECT_EQ(values, before);
    EXPECT_EQ(reason.code, "formula.division-by-zero");
    EXPECT_EQ(reason.subject, "W");
    values[0] = 12.0;
    EXPECT_TRUE(set.Evaluate(values, reason));
    EXPECT_EQ(values[2], Value(0.5));
}

TEST(FormulaSet, RefusesIntegersOutOfRange)
{
    const FormulaSet set = Made({Length("A"), Whole("N", "A")});
    Reason reason;
    for (const double bad : {2147483647.5, -2147483648.5, 1e300}) {
        std::vector<Value> values{bad, 7};
        EXPECT_FALSE(set.Evaluate(values, reason)) << bad;
        EXPECT_EQ(values[1], Value(7));
        EXPECT_EQ(reason.code, "formula.out-of-range");
        EXPECT_EQ(reason.subject, "N");
    }
    EXPECT_EQ(reason.english, R"(The formula of "N" gives 1e+300, which is no 32-bit integer.)");
    std::vector<Value> values{2147483647.0, 0};
    EXPECT_TRUE(set.Evaluate(values, reason));
    EXPECT_EQ(values[1], Value(2147483647));
}

TEST(FormulaSet, RefusesGivenValuesThatAreNotFinite)
{
    const FormulaSet set = Made({Length("A"), Length("B", "5")});
    Reason reason;
    for (const double bad : {std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
        std::vector<Value> values{bad, 1.0};
        EXPECT_FALSE(set.Evaluate(values, reason));
        EXPECT_EQ(reason.code, "value.not-finite");
        EXPECT_EQ(reason.english, R"(The value of "A" is not a finite number.)");
        EXPECT_EQ(reason.chinese, "“A”的值不是有限数。");
    }
}

TEST(FormulaSet, CountsAResultThatLeavesItsUnitBehindAsTooLarge)
{
    const FormulaSet set = Made({Length("A", {}, "km"), Length("B", "A*1e300", "um")});
    std::vector<Value> values{100.0, 1.0};
    Reason reason;
    EXPECT_FALSE(set.Evaluate(values, reason));
    EXPECT_EQ(reason.code, "formula.overflow");
    EXPECT_EQ(values[1], Value(1.0));
}

/// A formula that is written down and worked out side by side.
struct Sample
{
    std::string text;
    double value;
};

/// Generates formulas with all operators; the value is worked out by the generator, not by the code under test.
class SampleMaker
{
public:
    SampleMaker(unsigned seed, const std::vector<double>& values) : m_random(seed), m_values(values) {}

    Sample Number(int depth)
    {
        switch (depth == 0 ? Pick(2) : Pick(12)) {
        case 0: {
            const int digits = Pick(1000);
            return {std::to_string(digits) + ".25", digits + 0.25};
        }
        case 1: {
            const auto index = static_cast<std::size_t>(Pick(static_cast<int>(m_values.size())));
            return {"v" + std::to_string(index), m_values[index]};
        }
        case 2:
            return Both(depth, " + ", [](double a, double b) { return a + b; });
        case 3:
            return Both(depth, "-", [](double a, double b) { return a - b; });
        case 4:
            return Both(depth, "×", [](double a, double b) { return a * b; });
        case 5:
            return Both(depth, "/", [](double a, double b) { return b == 0 ? NAN : a / b; });
        case 6:
            return One(depth, "-", [](double a) { return -a; });
        case 7:
            return One(depth, "abs", [](double a) { return std::fabs(a); });
        case 8:
            return One(depth, "floor", [](double a) { return std::floor(a); });
        case 9: {
            const Sample left = Number(depth - 1);
            const Sample right = Number(depth - 1);
            return {
                "max(" + left.text + "，" + right.text + ")", Poisoned(left, right, std::max(left.value, right.value))};
        }
        case 10: {
            const auto [text, holds] = Condition(depth - 1);
            const Sample met = Number(depth - 1);
            const Sample unmet = Number(depth - 1);
            return {"(" + text + " ? " + met.text + " : " + unmet.text + ")", Chosen(holds, met, unmet)};
        }
        default: {
            const auto [text, holds] = Condition(depth - 1);
            const Sample met = Number(depth - 1);
            const Sample unmet = Number(depth - 1);
            return {"if(" + text + ", " + met.text + ", " + unmet.text + ")", Chosen(holds, met, unmet)};
        }
        }
    }

private:
    /// -1: cannot be worked out.
    std::pair<std::string, int> Condition(int depth)
    {
        if (depth > 0 && Pick(2) == 0) {
            const auto [left, leftHolds] = Condition(depth - 1);
            const auto [right, rightHolds] = Condition(depth - 1);
            if (Pick(2) == 0) {
                return {"(" + left + " && " + right + ")", leftHolds == 1 ? rightHolds : leftHolds};
            }
            return {"(" + left + " or " + right + ")", leftHolds == 0 ? rightHolds : leftHolds};
        }
        const Sample left = Number(depth > 0 ? depth - 1 : 0);
        const Sample right = Number(depth > 0 ? depth - 1 : 0);
        const bool isBad = !std::isfinite(left.value) || !std::isfinite(right.value);
        switch (Pick(3)) {
        case 0:
            return {left.text + " < " + right.text, isBad ? -1 : left.value < right.value};
        case 1:
            return {left.text + " ≥ " + right.text, isBad ? -1 : left.value >= right.value};
        default:
            return {left.text + " == " + right.text, isBad ? -1 : left.value == right.value};
        }
    }

    static double Chosen(int holds, const Sample& met, const Sample& unmet)
    {
        return holds < 0 ? NAN : holds == 1 ? met.value : unmet.value;
    }

    static double Poisoned(const Sample& left, const Sample& right, double value)
    {
        return std::isfinite(left.value) && std::isfinite(right.value) ? value : NAN;
    }

    template <typename Function>
    Sample Both(int depth, const char* sign, Function function)
    {
        const Sample left = Number(depth - 1);
        const Sample right = Number(depth - 1);
        return {"(" + left.text + sign + right.text + ")", Poisoned(left, right, function(left.value, right.value))};
    }

    template <typename Function>
    Sample One(int depth, const char* name, Function function)
    {
        const Sample inner = Number(depth - 1);
        return {std::string(name) + "(" + inner.text + ")", Poisoned(inner, inner, function(inner.value))};
    }

    int Pick(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(count)); }

    std::mt19937 m_random;
    const std::vector<double>& m_values;
};

TEST(FormulaSet, AgreesWithAnIndependentOracle)
{
    const std::vector<double> given{0, 1, -2.5, 17, 1e5};
    SampleMaker maker(20221122, given);
    std::vector<FormulaVariable> inputs;
    std::vector<Value> inputValues;
    for (std::size_t i = 0; i < given.size(); ++i) {
        inputs.push_back(Length("v" + std::to_string(i), {}, ""));
        inputValues.emplace_back(given[i]);
    }
    int finite = 0;
    for (int round = 0; round < 4000; ++round) {
        const Sample sample = maker.Number(1 + round % 5);
        if (sample.text.size() > 4000) {
            continue;
        }
        std::vector<FormulaVariable> variables = inputs;
        variables.push_back(Length("R", sample.text, ""));
        std::vector<Value> values = inputValues;
        values.emplace_back(0.0);
        Reason reason;
        const std::optional<FormulaSet> set = FormulaSet::Make(variables, reason);
        ASSERT_TRUE(set) << sample.text << ": " << reason.english;
        const bool isWorkedOut = set->Evaluate(values, reason);
        ASSERT_EQ(isWorkedOut, std::isfinite(sample.value)) << sample.text << ": " << reason.english;
        if (isWorkedOut) {
            ++finite;
            ASSERT_EQ(std::get<double>(values.back()), sample.value) << sample.text;
        }
    }
    EXPECT_GT(finite, 2000);
}

/// v0 is given, each further one needs up to two that come somewhere before it in a shuffled order.
struct RandomSystem
{
    std::vector<FormulaVariable> variables;
    /// By position: what the oracle says.
    std::vector<double> expected;
};

RandomSystem MakeSystem(std::mt19937& random, std::size_t count)
{
    std::vector<std::size_t> places(count);
    for (std::size_t i = 0; i < count; ++i) {
        places[i] = i;
    }
    std::shuffle(places.begin(), places.end(), random);
    RandomSystem system{std::vector<FormulaVariable>(count), std::vector<double>(count)};
    const auto nameOf = [&](std::size_t step) { return "参" + std::to_string(places[step]); };
    for (std::size_t step = 0; step < count; ++step) {
        FormulaVariable& variable = system.variables[places[step]];
        variable = Length(nameOf(step), {}, "");
        double& expected = system.expected[places[step]];
        expected = 3;
        if (step > 0) {
            const std::size_t first = random() % step;
            const std::size_t second = random() % step;
            variable.formula = nameOf(first) + "/2 + min(" + nameOf(second) + ", 7) + " + std::to_string(step % 10);
            expected = system.expected[places[first]] / 2 + std::min(system.expected[places[second]], 7.0) +
                       static_cast<double>(step % 10);
        }
    }
    return system;
}

TEST(FormulaSet, OrdersRandomSystems)
{
    std::mt19937 random(7);
    for (int round = 0; round < 60; ++round) {
        const RandomSystem system = MakeSystem(random, 1 + static_cast<std::size_t>(round) * 3);
        const FormulaSet set = Made(system.variables);
        std::vector<Value> values;
        for (const FormulaVariable& variable : system.variables) {
            values.emplace_back(variable.formula.empty() ? 3.0 : -1.0);
        }
        Reason reason;
        ASSERT_TRUE(set.Evaluate(values, reason)) << reason.english;
        for (std::size_t i = 0; i < values.size(); ++i) {
            ASSERT_EQ(std::get<double>(values[i]), system.expected[i]) << i;
        }
    }
}

TEST(FormulaSet, HandlesTenThousandVariablesInARow)
{
    std::vector<FormulaVariable> variables;
    std::vector<Value> values;
    for (int i = 9999; i > 0; --i) {
        variables.push_back(Length("v" + std::to_string(i), "v" + std::to_string(i - 1) + "+1"));
        values.emplace_back(0.0);
    }
    variables.push_back(Length("v0"));
    values.emplace_back(5.0);
    const FormulaSet set = Made(std::move(variables));
    Reason reason;
    ASSERT_TRUE(set.Evaluate(values, reason)) << reason.english;
    EXPECT_EQ(values.front(), Value(10004.0));
}

} // namespace
} // namespace familyfiles
