#include "FamilyFiles/Backend/EngineFunction.h"

#include "FamilyFiles/Backend/FormulaFault.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <numeric>

namespace familyfiles {

namespace {

constexpr double Pi = 3.14159265358979323846;

/// What is not finite has come out of a sum, a difference or a product of finite numbers.
double Checked(double argument)
{
    if (!std::isfinite(argument)) {
        throw FormulaFault::Overflow;
    }
    return argument;
}

double CheckedResult(double result)
{
    if (std::isnan(result)) {
        throw FormulaFault::NotANumber;
    }
    return Checked(result);
}

template <double (*Function)(double)>
double Plain(double x)
{
    return CheckedResult(Function(Checked(x)));
}

double Divide(double x, double y)
{
    if (y == 0.0) {
        throw FormulaFault::DivisionByZero;
    }
    return Checked(Checked(x) / Checked(y));
}

double Mod(double x, double y)
{
    if (y == 0.0) {
        throw FormulaFault::DivisionByZero;
    }
    const double rest = std::fmod(Checked(x), Checked(y));
    return rest != 0.0 && (rest < 0.0) != (y < 0.0) ? rest + y : rest;
}

double Power(double x, double y)
{
    if (x == 0.0 && y < 0.0) {
        throw FormulaFault::DivisionByZero;
    }
    return CheckedResult(std::pow(Checked(x), Checked(y)));
}

/// Logarithms have no value at 0, where the function gives infinity.
template <double (*Function)(double)>
double Logarithm(double x)
{
    if (x <= 0.0) {
        throw FormulaFault::NotANumber;
    }
    return Plain<Function>(x);
}

double Less(double x, double y)
{
    return Checked(x) < Checked(y) ? 1.0 : 0.0;
}

double LessOrEqual(double x, double y)
{
    return Checked(x) <= Checked(y) ? 1.0 : 0.0;
}

double Equal(double x, double y)
{
    return Checked(x) == Checked(y) ? 1.0 : 0.0;
}

double NotEqual(double x, double y)
{
    return Checked(x) != Checked(y) ? 1.0 : 0.0;
}

double Sign(double x)
{
    return Checked(x) > 0.0 ? 1.0 : x < 0.0 ? -1.0 : 0.0;
}

/// The quarter of the circle in which an angle lies, counted from -45 degrees, and what is left of the angle, in
/// radians. Multiples of 90 degrees leave exactly nothing.
struct Quarter
{
    unsigned number;
    double rest;
};

Quarter QuarterOf(double degrees)
{
    int quotient = 0;
    const double rest = std::remquo(Checked(degrees), 90.0, &quotient);
    return {static_cast<unsigned>(quotient) & 3U, rest * Pi / 180.0};
}

double SineAt(const Quarter& at)
{
    const double size = at.number % 2 == 0 ? std::sin(at.rest) : std::cos(at.rest);
    return at.number < 2 ? size : -size;
}

double Sine(double degrees)
{
    return SineAt(QuarterOf(degrees));
}

double Cosine(double degrees)
{
    const Quarter at = QuarterOf(degrees);
    return SineAt({(at.number + 1) & 3U, at.rest});
}

double Tangent(double degrees)
{
    const double cosine = Cosine(degrees);
    if (cosine == 0.0) {
        throw FormulaFault::NotANumber;
    }
    return Sine(degrees) / cosine;
}

template <double (*Function)(double)>
double AngleFrom(double x)
{
    return Plain<Function>(x) * 180.0 / Pi;
}

double Atan2(double y, double x)
{
    return std::atan2(Checked(y), Checked(x)) * 180.0 / Pi;
}

double Hypot(double x, double y)
{
    return Checked(std::hypot(Checked(x), Checked(y)));
}

void CheckAll(const double* values, int count)
{
    std::for_each(values, values + count, Checked);
}

double Sum(const double* values, int count)
{
    return Checked(std::accumulate(values, values + count, 0.0));
}

double Average(const double* values, int count)
{
    return Sum(values, count) / count;
}

double Minimum(const double* values, int count)
{
    CheckAll(values, count);
    return *std::min_element(values, values + count);
}

double Maximum(const double* values, int count)
{
    CheckAll(values, count);
    return *std::max_element(values, values + count);
}

/// Sorted by name.
constexpr EngineFunction Functions[] = {
    {"abs", Plain<std::fabs>, nullptr, nullptr},
    {"acos", AngleFrom<std::acos>, nullptr, nullptr},
    {"asin", AngleFrom<std::asin>, nullptr, nullptr},
    {"atan", AngleFrom<std::atan>, nullptr, nullptr},
    {"atan2", nullptr, Atan2, nullptr},
    {"avg", nullptr, nullptr, Average},
    {"cbrt", Plain<std::cbrt>, nullptr, nullptr},
    {"ceil", Plain<std::ceil>, nullptr, nullptr},
    {"cos", Cosine, nullptr, nullptr},
    {"cosh", Plain<std::cosh>, nullptr, nullptr},
    {"div", nullptr, Divide, nullptr},
    {"eq", nullptr, Equal, nullptr},
    {"exp", Plain<std::exp>, nullptr, nullptr},
    {"floor", Plain<std::floor>, nullptr, nullptr},
    {"hypot", nullptr, Hypot, nullptr},
    {"le", nullptr, LessOrEqual, nullptr},
    {"ln", Logarithm<std::log>, nullptr, nullptr},
    {"log10", Logarithm<std::log10>, nullptr, nullptr},
    {"log2", Logarithm<std::log2>, nullptr, nullptr},
    {"lt", nullptr, Less, nullptr},
    {"max", nullptr, nullptr, Maximum},
    {"min", nullptr, nullptr, Minimum},
    {"mod", nullptr, Mod, nullptr},
    {"ne", nullptr, NotEqual, nullptr},
    {"pow", nullptr, Power, nullptr},
    {"round", Plain<std::round>, nullptr, nullptr},
    {"sign", Sign, nullptr, nullptr},
    {"sin", Sine, nullptr, nullptr},
    {"sinh", Plain<std::sinh>, nullptr, nullptr},
    {"sqrt", Plain<std::sqrt>, nullptr, nullptr},
    {"sum", nullptr, nullptr, Sum},
    {"tan", Tangent, nullptr, nullptr},
    {"tanh", Plain<std::tanh>, nullptr, nullptr},
    {"trunc", Plain<std::trunc>, nullptr, nullptr},
};

} // namespace

const EngineFunction& EngineFunction::Get(std::string_view name)
{
    return *std::lower_bound(std::begin(Functions), std::end(Functions), name,
        [](const EngineFunction& function, std::string_view wanted) { return function.name < wanted; });
}

} // namespace familyfiles
