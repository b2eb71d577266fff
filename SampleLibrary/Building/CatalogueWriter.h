#pragma once

#include "Building/BuildOptions.h"
#include "Building/BuildResult.h"
#include "Building/LibraryBuilder.h"
#include "Catalogue/CatalogueDatabase.h"
#include "Catalogue/CategoryTree.h"
#include "Catalogue/ProjectPicker.h"
#include "Reading/ProductSource.h"

#include <QString>
#include <atomic>
#include <cstddef>
#include <string>
#include <vector>

namespace samplelibrary {

/// Makes the catalogue and writes its database. Components are made on several threads in small parts and written in
/// order.
class CatalogueWriter
{
public:
    /// @param files, source, isStopped must live longer
    CatalogueWriter(const SourceFiles& files, const ProductSource& source, const std::atomic<bool>& isStopped);

    /// Writes catalogue.db into @p folder. Throws BuildInterrupted, SourceError, SQLite::Exception.
    BuildResult Write(
        const QString& folder, const BuildOptions& options, const LibraryBuilder::Progress& progress) const;

private:
    /// Some consecutive components of an end category.
    struct Part
    {
        const CategoryNode* Node = nullptr;
        std::size_t First = 0; ///< index within the category
        std::size_t Count = 0;
    };

    /// A part as made, with the category's template if it is the first.
    struct MadePart
    {
        const CategoryNode* Node = nullptr;
        BilingualText Definitions;
        std::vector<ComponentRow> Rows;
        std::size_t First = 0;
    };

    std::vector<std::size_t> NaturalCounts(std::size_t jobs) const;
    CategoryTree MakeTree(const BuildOptions& options) const;
    static std::vector<Part> Parts(const CategoryTree& tree);
    MadePart MakePart(const Part& part) const;
    void WritePart(CatalogueDatabase& database, std::vector<ProjectPicker>& pickers, const MadePart& part) const;
    void ThrowIfStopped() const;

    const SourceFiles& m_files;
    const ProductSource& m_source;
    const std::atomic<bool>& m_isStopped;
};

} // namespace samplelibrary
