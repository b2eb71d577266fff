#pragma once

#include "FamilyFiles/Formulas/EngineProgram.h"
#include "FamilyFiles/Formulas/FormulaCheck.h"
#include "FamilyFiles/Formulas/FormulaTree.h"

#include <map>
#include <string_view>
#include <vector>

namespace familyfiles {

/// Writes a checked formula down for the engine, every operation in parentheses: what binds tighter is decided once, by
/// the parser.
class EngineProgramWriter
{
public:
    /// All have to live longer.
    EngineProgramWriter(const FormulaTree& tree, const std::vector<CheckedNode>& nodes) : m_tree(tree), m_nodes(nodes)
    {
    }

    /// REQUIRES: called once
    EngineProgram Write();

private:
    using Node = std::size_t;

    void Put(Node node);
    void PutInfix(Node node, char sign);
    void PutChoice(Node condition, Node met, Node unmet);
    void PutNot(Node node);
    void PutLogic(Node node);
    void PutCall(std::string_view function, Node first);
    void PutComparison(std::string_view function, Node left, Node right);
    void PutArgument(std::size_t argument);
    void PutFormulaCall(Node node);
    bool IsArgument(Node node, std::size_t& argument);
    std::size_t Constant(double value);
    std::size_t NameArgument(Node node);
    std::size_t TextArgument(std::string_view literal);
    void Call(std::string_view function);

    const FormulaNode& At(Node node) const { return m_tree.nodes[node]; }

    const FormulaTree& m_tree;
    const std::vector<CheckedNode>& m_nodes;
    EngineProgram m_program;
    std::map<double, std::size_t> m_constants;
    std::map<Scope::Slot, std::size_t> m_names;
    std::map<std::string_view, std::size_t> m_texts;
};

} // namespace familyfiles
