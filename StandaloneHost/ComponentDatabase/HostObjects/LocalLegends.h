#pragma once

#include "ComponentDatabase/HostObjects/LocalDatabase.h"
#include "tarn/TarnComponentSqlUtil.h"

namespace componentdatabase {

/// The host's look-up of legends in component databases: in that of the current product, and in any other file for
/// which it is asked, which is then opened for the one call. Usable from several threads.
class LocalLegends final : public tarn::TarnComponentSqlUtil
{
public:
    /// @param database must live longer
    explicit LocalLegends(const LocalDatabase& database) : m_database(database) {}

private:
    bool DoGetLocalLegendsOfTheCategory(const std::wstring& dbPath, const std::wstring& categoryCode,
        tarn::TarnLegendType type, std::map<std::wstring, std::wstring>& legends) const override;

    const LocalDatabase& m_database;
};

} // namespace componentdatabase
