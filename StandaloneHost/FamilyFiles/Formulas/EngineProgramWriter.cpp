#include "FamilyFiles/Formulas/EngineProgramWriter.h"

#include <algorithm>
#include <utility>

namespace familyfiles {

EngineProgram EngineProgramWriter::Write()
{
    if (!IsArgument(m_tree.root, m_program.result)) {
        Put(m_tree.root);
    }
    return std::move(m_program);
}

std::size_t EngineProgramWriter::Constant(double value)
{
    const auto [found, isNew] = m_constants.emplace(value, m_program.arguments.size());
    if (isNew) {
        m_program.arguments.push_back(value);
    }
    return found->second;
}

std::size_t EngineProgramWriter::NameArgument(Node node)
{
    const CheckedNode& name = m_nodes[node];
    const auto [found, isNew] = m_names.emplace(name.slot, m_program.arguments.size());
    if (isNew) {
        m_program.arguments.push_back(0.0);
        if (name.kind == ValueKind::Text) {
            m_program.texts.push_back({found->second, name.slot, {}});
        } else {
            m_program.numbers.push_back({found->second, name.slot});
        }
    }
    return found->second;
}

std::size_t EngineProgramWriter::TextArgument(std::string_view literal)
{
    const auto [found, isNew] = m_texts.emplace(literal, m_program.arguments.size());
    if (isNew) {
        m_program.arguments.push_back(0.0);
        m_program.texts.push_back({found->second, std::nullopt, std::string(literal)});
    }
    return found->second;
}

/// Whether the node is a name or a constant, signs and units worked in.
bool EngineProgramWriter::IsArgument(Node node, std::size_t& argument)
{
    const FormulaNode& at = At(node);
    switch (at.type) {
    case NodeType::Number:
    case NodeType::YesNo:
        argument = Constant(at.value);
        return true;
    case NodeType::Text:
        argument = TextArgument(at.text);
        return true;
    case NodeType::Name:
        argument = NameArgument(node);
        return true;
    case NodeType::Negate:
        if (At(at.child).type == NodeType::Number && At(at.child).value != 0.0) {
            argument = Constant(-At(at.child).value);
            return true;
        }
        return false;
    case NodeType::Measure:
        if (At(at.child).type == NodeType::Number) {
            argument = Constant(m_nodes[node].unit->ToBase(At(at.child).value));
            return true;
        }
        return false;
    default:
        return false;
    }
}

void EngineProgramWriter::PutArgument(std::size_t argument)
{
    m_program.expression += EngineProgram::ArgumentName(argument);
}

void EngineProgramWriter::Call(std::string_view function)
{
    std::vector<std::string_view>& known = m_program.functions;
    if (std::find(known.begin(), known.end(), function) == known.end()) {
        known.push_back(function);
    }
    m_program.expression += function;
}

void EngineProgramWriter::PutCall(std::string_view function, Node first)
{
    Call(function);
    char separator = '(';
    for (Node argument = first; argument != FormulaNode::None; argument = At(argument).next) {
        m_program.expression += separator;
        Put(argument);
        separator = ',';
    }
    m_program.expression += ')';
}

void EngineProgramWriter::PutComparison(std::string_view function, Node left, Node right)
{
    Call(function);
    m_program.expression += '(';
    Put(left);
    m_program.expression += ',';
    Put(right);
    m_program.expression += ')';
}

void EngineProgramWriter::PutInfix(Node node, char sign)
{
    m_program.expression += '(';
    Put(At(node).child);
    m_program.expression += sign;
    Put(At(At(node).child).next);
    m_program.expression += ')';
}

void EngineProgramWriter::PutChoice(Node condition, Node met, Node unmet)
{
    m_program.expression += '(';
    Put(condition);
    m_program.expression += '?';
    Put(met);
    m_program.expression += ':';
    Put(unmet);
    m_program.expression += ')';
}

void EngineProgramWriter::PutNot(Node node)
{
    m_program.expression += '(';
    Put(At(node).child);
    m_program.expression += '?';
    PutArgument(Constant(0.0));
    m_program.expression += ':';
    PutArgument(Constant(1.0));
    m_program.expression += ')';
}

/// As a choice, so that the right side is worked out only where it counts: n != 0 && 100/n > 5.
void EngineProgramWriter::PutLogic(Node node)
{
    const bool isAnd = At(node).type == NodeType::And;
    const Node right = At(At(node).child).next;
    m_program.expression += '(';
    Put(At(node).child);
    m_program.expression += '?';
    isAnd ? Put(right) : PutArgument(Constant(1.0));
    m_program.expression += ':';
    isAnd ? PutArgument(Constant(0.0)) : Put(right);
    m_program.expression += ')';
}

void EngineProgramWriter::PutFormulaCall(Node node)
{
    const Node first = At(node).child;
    switch (m_nodes[node].function->rule) {
    case FunctionRule::Value:
        Put(first);
        return;
    case FunctionRule::Not:
        PutNot(node);
        return;
    case FunctionRule::If:
        PutChoice(first, At(first).next, At(At(first).next).next);
        return;
    default:
        PutCall(m_nodes[node].function->name, first);
    }
}

void EngineProgramWriter::Put(Node node)
{
    std::size_t argument = 0;
    if (IsArgument(node, argument)) {
        PutArgument(argument);
        return;
    }
    const Node first = At(node).child;
    const Node second = At(first).next;
    switch (At(node).type) {
    case NodeType::Negate:
    case NodeType::Measure:
        m_program.expression += '(';
        PutArgument(Constant(At(node).type == NodeType::Negate ? -1.0 : m_nodes[node].unit->factor));
        m_program.expression += '*';
        Put(first);
        m_program.expression += ')';
        return;
    case NodeType::Add:
        return PutInfix(node, '+');
    case NodeType::Subtract:
        return PutInfix(node, '-');
    case NodeType::Multiply:
        return PutInfix(node, '*');
    case NodeType::Divide:
        return PutCall("div", first);
    case NodeType::Remainder:
        return PutCall("mod", first);
    case NodeType::Power:
        return PutCall("pow", first);
    case NodeType::Less:
        return PutComparison("lt", first, second);
    case NodeType::LessOrEqual:
        return PutComparison("le", first, second);
    case NodeType::Greater:
        return PutComparison("lt", second, first);
    case NodeType::GreaterOrEqual:
        return PutComparison("le", second, first);
    case NodeType::Equal:
        return PutCall("eq", first);
    case NodeType::NotEqual:
        return PutCall("ne", first);
    case NodeType::And:
    case NodeType::Or:
        return PutLogic(node);
    case NodeType::Not:
        return PutNot(node);
    case NodeType::Choose:
        return PutChoice(first, second, At(second).next);
    default:
        return PutFormulaCall(node);
    }
}

} // namespace familyfiles
