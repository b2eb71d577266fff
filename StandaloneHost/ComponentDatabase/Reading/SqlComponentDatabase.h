#pragma once

#include "ComponentDatabase/ComponentDatabase.h"
#include "ComponentDatabase/Reading/DatabaseOpening.h"
#include "ComponentDatabase/Search/SearchReader.h"

#include <QThread>

namespace componentdatabase {

/// A component database in an SQLite file. The thread that opened it uses one connection all the time; others, which
/// must not share it, open one for each call.
class SqlComponentDatabase final : public ComponentDatabase
{
public:
    /// @return null, with a reason, when the file was refused
    static std::unique_ptr<SqlComponentDatabase> Open(
        const QString& path, DatabaseReason& reason, int waitMs = ReadingWaitMs);

    std::vector<DisciplineRow> Disciplines(DatabaseReason& reason) const override;
    std::vector<CategoryRow> Categories(DatabaseReason& reason) const override;
    std::vector<CategoryPropertyRow> Properties(qint64 categoryId, DatabaseReason& reason) const override;
    std::vector<LegendRow> Legends(const QString& categoryCode, int view, DatabaseReason& reason) const override;
    QString LegendFolder(DatabaseReason& reason) const override;
    std::optional<ComponentRow> Component(const QString& code, DatabaseReason& reason) const override;
    std::vector<FamilyTypeRow> FamilyTypes(qint64 componentId, DatabaseReason& reason) const override;
    SearchResult Search(const QString& text, int most, DatabaseReason& reason) const override;

private:
    SqlComponentDatabase(const QString& path, OpenedDatabase opened, int waitMs);

    /// Calls @p read with a connection that this thread may use; a fault becomes the reason.
    template <class Read>
    auto With(DatabaseReason& reason, const Read& read) const -> decltype(read(std::declval<const Connection&>()));

    QString m_path;
    int m_waitMs;
    QThread* m_thread;
    OpenedDatabase m_opened;
    mutable std::unique_ptr<SearchReader> m_search; ///< Made with the first search of the opening thread.
};

} // namespace componentdatabase
