#pragma once

#include "FamilyFiles/Formulas/FormulaToken.h"
#include "FamilyFiles/Reason.h"

#include <string>
#include <string_view>

namespace familyfiles {

/// Cuts a formula into tokens, one after another. Full-width signs are read as their plain counterparts.
class FormulaLexer
{
public:
    /// @param text    UTF-8; has to live longer, tokens refer to it
    /// @param subject whose formula it is, for reasons; has to live longer
    FormulaLexer(std::string_view text, const std::string& subject) : m_text(text), m_subject(subject) {}

    /// Puts the next token into @p token; at the end one of type End, again and again.
    /// @return false with a reason
    bool Next(FormulaToken& token, Reason& reason);

private:
    struct Sign
    {
        /// The plain counterpart; 0 at the end.
        char32_t code;
        std::size_t size;
    };

    Sign At(std::size_t position) const;
    void SkipBlanks();
    bool Number(FormulaToken& token, Reason& reason);
    bool Enclosed(TokenType type, char32_t close, FormulaToken& token, Reason& reason);
    bool Suffix(FormulaToken& token, Reason& reason);
    void Word(FormulaToken& token);
    bool Operator(FormulaToken& token, Reason& reason);
    bool Unexpected(Reason& reason) const;

    std::string_view m_text;
    const std::string& m_subject;
    std::size_t m_position = 0;
    /// A unit may stand here.
    bool m_isBehindValue = false;
};

} // namespace familyfiles
