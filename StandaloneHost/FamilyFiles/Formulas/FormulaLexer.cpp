#include "FamilyFiles/Formulas/FormulaLexer.h"

#include "FamilyFiles/Formulas/FormulaReasons.h"
#include "FamilyFiles/Formulas/FormulaSigns.h"
#include "FamilyFiles/Formulas/Unit.h"
#include "FamilyFiles/Utf8.h"

#include <algorithm>
#include <charconv>
#include <system_error>

namespace familyfiles {

namespace {

/// No symbol of a unit has more bytes.
constexpr std::size_t LongestSymbol = 16;

struct OperatorSign
{
    char32_t first;
    /// 0: one character alone.
    char32_t second;
    TokenType type;
};

/// Longer ones in front of those that they begin with.
constexpr OperatorSign OperatorSigns[] = {
    {U'+', 0, TokenType::Plus},
    {U'-', 0, TokenType::Minus},
    {U'*', 0, TokenType::Times},
    {U'/', 0, TokenType::Divide},
    {U'%', 0, TokenType::Remainder},
    {U'^', 0, TokenType::Power},
    {U'(', 0, TokenType::Open},
    {U')', 0, TokenType::Close},
    {U',', 0, TokenType::Comma},
    {U'?', 0, TokenType::Question},
    {U':', 0, TokenType::Colon},
    {U'<', U'=', TokenType::LessOrEqual},
    {U'<', U'>', TokenType::NotEqual},
    {U'<', 0, TokenType::Less},
    {U'≤', 0, TokenType::LessOrEqual},
    {U'>', U'=', TokenType::GreaterOrEqual},
    {U'>', 0, TokenType::Greater},
    {U'≥', 0, TokenType::GreaterOrEqual},
    {U'=', U'=', TokenType::Equal},
    {U'!', U'=', TokenType::NotEqual},
    {U'!', 0, TokenType::Not},
    {U'≠', 0, TokenType::NotEqual},
    {U'&', U'&', TokenType::And},
    {U'|', U'|', TokenType::Or},
};

bool IsInsideName(std::string_view text, std::size_t position)
{
    return position < text.size() && ContinuesName(Utf8At(text, position).code);
}

bool IsPlainQuote(char32_t code)
{
    return code == U'"' || code == U'\uFF02';
}

/// How many bytes of the longest unit's symbol stand at the position; 0 when there is none.
std::size_t SymbolSize(std::string_view text, std::size_t position)
{
    for (std::size_t size = std::min(LongestSymbol, text.size() - position); size > 0; --size) {
        const std::string_view symbol = text.substr(position, size);
        if (!IsInsideName(text, position + size) && symbol != "-" && symbol != "%" && Unit::Find(symbol) != nullptr) {
            return size;
        }
    }
    return 0;
}

} // namespace

FormulaLexer::Sign FormulaLexer::At(std::size_t position) const
{
    if (position >= m_text.size()) {
        return {0, 0};
    }
    const Utf8Character character = Utf8At(m_text, position);
    return {PlainSign(character.code), character.size};
}

void FormulaLexer::SkipBlanks()
{
    while (m_position < m_text.size() && IsBlank(Utf8At(m_text, m_position).code)) {
        m_position += Utf8At(m_text, m_position).size;
    }
}

bool FormulaLexer::Unexpected(Reason& reason) const
{
    const std::size_t size = At(m_position).size;
    reason = UnexpectedInFormula(m_subject, m_text, m_position, m_text.substr(m_position, size));
    return false;
}

bool FormulaLexer::Next(FormulaToken& token, Reason& reason)
{
    SkipBlanks();
    token = {TokenType::End, m_position, m_text.substr(m_position, 0), 0};
    if (m_position >= m_text.size()) {
        return true;
    }
    const Utf8Character character = Utf8At(m_text, m_position);
    const char32_t code = PlainSign(character.code);
    if (!character.isValid) {
        return Unexpected(reason);
    }
    if (m_isBehindValue && (SymbolSize(m_text, m_position) > 0 || BeginsName(character.code))) {
        return Suffix(token, reason);
    }
    m_isBehindValue = false;
    if (IsDigit(code) || (code == U'.' && IsDigit(At(m_position + character.size).code))) {
        return Number(token, reason);
    }
    if (code == U'"') {
        return Enclosed(TokenType::Text, U'"', token, reason);
    }
    if (code == U'[') {
        return Enclosed(TokenType::BracketedName, U']', token, reason);
    }
    if (BeginsName(character.code)) {
        Word(token);
        return true;
    }
    return Operator(token, reason);
}

bool FormulaLexer::Number(FormulaToken& token, Reason& reason)
{
    std::string digits;
    const auto takeDigits = [&] {
        for (; IsDigit(At(m_position).code); m_position += At(m_position).size) {
            digits += static_cast<char>(At(m_position).code);
        }
    };
    takeDigits();
    if (At(m_position).code == U'.') {
        digits += '.';
        m_position += At(m_position).size;
        takeDigits();
    }
    const bool isExponent = At(m_position).code == U'e' || At(m_position).code == U'E';
    const Sign behind = isExponent ? At(m_position + 1) : Sign{0, 0};
    const bool isSigned = behind.code == U'+' || behind.code == U'-';
    if (IsDigit(isSigned ? At(m_position + 1 + behind.size).code : behind.code)) {
        digits += 'e';
        if (isSigned) {
            digits += behind.code == U'-' ? '-' : '+';
        }
        m_position += 1 + (isSigned ? behind.size : 0);
        takeDigits();
    }
    token.type = TokenType::Number;
    token.text = m_text.substr(token.position, m_position - token.position);
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), token.value);
    if (result.ec == std::errc::result_out_of_range) {
        reason = OverflowInFormula(m_subject);
        return false;
    }
    m_isBehindValue = true;
    return At(m_position).code != U'.' || Unexpected(reason);
}

