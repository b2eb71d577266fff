#include "Products/LineEvaluator.h"

#include "Products/EvaluationOrder.h"
#include "Reading/SourceError.h"
#include "Reading/Texts.h"

#include <algorithm>
#include <cmath>

namespace samplelibrary {

namespace {

const TsvTable& FindTable(const ProductSource& source, const EndCategory& category)
{
    const auto found = source.SizeTables.find(category.Line.SizeTable);
    if (found == source.SizeTables.end()) {
        throw SourceError(category.Where, "there is no size table \"" + category.Line.SizeTable + '"');
    }
    return found->second;
}

/// Names a type template may use are those of the line, which all have to be known before it is read.
ValueSlots MakeSlots(const ProductSource& source, const EndCategory& category)
{
    ValueSlots slots(source, category.Where);
    slots.Place("Series");
    for (const std::string& column : FindTable(source, category).Columns()) {
        slots.Place(column);
    }
    for (const Axis& axis : category.Line.Axes) {
        slots.Place(axis.Parameter);
    }
    for (const Assignment& value : category.Line.Values) {
        slots.Place(value.Target);
    }
    return slots;
}

} // namespace

LineEvaluator::LineEvaluator(const ProductSource& source, const EndCategory& category)
    : m_category(category), m_table(FindTable(source, category)), m_slots(MakeSlots(source, category)),
      m_typeName(category.Line.TypeName, m_slots), m_series(m_slots.Place("Series"))
{
    for (const std::string& column : m_table.Columns()) {
        m_columns.push_back(m_slots.Place(column));
    }
    for (const Axis& axis : category.Line.Axes) {
        m_axes.push_back(m_slots.Place(axis.Parameter));
    }
    m_axisValues.resize(m_axes.size());
    for (const Assignment& value : InEvaluationOrder(category.Line.Values, category.Where)) {
        AddStep(value);
    }
    for (const std::string& condition : category.Line.Conditions) {
        m_conditions.emplace_back(condition, m_slots.Numbers(), category.Where);
    }
}

void LineEvaluator::AddStep(const Assignment& value)
{
    Step step{m_slots.Place(value.Target), std::nullopt, std::nullopt};
    if (m_slots.IsComputed(step.Place) && value.Expression != "true" && value.Expression != "false") {
        step.Computed.emplace(value.Expression, m_slots.Numbers(), m_category.Where);
    } else {
        step.Written.emplace(value.Expression, m_slots);
    }
    m_steps.push_back(std::move(step));
}

std::size_t LineEvaluator::CombinationCount() const
{
    std::size_t count = 1;
    for (const Axis& axis : m_category.Line.Axes) {
        count *= axis.Values.size();
    }
    return count;
}

void LineEvaluator::SelectCombination(std::size_t combination, int series)
{
    for (std::size_t axis = m_axes.size(); axis-- > 0;) {
        const std::vector<std::string>& values = m_category.Line.Axes[axis].Values;
        m_axisValues[axis] = combination % values.size();
        combination /= values.size();
    }
    m_slots.SetNumber(m_series, series);
}

void LineEvaluator::ReadRow(std::size_t row)
{
    const std::vector<std::string>& cells = m_table.Cells(row);
    for (std::size_t column = 0; column < cells.size(); ++column) {
        if (cells[column] == "-") {
            m_slots.Clear(m_columns[column]);
        } else {
            m_slots.SetText(m_columns[column], cells[column]);
        }
    }
    for (std::size_t axis = 0; axis < m_axes.size(); ++axis) {
        m_slots.SetText(m_axes[axis], m_category.Line.Axes[axis].Values[m_axisValues[axis]]);
    }
}

bool LineEvaluator::MeetsConditions() const
{
    return std::all_of(
        m_conditions.begin(), m_conditions.end(), [](const Formula& condition) { return condition.Value() != 0.0; });
}

bool LineEvaluator::RunStep(const Step& step)
{
    if (!step.Computed) {
        m_slots.SetText(step.Place, step.Written->Filled(m_slots));
        return true;
    }
    const double value = step.Computed->Value();
    if (std::isnan(value)) {
        return false;
    }
    m_slots.SetNumber(step.Place, value);
    return true;
}

bool LineEvaluator::Evaluate(std::size_t row)
{
    ReadRow(row);
    return std::all_of(m_steps.begin(), m_steps.end(), [this](const Step& step) { return RunStep(step); }) &&
           MeetsConditions();
}

bool LineEvaluator::HasTypes()
{
    for (std::size_t row = 0; row < RowCount(); ++row) {
        if (Evaluate(row)) {
            return true;
        }
    }
    return false;
}

} // namespace samplelibrary
