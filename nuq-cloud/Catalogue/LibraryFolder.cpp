#include "Catalogue/LibraryFolder.h"

#include <fstream>
#include <nlohmann/json.hpp>

namespace nuqcloud {
namespace {

constexpr int kSchema = 1;

std::string BuildHint(const std::filesystem::path& folder)
{
    return " Build one with: sample-library-builder \"" + folder.string() + "\"";
}

std::int64_t Count(const nlohmann::json& document, const char* key)
{
    const auto it = document.find(key);
    return it != document.end() && it->is_number_integer() ? it->get<std::int64_t>() : -1;
}

nlohmann::json ReadManifest(const std::filesystem::path& folder)
{
    std::ifstream file(folder / "library.json", std::ios::binary);
    if (!file) {
        throw LibraryError("There is no sample library in \"" + folder.string() + "\" (library.json cannot be read)." +
                           BuildHint(folder) + ", or name another with --library.");
    }
    auto document = nlohmann::json::parse(file, nullptr, false);
    if (!document.is_object()) {
        throw DamagedLibrary(folder, "library.json is not a JSON object");
    }
    return document;
}

} // namespace

LibraryError DamagedLibrary(const std::filesystem::path& folder, const std::string& reason)
{
    return LibraryError("The sample library in \"" + folder.string() + "\" is damaged: " + reason + "." +
                        BuildHint(folder) + " after removing the folder.");
}

LibraryFolder::LibraryFolder(const std::filesystem::path& folder) : m_path(folder)
{
    const nlohmann::json manifest = ReadManifest(folder);
    if (Count(manifest, "schema") != kSchema) {
        throw LibraryError("The sample library in \"" + folder.string() +
                           "\" was made for another version of nuq-cloud (its schema is not 1)." + BuildHint(folder) +
                           " after removing the folder.");
    }
    m_componentCount = Count(manifest, "components");
    m_categoryCount = Count(manifest, "categories");
    if (m_componentCount < 0 || m_categoryCount < 0) {
        throw DamagedLibrary(folder, "library.json does not state its components and categories");
    }
    if (!std::filesystem::is_regular_file(CatalogueFile())) {
        throw DamagedLibrary(folder, "catalogue.db is missing");
    }
}

} // namespace nuqcloud
