#include "FamilyFiles/Formulas/Expression.h"

#include <cmath>
#include <gmock/gmock.h>
#include <limits>
#include <ostream>
#include <string>
#include <vector>

namespace familyfiles {
namespace {

using ::testing::ElementsAre;

/// A valve's names: lengths, an angle, a flow, plain numbers, yes/no, texts, Chinese.
Scope ValveNames()
{
    Scope names;
    names.SetNumber(*names.Add("DN", ValueKind::Number, Quantity::Length), 50);
    names.SetNumber(*names.Add("宽度", ValueKind::Number, Quantity::Length), 400);
    names.SetNumber(*names.Add("m", ValueKind::Number, Quantity::Length), 2);
    names.SetNumber(*names.Add("Angle", ValueKind::Number, Quantity::Angle), 30);
    names.SetNumber(*names.Add("Flow", ValueKind::Number, Quantity::VolumeFlow), 100);
    names.SetNumber(*names.Add("n", ValueKind::Number), 8);
    names.SetNumber(*names.Add("zero", ValueKind::Number), 0);
    names.SetNumber(*names.Add("huge", ValueKind::Number), 1e300);
    names.SetNumber(*names.Add("保温", ValueKind::YesNo), 1);
    names.SetNumber(*names.Add("off", ValueKind::YesNo), 0);
    names.SetText(*names.Add("型号", ValueKind::Text), "DN100");
    names.SetText(*names.Add("Empty", ValueKind::Text), "");
    names.SetNumber(*names.Add("Width (outer)", ValueKind::Number, Quantity::Length), 7);
    names.SetNumber(*names.Add("no", ValueKind::Number), 11);
    names.SetNumber(*names.Add("Ａ２", ValueKind::Number), 13);
    return names;
}

struct Row
{
    const char* name;
    const char* formula;
    double value;
};

void PrintTo(const Row& row, std::ostream* out)
{
    *out << row.formula;
}

std::string RowName(const ::testing::TestParamInfo<Row>& info)
{
    return info.param.name;
}

class ExpressionValue : public ::testing::TestWithParam<Row>
{
};

TEST_P(ExpressionValue, IsWorkedOut)
{
    const Scope names = ValveNames();
    Reason reason;
    const std::optional<Expression> expression = Expression::Compile(GetParam().formula, names, "P", reason);
    ASSERT_TRUE(expression) << reason.english;
    const std::optional<double> value = expression->Number(names, reason);
    ASSERT_TRUE(value) << reason.english;
    EXPECT_DOUBLE_EQ(*value, GetParam().value);
    EXPECT_FALSE(reason);
}

INSTANTIATE_TEST_SUITE_P(Arithmetic, ExpressionValue,
    ::testing::Values(Row{"Sum", "1+2-4", -1}, Row{"TimesBeforePlus", "2+3*4", 14}, Row{"FromTheLeft", "100-10-5", 85},
        Row{"DivisionFromTheLeft", "100/10/5", 2}, Row{"MixedRank", "100/10*5", 50}, Row{"Parentheses", "(2+3)*4", 20},
        Row{"PowerFromTheRight", "2^3^2", 512}, Row{"SignInFrontOfPower", "-2^2", -4},
        Row{"PowerOfSigned", "(-2)^2", 4}, Row{"SignedExponent", "2^-1", 0.5}, Row{"TwoSigns", "3--2", 5},
        Row{"SignOfProduct", "2*-3", -6}, Row{"UnaryPlus", "+5", 5}, Row{"Remainder", "17%5", 2},
        Row{"RemainderTakesDivisorsSign", "-7%3", 2}, Row{"RemainderOfNegativeDivisor", "7%-3", -2},
        Row{"RemainderBindsAsTimes", "1+7%4*2", 7}, Row{"Point", ".5+1.", 1.5},
        Row{"Exponent", "1e3+1E-1+2e+1", 1020.1}, Row{"Blanks", " 1\t+\n2 ", 3},
        Row{"Constants", "pi", 3.14159265358979323846}, Row{"ExactEquality", "(0.1+0.2==0.3) + 0", 0}),
    RowName);

INSTANTIATE_TEST_SUITE_P(Names, ExpressionValue,
    ::testing::Values(Row{"Chinese", "宽度*2+DN/5", 810}, Row{"ChineseAlone", "宽度", 400},
        Row{"Bracketed", "[Width (outer)]+1", 8}, Row{"BracketedWord", "[no]", 11}, Row{"BracketedPlain", "[DN]", 50},
        Row{"FullWidthName", "Ａ２*2", 26}, Row{"UnitAsName", "2m+m", 2002}, Row{"NameTimesUnit", "m*2m", 4000},
        Row{"FlagAsNumber", "保温*50+off", 50}),
    RowName);

INSTANTIATE_TEST_SUITE_P(FullWidthSigns, ExpressionValue,
    ::testing::Values(Row{"Everything", "（宽度＋１０）×２÷４－５", 200}, Row{"Comma", "max（DN，宽度）", 400},
        Row{"EnumerationComma", "max(DN、宽度)", 400}, Row{"Comparison", "if(DN ＜＝ 50 ＆＆ DN≥50, 1, 2)", 1},
        Row{"ChoiceSigns", "DN＞４０？１：２", 1}, Row{"Minus", "10−3–2", 5}, Row{"Power", "2＾3", 8},
        Row{"Blank", "1　+　2", 3}, Row{"Digits", "１２．５", 12.5}, Row{"Brackets", "【宽度】+［DN］", 450},
        Row{"NotEqual", "if(DN≠50, 1, 2)", 2}, Row{"Dot", "2·3", 6}),
    RowName);

INSTANTIATE_TEST_SUITE_P(Conditions, ExpressionValue,
    ::testing::Values(Row{"Question", "DN>40 ? 1 : 2", 1}, Row{"If", "if(DN>60,1,2)", 2},
        Row{"Chain", "DN<20?1:DN<60?2:3", 2}, Row{"InTheMiddle", "off?1:保温?2:3", 2},
        Row{"ChoiceInChoice", "保温?off?1:2:3", 2}, Row{"And", "if(保温 && off, 1, 2)", 2},
        Row{"Or", "if(off || 保温, 1, 2)", 1}, Row{"AndBeforeOr", "if(保温 || 保温 && off, 1, 2)", 1},
        Row{"Words", "if(not off and (保温 or off), 1, 2)", 1}, Row{"Not", "if(!off, 1, 2)", 1},
        Row{"NotFunction", "if(not(off), 1, 2)", 1}, Row{"YesAndTrue", "if(yes && true, 1, 2)", 1},
        Row{"NoAndFalse", "if(no || false, 1, 2)", 2}, Row{"ComparisonsBeforeAnd", "if(1<2 && 3>=3, 1, 2)", 1},
        Row{"SumsBeforeComparisons", "if(1+1<1+2, 1, 2)", 1}, Row{"EqualAfterLess", "if(1<2 == 3<4, 1, 2)", 1},
        Row{"FlagComparedWithNumber", "if(保温==1, 1, 2)", 1}, Row{"LessOrEqualIsTrueWhenEqual", "if(DN<=50, 1, 2)", 1},
        Row{"Unequal", "if(DN<>50, 1, 2)", 2}, Row{"BranchNotTakenIsNotWorkedOut", "zero==0 ? 1 : 1/zero", 1},
        Row{"IfDoesNotWorkOutEither", "if(zero!=0, 1/zero, 5)", 5},
        Row{"AndStopsAtNo", "if(zero!=0 && 1/zero>1, 1, 2)", 2},
        Row{"OrStopsAtYes", "if(zero==0 || 1/zero>1, 1, 2)", 1}),
    RowName);

INSTANTIATE_TEST_SUITE_P(Units, ExpressionValue,
    ::testing::Values(Row{"Metres", "2m+50mm", 2050}, Row{"Inches", "2in", 50.8}, Row{"Feet", "1 ft", 304.8},
        Row{"BlankBefore", "2 m + 1 mm", 2001}, Row{"Centimetres", "1.5cm", 15},
        Row{"Radians", "1rad", 57.29577951308232}, Row{"Degrees", "90deg+10°", 100}, Row{"Watt", "500W", 0.5},
        Row{"Kilowatt", "2kW", 2}, Row{"LitresPerSecond", "10L/s", 36}, Row{"CubicMetresPerHour", "20m3/h", 20},
        Row{"Superscript", "20m³/h", 20}, Row{"Pascal", "250Pa", 0.25}, Row{"Kilopascal", "1kPa", 1},
        Row{"Bar", "1.6bar", 160}, Row{"LongestUnit", "5m/s", 5}, Row{"DivisionNeedsABlank", "6m / m", 3000},
        Row{"OnParentheses", "(1+2)m", 3000}, Row{"ExponentThenUnit", "2e3m", 2e6},
        Row{"UnitThenOperator", "2m*3", 6000}, Row{"Squares", "1m2", 1e6}, Row{"Litres", "1L", 1e6},
        Row{"Minutes", "2min", 120}, Row{"Temperature", "20°C+5K", 25}, Row{"Negative", "-2m", -2000},
        Row{"InArgument", "max(1m, 2mm)", 1000}, Row{"Micro", "5µm", 0.005}, Row{"PowerOfUnit", "2m^2", 4e6},
        Row{"Dotted", "3N·m", 3}),
    RowName);

INSTANTIATE_TEST_SUITE_P(Functions, ExpressionValue,
    ::testing::Values(Row{"Abs", "abs(-3)", 3}, Row{"Sign", "sign(-3)+sign(0)+sign(2)", 0},
        Row{"Floor", "floor(-2.5)", -3}, Row{"Ceil", "ceil(-2.5)", -2},
        Row{"RoundHalfAway", "round(2.5)+round(-2.5)+round(3.5)", 4}, Row{"Trunc", "trunc(-2.7)", -2},
        Row{"Mod", "mod(-7, 3)", 2}, Row{"Min", "min(3,1,2)", 1}, Row{"Max", "max(3,1,2)", 3},
        Row{"MinOfOne", "min(3)", 3}, Row{"Sum", "sum(1,2,3)", 6}, Row{"Average", "avg(1,2,6)", 3},
        Row{"SquareRoot", "sqrt(16)", 4}, Row{"CubeRoot", "cbrt(27)", 3}, Row{"Pow", "pow(2, 10)", 1024},
        Row{"Exp", "exp(0)", 1}, Row{"Ln", "ln(exp(2))", 2}, Row{"Log10", "log10(1000)", 3}, Row{"Log2", "log2(8)", 3},
        Row{"SineOfDegrees", "sin(Angle)", 0.5}, Row{"SineIsExactAtHalfTurn", "sin(180)", 0},
        Row{"CosineIsExactAtQuarter", "cos(90)+cos(-90)+cos(270)", 0}, Row{"CosineOfFullTurn", "cos(360)", 1},
        Row{"SineOfThreeQuarters", "sin(270)", -1}, Row{"Tangent", "tan(45)", 1}, Row{"ArcSine", "asin(1)", 90},
        Row{"ArcCosine", "acos(-1)", 180}, Row{"ArcTangent", "atan(1)", 45}, Row{"ArcTangent2", "atan2(-1, -1)", -135},
        Row{"Hypot", "hypot(3,4)", 5}, Row{"Sinh", "sinh(0)+cosh(0)+tanh(0)", 1}, Row{"Value", "value(宽度)", 400},
        Row{"Nested", "max(min(DN, 宽度), abs(-60))", 60}, Row{"ValueOfUnit", "value(2m)", 2000}),
    RowName);

class ExpressionText : public ::testing::TestWithParam<std::pair<const char*, const char*>>
{
};

TEST_P(ExpressionText, IsWorkedOut)
{
    const Scope names = ValveNames();
    Reason reason;
    const std::optional<Expression> expression = Expression::Compile(GetParam().first, names, "P", reason);
    ASSERT_TRUE(expression) << reason.english;
    EXPECT_EQ(expression->Kind(), ValueKind::Text);
    EXPECT_EQ(expression->Text(names, reason), GetParam().second) << reason.english;
}

INSTANTIATE_TEST_SUITE_P(Texts, ExpressionText,
    ::testing::Values(std::pair("\"有\"", "有"), std::pair("型号", "DN100"), std::pair("保温 ? \"有\" : \"无\"", "有"),
        std::pair("off ? \"有\" : \"无\"", "无"), std::pair("型号==\"DN100\" ? \"yes\" : 型号", "yes"),
        std::pair("型号!=\"DN100\" ? \"yes\" : 型号", "DN100"), std::pair("if(Empty==\"\", \"none\", Empty)", "none"),
        std::pair("off ? 型号 : Empty", ""), std::pair("\"a+b（c），“d”\"", "a+b（c），“d”"),
        std::pair("“引号”", "引号"), std::pair("＂全角＂", "全角"), std::pair("(\"x\")", "x"),
        std::pair("\"A\" == \"A\" ? \"same\" : \"other\"", "same")));

TEST(Expression, ComparesTextsWithNumbersAsResult)
{
    const Scope names = ValveNames();
    Reason reason;
    const auto expression = Expression::Compile("型号==\"DN100\" ? 宽度+50 : 宽度", names, "P", reason);
    ASSERT_TRUE(expression);
    EXPECT_EQ(expression->Number(names, reason), 450);
}

struct BadRow
{
    const char* name;
    std::string formula;
    const char* code;
    std::string english;
    std::string chinese;
};

void PrintTo(const BadRow& row, std::ostream* out)
{
    *out << row.formula.substr(0, 80);
}

class ExpressionFault : public ::testing::TestWithParam<BadRow>
{
};

TEST_P(ExpressionFault, NamesTheParameterAndTheReason)
{
    const Scope names = ValveNames();
    Reason reason;
    const std::optional<Expression> expression = Expression::Compile(GetParam().formula, names, "W", reason);
    if (expression) {
        EXPECT_FALSE(expression->Number(names, reason));
    }
    EXPECT_EQ(reason.code, GetParam().code);
    EXPECT_EQ(reason.subject, "W");
    EXPECT_EQ(reason.english, "The formula of \"W\" " + GetParam().english + ".");
    EXPECT_EQ(reason.chinese, "“W”的公式" + GetParam().chinese + "。");
}

std::string BadRowName(const ::testing::TestParamInfo<BadRow>& info)
{
    return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(Syntax, ExpressionFault,
    ::testing::Values(BadRow{"Empty", "", "formula.empty", "is empty", "为空"},
        BadRow{"Blank", " \t", "formula.empty", "is empty", "为空"},
        BadRow{"CutOff", "1+", "formula.syntax", "ends too early", "不完整"},
        BadRow{"OpenParenthesis", "(1+2", "formula.syntax", "ends too early", "不完整"},
        BadRow{"ClosingParenthesis", "1+2)", "formula.syntax", "does not go on with \")\" at character 4",
            "在第 4 个字符处有意外的“)”"},
        BadRow{"PositionsCountCharacters", "宽度+*2", "formula.syntax", "does not go on with \"*\" at character 4",
            "在第 4 个字符处有意外的“*”"},
        BadRow{"TwoValues", "1 2", "formula.syntax", "does not go on with \"2\" at character 3",
            "在第 3 个字符处有意外的“2”"},
        BadRow{"ListOfValues", "1,2,3", "formula.syntax", "does not go on with \",\" at character 2",
            "在第 2 个字符处有意外的“,”"},
        BadRow{"Assignment", "DN=5", "formula.syntax",
            "has a single \"=\" at character 3; values are compared by \"==\"",
            "在第 3 个字符处有单个“=”，比较请用“==”"},
        BadRow{"FullWidthAssignment", "DN＝5", "formula.syntax",
            "has a single \"=\" at character 3; values are compared by \"==\"",
            "在第 3 个字符处有单个“=”，比较请用“==”"},
        BadRow{"SingleAmpersand", "1 & 2", "formula.syntax", "does not go on with \"&\" at character 3",
            "在第 3 个字符处有意外的“&”"},
        BadRow{"ChoiceWithoutElse", "DN>1 ? 2", "formula.syntax", "ends too early", "不完整"},
        BadRow{"TwoPoints", "1.2.3", "formula.syntax", "does not go on with \".\" at character 4",
            "在第 4 个字符处有意外的“.”"},
        BadRow{"OpenText", "\"abc", "formula.syntax", "does not go on with \"\"\" at character 1",
            "在第 1 个字符处有意外的“\"”"},
        BadRow{"OpenBracket", "[abc", "formula.syntax", "does not go on with \"[\" at character 1",
            "在第 1 个字符处有意外的“[”"},
        BadRow{"NoUtf8", "1+\xFF", "formula.syntax", "does not go on with \"?\" at character 3",
            "在第 3 个字符处有意外的“?”"},
        BadRow{"ForeignSign", "1→2", "formula.syntax", "does not go on with \"→\" at character 2",
            "在第 2 个字符处有意外的“→”"},
        BadRow{"EmptyArguments", "max()", "formula.syntax", "does not go on with \")\" at character 5",
            "在第 5 个字符处有意外的“)”"},
        BadRow{"TrailingComma", "max(1,)", "formula.syntax", "does not go on with \")\" at character 7",
            "在第 7 个字符处有意外的“)”"},
        BadRow{"UnknownName", "宽度+高度", "formula.unknown-name", "uses \"高度\", which is no parameter",
            "使用了不存在的参数“高度”"},
        BadRow{"NamesCountCase", "dn", "formula.unknown-name", "uses \"dn\", which is no parameter",
            "使用了不存在的参数“dn”"},
        BadRow{"UnknownFunction", "system(1)", "formula.unknown-function", "calls \"system\", which is no function",
            "调用了不存在的函数“system”"},
        BadRow{"ParameterAsFunction", "DN(1)", "formula.unknown-function", "calls \"DN\", which is no function",
            "调用了不存在的函数“DN”"},
        BadRow{"FunctionAsName", "sin", "formula.unknown-name", "uses \"sin\", which is no parameter",
            "使用了不存在的参数“sin”"},
        BadRow{"UnknownUnit", "5parsec", "formula.unknown-unit", "has \"parsec\" behind a value, which is no unit",
            "在数值后使用了未知单位“parsec”"},
        BadRow{"NameBehindParenthesis", "(1+2)DN", "formula.unknown-unit",
            "has \"DN\" behind a value, which is no unit", "在数值后使用了未知单位“DN”"},
        BadRow{"TooFewArguments", "mod(1)", "formula.arguments", "gives \"mod\" the wrong number of arguments",
            "中函数“mod”的参数个数不对"},
        BadRow{"TooManyArguments", "abs(1,2)", "formula.arguments", "gives \"abs\" the wrong number of arguments",
            "中函数“abs”的参数个数不对"},
        BadRow{"IfWithoutElse", "if(off,1)", "formula.arguments", "gives \"if\" the wrong number of arguments",
            "中函数“if”的参数个数不对"}),
    BadRowName);

std::string Repeated(const std::string& text, int count)
{
    std::string all;
    for (int i = 0; i < count; ++i) {
        all += text;
    }
    return all;
}

INSTANTIATE_TEST_SUITE_P(Limits, ExpressionFault,
    ::testing::Values(BadRow{"Nested10000Deep", std::string(10000, '(') + "1" + std::string(10000, ')'),
                          "formula.too-long", "is longer than 4096 bytes", "超过 4096 字节"},
        BadRow{"NestedTooDeepInFewBytes", std::string(1000, '(') + "1" + std::string(1000, ')'), "formula.too-deep",
            "is nested deeper than 100 levels", "嵌套超过 100 层"},
        BadRow{"OpenedTooDeep", std::string(4000, '('), "formula.too-deep", "is nested deeper than 100 levels",
            "嵌套超过 100 层"},
        BadRow{"TooManySigns", std::string(4000, '-') + "1", "formula.too-deep", "is nested deeper than 100 levels",
            "嵌套超过 100 层"},
        BadRow{"TooManyPowers", "1" + Repeated("^1", 1000), "formula.too-deep", "is nested deeper than 100 levels",
            "嵌套超过 100 层"},
        BadRow{"TooManyChoices", Repeated("off?1:", 500) + "1", "formula.too-deep", "is nested deeper than 100 levels",
            "嵌套超过 100 层"},
        BadRow{"TooManyCalls", Repeated("abs(", 500) + "1" + std::string(500, ')'), "formula.too-deep",
            "is nested deeper than 100 levels", "嵌套超过 100 层"},
        BadRow{"AMillionCharacters", std::string(1000000, '1'), "formula.too-long", "is longer than 4096 bytes",
            "超过 4096 字节"}),
    BadRowName);

INSTANTIATE_TEST_SUITE_P(Kinds, ExpressionFault,
    ::testing::Values(BadRow{"TextInSum", "1+型号", "formula.wrong-kind", "gives \"+\" a text where it needs a number",
                          "中“+”需要数值，得到的是文本"},
        BadRow{"TextInFunction", "max(1,\"a\")", "formula.wrong-kind", "gives \"max\" a text where it needs a number",
            "中“max”需要数值，得到的是文本"},
        BadRow{"NumberAsCondition", "DN ? 1 : 2", "formula.wrong-kind",
            "gives \"?:\" a number where it needs a yes/no value", "中“?:”需要是/否值，得到的是数值"},
        BadRow{"NumberAsConditionOfIf", "if(n, 1, 2)", "formula.wrong-kind",
            "gives \"if\" a number where it needs a yes/no value", "中“if”需要是/否值，得到的是数值"},
        BadRow{"NumberInAnd", "if(保温 && n, 1, 2)", "formula.wrong-kind",
            "gives \"&&\" a number where it needs a yes/no value", "中“&&”需要是/否值，得到的是数值"},
        BadRow{"ChainOfComparisons", "if(1<n<20, 1, 2)", "formula.wrong-kind",
            "gives \"<\" a yes/no value where it needs a number", "中“<”需要数值，得到的是是/否值"},
        BadRow{"TextComparedWithNumber", "if(型号==100, 1, 2)", "formula.wrong-kind",
            "mixes a text and a number at \"==\"", "在“==”处混用了文本和数值"},
        BadRow{"TextsOrdered", "if(型号<\"B\", 1, 2)", "formula.wrong-kind",
            "gives \"<\" a text where it needs a number", "中“<”需要数值，得到的是文本"},
        BadRow{"BranchesOfTwoKinds", "保温 ? 1 : \"a\"", "formula.wrong-kind", "mixes a number and a text at \"?:\"",
            "在“?:”处混用了数值和文本"},
        BadRow{"NotOfNumber", "if(!n, 1, 2)", "formula.wrong-kind",
            "gives \"!\" a number where it needs a yes/no value", "中“!”需要是/否值，得到的是数值"},
        BadRow{"UnitOnText", "(型号)mm", "formula.wrong-kind", "gives \"mm\" a text where it needs a number",
            "中“mm”需要数值，得到的是文本"}),
    BadRowName);

INSTANTIATE_TEST_SUITE_P(Quantities, ExpressionFault,
    ::testing::Values(BadRow{"LengthPlusAngle", "DN+Angle", "formula.wrong-unit",
                          "mixes units of length and angle at \"+\"", "在“+”处混用了长度和角度的单位"},
        BadRow{"LengthPlusSuffixOfPower", "DN+5kW", "formula.wrong-unit", "mixes units of length and power at \"+\"",
            "在“+”处混用了长度和功率的单位"},
        BadRow{"Compared", "if(DN > 5deg, 1, 2)", "formula.wrong-unit", "mixes units of length and angle at \">\"",
            "在“>”处混用了长度和角度的单位"},
        BadRow{"InMaximum", "max(DN, 1, Flow)", "formula.wrong-unit",
            "mixes units of length and volume flow at \"max\"", "在“max”处混用了长度和体积流量的单位"},
        BadRow{"Branches", "保温 ? DN : Angle", "formula.wrong-unit", "mixes units of length and angle at \"?:\"",
            "在“?:”处混用了长度和角度的单位"},
        BadRow{"SineOfLength", "sin(DN)", "formula.wrong-unit",
            "gives \"sin\" a value of length where it needs one of angle", "中“sin”需要角度，得到的是长度"},
        BadRow{"LogarithmOfLength", "ln(DN)", "formula.wrong-unit",
            "gives \"ln\" a value of length where it needs one of plain number", "中“ln”需要纯数，得到的是长度"},
        BadRow{"LengthAsExponent", "2^DN", "formula.wrong-unit",
            "gives \"^\" a value of length where it needs one of plain number", "中“^”需要纯数，得到的是长度"},
        BadRow{"AreaPlusLength", "DN*DN+DN", "formula.wrong-unit", "mixes units of area and length at \"+\"",
            "在“+”处混用了面积和长度的单位"},
        BadRow{"UnitTwice", "(DN*2)m", "formula.wrong-unit", "puts the unit \"m\" on a value that has one already",
            "给已有单位的值又加上了单位“m”"},
        BadRow{"RemainderOfTwo", "DN % Angle", "formula.wrong-unit", "mixes units of length and angle at \"%\"",
            "在“%”处混用了长度和角度的单位"}),
    BadRowName);

INSTANTIATE_TEST_SUITE_P(Values, ExpressionFault,
    ::testing::Values(BadRow{"DivisionByZero", "1/zero", "formula.division-by-zero", "divides by zero", "除以零"},
        BadRow{"DivisionByLiteralZero", "1/0", "formula.division-by-zero", "divides by zero", "除以零"},
        BadRow{"ZeroByZero", "zero/zero", "formula.division-by-zero", "divides by zero", "除以零"},
        BadRow{"HiddenByMinimum", "min(1/zero, 5)", "formula.division-by-zero", "divides by zero", "除以零"},
        BadRow{"HiddenByDivision", "1/(1/zero)", "formula.division-by-zero", "divides by zero", "除以零"},
        BadRow{"RemainderByZero", "5%zero", "formula.division-by-zero", "divides by zero", "除以零"},
        BadRow{"NegativePowerOfZero", "zero^-1", "formula.division-by-zero", "divides by zero", "除以零"},
        BadRow{"Overflow", "huge*huge", "formula.overflow", "gives a number that is too large", "的结果过大"},
        BadRow{"OverflowHiddenByDivision", "1/(huge*huge)", "formula.overflow", "gives a number that is too large",
            "的结果过大"},
        BadRow{"OverflowHiddenByComparison", "if(huge*huge > 5, 1, 2)", "formula.overflow",
            "gives a number that is too large", "的结果过大"},
        BadRow{"OverflowHiddenByDifference", "huge*huge-huge*huge", "formula.overflow",
            "gives a number that is too large", "的结果过大"},
        BadRow{"OverflowHiddenByArcTangent", "atan(huge*huge)", "formula.overflow", "gives a number that is too large",
            "的结果过大"},
        BadRow{"OverflowHiddenByEquality", "if(huge*huge == 5, 1, 2)", "formula.overflow",
            "gives a number that is too large", "的结果过大"},
        BadRow{"OverflowHiddenByMinimum", "min(huge*huge, 5)", "formula.overflow", "gives a number that is too large",
            "的结果过大"},
        BadRow{"OverflowOfPower", "10^400", "formula.overflow", "gives a number that is too large", "的结果过大"},
        BadRow{"OverflowOfExp", "exp(1000)", "formula.overflow", "gives a number that is too large", "的结果过大"},
        BadRow{"OverflowOfLiteral", "1e999", "formula.overflow", "gives a number that is too large", "的结果过大"},
        BadRow{"RootOfNegative", "sqrt(-1)", "formula.not-a-number",
            "has no value: a function is given what it is not defined for", "没有值：函数的参数超出其定义域"},
        BadRow{"LogarithmOfZero", "ln(zero)", "formula.not-a-number",
            "has no value: a function is given what it is not defined for", "没有值：函数的参数超出其定义域"},
        BadRow{"ArcSineOfTwo", "asin(2)", "formula.not-a-number",
            "has no value: a function is given what it is not defined for", "没有值：函数的参数超出其定义域"},
        BadRow{"TangentOfRightAngle", "tan(90)", "formula.not-a-number",
            "has no value: a function is given what it is not defined for", "没有值：函数的参数超出其定义域"},
        BadRow{"BrokenPowerOfNegative", "(-8)^0.5", "formula.not-a-number",
            "has no value: a function is given what it is not defined for", "没有值：函数的参数超出其定义域"}),
    BadRowName);

struct QuantityRow
{
    const char* formula;
    Quantity quantity;
};

class ExpressionQuantity : public ::testing::TestWithParam<QuantityRow>
{
};

TEST_P(ExpressionQuantity, FollowsFromTheUnits)
{
    Reason reason;
    const std::optional<Expression> expression = Expression::Compile(GetParam().formula, ValveNames(), "P", reason);
    ASSERT_TRUE(expression) << GetParam().formula << ": " << reason.english;
    EXPECT_EQ(expression->ResultQuantity(), GetParam().quantity) << GetParam().formula;
}

INSTANTIATE_TEST_SUITE_P(Rules, ExpressionQuantity,
    ::testing::Values(QuantityRow{"5", Quantity::Plain}, QuantityRow{"DN", Quantity::Length},
        QuantityRow{"DN+5", Quantity::Length}, QuantityRow{"5+DN", Quantity::Length},
        QuantityRow{"2*DN", Quantity::Length}, QuantityRow{"DN/2", Quantity::Length},
        QuantityRow{"DN*DN", Quantity::Area}, QuantityRow{"DN*DN*DN", Quantity::Volume},
        QuantityRow{"DN*DN*DN*DN", Quantity::Plain}, QuantityRow{"DN/宽度", Quantity::Plain},
        QuantityRow{"1m3/DN", Quantity::Area}, QuantityRow{"1m3/1m2", Quantity::Length},
        QuantityRow{"1/DN", Quantity::Plain}, QuantityRow{"DN*Flow", Quantity::Plain},
        QuantityRow{"Flow*2", Quantity::VolumeFlow}, QuantityRow{"DN^2", Quantity::Area},
        QuantityRow{"DN^3", Quantity::Volume}, QuantityRow{"DN^1", Quantity::Length},
        QuantityRow{"DN^n", Quantity::Plain}, QuantityRow{"(1m2)^0.5", Quantity::Length},
        QuantityRow{"sqrt(DN*DN)", Quantity::Length}, QuantityRow{"sqrt(DN)", Quantity::Plain},
        QuantityRow{"cbrt(1L)", Quantity::Length}, QuantityRow{"max(1, DN)", Quantity::Length},
        QuantityRow{"-DN", Quantity::Length}, QuantityRow{"保温 ? DN : 5", Quantity::Length},
        QuantityRow{"if(保温, 5, DN)", Quantity::Length}, QuantityRow{"DN > 5", Quantity::Plain},
        QuantityRow{"sin(Angle)", Quantity::Plain}, QuantityRow{"asin(0.5)", Quantity::Angle},
        QuantityRow{"atan2(DN, 宽度)", Quantity::Angle}, QuantityRow{"value(DN)", Quantity::Plain},
        QuantityRow{"floor(DN)", Quantity::Length}, QuantityRow{"sign(DN)", Quantity::Plain},
        QuantityRow{"保温*DN", Quantity::Length}, QuantityRow{"hypot(DN, 5mm)", Quantity::Length},
        QuantityRow{"DN % 5", Quantity::Length}, QuantityRow{"pow(DN, 2)", Quantity::Area}));

TEST(Expression, TellsWhatItUsesInTheOrderOfTheText)
{
    const Scope names = ValveNames();
    Reason reason;
    const auto expression = Expression::Compile("宽度 + max(DN, 宽度) - [Width (outer)]", names, "P", reason);
    ASSERT_TRUE(expression);
    EXPECT_THAT(expression->Uses(), ElementsAre(*names.Find("宽度"), *names.Find("DN"), *names.Find("Width (outer)")));
    EXPECT_FALSE(expression->IsConstant());
    EXPECT_THAT(*Expression::NamesIn("b+a*sin(b)+[c d]+yes", "P", reason), ElementsAre("b", "a", "c d"));
}

TEST(Expression, IsEvaluatedWithCopiesOfItsScope)
{
    Scope names = ValveNames();
    Reason reason;
    const auto expression = Expression::Compile("DN*2+n", names, "P", reason);
    ASSERT_TRUE(expression);
    const Scope before = names;
    names.SetNumber(*names.Find("DN"), 100);
    EXPECT_EQ(expression->Number(names, reason), 208);
    EXPECT_EQ(expression->Number(before, reason), 108);
    EXPECT_EQ(expression->Number(names, reason), 208);
}

TEST(Expression, RecoversFromAFault)
{
    Scope names = ValveNames();
    Reason reason;
    const auto expression = Expression::Compile("100/zero", names, "P", reason);
    ASSERT_TRUE(expression);
    EXPECT_FALSE(expression->Number(names, reason));
    names.SetNumber(*names.Find("zero"), 4);
    EXPECT_EQ(expression->Number(names, reason), 25);
}

TEST(Expression, TakesNoInfinityFromTheScope)
{
    Scope names = ValveNames();
    Reason reason;
    for (const double bad : {std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
        names.SetNumber(*names.Find("DN"), bad);
        for (const char* const formula : {"DN", "DN+1", "min(DN, 1)", "if(DN<5, 1, 2)"}) {
            reason = {};
            const auto expression = Expression::Compile(formula, names, "P", reason);
            ASSERT_TRUE(expression);
            EXPECT_FALSE(expression->Number(names, reason)) << formula;
            EXPECT_EQ(reason.code, "formula.overflow") << formula;
        }
    }
}

TEST(Expression, AcceptsTheLongestFormulas)
{
    const Scope names = ValveNames();
    Reason reason;
    const std::string sum = Repeated("n+", 2047) + "n";
    const auto expression = Expression::Compile(sum, names, "P", reason);
    ASSERT_TRUE(expression) << reason.english;
    EXPECT_EQ(expression->Number(names, reason), 2048 * 8) << reason.english;
    const std::string deep = std::string(99, '(') + "n" + std::string(99, ')');
    const auto nested = Expression::Compile(deep, names, "P", reason);
    ASSERT_TRUE(nested) << reason.english;
    EXPECT_EQ(nested->Number(names, reason), 8);
}

TEST(Expression, RefusesWhatTheEngineCannotTake)
{
    Scope names;
    names.Add("f", ValueKind::YesNo);
    Reason reason;
    EXPECT_FALSE(Expression::Compile("f" + Repeated("%!f", 1365), names, "P", reason));
    EXPECT_EQ(reason.code, "formula.too-long");
}

TEST(Expression, KeepsTextsOfAMillionCharacters)
{
    Scope names = ValveNames();
    const std::string text = Repeated("风", 1000000);
    names.SetText(*names.Find("型号"), text);
    Reason reason;
    const auto expression = Expression::Compile("保温 ? 型号 : \"x\"", names, "P", reason);
    ASSERT_TRUE(expression);
    EXPECT_EQ(expression->Text(names, reason), text);
}

} // namespace
} // namespace familyfiles
