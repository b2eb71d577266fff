#pragma once

#include <map>
#include <memory>
#include <string>

namespace mu {
class Parser;
}

namespace samplelibrary {

/// Numbers by name; their addresses stay the same, so that formulas can keep them.
using Variables = std::map<std::string, double>;

/// An arithmetic expression over named numbers, compiled once and evaluated often.
///
/// Beside the usual operators there are: floor, ceil, step(x, s): x rounded up to a multiple of s; near(x, s): x
/// rounded to a multiple of s; motor(x): the next rated motor output in kW; amp(x): the next rated current in A; dn(x):
/// the next nominal pipe size. Not for use by several threads at once.
class Formula
{
public:
    /// Compiles @p expression; names must be in @p variables, which must live longer. Throws SourceError beginning with
    /// @p where.
    Formula(const std::string& expression, Variables& variables, std::string where);
    ~Formula();
    Formula(Formula&&) noexcept;
    Formula& operator=(Formula&&) noexcept;

    /// Value for the numbers that the variables have now; not-a-number when one of them is not given. Throws
    /// SourceError when the value is infinite.
    double Value() const;

private:
    std::unique_ptr<mu::Parser> m_parser;
    std::string m_where;
};

} // namespace samplelibrary
