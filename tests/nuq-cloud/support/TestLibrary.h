#pragma once

#include <QTemporaryDir>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace cloudtest {

/// A row of the category table; names are made from the code.
struct CategoryRow
{
    int id = 0;
    std::string code;
    int parentId = 0;
    std::string parentCode;
    int major = 0;
    int first = 0;
    int count = 0;
};

/// A row of the component table.
struct ComponentRow
{
    std::string id;
    std::string categoryCode;
    std::string search;
};

/// What a library is made from.
struct LibraryContent
{
    std::vector<CategoryRow> categories;
    std::vector<ComponentRow> components;
};

/// A library folder in a temporary place: seven components of three end categories, two legends, a mapping and a
/// project, unless it is made from other content.
class TestLibrary
{
public:
    TestLibrary();
    explicit TestLibrary(const LibraryContent& content);

    std::filesystem::path Path() const;

    /// Replaces a file of the library.
    void Write(const std::string& name, const std::string& bytes) const;

private:
    QTemporaryDir m_folder;
};

/// The content of the default library.
LibraryContent SmallContent();

/// The two parameter definitions of the default library's pumps, as JSON, under names in some language.
std::string DefinitionsJson(const std::string& first, const std::string& second);

} // namespace cloudtest
