#include "FamilyFiles/Formulas/Unit.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace familyfiles {

namespace {

constexpr double Pi = 3.14159265358979323846;

// clang-format off
/// The first unit of a quantity that has the factor 1 is its base unit.
constexpr Unit Units[] = {
    {"", Quantity::Plain, 1}, {"-", Quantity::Plain, 1}, {"%", Quantity::Plain, 1}, {"ppm", Quantity::Plain, 1}, {"pH", Quantity::Plain, 1},
    {"mm", Quantity::Length, 1}, {"um", Quantity::Length, 1e-3}, {"µm", Quantity::Length, 1e-3}, {"μm", Quantity::Length, 1e-3},
    {"cm", Quantity::Length, 10}, {"dm", Quantity::Length, 100}, {"m", Quantity::Length, 1000}, {"km", Quantity::Length, 1e6},
    {"in", Quantity::Length, 25.4}, {"ft", Quantity::Length, 304.8},
    {"mm2", Quantity::Area, 1}, {"mm²", Quantity::Area, 1}, {"cm2", Quantity::Area, 100}, {"cm²", Quantity::Area, 100},
    {"m2", Quantity::Area, 1e6}, {"m²", Quantity::Area, 1e6},
    {"mm3", Quantity::Volume, 1}, {"mm³", Quantity::Volume, 1}, {"cm3", Quantity::Volume, 1e3}, {"cm³", Quantity::Volume, 1e3},
    {"mL", Quantity::Volume, 1e3}, {"L", Quantity::Volume, 1e6}, {"l", Quantity::Volume, 1e6},
    {"m3", Quantity::Volume, 1e9}, {"m³", Quantity::Volume, 1e9},
    {"deg", Quantity::Angle, 1}, {"°", Quantity::Angle, 1}, {"rad", Quantity::Angle, 180 / Pi},
    {"s", Quantity::Time, 1}, {"ms", Quantity::Time, 1e-3}, {"min", Quantity::Time, 60}, {"h", Quantity::Time, 3600}, {"d", Quantity::Time, 86400},
    {"m/s", Quantity::Velocity, 1}, {"mm/s", Quantity::Velocity, 1e-3}, {"m/min", Quantity::Velocity, 1.0 / 60}, {"km/h", Quantity::Velocity, 1 / 3.6},
    {"m3/h", Quantity::VolumeFlow, 1}, {"m³/h", Quantity::VolumeFlow, 1}, {"m3/s", Quantity::VolumeFlow, 3600}, {"m³/s", Quantity::VolumeFlow, 3600},
    {"m3/min", Quantity::VolumeFlow, 60}, {"m³/min", Quantity::VolumeFlow, 60}, {"L/s", Quantity::VolumeFlow, 3.6}, {"l/s", Quantity::VolumeFlow, 3.6},
    {"L/min", Quantity::VolumeFlow, 0.06}, {"l/min", Quantity::VolumeFlow, 0.06}, {"L/h", Quantity::VolumeFlow, 1e-3}, {"l/h", Quantity::VolumeFlow, 1e-3},
    {"kg/h", Quantity::MassFlow, 1}, {"kg/s", Quantity::MassFlow, 3600}, {"t/h", Quantity::MassFlow, 1000},
    {"kg", Quantity::Mass, 1}, {"g", Quantity::Mass, 1e-3}, {"t", Quantity::Mass, 1000},
    {"kg/m", Quantity::LinearMass, 1},
    {"kg/m3", Quantity::Density, 1}, {"kg/m³", Quantity::Density, 1}, {"g/cm3", Quantity::Density, 1000}, {"g/cm³", Quantity::Density, 1000},
    {"mg/L", Quantity::Concentration, 1}, {"mg/l", Quantity::Concentration, 1}, {"g/L", Quantity::Concentration, 1000},
    {"N", Quantity::Force, 1}, {"kN", Quantity::Force, 1000},
    {"Nm", Quantity::Torque, 1}, {"N·m", Quantity::Torque, 1}, {"kNm", Quantity::Torque, 1000}, {"kN·m", Quantity::Torque, 1000},
    {"kPa", Quantity::Pressure, 1}, {"Pa", Quantity::Pressure, 1e-3}, {"MPa", Quantity::Pressure, 1000}, {"hPa", Quantity::Pressure, 0.1},
    {"bar", Quantity::Pressure, 100}, {"mbar", Quantity::Pressure, 0.1}, {"mH2O", Quantity::Pressure, 9.80665}, {"psi", Quantity::Pressure, 6.894757293168361},
    {"kW", Quantity::Power, 1}, {"W", Quantity::Power, 1e-3}, {"MW", Quantity::Power, 1000}, {"VA", Quantity::Power, 1e-3}, {"kVA", Quantity::Power, 1},
    {"MVA", Quantity::Power, 1000}, {"var", Quantity::Power, 1e-3}, {"kvar", Quantity::Power, 1}, {"hp", Quantity::Power, 0.73549875},
    {"kWh", Quantity::Energy, 1}, {"Wh", Quantity::Energy, 1e-3}, {"MJ", Quantity::Energy, 1 / 3.6}, {"kJ", Quantity::Energy, 1 / 3600.0}, {"J", Quantity::Energy, 1 / 3.6e6},
    {"°C", Quantity::Temperature, 1}, {"℃", Quantity::Temperature, 1}, {"degC", Quantity::Temperature, 1}, {"C", Quantity::Temperature, 1}, {"K", Quantity::Temperature, 1},
    {"K/min", Quantity::TemperatureRate, 1},
    {"W/(m·K)", Quantity::Conductivity, 1}, {"W/mK", Quantity::Conductivity, 1},
    {"W/(m²·K)", Quantity::HeatTransfer, 1}, {"W/m2K", Quantity::HeatTransfer, 1},
    {"m²·K/W", Quantity::HeatResistance, 1}, {"m2K/W", Quantity::HeatResistance, 1},
    {"A", Quantity::Current, 1}, {"mA", Quantity::Current, 1e-3}, {"kA", Quantity::Current, 1000},
    {"Ah", Quantity::Charge, 1}, {"A·h", Quantity::Charge, 1},
    {"V", Quantity::Voltage, 1}, {"mV", Quantity::Voltage, 1e-3}, {"kV", Quantity::Voltage, 1000},
    {"Ω", Quantity::Resistance, 1}, {"\u2126", Quantity::Resistance, 1}, {"ohm", Quantity::Resistance, 1}, {"kΩ", Quantity::Resistance, 1000}, {"kohm", Quantity::Resistance, 1000},
    {"Ω/km", Quantity::LinearResistance, 1}, {"ohm/km", Quantity::LinearResistance, 1},
    {"µS/cm", Quantity::LiquidConductance, 1}, {"μS/cm", Quantity::LiquidConductance, 1}, {"uS/cm", Quantity::LiquidConductance, 1},
    {"Hz", Quantity::Frequency, 1}, {"kHz", Quantity::Frequency, 1e3}, {"MHz", Quantity::Frequency, 1e6}, {"GHz", Quantity::Frequency, 1e9},
    {"r/min", Quantity::RotationalSpeed, 1}, {"rpm", Quantity::RotationalSpeed, 1}, {"r/s", Quantity::RotationalSpeed, 60},
    {"lm", Quantity::LuminousFlux, 1}, {"klm", Quantity::LuminousFlux, 1000},
    {"lm/W", Quantity::LuminousEfficacy, 1}, {"lx", Quantity::Illuminance, 1}, {"klx", Quantity::Illuminance, 1000},
    {"cd/m²", Quantity::Luminance, 1}, {"cd/m2", Quantity::Luminance, 1},
    {"dB", Quantity::SoundLevel, 1}, {"dB(A)", Quantity::SoundLevel, 1},
    {"Bq", Quantity::Radioactivity, 1},
    {"Mbit/s", Quantity::DataRate, 1}, {"kbit/s", Quantity::DataRate, 1e-3}, {"Gbit/s", Quantity::DataRate, 1000},
};
// clang-format on

constexpr std::size_t UnitCount = std::size(Units);

bool HasSmallerSymbol(const Unit* unit, const Unit* other)
{
    return unit->symbol < other->symbol;
}

std::array<const Unit*, UnitCount> SortedBySymbol()
{
    std::array<const Unit*, UnitCount> sorted{};
    for (std::size_t i = 0; i < UnitCount; ++i) {
        sorted[i] = &Units[i];
    }
    std::sort(sorted.begin(), sorted.end(), HasSmallerSymbol);
    return sorted;
}

} // namespace

const Unit* Unit::Find(std::string_view symbol)
{
    static const std::array<const Unit*, UnitCount> sorted = SortedBySymbol();
    const Unit wanted{symbol, Quantity::Plain, 1};
    const auto found = std::lower_bound(sorted.begin(), sorted.end(), &wanted, HasSmallerSymbol);
    return found != sorted.end() && (*found)->symbol == symbol ? *found : nullptr;
}

const Unit& Unit::Base(Quantity quantity)
{
    const auto* const found = std::find_if(std::begin(Units), std::end(Units),
        [quantity](const Unit& unit) { return unit.quantity == quantity && unit.factor == 1.0; });
    return *found;
}

} // namespace familyfiles
