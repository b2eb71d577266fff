#include "Program/EnvironmentFiles.h"

#include <fstream>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <system_error>
#include <unistd.h>

namespace nuqcloud {
namespace {

using Json = nlohmann::ordered_json;

std::runtime_error CannotWrite(const std::filesystem::path& path, const std::string& reason)
{
    return std::runtime_error("Cannot write \"" + path.string() + "\": " + reason + '.');
}

std::string Document(const Json& json)
{
    return json.dump(2) + '\n';
}

std::string EndPoints(const std::string& url)
{
    return Document({{"test", {{"api", url + "/qa/api"}, {"static", url + "/qa/static"}}},
        {"production", {{"api", url + "/api"}, {"static", url + "/static"}}}});
}

std::string StructureEndPoints(const std::string& url)
{
    return Document({{"qa", {{"structure", url + "/qa/structure"}}}, {"prod", {{"structure", url + "/structure"}}}});
}

std::string WabEnvironments()
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<envs>\n"
           "  <env name=\"qa\" scheme=\"bearer\"/>\n"
           "  <env name=\"prod\" scheme=\"none\"/>\n"
           "</envs>\n";
}

std::string MainFile()
{
    return Document({{"wab_env", "/nuq_env_config/wab_env.xml"}, {"pyx_env", "/nuq_env_config/pyx_env.json"},
        {"env_map", "/nuq_env_config/env_map.json"}});
}

} // namespace

void WriteFileAtomically(const std::filesystem::path& file, const std::string& text)
{
    const std::filesystem::path beside = file.string() + ".new-" + std::to_string(::getpid());
    std::ofstream stream(beside, std::ios::binary | std::ios::trunc);
    stream.write(text.data(), static_cast<std::streamsize>(text.size()));
    stream.close();
    std::error_code error;
    if (!stream) {
        std::filesystem::remove(beside, error);
        throw CannotWrite(file, "the folder is not writable or the disk is full");
    }
    std::filesystem::rename(beside, file, error);
    if (error) {
        const std::string reason = error.message();
        std::filesystem::remove(beside, error);
        throw CannotWrite(file, reason);
    }
}

void WriteEnvironmentFiles(const std::filesystem::path& folder, const std::string& url)
{
    const std::filesystem::path target = folder / kConfigFolder;
    std::error_code error;
    std::filesystem::create_directories(target, error);
    if (error) {
        throw CannotWrite(target, error.message());
    }
    WriteFileAtomically(target / "wab_env.xml", WabEnvironments());
    WriteFileAtomically(target / "wab_endpoints.json", StructureEndPoints(url));
    WriteFileAtomically(target / "pyx_env.json", EndPoints(url));
    WriteFileAtomically(target / "env_map.json", Document({{"qa", "test"}, {"prod", "production"}}));
    WriteFileAtomically(target / "nuq_env_config.json", MainFile());
}

} // namespace nuqcloud
