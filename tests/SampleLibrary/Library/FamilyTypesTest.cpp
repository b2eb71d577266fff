#include "support/BuiltLibrary.h"

#include "Reading/Texts.h"

#include <gtest/gtest.h>
#include <set>

namespace {

bool IsWhole(const std::string& text)
{
    return !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
}

/// What is wrong with a value; empty when nothing is.
std::string Fault(const Definition& definition, const nlohmann::json& value)
{
    if (value.is_null()) {
        return definition.at("isEssential") && !definition.at("isInstance") ? "is essential and not given" : "";
    }
    if (!value.is_string()) {
        return "is no text";
    }
    const std::string text = value.get<std::string>();
    const std::string type = definition.at("valueType");
    if (type == "Number" && definition.at("parameterType") == "Int") {
        return IsWhole(text) ? "" : "is no whole number";
    }
    if (type == "Number") {
        return samplelibrary::ParsedNumber(text) ? "" : "is no number";
    }
    if (type == "Logic") {
        return text == "true" || text == "false" ? "" : "is neither true nor false";
    }
    if (type == "Enum") {
        return definition.at("values").contains(text) ? "" : "is not allowed";
    }
    return text.empty() || text.find('{') != std::string::npos || text.find("nan") != std::string::npos
               ? "is no filled text"
               : "";
}

TEST(FamilyTypes, GiveEveryParameterAValueItCanHave)
{
    BuiltLibrary library;
    std::set<std::string> faults;
    library.ForEachComponent("%", [&](const CatalogueComponent& component) {
        const std::vector<Definition>& definitions = library.Definitions(component.CategoryCode);
        for (const nlohmann::json& type : component.FamilyTypes) {
            ASSERT_EQ(type.at("values").size(), definitions.size()) << component.Id;
            for (std::size_t at = 0; at < definitions.size(); ++at) {
                const std::string fault = Fault(definitions[at], type.at("values").at(at));
                if (!fault.empty()) {
                    faults.insert(component.CategoryCode + ' ' + definitions[at].at("code").get<std::string>() + ' ' +
                                  type.at("values").at(at).dump() + ' ' + fault);
                }
            }
        }
    });
    EXPECT_EQ(faults, std::set<std::string>());
}

TEST(FamilyTypes, HaveNamesThatStandInUrlsAndDifferWithinAComponent)
{
    BuiltLibrary library;
    library.ForEachComponent("%", [&](const CatalogueComponent& component) {
        std::set<std::string> names;
        for (const nlohmann::json& type : component.FamilyTypes) {
            const std::string name = type.at("name");
            ASSERT_TRUE(names.insert(name).second) << component.Id << ' ' << name;
            ASSERT_EQ(name.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789._-"),
                std::string::npos)
                << component.Id << ' ' << name;
        }
        ASSERT_FALSE(names.empty());
    });
}

TEST(FamilyTypes, AreMarkedByAReferenceOfTheirOwn)
{
    BuiltLibrary library;
    std::set<std::string> references;
    library.ForEachType("%", [&](const CatalogueComponent& component, const std::string& type, const Values& values) {
        ASSERT_EQ(values.at("Reference"), component.Id + '-' + type);
        ASSERT_TRUE(references.insert(values.at("Reference")).second);
        ASSERT_FALSE(values.at("Standard").empty());
        ASSERT_EQ(values.at("Series"), "1");
    });
}

TEST(FamilyTypes, HaveNoNegativeSizesWeightsOrPowers)
{
    BuiltLibrary library;
    std::set<std::string> faults;
    library.ForEachType("%", [&](const CatalogueComponent& component, const std::string& type, const Values& values) {
        for (const char* code : {"DN", "OD", "Wall", "ID", "Length", "Width", "Height", "Depth", "Diameter",
                 "FaceToFace", "Weight", "WeightPerMetre", "Flow", "Head", "MotorPower", "AirFlow", "CoolingCapacity",
                 "HeatingCapacity", "InputPower", "Current", "Flux", "Volume", "FreeArea", "FaceArea", "HeatOutput",
                 "WaterFlow", "Efficiency"}) {
            const auto found = values.find(code);
            if (found != values.end() && Number(values, code) <= 0.0) {
                faults.insert(component.CategoryCode + ' ' + type + ' ' + code + " = " + found->second);
            }
        }
    });
    EXPECT_EQ(faults, std::set<std::string>());
}

} // namespace
