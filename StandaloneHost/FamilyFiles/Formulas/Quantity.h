#pragma once

#include <string_view>

namespace familyfiles {

/// What a number measures. In formulas and recipes each quantity has one base unit, in which all its numbers are.
///
/// A plain number is none of them; where it meets a quantity, in a sum for example, it is taken to be in its base unit.
enum class Quantity
{
    Plain,
    Length,            ///< mm
    Area,              ///< mm2
    Volume,            ///< mm3
    Angle,             ///< deg
    Time,              ///< s
    Velocity,          ///< m/s
    VolumeFlow,        ///< m3/h
    MassFlow,          ///< kg/h
    Mass,              ///< kg
    LinearMass,        ///< kg/m
    Density,           ///< kg/m3
    Concentration,     ///< mg/L
    Force,             ///< N
    Torque,            ///< N·m
    Pressure,          ///< kPa
    Power,             ///< kW, apparent and reactive power too
    Energy,            ///< kWh
    Temperature,       ///< °C; differences of temperatures are in the same unit
    TemperatureRate,   ///< K/min
    Conductivity,      ///< W/(m·K)
    HeatTransfer,      ///< W/(m²·K)
    HeatResistance,    ///< m²·K/W
    Current,           ///< A
    Charge,            ///< Ah
    Voltage,           ///< V
    Resistance,        ///< Ω
    LinearResistance,  ///< Ω/km
    LiquidConductance, ///< µS/cm
    Frequency,         ///< Hz
    RotationalSpeed,   ///< r/min
    LuminousFlux,      ///< lm
    LuminousEfficacy,  ///< lm/W
    Illuminance,       ///< lx
    Luminance,         ///< cd/m²
    SoundLevel,        ///< dB
    Radioactivity,     ///< Bq
    DataRate           ///< Mbit/s
};

/// What the quantity is called in a message, as in "length".
std::string_view EnglishName(Quantity quantity);
std::string_view ChineseName(Quantity quantity);

} // namespace familyfiles