bool FormulaLexer::Enclosed(TokenType type, char32_t close, FormulaToken& token, Reason& reason)
{
    // Typographic quotation marks are text between plain ones.
    const bool isPlain = IsPlainQuote(Utf8At(m_text, m_position).code);
    const std::size_t first = m_position + At(m_position).size;
    for (std::size_t end = first; end < m_text.size(); end += At(end).size) {
        if (At(end).code == close && (!isPlain || IsPlainQuote(Utf8At(m_text, end).code))) {
            token.type = type;
            token.text = m_text.substr(first, end - first);
            m_position = end + At(end).size;
            return true;
        }
    }
    return Unexpected(reason);
}

bool FormulaLexer::Suffix(FormulaToken& token, Reason& reason)
{
    m_isBehindValue = false;
    const std::size_t size = SymbolSize(m_text, m_position);
    if (size > 0) {
        token.type = TokenType::Suffix;
        token.text = m_text.substr(m_position, size);
        m_position += size;
        return true;
    }
    Word(token);
    if (token.type != TokenType::Name) {
        return true;
    }
    reason = UnknownUnitInFormula(m_subject, token.text);
    return false;
}

void FormulaLexer::Word(FormulaToken& token)
{
    while (IsInsideName(m_text, m_position)) {
        m_position += Utf8At(m_text, m_position).size;
    }
    token.text = m_text.substr(token.position, m_position - token.position);
    token.type = TokenType::Name;
    if (token.text == "and") {
        token.type = TokenType::And;
    } else if (token.text == "or") {
        token.type = TokenType::Or;
    } else if (token.text == "not") {
        token.type = TokenType::Not;
    }
}

bool FormulaLexer::Operator(FormulaToken& token, Reason& reason)
{
    const Sign sign = At(m_position);
    const Sign next = At(m_position + sign.size);
    for (const OperatorSign& known : OperatorSigns) {
        if (known.first == sign.code && (known.second == 0 || known.second == next.code)) {
            m_position += sign.size + (known.second == 0 ? 0 : next.size);
            token.type = known.type;
            token.text = m_text.substr(token.position, m_position - token.position);
            m_isBehindValue = known.type == TokenType::Close;
            return true;
        }
    }
    return Unexpected(reason);
}

} // namespace familyfiles
