#include "FamilyFiles/Formulas/FormulaParser.h"

#include "FamilyFiles/Formulas/Expression.h"
#include "FamilyFiles/Formulas/FormulaReasons.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace familyfiles {

namespace {

/// How tightly an operator binds; 0: none between two values.
struct BinaryOperator
{
    int rank = 0;
    NodeType type = NodeType::Add;
};

constexpr int LowestRank = 1;

BinaryOperator OperatorOf(TokenType type)
{
    switch (type) {
    case TokenType::Or:
        return {1, NodeType::Or};
    case TokenType::And:
        return {2, NodeType::And};
    case TokenType::Equal:
        return {3, NodeType::Equal};
    case TokenType::NotEqual:
        return {3, NodeType::NotEqual};
    case TokenType::Less:
        return {4, NodeType::Less};
    case TokenType::LessOrEqual:
        return {4, NodeType::LessOrEqual};
    case TokenType::Greater:
        return {4, NodeType::Greater};
    case TokenType::GreaterOrEqual:
        return {4, NodeType::GreaterOrEqual};
    case TokenType::Plus:
        return {5, NodeType::Add};
    case TokenType::Minus:
        return {5, NodeType::Subtract};
    case TokenType::Times:
        return {6, NodeType::Multiply};
    case TokenType::Divide:
        return {6, NodeType::Divide};
    case TokenType::Remainder:
        return {6, NodeType::Remainder};
    default:
        return {};
    }
}

/// Words that stand for values. A parameter of such a name has to be written in brackets.
struct ConstantWord
{
    std::string_view word;
    NodeType type;
    double value;
};

constexpr ConstantWord Constants[] = {
    {"true", NodeType::YesNo, 1},
    {"yes", NodeType::YesNo, 1},
    {"false", NodeType::YesNo, 0},
    {"no", NodeType::YesNo, 0},
    {"pi", NodeType::Number, 3.14159265358979323846},
};

const ConstantWord* FindConstant(std::string_view word)
{
    const auto* const found = std::find_if(std::begin(Constants), std::end(Constants),
        [word](const ConstantWord& constant) { return constant.word == word; });
    return found != std::end(Constants) ? found : nullptr;
}

/// Restores the depth on the way out.
class DepthKeeper
{
public:
    explicit DepthKeeper(int& depth) : m_depth(depth), m_before(depth) {}
    ~DepthKeeper() { m_depth = m_before; }
    DepthKeeper(const DepthKeeper&) = delete;
    DepthKeeper& operator=(const DepthKeeper&) = delete;

private:
    int& m_depth;
    int m_before;
};

} // namespace

FormulaParser::FormulaParser(std::string_view text, const std::string& subject)
    : m_text(text), m_subject(subject), m_lexer(text, subject)
{
}

bool FormulaParser::Parse(FormulaTree& tree, Reason& reason)
{
    if (m_text.size() > Expression::MaximalLength) {
        reason = FormulaTooLong(m_subject);
        return false;
    }
    const bool isParsed = Advance() && Choice(m_tree.root) && (Is(TokenType::End) || Fail());
    if (!isParsed) {
        reason = std::move(m_reason);
        return false;
    }
    tree = std::move(m_tree);
    return true;
}

bool FormulaParser::Advance()
{
    return m_lexer.Next(m_token, m_reason);
}

bool FormulaParser::Fail()
{
    m_reason = UnexpectedInFormula(m_subject, m_text, m_token.position, m_token.text);
    return false;
}

bool FormulaParser::Expect(TokenType type)
{
    return Is(type) ? Advance() : Fail();
}

bool FormulaParser::Deepen()
{
    if (++m_depth > Expression::MaximalNesting) {
        m_reason = FormulaTooDeep(m_subject);
        return false;
    }
    return true;
}

FormulaParser::Node FormulaParser::Add(NodeType type, std::size_t position, Node child)
{
    FormulaNode node;
    node.type = type;
    node.position = position;
    node.child = child;
    m_tree.nodes.push_back(node);
    return m_tree.nodes.size() - 1;
}

