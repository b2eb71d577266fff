#include "support/BuiltLibrary.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

bool Has(const Values& values, const std::string& code)
{
    return values.count(code) != 0;
}

/// Whether two numbers agree up to the rounding of catalogue values.
void ExpectAbout(double value, double expected, double share, const std::string& what)
{
    EXPECT_NEAR(value, expected, std::abs(expected) * share + 0.02) << what;
}

TEST(Physics, PipesAreHollowAndGrowWithTheirNominalSize)
{
    BuiltLibrary library;
    int count = 0;
    std::string lastComponent;
    double lastDiameter = 0.0;
    library.ForEachType(
        "%.PIPE.%", [&](const CatalogueComponent& component, const std::string& type, const Values& values) {
            if (!Has(values, "OD") || !Has(values, "Wall")) {
                return;
            }
            const std::string what = component.Id + ' ' + type;
            const double diameter = Number(values, "OD");
            ASSERT_GT(diameter, 2.0 * Number(values, "Wall")) << what;
            ASSERT_NEAR(Number(values, "ID"), diameter - 2.0 * Number(values, "Wall"), 0.011) << what;
            ASSERT_GE(Number(values, "Wall"), 0.5) << what;
            if (component.Id == lastComponent) {
                ASSERT_GT(diameter, lastDiameter) << what;
            }
            lastComponent = component.Id;
            lastDiameter = diameter;
            ++count;
        });
    EXPECT_GT(count, 2000);
}

TEST(Physics, HigherPressureNeedsAThickerWall)
{
    BuiltLibrary library;
    std::map<std::string, std::map<double, double>> wallByPressure;
    library.ForEachType(
        "HTG.PIPE.SEAMLESS", [&](const CatalogueComponent&, const std::string& type, const Values& values) {
            wallByPressure[type][Number(values, "PN")] = Number(values, "Wall");
        });
    ASSERT_GT(wallByPressure.size(), 10U);
    for (const auto& [type, walls] : wallByPressure) {
        ASSERT_EQ(walls.size(), 3U);
        EXPECT_LE(walls.at(1.6), walls.at(2.5)) << type;
        EXPECT_LE(walls.at(2.5), walls.at(4.0)) << type;
        EXPECT_LT(walls.at(1.6), walls.at(4.0)) << type;
    }
}

TEST(Physics, SteelPipesHaveTheSizesOfTheirStandard)
{
    BuiltLibrary library;
    bool isFound = false;
    library.ForEachType(
        "WAT.PIPE.GALV", [&](const CatalogueComponent& component, const std::string& type, const Values& values) {
            if (component.Id == "C105801-001" && type == "DN50") {
                isFound = true;
                EXPECT_EQ(values.at("OD"), "60.3");
                EXPECT_EQ(values.at("Wall"), "3.8");
                EXPECT_EQ(values.at("ID"), "52.7");
                EXPECT_EQ(values.at("TestPressure"), "1.5");
                ExpectAbout(Number(values, "WeightPerMetre"), 0.0246615 * (60.3 - 3.8) * 3.8, 0.01, type);
            }
        });
    EXPECT_TRUE(isFound);
}

TEST(Physics, PumpPowerFollowsFromFlowHeadAndEfficiency)
{
    BuiltLibrary library;
    int count = 0;
    library.ForEachType(
        "%.PUMP.%", [&](const CatalogueComponent& component, const std::string& type, const Values& values) {
            const std::string what = component.Id + ' ' + type;
            const double efficiency = Number(values, "Efficiency") / 100.0;
            const double hydraulic = 1000.0 * 9.81 * Number(values, "Flow") / 3600.0 * Number(values, "Head") / 1000.0;
            ASSERT_GE(efficiency, 0.3) << what;
            ASSERT_LE(efficiency, 0.9) << what;
            ExpectAbout(Number(values, "ShaftPower"), hydraulic / efficiency, 0.01, what);
            ASSERT_GE(Number(values, "MotorPower"), Number(values, "ShaftPower")) << what;
            ASSERT_LE(Number(values, "MotorPower"), std::max(0.18, Number(values, "ShaftPower") * 2.2)) << what;
            ASSERT_GT(Number(values, "ShutOffHead"), Number(values, "Head")) << what;
            ASSERT_LT(Number(values, "FlowMin"), Number(values, "Flow")) << what;
            ASSERT_GT(Number(values, "FlowMax"), Number(values, "Flow")) << what;
            ASSERT_LT(Number(values, "Speed"), 6000.0 / Number(values, "PoleNumber")) << what << ": a motor slips";
            ++count;
        });
    EXPECT_GT(count, 1000);
}

TEST(Physics, FanPowerFollowsFromFlowPressureAndEfficiency)
{
    BuiltLibrary library;
    int count = 0;
    library.ForEachType(
        "%.FAN.%", [&](const CatalogueComponent& component, const std::string& type, const Values& values) {
            const std::string what = component.Id + ' ' + type;
            const double air = Number(values, "AirFlow") / 3600.0 * Number(values, "TotalPressure") / 1000.0;
            ExpectAbout(Number(values, "ShaftPower"), air / (Number(values, "Efficiency") / 100.0), 0.01, what);
            ASSERT_GE(Number(values, "MotorPower"), Number(values, "ShaftPower")) << what;
            ASSERT_LT(Number(values, "StaticPressure"), Number(values, "TotalPressure")) << what;
            ASSERT_LE(Number(values, "Efficiency"), 90.0) << what;
            ++count;
        });
    EXPECT_GT(count, 500);
}

