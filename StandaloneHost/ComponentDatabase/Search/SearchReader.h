#pragma once

#include "ComponentDatabase/Search/SearchQuery.h"
#include "ComponentDatabase/Search/SearchResult.h"
#include "ComponentDatabase/Sql/Statement.h"

namespace componentdatabase {

/// Answers searches over one connection, with statements that are prepared once. Throws SqlFault.
class SearchReader
{
public:
    /// @param connection must live longer
    explicit SearchReader(const Connection& connection);

    SearchResult Find(const QString& text, int most);

private:
    struct Found
    {
        qint64 entry = 0;
        SearchMatch match = SearchMatch::Value;
    };

    std::vector<Found> FindEntries(const SearchQuery& query, int most);
    void Collect(Statement& rows, SearchMatch match, std::size_t most, std::vector<Found>& found);
    SearchHit HitOf(const Found& found);

    Statement m_byCode;
    Statement m_byWords;
    Statement m_count;
    Statement m_entry;
};

} // namespace componentdatabase
