#pragma once

#include <nlohmann/json.hpp>
#include <string>

/// A small manifest with all that one can have: types, units, bounds, driven parameters, a recipe, a connector.
nlohmann::ordered_json SampleManifest();

/// A GUID for the parameter with this number.
std::string SampleGuid(unsigned number);
