#include "FamilyFiles/Formulas/Expression.h"

#include "FamilyFiles/Formulas/EngineProgramWriter.h"
#include "FamilyFiles/Formulas/FormulaCheck.h"
#include "FamilyFiles/Formulas/FormulaEngine.h"
#include "FamilyFiles/Formulas/FormulaParser.h"
#include "FamilyFiles/Formulas/FormulaReasons.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace familyfiles {

struct Expression::Compiled
{
    std::string subject;
    ValueKind kind = ValueKind::Number;
    Quantity quantity = Quantity::Plain;
    std::vector<Scope::Slot> uses;
    EngineProgram program;
    /// Made when it is first needed; null for a name or a constant alone.
    std::unique_ptr<FormulaEngine> engine;

    void TakeArguments(const Scope& values);
    std::optional<double> Evaluate(Reason& reason);
    std::optional<double> Finite(double number, Reason& reason) const;
};

namespace {

/// The nodes that are names, in their order in the text.
std::vector<const FormulaNode*> NameNodes(const FormulaTree& tree)
{
    std::vector<const FormulaNode*> names;
    for (const FormulaNode& node : tree.nodes) {
        if (node.type == NodeType::Name) {
            names.push_back(&node);
        }
    }
    std::sort(names.begin(), names.end(),
        [](const FormulaNode* left, const FormulaNode* right) { return left->position < right->position; });
    return names;
}

std::vector<std::string_view> NamesOf(const FormulaTree& tree)
{
    std::vector<std::string_view> names;
    std::unordered_set<std::string_view> known;
    for (const FormulaNode* const node : NameNodes(tree)) {
        if (known.insert(node->text).second) {
            names.push_back(node->text);
        }
    }
    return names;
}

std::vector<Scope::Slot> SlotsOf(const FormulaTree& tree, const Scope& scope)
{
    std::vector<Scope::Slot> slots;
    for (const std::string_view name : NamesOf(tree)) {
        slots.push_back(scope.Find(name).value_or(0));
    }
    return slots;
}

bool ParseInto(FormulaTree& tree, std::string_view text, const std::string& subject, Reason& reason)
{
    if (text.find_first_not_of(" \t\r\n") == std::string_view::npos) {
        reason = FormulaIsEmpty(subject);
        return false;
    }
    return FormulaParser(text, subject).Parse(tree, reason);
}

Reason ReasonOf(FormulaState state, const std::string& subject)
{
    switch (state) {
    case FormulaState::DivisionByZero:
        return DivisionByZeroInFormula(subject);
    case FormulaState::Overflow:
        return OverflowInFormula(subject);
    default:
        return NotANumberInFormula(subject);
    }
}

const std::string& TextOf(const EngineProgram::TextArgument& argument, const Scope& values)
{
    return argument.slot ? values.Text(*argument.slot) : argument.literal;
}

} // namespace

/// Numbers from their slots; each text is numbered by the first argument that has an equal one.
void Expression::Compiled::TakeArguments(const Scope& values)
{
    for (const EngineProgram::NumberArgument& number : program.numbers) {
        program.arguments[number.argument] = values.Number(number.slot);
    }
    if (program.texts.size() > 1) {
        std::unordered_map<std::string_view, std::size_t> firsts;
        for (std::size_t index = 0; index < program.texts.size(); ++index) {
            const auto first = firsts.emplace(TextOf(program.texts[index], values), index).first;
            program.arguments[program.texts[index].argument] = static_cast<double>(first->second);
        }
    }
}

std::optional<double> Expression::Compiled::Evaluate(Reason& reason)
{
    if (program.expression.empty()) {
        return Finite(program.arguments[program.result], reason);
    }
    if (!engine) {
        engine = FormulaEngine::Make(program, program.arguments, subject, reason);
    }
    if (!engine) {
        return std::nullopt;
    }
    const FormulaOutcome outcome = engine->Evaluate();
    if (outcome.state == FormulaState::HasValue) {
        return outcome.value;
    }
    reason = ReasonOf(outcome.state, subject);
    return std::nullopt;
}

std::optional<double> Expression::Compiled::Finite(double number, Reason& reason) const
{
    if (!std::isfinite(number)) {
        reason = OverflowInFormula(subject);
        return std::nullopt;
    }
    return number;
}

Expression::Expression(std::unique_ptr<Compiled> compiled) : m_compiled(std::move(compiled)) {}
Expression::~Expression() = default;
Expression::Expression(Expression&&) noexcept = default;
Expression& Expression::operator=(Expression&&) noexcept = default;

std::optional<Expression> Expression::Compile(
    std::string_view text, const Scope& names, const std::string& subject, Reason& reason)
{
    FormulaTree tree;
    if (!ParseInto(tree, text, subject, reason)) {
        return std::nullopt;
    }
    FormulaCheck check(tree, names, subject);
    if (!check.Run(reason)) {
        return std::nullopt;
    }
    auto compiled = std::make_unique<Compiled>();
    compiled->subject = subject;
    compiled->kind = check.Nodes()[tree.root].kind;
    compiled->quantity = check.Nodes()[tree.root].quantity;
    compiled->uses = SlotsOf(tree, names);
    compiled->program = EngineProgramWriter(tree, check.Nodes()).Write();
    if (compiled->program.expression.size() > FormulaEngine::MaximalLength) {
        reason = FormulaTooLong(subject);
        return std::nullopt;
    }
    return Expression(std::move(compiled));
}

std::optional<std::vector<std::string>> Expression::NamesIn(
    std::string_view text, const std::string& subject, Reason& reason)
{
    FormulaTree tree;
    if (!ParseInto(tree, text, subject, reason)) {
        return std::nullopt;
    }
    const std::vector<std::string_view> names = NamesOf(tree);
    return std::vector<std::string>(names.begin(), names.end());
}

ValueKind Expression::Kind() const
{
    return m_compiled->kind;
}

Quantity Expression::ResultQuantity() const
{
    return m_compiled->quantity;
}

const std::vector<Scope::Slot>& Expression::Uses() const
{
    return m_compiled->uses;
}

std::optional<double> Expression::Number(const Scope& values, Reason& reason) const
{
    m_compiled->TakeArguments(values);
    return m_compiled->Evaluate(reason);
}

std::optional<std::string> Expression::Text(const Scope& values, Reason& reason) const
{
    const EngineProgram& program = m_compiled->program;
    const std::optional<double> number = Number(values, reason);
    if (!number) {
        return std::nullopt;
    }
    const std::size_t index = program.texts.size() > 1 ? static_cast<std::size_t>(*number) : 0;
    return TextOf(program.texts[index], values);
}

} // namespace familyfiles
