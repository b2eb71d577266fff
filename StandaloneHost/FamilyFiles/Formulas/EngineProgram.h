#pragma once

#include "FamilyFiles/Formulas/Scope.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace familyfiles {

/// A formula as the engine that works it out gets it: an expression over numbered arguments, which are constants,
/// values of names and stand-ins of texts.
struct EngineProgram
{
    /// An argument that is the value of a name.
    struct NumberArgument
    {
        std::size_t argument;
        Scope::Slot slot;
    };
    /// An argument that stands for a text: of a name, or a literal where there is no slot. Equal texts get equal
    /// numbers.
    struct TextArgument
    {
        std::size_t argument;
        std::optional<Scope::Slot> slot;
        std::string literal;
    };

    /// Argument n is called ArgumentName(n). Empty when the result is argument `result` as it is.
    std::string expression;
    std::size_t result = 0;
    /// The constants in their places.
    std::vector<double> arguments;
    std::vector<NumberArgument> numbers;
    std::vector<TextArgument> texts;
    /// What the expression calls, each once; the texts live for ever.
    std::vector<std::string_view> functions;

    static std::string ArgumentName(std::size_t argument) { return 'a' + std::to_string(argument); }
};

} // namespace familyfiles
