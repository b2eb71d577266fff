#pragma once

#include "ComponentDatabase/HostObjects/LocalDatabase.h"
#include "tarn/TarnFilePathSettings.h"

namespace componentdatabase {

/// Where the current product's database and its legends lie. Usable from several threads.
class ProductPaths final : public tarn::TarnFilePathSettings
{
public:
    /// @param database must live longer
    explicit ProductPaths(const LocalDatabase& database) : m_database(database) {}

private:
    std::wstring DoGetCurrentProductDBFilePath() const override;
    /// The folder that the database names; empty when there is no database.
    std::wstring DoGetCurrentProduct2DFolderPath() const override;

    const LocalDatabase& m_database;
};

} // namespace componentdatabase
