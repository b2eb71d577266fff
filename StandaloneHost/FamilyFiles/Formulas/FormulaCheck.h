#pragma once

#include "FamilyFiles/Formulas/FormulaFunction.h"
#include "FamilyFiles/Formulas/FormulaTree.h"
#include "FamilyFiles/Formulas/Quantity.h"
#include "FamilyFiles/Formulas/Scope.h"
#include "FamilyFiles/Formulas/Unit.h"
#include "FamilyFiles/Formulas/ValueKind.h"
#include "FamilyFiles/Reason.h"

#include <string>
#include <string_view>
#include <vector>

namespace familyfiles {

/// What the check finds out about one node of a formula.
struct CheckedNode
{
    ValueKind kind = ValueKind::Number;
    Quantity quantity = Quantity::Plain;
    Scope::Slot slot = 0;                      ///< of a name
    const FormulaFunction* function = nullptr; ///< of a call
    const Unit* unit = nullptr;                ///< of a measure
};

/// Finds out for each node of a formula whether it gives a number, a yes/no or a text and what it measures, and refuses
/// what does not go together.
class FormulaCheck
{
public:
    /// All have to live longer.
    FormulaCheck(const FormulaTree& tree, const Scope& names, const std::string& subject);

    /// @return false with a reason
    bool Run(Reason& reason);

    /// REQUIRES: Run has succeeded. By index of the tree's nodes.
    const std::vector<CheckedNode>& Nodes() const { return m_nodes; }

private:
    using Node = std::size_t;

    bool Check(Node node);
    bool CheckName(Node node);
    bool CheckMeasure(Node node);
    bool CheckArithmetic(Node node);
    bool CheckComparison(Node node);
    bool CheckLogic(Node node, std::string_view where);
    bool CheckChoice(Node node, std::string_view where);
    bool CheckPower(Node node);
    bool CheckCall(Node node);
    bool CheckNumbers(Node node, std::string_view where);
    bool CheckRule(Node node);
    bool WantQuantity(Node node, std::string_view where, Quantity wanted);
    bool JoinAll(Node node, std::string_view where);
    bool Refuse(Reason reason);

    const FormulaNode& At(Node node) const { return m_tree.nodes[node]; }
    Node Second(Node node) const { return At(At(node).child).next; }

    const FormulaTree& m_tree;
    const Scope& m_names;
    const std::string& m_subject;
    std::vector<CheckedNode> m_nodes;
    Reason m_reason;
};

} // namespace familyfiles
