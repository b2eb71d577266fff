#include "FamilyFiles/Formulas/FormulaSet.h"

#include "FamilyFiles/Formulas/DependencyOrder.h"
#include "FamilyFiles/Formulas/FormulaReasons.h"
#include "FamilyFiles/Formulas/Unit.h"

#include <cmath>
#include <limits>
#include <utility>

namespace familyfiles {

namespace {

ValueKind KindOf(StorageType storageType)
{
    switch (storageType) {
    case StorageType::YesNo:
        return ValueKind::YesNo;
    case StorageType::Text:
        return ValueKind::Text;
    default:
        return ValueKind::Number;
    }
}

bool IsNumeric(StorageType storageType)
{
    return KindOf(storageType) == ValueKind::Number;
}

/// Yes and no may become 1 and 0, nothing else changes its kind.
bool CanBecome(ValueKind given, ValueKind wanted)
{
    return given == wanted || (given == ValueKind::YesNo && wanted == ValueKind::Number);
}

bool FitsVariable(const Expression& formula, const FormulaVariable& variable, const Unit& unit, Reason& reason)
{
    const ValueKind wanted = KindOf(variable.storageType);
    if (!CanBecome(formula.Kind(), wanted)) {
        reason = ResultOfWrongKind(variable.name, wanted, formula.Kind());
        return false;
    }
    const Quantity quantity = formula.ResultQuantity();
    if (unit.quantity != Quantity::Plain && quantity != Quantity::Plain && quantity != unit.quantity) {
        reason = ResultOfWrongQuantity(variable.name, unit.symbol, quantity);
        return false;
    }
    return true;
}

double NumberIn(const Value& value)
{
    switch (StorageTypeOf(value)) {
    case StorageType::YesNo:
        return std::get<bool>(value) ? 1.0 : 0.0;
    case StorageType::Integer:
        return std::get<int>(value);
    case StorageType::FloatingPoint:
        return std::get<double>(value);
    case StorageType::Text:
        break;
    }
    return 0.0;
}

/// @param number in the variable's unit
std::optional<Value> NumberAs(const FormulaVariable& variable, double number, Reason& reason)
{
    if (variable.storageType == StorageType::YesNo) {
        return Value(number != 0.0);
    }
    if (variable.storageType == StorageType::FloatingPoint) {
        return Value(number);
    }
    const double rounded = std::round(number);
    if (rounded < std::numeric_limits<int>::min() || rounded > std::numeric_limits<int>::max()) {
        reason = IntegerOutOfRange(variable.name, number);
        return std::nullopt;
    }
    return Value(static_cast<int>(rounded));
}

} // namespace

/// A set in the making.
class FormulaSet::Maker
{
public:
    Maker(FormulaSet& set, Reason& reason) : m_set(set), m_reason(reason) {}

    bool Make() { return AddNames() && Compile() && PutInOrder(); }

private:
    bool AddNames()
    {
        for (const FormulaVariable& variable : m_set.m_variables) {
            const Unit* const unit = Unit::Find(variable.unit);
            if (unit == nullptr) {
                m_reason = UnknownUnitOfVariable(variable.name, variable.unit);
                return false;
            }
            const Quantity quantity = IsNumeric(variable.storageType) ? unit->quantity : Quantity::Plain;
            if (!m_set.m_names.Add(variable.name, KindOf(variable.storageType), quantity)) {
                m_reason = DuplicateVariable(variable.name);
                return false;
            }
            m_set.m_units.push_back(unit);
        }
        return true;
    }

    bool Compile()
    {
        for (std::size_t index = 0; index < m_set.m_variables.size(); ++index) {
            const FormulaVariable& variable = m_set.m_variables[index];
            if (variable.formula.empty()) {
                m_set.m_given.push_back(index);
                continue;
            }
            std::optional<Expression> formula =
                Expression::Compile(variable.formula, m_set.m_names, variable.name, m_reason);
            if (!formula || !FitsVariable(*formula, variable, *m_set.m_units[index], m_reason)) {
                return false;
            }
            m_driven.push_back(index);
            m_formulas.push_back(std::move(*formula));
        }
        return true;
    }

