#pragma once

#include <cstdint>
#include <filesystem>
#include <stdexcept>
#include <string>

namespace nuqcloud {

/// A library folder that cannot be served; the text says what is wrong and what to do about it.
class LibraryError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// The folder that the sample-library builder makes: library.json, catalogue.db and static/.
class LibraryFolder
{
public:
    /// Reads library.json and checks that all parts are there.
    /// @throws LibraryError
    explicit LibraryFolder(const std::filesystem::path& folder);

    const std::filesystem::path& Path() const { return m_path; }
    std::filesystem::path CatalogueFile() const { return m_path / "catalogue.db"; }
    std::filesystem::path StaticFolder() const { return m_path / "static"; }

    /// Numbers that the builder wrote down; the catalogue must agree with them.
    std::int64_t ComponentCount() const { return m_componentCount; }
    std::int64_t CategoryCount() const { return m_categoryCount; }

private:
    std::filesystem::path m_path;
    std::int64_t m_componentCount = 0;
    std::int64_t m_categoryCount = 0;
};

/// The error for a library that is there but not whole.
LibraryError DamagedLibrary(const std::filesystem::path& folder, const std::string& reason);

} // namespace nuqcloud
