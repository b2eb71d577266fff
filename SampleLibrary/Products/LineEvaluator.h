#pragma once

#include "Products/TextTemplate.h"
#include "Products/ValueSlots.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace samplelibrary {

/// Works out the values of the family types of one end category.
///
/// A component is one combination of the axes' values; its family types are the rows of the size table that meet the
/// conditions. Not for use by several threads at once.
class LineEvaluator
{
public:
    /// @param source, category must live longer. Throws SourceError when the category's line does not fit together.
    LineEvaluator(const ProductSource& source, const EndCategory& category);
    LineEvaluator(const LineEvaluator&) = delete;
    LineEvaluator& operator=(const LineEvaluator&) = delete;

    /// Number of combinations of the axes' values, whether or not they have family types.
    std::size_t CombinationCount() const;

    /// Number of rows of the size table.
    std::size_t RowCount() const { return m_table.RowCount(); }

    /// Goes to a combination, counted with the last axis fastest. Further series of the same combination are told apart
    /// by
    /// @p series, from 1.
    void SelectCombination(std::size_t combination, int series);

    /// Index of the value that the selected combination has on each axis.
    const std::vector<std::size_t>& AxisValues() const { return m_axisValues; }

    /// Works out the values of a row for the selected combination; false when the combination has no such family type,
    /// because a condition is not met or a formula needs a number that the row does not give. Throws SourceError for a
    /// value that cannot be had.
    bool Evaluate(std::size_t row);

    /// Name of the family type last worked out.
    std::string TypeName() const { return m_typeName.Filled(m_slots); }

    /// The values last worked out.
    const ValueSlots& Values() const { return m_slots; }

    /// Place of a parameter in Values().
    std::size_t Place(const std::string& code) { return m_slots.Place(code); }

    /// Sets a value that the line itself does not give.
    void Set(std::size_t place, const std::string& text) { m_slots.SetText(place, text); }

    /// Whether the selected combination has any family type.
    bool HasTypes();

private:
    struct Step
    {
        std::size_t Place;
        std::optional<Formula> Computed;
        std::optional<TextTemplate> Written;
    };

    void AddStep(const Assignment& value);
    void ReadRow(std::size_t row);
    bool RunStep(const Step& step);
    bool MeetsConditions() const;

    const EndCategory& m_category;
    const TsvTable& m_table;
    ValueSlots m_slots;
    TextTemplate m_typeName;
    std::size_t m_series;
    std::vector<std::size_t> m_columns;
    std::vector<std::size_t> m_axes;
    std::vector<std::size_t> m_axisValues;
    std::vector<Step> m_steps;
    std::vector<Formula> m_conditions;
};

} // namespace samplelibrary
