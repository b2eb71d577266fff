#include "FamilyFiles/Formulas/FormulaCheck.h"

#include "FamilyFiles/Formulas/FormulaReasons.h"
#include "FamilyFiles/Formulas/QuantityRules.h"

#include <optional>
#include <utility>

namespace familyfiles {

namespace {

/// How an operator is called in a message.
std::string_view SignOf(NodeType type)
{
    switch (type) {
    case NodeType::Negate:
    case NodeType::Subtract:
        return "-";
    case NodeType::Not:
        return "!";
    case NodeType::Add:
        return "+";
    case NodeType::Multiply:
        return "*";
    case NodeType::Divide:
        return "/";
    case NodeType::Remainder:
        return "%";
    case NodeType::Power:
        return "^";
    case NodeType::Less:
        return "<";
    case NodeType::LessOrEqual:
        return "<=";
    case NodeType::Greater:
        return ">";
    case NodeType::GreaterOrEqual:
        return ">=";
    case NodeType::Equal:
        return "==";
    case NodeType::NotEqual:
        return "!=";
    case NodeType::And:
        return "&&";
    case NodeType::Or:
        return "||";
    default:
        return "?:";
    }
}

} // namespace

FormulaCheck::FormulaCheck(const FormulaTree& tree, const Scope& names, const std::string& subject)
    : m_tree(tree), m_names(names), m_subject(subject), m_nodes(tree.nodes.size())
{
}

bool FormulaCheck::Run(Reason& reason)
{
    // The parser adds a node behind its children: in this order each finds them checked.
    for (Node node = 0; node < m_tree.nodes.size(); ++node) {
        if (!Check(node)) {
            reason = std::move(m_reason);
            return false;
        }
    }
    return true;
}

bool FormulaCheck::Refuse(Reason reason)
{
    m_reason = std::move(reason);
    return false;
}

bool FormulaCheck::Check(Node node)
{
    CheckedNode& checked = m_nodes[node];
    switch (At(node).type) {
    case NodeType::Number:
        return true;
    case NodeType::YesNo:
        checked.kind = ValueKind::YesNo;
        return true;
    case NodeType::Text:
        checked.kind = ValueKind::Text;
        return true;
    case NodeType::Name:
        return CheckName(node);
    case NodeType::Measure:
        return CheckMeasure(node);
    case NodeType::Call:
        return CheckCall(node);
    case NodeType::And:
    case NodeType::Or:
    case NodeType::Not:
        return CheckLogic(node, SignOf(At(node).type));
    case NodeType::Choose:
        return CheckChoice(node, "?:");
    case NodeType::Less:
    case NodeType::LessOrEqual:
    case NodeType::Greater:
    case NodeType::GreaterOrEqual:
    case NodeType::Equal:
    case NodeType::NotEqual:
        return CheckComparison(node);
    default:
        return CheckArithmetic(node);
    }
}

bool FormulaCheck::CheckName(Node node)
{
    const std::optional<Scope::Slot> slot = m_names.Find(At(node).text);
    if (!slot) {
        return Refuse(UnknownNameInFormula(m_subject, At(node).text));
    }
    m_nodes[node].slot = *slot;
    m_nodes[node].kind = m_names.Kind(*slot);
    m_nodes[node].quantity = m_names.QuantityOf(*slot);
    return true;
}

bool FormulaCheck::CheckMeasure(Node node)
{
    const CheckedNode& measured = m_nodes[At(node).child];
    if (measured.kind != ValueKind::Number) {
        return Refuse(WrongKindInFormula(m_subject, At(node).text, ValueKind::Number, measured.kind));
    }
    if (measured.quantity != Quantity::Plain) {
        return Refuse(UnitOnMeasuredValue(m_subject, At(node).text));
    }
    m_nodes[node].unit = Unit::Find(At(node).text);
    m_nodes[node].quantity = m_nodes[node].unit->quantity;
    return true;
}

/// Yes and no count as 1 and 0 there.
bool FormulaCheck::CheckNumbers(Node node, std::string_view where)
{
    for (Node child = At(node).child; child != FormulaNode::None; child = At(child).next) {
        if (m_nodes[child].kind == ValueKind::Text) {
            return Refuse(WrongKindInFormula(m_subject, where, ValueKind::Number, ValueKind::Text));
        }
    }
    return true;
}

bool FormulaCheck::JoinAll(Node node, std::string_view where)
{
    Quantity joined = Quantity::Plain;
    for (Node child = At(node).child; child != FormulaNode::None; child = At(child).next) {
        const std::optional<Quantity> both = Joined(joined, m_nodes[child].quantity);
        if (!both) {
            return Refuse(QuantitiesMixedInFormula(m_subject, where, joined, m_nodes[child].quantity));
        }
        joined = *both;
    }
    m_nodes[node].quantity = joined;
    return true;
}

bool FormulaCheck::CheckArithmetic(Node node)
{
    const std::string_view sign = SignOf(At(node).type);
    if (!CheckNumbers(node, sign)) {
        return false;
    }
    const Quantity left = m_nodes[At(node).child].quantity;
    switch (At(node).type) {
    case NodeType::Multiply:
        m_nodes[node].quantity = ProductOf(left, m_nodes[Second(node)].quantity);
        return true;
    case NodeType::Divide:
        m_nodes[node].quantity = QuotientOf(left, m_nodes[Second(node)].quantity);
        return true;
    case NodeType::Power:
        return CheckPower(node);
    default:
        return JoinAll(node, sign);
    }
}

bool FormulaCheck::WantQuantity(Node node, std::string_view where, Quantity wanted)
{
    const Quantity given = m_nodes[node].quantity;
    return given == Quantity::Plain || given == wanted ||
           Refuse(WrongQuantityInFormula(m_subject, where, wanted, given));
}

bool FormulaCheck::CheckPower(Node node)
{
    const Node exponent = Second(node);
    if (!WantQuantity(exponent, "^", Quantity::Plain)) {
        return false;
    }
    if (At(exponent).type == NodeType::Number) {
        m_nodes[node].quantity = PowerOf(m_nodes[At(node).child].quantity, At(exponent).value);
    }
    return true;
}

bool FormulaCheck::CheckComparison(Node node)
{
    m_nodes[node].kind = ValueKind::YesNo;
    const std::string_view sign = SignOf(At(node).type);
    const ValueKind left = m_nodes[At(node).child].kind;
    const ValueKind right = m_nodes[Second(node)].kind;
    const bool isEquality = At(node).type == NodeType::Equal || At(node).type == NodeType::NotEqual;
    if ((left == ValueKind::Text) != (right == ValueKind::Text)) {
        return Refuse(KindsMixedInFormula(m_subject, sign, left, right));
    }
    if (!isEquality && (left != ValueKind::Number || right != ValueKind::Number)) {
        // So that a < b < c is refused too.
        return Refuse(WrongKindInFormula(m_subject, sign, ValueKind::Number, left != ValueKind::Number ? left : right));
    }
    const bool isFitting = JoinAll(node, sign);
    m_nodes[node].quantity = Quantity::Plain;
    return isFitting;
}

bool FormulaCheck::CheckLogic(Node node, std::string_view where)
{
    m_nodes[node].kind = ValueKind::YesNo;
    for (Node child = At(node).child; child != FormulaNode::None; child = At(child).next) {
        if (m_nodes[child].kind != ValueKind::YesNo) {
            return Refuse(WrongKindInFormula(m_subject, where, ValueKind::YesNo, m_nodes[child].kind));
        }
    }
    return true;
}

bool FormulaCheck::CheckChoice(Node node, std::string_view where)
{
    const CheckedNode& condition = m_nodes[At(node).child];
    const CheckedNode& met = m_nodes[Second(node)];
    const CheckedNode& unmet = m_nodes[At(Second(node)).next];
    if (condition.kind != ValueKind::YesNo) {
        return Refuse(WrongKindInFormula(m_subject, where, ValueKind::YesNo, condition.kind));
    }
    if ((met.kind == ValueKind::Text) != (unmet.kind == ValueKind::Text)) {
        return Refuse(KindsMixedInFormula(m_subject, where, met.kind, unmet.kind));
    }
    const std::optional<Quantity> joined = Joined(met.quantity, unmet.quantity);
    if (!joined) {
        return Refuse(QuantitiesMixedInFormula(m_subject, where, met.quantity, unmet.quantity));
    }
    m_nodes[node].quantity = *joined;
    m_nodes[node].kind = met.kind == unmet.kind ? met.kind : ValueKind::Number;
    return true;
}

bool FormulaCheck::CheckCall(Node node)
{
    const std::string_view name = At(node).text;
    const FormulaFunction* const function = FormulaFunction::Find(name);
    if (function == nullptr) {
        return Refuse(UnknownFunctionInFormula(m_subject, name));
    }
    int count = 0;
    for (Node child = At(node).child; child != FormulaNode::None; child = At(child).next) {
        ++count;
    }
    if (count < function->leastArguments || count > function->mostArguments) {
        return Refuse(WrongArgumentCount(m_subject, name));
    }
    m_nodes[node].function = function;
    if (function->rule == FunctionRule::If) {
        return CheckChoice(node, name);
    }
    if (function->rule == FunctionRule::Not) {
        return CheckLogic(node, name);
    }
    return CheckNumbers(node, name) && CheckRule(node);
}

bool FormulaCheck::CheckRule(Node node)
{
    const std::string_view name = At(node).text;
    const Node argument = At(node).child;
    Quantity& quantity = m_nodes[node].quantity;
    switch (m_nodes[node].function->rule) {
    case FunctionRule::Keeps:
    case FunctionRule::KeepsJoined:
        return JoinAll(node, name);
    case FunctionRule::OfPlain:
        return WantQuantity(argument, name, Quantity::Plain);
    case FunctionRule::OfAngle:
        return WantQuantity(argument, name, Quantity::Angle);
    case FunctionRule::ToAngle: {
        const bool isFitting = WantQuantity(argument, name, Quantity::Plain);
        quantity = Quantity::Angle;
        return isFitting;
    }
    case FunctionRule::JoinedToAngle: {
        const bool isFitting = JoinAll(node, name);
        quantity = Quantity::Angle;
        return isFitting;
    }
    case FunctionRule::SquareRoot:
        quantity = PowerOf(m_nodes[argument].quantity, 0.5);
        return true;
    case FunctionRule::CubeRoot:
        quantity = m_nodes[argument].quantity == Quantity::Volume ? Quantity::Length : Quantity::Plain;
        return true;
    case FunctionRule::Power:
        return CheckPower(node);
    default:
        return true;
    }
}

} // namespace familyfiles
