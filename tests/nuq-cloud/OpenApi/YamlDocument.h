#pragma once

#include <nlohmann/json.hpp>
#include <string>

namespace cloudtest {

/// A YAML file as JSON, by the types of YAML's core schema; a quoted scalar is a text.
/// @throws std::exception when the file is not YAML
nlohmann::json ReadYaml(const std::string& file);

} // namespace cloudtest
