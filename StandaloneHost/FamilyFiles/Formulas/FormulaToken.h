#pragma once

#include <cstddef>
#include <string_view>

namespace familyfiles {

/// The kinds of tokens that formulas are made of.
enum class TokenType
{
    End,
    Number,
    Name,
    BracketedName,
    Text,
    Suffix, ///< a unit behind a number or a closing parenthesis
    Plus,
    Minus,
    Times,
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
    Not,
    Question,
    Colon,
    Comma,
    Open,
    Close
};

/// One token of a formula.
struct FormulaToken
{
    TokenType type = TokenType::End;
    /// Byte at which it begins.
    std::size_t position = 0;
    /// Its bytes in the formula; of a bracketed name and of a text what is inside.
    std::string_view text;
    /// Of a number.
    double value = 0;
};

} // namespace familyfiles