/// condition ? value : value, the last of which may be a choice again.
bool FormulaParser::Choice(Node& node)
{
    const DepthKeeper keeper(m_depth);
    if (!Deepen() || !Binary(node, LowestRank)) {
        return false;
    }
    if (!Is(TokenType::Question)) {
        return true;
    }
    const std::size_t position = m_token.position;
    Node met = FormulaNode::None;
    Node unmet = FormulaNode::None;
    if (!Advance() || !Choice(met) || !Expect(TokenType::Colon) || !Choice(unmet)) {
        return false;
    }
    m_tree.nodes[node].next = met;
    m_tree.nodes[met].next = unmet;
    node = Add(NodeType::Choose, position, node);
    return true;
}

bool FormulaParser::Binary(Node& node, int leastRank)
{
    if (!Prefixed(node)) {
        return false;
    }
    for (BinaryOperator found = OperatorOf(m_token.type); found.rank >= leastRank; found = OperatorOf(m_token.type)) {
        const std::size_t position = m_token.position;
        Node right = FormulaNode::None;
        if (!Advance() || !Binary(right, found.rank + 1)) {
            return false;
        }
        m_tree.nodes[node].next = right;
        node = Add(found.type, position, node);
    }
    return true;
}

/// Signs stand in front of a power: -2^2 is -4.
bool FormulaParser::Prefixed(Node& node)
{
    const TokenType type = m_token.type;
    if (type != TokenType::Minus && type != TokenType::Plus && type != TokenType::Not) {
        return Powered(node);
    }
    const DepthKeeper keeper(m_depth);
    const std::size_t position = m_token.position;
    if (!Deepen() || !Advance() || !Prefixed(node)) {
        return false;
    }
    if (type != TokenType::Plus) {
        node = Add(type == TokenType::Minus ? NodeType::Negate : NodeType::Not, position, node);
    }
    return true;
}

/// From the right: 2^3^2 is 512; the exponent may have a sign.
bool FormulaParser::Powered(Node& node)
{
    if (!Operand(node)) {
        return false;
    }
    if (!Is(TokenType::Power)) {
        return true;
    }
    const DepthKeeper keeper(m_depth);
    const std::size_t position = m_token.position;
    Node exponent = FormulaNode::None;
    if (!Deepen() || !Advance() || !Prefixed(exponent)) {
        return false;
    }
    m_tree.nodes[node].next = exponent;
    node = Add(NodeType::Power, position, node);
    return true;
}

bool FormulaParser::Operand(Node& node)
{
    const FormulaToken token = m_token;
    switch (token.type) {
    case TokenType::Open:
        return Parenthesis(node);
    case TokenType::Number:
        node = Add(NodeType::Number, token.position);
        m_tree.nodes[node].value = token.value;
        return Advance() && Suffixed(node);
    case TokenType::Text:
        node = Add(NodeType::Text, token.position);
        m_tree.nodes[node].text = token.text;
        return Advance();
    case TokenType::BracketedName:
        node = Add(NodeType::Name, token.position);
        m_tree.nodes[node].text = token.text;
        return Advance();
    case TokenType::Name:
        return NameOrCall(node);
    default:
        return Fail();
    }
}

bool FormulaParser::Parenthesis(Node& node)
{
    return Advance() && Choice(node) && Expect(TokenType::Close) && Suffixed(node);
}

bool FormulaParser::Suffixed(Node& node)
{
    if (!Is(TokenType::Suffix)) {
        return true;
    }
    node = Add(NodeType::Measure, m_token.position, node);
    m_tree.nodes[node].text = m_token.text;
    return Advance();
}

bool FormulaParser::NameOrCall(Node& node)
{
    const FormulaToken token = m_token;
    if (!Advance()) {
        return false;
    }
    const ConstantWord* const word = FindConstant(token.text);
    if (Is(TokenType::Open)) {
        return Call(token, node);
    }
    node = Add(word != nullptr ? word->type : NodeType::Name, token.position);
    m_tree.nodes[node].text = token.text;
    m_tree.nodes[node].value = word != nullptr ? word->value : 0;
    return true;
}

bool FormulaParser::Call(const FormulaToken& function, Node& node)
{
    Node first = FormulaNode::None;
    Node last = FormulaNode::None;
    do {
        Node argument = FormulaNode::None;
        if (!Advance() || !Choice(argument)) {
            return false;
        }
        (last == FormulaNode::None ? first : m_tree.nodes[last].next) = argument;
        last = argument;
    } while (Is(TokenType::Comma));
    node = Add(NodeType::Call, function.position, first);
    m_tree.nodes[node].text = function.text;
    return Expect(TokenType::Close) && Suffixed(node);
}

} // namespace familyfiles
