#pragma once

#include "FamilyFiles/Formulas/FormulaLexer.h"
#include "FamilyFiles/Formulas/FormulaTree.h"
#include "FamilyFiles/Reason.h"

#include <string>
#include <string_view>

namespace familyfiles {

/// Takes a formula apart. Length and nesting are bounded, hence the depth of the calls too.
class FormulaParser
{
public:
    /// @param text    has to live as long as the tree
    /// @param subject whose formula it is, for reasons
    FormulaParser(std::string_view text, const std::string& subject);

    /// REQUIRES: called once
    /// @return false with a reason
    bool Parse(FormulaTree& tree, Reason& reason);

private:
    using Node = std::size_t;

    bool Advance();
    bool Is(TokenType type) const { return m_token.type == type; }
    bool Expect(TokenType type);
    bool Fail();
    bool Deepen();
    Node Add(NodeType type, std::size_t position, Node child = FormulaNode::None);

    bool Choice(Node& node);
    bool Binary(Node& node, int leastRank);
    bool Prefixed(Node& node);
    bool Powered(Node& node);
    bool Operand(Node& node);
    bool Parenthesis(Node& node);
    bool Suffixed(Node& node);
    bool NameOrCall(Node& node);
    bool Call(const FormulaToken& function, Node& node);

    std::string_view m_text;
    const std::string& m_subject;
    FormulaLexer m_lexer;
    FormulaToken m_token;
    FormulaTree m_tree;
    Reason m_reason;
    int m_depth = 0;
};

} // namespace familyfiles
