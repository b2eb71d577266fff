#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace familyfiles {

/// What a node of a formula does with its children.
enum class NodeType : std::uint8_t
{
    Number,
    YesNo,
    Text,
    Name,
    Negate,
    Not,
    Add,
    Subtract,
    Multiply,
    Divide,
    Remainder,
    Power,
    Less,
    LessOrEqual,
    Greater,
    GreaterOrEqual,
    Equal,
    NotEqual,
    And,
    Or,
    Choose,  ///< condition, value if it holds, value if not
    Measure, ///< a plain number that gets a unit, whose symbol is in `text`
    Call
};

/// One part of a formula. Children are linked: the first by `child`, each further one by `next`.
struct FormulaNode
{
    static constexpr std::size_t None = static_cast<std::size_t>(-1);

    NodeType type = NodeType::Number;
    std::size_t child = None;
    std::size_t next = None;
    /// Byte of the formula that a message points at.
    std::size_t position = 0;
    /// A name, the content of a text, a function's name or a unit's symbol.
    std::string_view text;
    /// Of a number; 1 or 0 of a yes or no.
    double value = 0;
};

/// A formula taken apart; each node stands behind its children. Texts refer to the formula, which has to live longer.
struct FormulaTree
{
    std::vector<FormulaNode> nodes;
    std::size_t root = FormulaNode::None;
};

} // namespace familyfiles
