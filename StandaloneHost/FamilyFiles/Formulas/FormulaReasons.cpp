#include "FamilyFiles/Formulas/FormulaReasons.h"

#include "FamilyFiles/Formulas/Expression.h"
#include "FamilyFiles/Formulas/Unit.h"
#include "FamilyFiles/Manifest/Value.h"
#include "FamilyFiles/ShortText.h"
#include "FamilyFiles/Utf8.h"

namespace familyfiles {

namespace {

std::string_view EnglishName(ValueKind kind)
{
    switch (kind) {
    case ValueKind::Number:
        return "a number";
    case ValueKind::YesNo:
        return "a yes/no value";
    case ValueKind::Text:
        break;
    }
    return "a text";
}

std::string_view ChineseName(ValueKind kind)
{
    switch (kind) {
    case ValueKind::Number:
        return "数值";
    case ValueKind::YesNo:
        return "是/否值";
    case ValueKind::Text:
        break;
    }
    return "文本";
}

std::string Quoted(std::string_view text)
{
    return '"' + ShortText(text) + '"';
}

std::string QuotedChinese(std::string_view text)
{
    return "“" + ShortText(text) + "”";
}

/// Begins with whose formula it is: The formula of "W" ...
Reason InFormula(const char* code, const std::string& subject, const std::string& english, const std::string& chinese)
{
    return {std::string("formula.") + code, subject, "The formula of " + Quoted(subject) + ' ' + english + '.',
        QuotedChinese(subject) + "的公式" + chinese + "。"};
}

} // namespace

Reason FormulaIsEmpty(const std::string& subject)
{
    return InFormula("empty", subject, "is empty", "为空");
}

Reason FormulaTooLong(const std::string& subject)
{
    const std::string limit = std::to_string(Expression::MaximalLength);
    return InFormula("too-long", subject, "is longer than " + limit + " bytes", "超过 " + limit + " 字节");
}

Reason FormulaTooDeep(const std::string& subject)
{
    const std::string limit = std::to_string(Expression::MaximalNesting);
    return InFormula("too-deep", subject, "is nested deeper than " + limit + " levels", "嵌套超过 " + limit + " 层");
}

Reason UnexpectedInFormula(
    const std::string& subject, std::string_view formula, std::size_t position, std::string_view found)
{
    if (found.empty()) {
        return InFormula("syntax", subject, "ends too early", "不完整");
    }
    const std::string at = std::to_string(CharactersBefore(formula, position) + 1);
    if (found == "=" || found == "＝") {
        return InFormula("syntax", subject, "has a single \"=\" at character " + at + "; values are compared by \"==\"",
            "在第 " + at + " 个字符处有单个“=”，比较请用“==”");
    }
    return InFormula("syntax", subject, "does not go on with " + Quoted(found) + " at character " + at,
        "在第 " + at + " 个字符处有意外的" + QuotedChinese(found));
}

Reason UnknownNameInFormula(const std::string& subject, std::string_view name)
{
    return InFormula("unknown-name", subject, "uses " + Quoted(name) + ", which is no parameter",
        "使用了不存在的参数" + QuotedChinese(name));
}

Reason UnknownFunctionInFormula(const std::string& subject, std::string_view name)
{
    return InFormula("unknown-function", subject, "calls " + Quoted(name) + ", which is no function",
        "调用了不存在的函数" + QuotedChinese(name));
}

Reason UnknownUnitInFormula(const std::string& subject, std::string_view symbol)
{
    return InFormula("unknown-unit", subject, "has " + Quoted(symbol) + " behind a value, which is no unit",
        "在数值后使用了未知单位" + QuotedChinese(symbol));
}

Reason WrongArgumentCount(const std::string& subject, std::string_view function)
{
    return InFormula("arguments", subject, "gives " + Quoted(function) + " the wrong number of arguments",
        "中函数" + QuotedChinese(function) + "的参数个数不对");
}

Reason WrongKindInFormula(const std::string& subject, std::string_view where, ValueKind wanted, ValueKind given)
{
    return InFormula("wrong-kind", subject,
        "gives " + Quoted(where) + ' ' + std::string(EnglishName(given)) + " where it needs " +
            std::string(EnglishName(wanted)),
        "中" + QuotedChinese(where) + "需要" + std::string(ChineseName(wanted)) + "，得到的是" +
            std::string(ChineseName(given)));
}

Reason KindsMixedInFormula(const std::string& subject, std::string_view where, ValueKind left, ValueKind right)
{
    return InFormula("wrong-kind", subject,
        "mixes " + std::string(EnglishName(left)) + " and " + std::string(EnglishName(right)) + " at " + Quoted(where),
        "在" + QuotedChinese(where) + "处混用了" + std::string(ChineseName(left)) + "和" +
            std::string(ChineseName(right)));
}

Reason QuantitiesMixedInFormula(const std::string& subject, std::string_view where, Quantity left, Quantity right)
{
    return InFormula("wrong-unit", subject,
        "mixes units of " + std::string(EnglishName(left)) + " and " + std::string(EnglishName(right)) + " at " +
            Quoted(where),
        "在" + QuotedChinese(where) + "处混用了" + std::string(ChineseName(left)) + "和" +
            std::string(ChineseName(right)) + "的单位");
}

Reason WrongQuantityInFormula(const std::string& subject, std::string_view where, Quantity wanted, Quantity given)
{
    return InFormula("wrong-unit", subject,
        "gives " + Quoted(where) + " a value of " + std::string(EnglishName(given)) + " where it needs one of " +
            std::string(EnglishName(wanted)),
        "中" + QuotedChinese(where) + "需要" + std::string(ChineseName(wanted)) + "，得到的是" +
            std::string(ChineseName(given)));
}

Reason UnitOnMeasuredValue(const std::string& subject, std::string_view symbol)
{
    return InFormula("wrong-unit", subject, "puts the unit " + Quoted(symbol) + " on a value that has one already",
        "给已有单位的值又加上了单位" + QuotedChinese(symbol));
}

Reason ResultOfWrongKind(const std::string& subject, ValueKind wanted, ValueKind given)
{
    return InFormula("wrong-kind", subject,
        "gives " + std::string(EnglishName(given)) + ", but " + std::string(EnglishName(wanted)) + " is needed",
        "得到的是" + std::string(ChineseName(given)) + "，而需要的是" + std::string(ChineseName(wanted)));
}

Reason ResultOfWrongQuantity(const std::string& subject, std::string_view unit, Quantity given)
{
    return InFormula("wrong-unit", subject,
        "gives a value of " + std::string(EnglishName(given)) + ", but its unit is " + Quoted(unit),
        "得到的是" + std::string(ChineseName(given)) + "，而其单位是" + QuotedChinese(unit));
}

Reason DuplicateVariable(const std::string& subject)
{
    return {"formula.duplicate-name", subject, "There are two parameters " + Quoted(subject) + '.',
        "有两个名为" + QuotedChinese(subject) + "的参数。"};
}

Reason UnknownUnitOfVariable(const std::string& subject, std::string_view symbol)
{
    return {"formula.unknown-unit", subject, "The unit " + Quoted(symbol) + " of " + Quoted(subject) + " is not known.",
        QuotedChinese(subject) + "的单位" + QuotedChinese(symbol) + "未知。"};
}

Reason FormulaCycle(const std::vector<std::string>& names)
{
    constexpr std::size_t Shown = 8;
    std::string english;
    std::string chinese;
    for (std::size_t index = 0; index < names.size() && index < Shown; ++index) {
        english += Quoted(names[index]) + " needs ";
        chinese += QuotedChinese(names[index]) + "依赖";
    }
    if (names.size() > Shown) {
        english += "… needs ";
        chinese += "…依赖";
    }
    return {"formula.cycle", names.front(),
        "Formulas need each other in a ring: " + english + Quoted(names.front()) + '.',
        "公式循环引用：" + chinese + QuotedChinese(names.front()) + "。"};
}

Reason DivisionByZeroInFormula(const std::string& subject)
{
    return InFormula("division-by-zero", subject, "divides by zero", "除以零");
}

Reason OverflowInFormula(const std::string& subject)
{
    return InFormula("overflow", subject, "gives a number that is too large", "的结果过大");
}

Reason NotANumberInFormula(const std::string& subject)
{
    return InFormula("not-a-number", subject, "has no value: a function is given what it is not defined for",
        "没有值：函数的参数超出其定义域");
}

Reason IntegerOutOfRange(const std::string& subject, double value)
{
    return InFormula("out-of-range", subject, "gives " + ValueText(value) + ", which is no 32-bit integer",
        "得到 " + ValueText(value) + "，超出 32 位整数范围");
}

Reason ValueNotFinite(const std::string& subject)
{
    return {"value.not-finite", subject, "The value of " + Quoted(subject) + " is not a finite number.",
        QuotedChinese(subject) + "的值不是有限数。"};
}

} // namespace familyfiles
