#include "FamilyFiles/Manifest/ManifestReasons.h"

#include "FamilyFiles/Manifest/FamilyManifest.h"
#include "FamilyFiles/ShortText.h"

#include <algorithm>

namespace familyfiles {

namespace {

std::string Quoted(std::string_view text)
{
    return '"' + ShortText(text) + '"';
}

std::string QuotedChinese(std::string_view text)
{
    return "“" + ShortText(text) + "”";
}

Reason InManifest(const char* code, std::string subject, const std::string& english, const std::string& chinese)
{
    return {
        std::string("manifest.") + code, std::move(subject), "The manifest " + english + '.', "清单" + chinese + "。"};
}

struct KeywordText
{
    std::string_view keyword;
    std::string_view english;
    std::string_view chinese;
};

constexpr KeywordText KeywordTexts[] = {
    {"type", "is of the wrong kind", "类型不对"},
    {"enum", "is none of the possible values", "不在可选值之中"},
    {"required", "lacks a member that has to be there", "缺少必需的成员"},
    {"minimum", "is too small", "过小"},
    {"maximum", "is too large", "过大"},
    {"minLength", "is empty", "为空"},
    {"maxLength", "is too long", "过长"},
    {"minItems", "has too few entries", "条目过少"},
    {"maxItems", "has too many entries", "条目过多"},
    {"pattern", "has not the right form", "格式不对"},
};

KeywordText TextOf(const std::string& keyword)
{
    const auto* const found = std::find_if(std::begin(KeywordTexts), std::end(KeywordTexts),
        [&keyword](const KeywordText& text) { return text.keyword == keyword; });
    return found != std::end(KeywordTexts) ? *found : KeywordText{keyword, "does not fit the format", "不符合格式"};
}

std::string WithUnit(const std::string& value, const ParameterDefinition& parameter)
{
    return parameter.unit.empty() || parameter.unit == "-" ? value : value + ' ' + parameter.unit;
}

std::string RangeText(const ParameterDefinition& parameter)
{
    const std::string least = parameter.minimum ? WithUnit(ValueText(*parameter.minimum), parameter) : std::string();
    const std::string most = parameter.maximum ? WithUnit(ValueText(*parameter.maximum), parameter) : std::string();
    if (least.empty()) {
        return "≤ " + most;
    }
    return most.empty() ? "≥ " + least : least + " … " + most;
}

std::string AllowedText(const ParameterDefinition& parameter)
{
    constexpr std::size_t Shown = 12;
    std::string text;
    for (std::size_t index = 0; index < parameter.allowed.size() && index < Shown; ++index) {
        text += (index == 0 ? "" : ", ") + ValueText(parameter.allowed[index]);
    }
    if (parameter.allowed.size() > Shown) {
        return text + ", …";
    }
    return WithUnit(text, parameter);
}

Reason ImpossibleValue(const char* code, const ParameterDefinition& parameter, const Value& value, std::string possible)
{
    const std::string wanted = WithUnit(ValueText(value), parameter);
    return {std::string("value.") + code, parameter.name,
        Quoted(parameter.name) + " cannot be " + wanted + "; possible: " + possible + '.',
        QuotedChinese(parameter.name) + "不能为 " + wanted + "；可选：" + possible + "。", wanted, possible};
}

} // namespace

Reason ManifestTooLarge(std::size_t limit)
{
    const std::string size = std::to_string(limit >> 20U) + " MiB";
    return InManifest("too-large", {}, "is larger than " + size, "超过 " + size);
}

Reason ManifestTooDeep(int limit)
{
    const std::string levels = std::to_string(limit);
    return InManifest("too-deep", {}, "is nested deeper than " + levels + " levels", "嵌套超过 " + levels + " 层");
}

Reason ManifestIsNoJson(std::string_view json, std::size_t offset)
{
    const std::string_view before = json.substr(0, offset);
    const std::string line = std::to_string(std::count(before.begin(), before.end(), '\n') + 1);
    return InManifest(
        "not-json", {}, "is no JSON: reading stops in line " + line, "不是 JSON：在第 " + line + " 行中断");
}

Reason ManifestIsNoFamily()
{
    return InManifest("not-a-family", {}, "is not that of a family file", "不是族文件的清单");
}

Reason ManifestIsNewer(double version)
{
    const std::string newer = ValueText(version);
    const std::string known = std::to_string(FamilyManifest::CurrentVersion);
    return InManifest("newer-version", newer,
        "is of version " + newer + " of the format; this program reads up to version " + known +
            ". A newer program is needed",
        "的格式版本为 " + newer + "，本程序最高支持版本 " + known + "，请使用更新的程序");
}

Reason ManifestBreaksSchema(const std::string& name, const std::string& path, const std::string& keyword)
{
    const KeywordText text = TextOf(keyword);
    const std::string place = path.empty() ? "/" : ShortText(path, 200);
    return InManifest("schema", name.empty() ? place : name,
        "is not as it has to be: " + place + (name.empty() ? "" : " (" + Quoted(name) + ')') + ' ' +
            std::string(text.english),
        "不合规范：" + place + (name.empty() ? "" : "（" + QuotedChinese(name) + "）") + std::string(text.chinese));
}

Reason ManifestRepeatsMember(const std::string& name)
{
    return InManifest("duplicate-member", name, "has the member " + Quoted(name) + " twice in one object",
        "的同一对象中成员" + QuotedChinese(name) + "重复");
}

Reason DuplicateParameterId(const std::string& parameter, const std::string& other)
{
    return InManifest("duplicate-id", parameter,
        "gives " + Quoted(other) + " and " + Quoted(parameter) + " the same id",
        "中" + QuotedChinese(other) + "与" + QuotedChinese(parameter) + "的 id 相同");
}

Reason DuplicateName(std::string_view what, const std::string& name)
{
    const std::string chinese = what == "parameter" ? "参数" : what == "type" ? "族类型" : "连接件";
    return InManifest("duplicate-name", name, "has two " + std::string(what) + "s " + Quoted(name),
        "中有两个名为" + QuotedChinese(name) + "的" + chinese);
}

Reason TooManyValues(std::size_t limit)
{
    const std::string most = std::to_string(limit);
    return InManifest(
        "too-many-values", {}, "has more than " + most + " values in its types", "各族类型的取值总数超过 " + most);
}

Reason BadName(const std::string& name)
{
    return InManifest("bad-name", name,
        "has the name " + Quoted(name) + ", which holds a control character or a bracket",
        "中的名称" + QuotedChinese(name) + "含有控制字符或方括号");
}

Reason UnknownParameterInType(const std::string& type, const std::string& parameter)
{
    return InManifest("unknown-name", parameter,
        "gives in type " + Quoted(type) + " a value to " + Quoted(parameter) + ", which is no parameter",
        "在族类型" + QuotedChinese(type) + "中给不存在的参数" + QuotedChinese(parameter) + "赋值");
}

Reason UnknownParameterUnit(const std::string& parameter, const std::string& unit)
{
    return InManifest("unknown-unit", parameter,
        "gives " + Quoted(parameter) + " the unit " + Quoted(unit) + ", which is not known",
        "中" + QuotedChinese(parameter) + "的单位" + QuotedChinese(unit) + "未知");
}

Reason BadBounds(const std::string& parameter)
{
    return InManifest("bad-bounds", parameter, "gives " + Quoted(parameter) + " bounds that no value meets",
        "中" + QuotedChinese(parameter) + "的取值范围无效");
}

Reason BadValueInManifest(const std::string& where, const Reason& why)
{
    const std::string english = where.empty() ? "the definition" : "type " + Quoted(where);
    const std::string chinese = where.empty() ? "定义" : "族类型" + QuotedChinese(where);
    Reason reason = InManifest("bad-value", why.subject, "gives an impossible value in " + english + ": " + why.english,
        "在" + chinese + "中给出无效值：" + why.chinese);
    reason.english.pop_back();
    reason.chinese = "清单在" + chinese + "中给出无效值：" + why.chinese;
    reason.wanted = why.wanted;
    reason.possible = why.possible;
    return reason;
}

Reason ValueOfWrongType(const std::string& parameter, StorageType wanted)
{
    struct Names
    {
        const char* english;
        const char* chinese;
    };
    const Names names = wanted == StorageType::YesNo           ? Names{"a yes/no value", "是/否值"}
                        : wanted == StorageType::Integer       ? Names{"a whole number of 32 bits", "32 位整数"}
                        : wanted == StorageType::FloatingPoint ? Names{"a number", "数值"}
                                                               : Names{"a text", "文本"};
    return {"value.wrong-type", parameter, Quoted(parameter) + " has to be " + names.english + '.',
        QuotedChinese(parameter) + "必须是" + names.chinese + "。"};
}

Reason ValueOutOfRange(const ParameterDefinition& parameter, const Value& value)
{
    return ImpossibleValue("out-of-range", parameter, value, RangeText(parameter));
}

Reason ValueNotAllowed(const ParameterDefinition& parameter, const Value& value)
{
    return ImpossibleValue("not-allowed", parameter, value, AllowedText(parameter));
}

} // namespace familyfiles