TEST(Physics, CoolingMachinesObeyTheirCoefficientOfPerformance)
{
    BuiltLibrary library;
    int count = 0;
    library.ForEachType("CLG.CHL.%", [&](const CatalogueComponent& component, const std::string& type,
                                         const Values& values) {
        const std::string what = component.Id + ' ' + type;
        ExpectAbout(
            Number(values, "InputPower"), Number(values, "CoolingCapacity") / Number(values, "COP"), 0.01, what);
        ExpectAbout(Number(values, "WaterFlow"), Number(values, "CoolingCapacity") / (4.187 * 5.0) * 3.6, 0.02, what);
        ASSERT_GT(Number(values, "WaterIn"), Number(values, "WaterOut")) << what;
        ASSERT_GT(Number(values, "COP"), 2.0) << what;
        ASSERT_LT(Number(values, "COP"), 8.5) << what;
        ++count;
    });
    EXPECT_GT(count, 100);
}

TEST(Physics, LuminairesGiveTheFluxOfTheirPower)
{
    BuiltLibrary library;
    int count = 0;
    library.ForEachType(
        "LTG.LUM.%", [&](const CatalogueComponent& component, const std::string& type, const Values& values) {
            const double full = Number(values, "PowerW") * Number(values, "Efficacy");
            ASSERT_LE(Number(values, "Flux"), full + 1.0) << component.Id << ' ' << type;
            ASSERT_GE(Number(values, "Flux"), full * 0.9 - 1.0) << component.Id << ' ' << type;
            ++count;
        });
    EXPECT_GT(count, 500);
}

TEST(Physics, MotorsFollowPowerTorqueAndCurrent)
{
    BuiltLibrary library;
    int count = 0;
    library.ForEachType(
        "POW.MOT.INDUCTION", [&](const CatalogueComponent& component, const std::string& type, const Values& values) {
            const std::string what = component.Id + ' ' + type;
            const double power = Number(values, "MotorPower");
            ExpectAbout(Number(values, "Torque"), 9550.0 * power / Number(values, "Speed"), 0.01, what);
            ExpectAbout(Number(values, "Current"),
                power * 1000.0 /
                    (std::sqrt(3.0) * 380.0 * Number(values, "PowerFactor") * Number(values, "Efficiency") / 100.0),
                0.01, what);
            ASSERT_LT(Number(values, "Efficiency"), 97.0) << what;
            ++count;
        });
    EXPECT_GT(count, 100);
}

TEST(Physics, VesselsHaveTheVolumeOfTheirShell)
{
    BuiltLibrary library;
    int count = 0;
    library.ForEachType(
        "WAT.TANK.VESSEL", [&](const CatalogueComponent& component, const std::string& type, const Values& values) {
            const double radius = Number(values, "Diameter") / 2000.0;
            const double shell = 3.14159265 * radius * radius * Number(values, "Height");
            ASSERT_LE(Number(values, "Volume"), shell * 1.02) << component.Id << ' ' << type;
            ASSERT_GE(Number(values, "Volume"), shell * 0.85) << component.Id << ' ' << type;
            ++count;
        });
    EXPECT_GT(count, 50);
}

TEST(Physics, CablesCarryMoreWithALargerConductor)
{
    BuiltLibrary library;
    std::string lastComponent;
    double lastCurrent = 0.0;
    int count = 0;
    library.ForEachType(
        "POW.CBL.POWER", [&](const CatalogueComponent& component, const std::string& type, const Values& values) {
            const double current = Number(values, "Ampacity");
            if (component.Id == lastComponent) {
                ASSERT_GT(current, lastCurrent) << component.Id << ' ' << type;
            }
            // Copper at 20 °C has 17.24 ohm mm²/km; stranding and sizes below their name (50 mm²) add up to an eighth.
            const double product = Number(values, "Resistance") * Number(values, "CrossSection");
            ASSERT_GT(product, 17.2) << type;
            ASSERT_LT(product, 19.4) << type;
            lastComponent = component.Id;
            lastCurrent = current;
            ++count;
        });
    EXPECT_GT(count, 200);
}

TEST(Physics, BreakersFitTheirFrame)
{
    BuiltLibrary library;
    library.ForEachType(
        "POW.PRD.%", [&](const CatalogueComponent& component, const std::string& type, const Values& values) {
            if (Has(values, "FrameCurrent")) {
                ASSERT_LE(Number(values, "Current"), Number(values, "FrameCurrent")) << component.Id << ' ' << type;
            }
        });
}

TEST(Physics, HydrantsAndValvesHaveTestPressureAboveNominal)
{
    BuiltLibrary library;
    library.ForEachType("%", [&](const CatalogueComponent& component, const std::string& type, const Values& values) {
        if (Has(values, "TestPressure") && Has(values, "PN")) {
            ASSERT_GT(Number(values, "TestPressure"), Number(values, "PN")) << component.Id << ' ' << type;
        }
    });
}

} // namespace
