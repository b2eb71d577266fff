#include "FamilyFiles/Formulas/Quantity.h"

#include <array>
#include <cstddef>

namespace familyfiles {

namespace {

struct QuantityName
{
    std::string_view english;
    std::string_view chinese;
};

constexpr std::size_t QuantityCount = static_cast<std::size_t>(Quantity::DataRate) + 1;

/// In the order of the enumeration.
constexpr std::array<QuantityName, QuantityCount> Names{{
    {"plain number", "纯数"},
    {"length", "长度"},
    {"area", "面积"},
    {"volume", "体积"},
    {"angle", "角度"},
    {"time", "时间"},
    {"velocity", "速度"},
    {"volume flow", "体积流量"},
    {"mass flow", "质量流量"},
    {"mass", "质量"},
    {"mass per length", "单位长度质量"},
    {"density", "密度"},
    {"concentration", "浓度"},
    {"force", "力"},
    {"torque", "力矩"},
    {"pressure", "压力"},
    {"power", "功率"},
    {"energy", "能量"},
    {"temperature", "温度"},
    {"rate of temperature", "温度变化率"},
    {"thermal conductivity", "导热系数"},
    {"heat transfer coefficient", "传热系数"},
    {"thermal resistance", "热阻"},
    {"current", "电流"},
    {"charge", "电荷量"},
    {"voltage", "电压"},
    {"resistance", "电阻"},
    {"resistance per length", "单位长度电阻"},
    {"conductance of a liquid", "电导率"},
    {"frequency", "频率"},
    {"speed of rotation", "转速"},
    {"luminous flux", "光通量"},
    {"luminous efficacy", "光效"},
    {"illuminance", "照度"},
    {"luminance", "亮度"},
    {"sound level", "声级"},
    {"radioactivity", "放射性活度"},
    {"data rate", "数据速率"},
}};

const QuantityName& NameOf(Quantity quantity)
{
    return Names[static_cast<std::size_t>(quantity)];
}

} // namespace

std::string_view EnglishName(Quantity quantity)
{
    return NameOf(quantity).english;
}

std::string_view ChineseName(Quantity quantity)
{
    return NameOf(quantity).chinese;
}

} // namespace familyfiles
