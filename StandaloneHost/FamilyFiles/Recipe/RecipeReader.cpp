#include "FamilyFiles/Recipe/RecipeReader.h"

#include "FamilyFiles/Recipe/FormulaTable.h"
#include "FamilyFiles/Recipe/Materials.h"
#include "FamilyFiles/Recipe/MemberReader.h"
#include "FamilyFiles/Recipe/RecipeFailure.h"
#include "FamilyFiles/Recipe/RecipeLimits.h"
#include "FamilyFiles/Recipe/StepReader.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <utility>

namespace familyfiles {

namespace {

using nlohmann::json;

[[noreturn]] void RefuseSyntax(const std::string& english, const std::string& chinese)
{
    throw RecipeFailure("recipe.syntax", english, chinese);
}

json ParseJson(std::string_view text)
{
    if (text.size() > RecipeLimits::MostBytes) {
        throw RecipeFailure("recipe.too-large", "The recipe is too long", "几何配方过长");
    }
    json parsed = json::parse(text.begin(), text.end(), nullptr, false);
    if (!parsed.is_object()) {
        RefuseSyntax("The recipe is no JSON object", "几何配方不是 JSON 对象");
    }
    return parsed;
}

const json& ListOf(const json& recipe, const char* member, std::size_t most)
{
    static const json none = json::array();
    const auto found = recipe.find(member);
    if (found == recipe.end()) {
        return none;
    }
    if (!found->is_array()) {
        RefuseSyntax(std::string("\"") + member + "\" must be a list", std::string("“") + member + "”必须是列表");
    }
    if (found->size() > most) {
        throw RecipeFailure("recipe.too-many",
            std::string("\"") + member + "\" has more than " + std::to_string(most) + " entries",
            std::string("“") + member + "”超过 " + std::to_string(most) + " 项");
    }
    return *found;
}

/// Reads the members of a recipe in the order in which they depend on each other.
class ContentReader
{
public:
    explicit ContentReader(const Scope& parameters) : m_formulas(m_content), m_steps(m_content, m_formulas)
    {
        m_content.scope = parameters;
        m_content.parameterCount = parameters.Size();
    }

    RecipeContent Read(const json& recipe)
    {
        WantKnownMembers(recipe);
        ReadNames(ListOf(recipe, "let", RecipeLimits::MostNames));
        ReadRequirements(ListOf(recipe, "require", RecipeLimits::MostRequirements));
        ReadLook(recipe);
        m_steps.Read(ListOf(recipe, "steps", RecipeLimits::MostSteps), recipe.value("result", json()));
        ReadCentreLines(ListOf(recipe, "centreLines", RecipeLimits::MostCentreLines));
        return std::move(m_content);
    }

private:
    static void WantKnownMembers(const json& recipe)
    {
        static const std::vector<std::string> known{
            "color", "camera", "let", "require", "steps", "result", "solids", "centreLines", "note"};
        for (const auto& [name, value] : recipe.items()) {
            if (std::find(known.begin(), known.end(), name) == known.end()) {
                throw RecipeFailure(
                    "recipe.unknown-member", '"' + name + "\" is not known here", "此处不能使用“" + name + "”");
            }
        }
    }

    void ReadNames(const json& names)
    {
        for (const json& entry : names) {
            const bool isPair = entry.is_array() && entry.size() == 2 && entry[0].is_string();
            if (!isPair || !(entry[1].is_string() || entry[1].is_number())) {
                RefuseSyntax("\"let\" must be a list of names with formulas", "“let”必须是名称与公式的列表");
            }
            AddName(entry[0].get<std::string>(), entry[1].is_string() ? entry[1].get<std::string>() : entry[1].dump());
        }
    }

    void AddName(const std::string& name, const std::string& text)
    {
        const std::size_t formula = m_formulas.Add(text, name);
        const Expression& expression = m_content.formulas[formula];
        if (!m_content.scope.Add(name, expression.Kind(), expression.ResultQuantity())) {
            throw RecipeFailure(Reason{"recipe.duplicate-name", name, "The name \"" + name + "\" is taken already",
                "名称“" + name + "”已被使用"});
        }
        m_content.names.push_back({name, formula});
    }

    void ReadRequirements(const json& requirements)
    {
        for (const json& entry : requirements) {
            const bool isComplete = entry.is_object() && entry.size() == 3 && entry.contains("that") &&
                                    entry.contains("zh") && entry.contains("en") && entry["that"].is_string() &&
                                    entry["zh"].is_string() && entry["en"].is_string();
            if (!isComplete) {
                RefuseSyntax("\"require\" must be a list of objects with the texts \"that\", \"zh\" and \"en\"",
                    "“require”必须是带有“that”“zh”“en”文本的对象列表");
            }
            const std::size_t formula = m_formulas.AddCondition(entry["that"].get<std::string>(), "require");
            m_content.requirements.push_back(
                {formula, {entry["zh"].get<std::string>(), entry["en"].get<std::string>()}});
        }
    }

    void ReadLook(const json& recipe)
    {
        MemberReader members(m_formulas, [](const json&) { return std::size_t{0}; });
        m_content.material = "steel";
        if (recipe.contains("color")) {
            const MemberRule rule{"color", MemberShape::Word};
            m_content.material = CheckedMaterial(members.ReadMember(recipe["color"], rule, {}).text);
        }
        m_content.solidCount.number = 1;
        m_content.solidCount.numberKind = NumberKind::Count;
        if (recipe.contains("solids")) {
            const MemberRule rule{"solids", MemberShape::Number, NumberKind::Count};
            m_content.solidCount = members.ReadMember(recipe["solids"], rule, {});
        }
        m_content.camera.kind = RecipeValue::Kind::Word;
        m_content.camera.text = "iso";
        if (recipe.contains("camera")) {
            const bool isWord = recipe["camera"].is_string();
            const MemberRule rule{
                "camera", isWord ? MemberShape::Word : MemberShape::Numbers, NumberKind::Component, false, 3};
            m_content.camera = members.ReadMember(recipe["camera"], rule, {});
        }
    }

    void ReadCentreLines(const json& lines)
    {
        MemberReader members(m_formulas, [](const json&) { return std::size_t{0}; });
        for (const json& line : lines) {
            if (!line.is_object()) {
                RefuseSyntax("\"centreLines\" must be a list of objects", "“centreLines”必须是对象列表");
            }
            m_content.centreLines.push_back(members.ReadObject(line, CentreLineRule(), "centreLines"));
        }
    }

    RecipeContent m_content;
    FormulaTable m_formulas;
    StepReader m_steps;
};

} // namespace

std::optional<RecipeContent> ReadRecipe(std::string_view text, const Scope& parameters, Reason& reason)
{
    try {
        return ContentReader(parameters).Read(ParseJson(text));
    } catch (const RecipeFailure& failure) {
        reason = failure.Why();
        return std::nullopt;
    }
}

} // namespace familyfiles