    /// Among the driven variables alone: given ones are there from the start.
    bool PutInOrder()
    {
        constexpr std::size_t None = static_cast<std::size_t>(-1);
        std::vector<std::size_t> places(m_set.m_variables.size(), None);
        for (std::size_t place = 0; place < m_driven.size(); ++place) {
            places[m_driven[place]] = place;
        }
        std::vector<std::vector<std::size_t>> needs(m_driven.size());
        for (std::size_t place = 0; place < m_driven.size(); ++place) {
            for (const std::size_t used : m_formulas[place].Uses()) {
                if (places[used] != None) {
                    needs[place].push_back(places[used]);
                }
            }
        }
        const DependencyOrder found = DependencyOrder::Of(needs);
        if (!found.ring.empty()) {
            m_reason = FormulaCycle(NamesOf(found.ring));
            return false;
        }
        for (const std::size_t place : found.order) {
            m_set.m_order.push_back(m_driven[place]);
            m_set.m_formulas.push_back(std::move(m_formulas[place]));
        }
        return true;
    }

    std::vector<std::string> NamesOf(const std::vector<std::size_t>& places) const
    {
        std::vector<std::string> names;
        names.reserve(places.size());
        for (const std::size_t place : places) {
            names.push_back(m_set.m_variables[m_driven[place]].name);
        }
        return names;
    }

    FormulaSet& m_set;
    Reason& m_reason;
    std::vector<std::size_t> m_driven;
    std::vector<Expression> m_formulas;
};

std::optional<FormulaSet> FormulaSet::Make(std::vector<FormulaVariable> variables, Reason& reason)
{
    FormulaSet set;
    set.m_variables = std::move(variables);
    if (!Maker(set, reason).Make()) {
        return std::nullopt;
    }
    set.m_working = set.m_names;
    return set;
}

void FormulaSet::Put(Scope& scope, std::size_t variable, const Value& value) const
{
    if (m_names.Kind(variable) == ValueKind::Text) {
        scope.SetText(variable, std::get<std::string>(value));
    } else {
        scope.SetNumber(variable, m_units[variable]->ToBase(NumberIn(value)));
    }
}

Scope FormulaSet::ScopeOf(const std::vector<Value>& values) const
{
    Scope scope = m_names;
    for (std::size_t variable = 0; variable < values.size(); ++variable) {
        Put(scope, variable, values[variable]);
    }
    return scope;
}

std::optional<Value> FormulaSet::ValueOf(std::size_t variable, const Expression& formula, Reason& reason) const
{
    if (formula.Kind() == ValueKind::Text) {
        std::optional<std::string> text = formula.Text(m_working, reason);
        return text ? std::optional<Value>(std::move(*text)) : std::nullopt;
    }
    const std::optional<double> number = formula.Number(m_working, reason);
    if (!number) {
        return std::nullopt;
    }
    const double inUnit = m_units[variable]->FromBase(*number);
    if (!std::isfinite(inUnit)) {
        reason = OverflowInFormula(m_variables[variable].name);
        return std::nullopt;
    }
    return NumberAs(m_variables[variable], inUnit, reason);
}

bool FormulaSet::Evaluate(std::vector<Value>& values, Reason& reason) const
{
    for (const std::size_t variable : m_given) {
        if (!std::isfinite(NumberIn(values[variable]))) {
            reason = ValueNotFinite(m_variables[variable].name);
            return false;
        }
        Put(m_working, variable, values[variable]);
    }
    std::vector<Value> computed;
    computed.reserve(m_order.size());
    for (std::size_t place = 0; place < m_order.size(); ++place) {
        std::optional<Value> value = ValueOf(m_order[place], m_formulas[place], reason);
        if (!value) {
            return false;
        }
        Put(m_working, m_order[place], *value);
        computed.push_back(std::move(*value));
    }
    for (std::size_t place = 0; place < m_order.size(); ++place) {
        values[m_order[place]] = std::move(computed[place]);
    }
    return true;
}

} // namespace familyfiles
