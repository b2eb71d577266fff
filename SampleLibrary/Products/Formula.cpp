#include "Products/Formula.h"

#include "Reading/SourceError.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <muParser.h>
#include <utility>

namespace samplelibrary {

namespace {

/// The first number of @p series that is not below @p value; above the series its last number.
template <std::size_t Count>
double Next(const std::array<double, Count>& series, double value)
{
    const auto found = std::lower_bound(series.begin(), series.end(), value - 1e-9);
    return found == series.end() ? series.back() : *found;
}

/// Rated outputs of IEC 60072 motors, kW.
double NextMotor(double value)
{
    static constexpr std::array<double, 37> series{0.06, 0.09, 0.12, 0.18, 0.25, 0.37, 0.55, 0.75, 1.1, 1.5, 2.2, 3, 4,
        5.5, 7.5, 11, 15, 18.5, 22, 30, 37, 45, 55, 75, 90, 110, 132, 160, 200, 250, 315, 355, 400, 450, 500, 560, 630};
    return Next(series, value);
}

/// Rated currents of IEC 60059, A.
double NextCurrent(double value)
{
    static constexpr std::array<double, 32> series{1, 2, 3, 4, 6, 10, 16, 20, 25, 32, 40, 50, 63, 80, 100, 125, 160,
        200, 250, 315, 400, 500, 630, 800, 1000, 1250, 1600, 2000, 2500, 3150, 4000, 5000};
    return Next(series, value);
}

/// Nominal pipe sizes of ISO 6708.
double NextNominalSize(double value)
{
    static constexpr std::array<double, 25> series{8, 10, 15, 20, 25, 32, 40, 50, 65, 80, 100, 125, 150, 200, 250, 300,
        350, 400, 450, 500, 600, 700, 800, 900, 1000};
    return Next(series, value);
}

double StepUp(double value, double step)
{
    return std::ceil(value / step - 1e-9) * step;
}

double Nearest(double value, double step)
{
    return std::round(value / step) * step;
}

double Floor(double value)
{
    return std::floor(value);
}

double Ceil(double value)
{
    return std::ceil(value);
}

double* FindVariable(const char* name, void* variables)
{
    auto& numbers = *static_cast<Variables*>(variables);
    const auto found = numbers.find(name);
    if (found == numbers.end()) {
        throw mu::ParserError(std::string("there is no number \"") + name + '"');
    }
    return &found->second;
}

void DefineFunctions(mu::Parser& parser)
{
    parser.DefineFun("floor", Floor);
    parser.DefineFun("ceil", Ceil);
    parser.DefineFun("step", StepUp);
    parser.DefineFun("near", Nearest);
    parser.DefineFun("motor", NextMotor);
    parser.DefineFun("amp", NextCurrent);
    parser.DefineFun("dn", NextNominalSize);
}

} // namespace

Formula::Formula(const std::string& expression, Variables& variables, std::string where)
    : m_parser(std::make_unique<mu::Parser>()), m_where(std::move(where) + ", \"" + expression + '"')
{
    try {
        DefineFunctions(*m_parser);
        m_parser->SetVarFactory(FindVariable, &variables);
        m_parser->SetExpr(expression);
        // The first evaluation compiles; a fault in the text comes out here and not at some later value.
        m_parser->Eval();
    } catch (const mu::ParserError& fault) {
        throw SourceError(m_where, fault.GetMsg());
    }
}

Formula::~Formula() = default;
Formula::Formula(Formula&&) noexcept = default;
Formula& Formula::operator=(Formula&&) noexcept = default;

double Formula::Value() const
{
    const double value = m_parser->Eval();
    if (std::isinf(value)) {
        throw SourceError(m_where, "the value is infinite");
    }
    return value;
}

} // namespace samplelibrary
