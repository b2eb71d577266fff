#pragma once

#include "Catalogue/CategoryNode.h"
#include "Catalogue/ProjectPicker.h"
#include "Products/ComponentRow.h"
#include "Reading/ProductSource.h"

#include <cstddef>
#include <memory>
#include <string>

namespace samplelibrary {

/// Writes catalogue.db. The same calls in the same order give the same bytes. Every member throws SQLite::Exception
/// when the file cannot be written. Not for use by several threads at once.
class CatalogueDatabase
{
public:
    /// Makes the file @p path, which must not exist, with the tables of @p schema (SQL).
    CatalogueDatabase(const std::string& path, const std::string& schema, const ProductSource& source);
    ~CatalogueDatabase();

    /// Adds a category with @p weight as its place in the display order; an end category with its mapping and its
    /// legends.
    void AddCategory(const CategoryNode& node, double weight);

    /// Adds the property template of an end category, JSON arrays of definitions in both languages.
    void AddTemplate(const std::string& categoryCode, const BilingualText& definitions);

    /// Adds the component at @p position, which belongs to @p node.
    void AddComponent(std::size_t position, const CategoryNode& node, const ComponentRow& row);

    /// Adds a project.
    void AddProject(const Project& project);

    /// Adds the component at @p position to a project's library.
    void AddProjectComponent(
        const Project& project, const ProjectRow& row, const std::string& componentId, std::size_t position);

    /// Writes everything to the file and closes it. Without this call the file is worthless.
    void Finish();

private:
    struct Statements;

    void AddLegends(const CategoryNode& node);
    void AddMapping(const CategoryNode& node);

    const ProductSource& m_source;
    std::unique_ptr<Statements> m_statements;
};

} // namespace samplelibrary
