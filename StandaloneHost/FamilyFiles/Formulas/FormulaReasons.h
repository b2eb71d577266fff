#pragma once

#include "FamilyFiles/Formulas/Quantity.h"
#include "FamilyFiles/Formulas/ValueKind.h"
#include "FamilyFiles/Reason.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace familyfiles {

/// What can be wrong with a formula, in words. The subject is the name of the parameter, or whatever has the formula.
Reason FormulaIsEmpty(const std::string& subject);
Reason FormulaTooLong(const std::string& subject);
Reason FormulaTooDeep(const std::string& subject);
/// @param position byte at which @p found begins; @p found is empty at the end of the formula
Reason UnexpectedInFormula(
    const std::string& subject, std::string_view formula, std::size_t position, std::string_view found);
Reason UnknownNameInFormula(const std::string& subject, std::string_view name);
Reason UnknownFunctionInFormula(const std::string& subject, std::string_view name);
Reason UnknownUnitInFormula(const std::string& subject, std::string_view symbol);
Reason WrongArgumentCount(const std::string& subject, std::string_view function);
/// @param where the operator, function or place that wants another kind
Reason WrongKindInFormula(const std::string& subject, std::string_view where, ValueKind wanted, ValueKind given);
Reason KindsMixedInFormula(const std::string& subject, std::string_view where, ValueKind left, ValueKind right);
Reason QuantitiesMixedInFormula(const std::string& subject, std::string_view where, Quantity left, Quantity right);
Reason WrongQuantityInFormula(const std::string& subject, std::string_view where, Quantity wanted, Quantity given);
Reason UnitOnMeasuredValue(const std::string& subject, std::string_view symbol);
Reason ResultOfWrongKind(const std::string& subject, ValueKind wanted, ValueKind given);
Reason ResultOfWrongQuantity(const std::string& subject, std::string_view unit, Quantity given);
Reason DuplicateVariable(const std::string& subject);
Reason UnknownUnitOfVariable(const std::string& subject, std::string_view symbol);
/// @param names in the order in which each needs the next
Reason FormulaCycle(const std::vector<std::string>& names);
Reason DivisionByZeroInFormula(const std::string& subject);
Reason OverflowInFormula(const std::string& subject);
Reason NotANumberInFormula(const std::string& subject);
Reason IntegerOutOfRange(const std::string& subject, double value);
Reason ValueNotFinite(const std::string& subject);

} // namespace familyfiles
