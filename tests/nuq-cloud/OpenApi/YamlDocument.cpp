#include "nuq-cloud/OpenApi/YamlDocument.h"

#include <yaml-cpp/yaml.h>

namespace cloudtest {
namespace {

nlohmann::json ToJson(const YAML::Node& node);

nlohmann::json ScalarToJson(const YAML::Node& node)
{
    const std::string& text = node.Scalar();
    std::int64_t integer = 0;
    double number = 0.0;
    bool boolean = false;
    if (node.Tag() == "!") {
        return text;
    }
    if (YAML::convert<std::int64_t>::decode(node, integer)) {
        return integer;
    }
    if (YAML::convert<double>::decode(node, number)) {
        return number;
    }
    if ((text == "true" || text == "false") && YAML::convert<bool>::decode(node, boolean)) {
        return boolean;
    }
    return text;
}

nlohmann::json MapToJson(const YAML::Node& node)
{
    auto object = nlohmann::json::object();
    for (const auto& member : node) {
        object[member.first.Scalar()] = ToJson(member.second);
    }
    return object;
}

nlohmann::json ToJson(const YAML::Node& node)
{
    if (node.IsMap()) {
        return MapToJson(node);
    }
    if (node.IsScalar()) {
        return ScalarToJson(node);
    }
    if (!node.IsSequence()) {
        return nullptr;
    }
    auto array = nlohmann::json::array();
    for (const YAML::Node& element : node) {
        array.push_back(ToJson(element));
    }
    return array;
}

} // namespace

nlohmann::json ReadYaml(const std::string& file)
{
    return ToJson(YAML::LoadFile(file));
}

} // namespace cloudtest
