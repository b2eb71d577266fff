#include "ComponentDatabase/Search/SearchReader.h"

#include "ComponentDatabase/Sql/SqlFault.h"

#include <algorithm>

namespace componentdatabase {

namespace {

const char* const EntrySql =
    "SELECT e.kind, coalesce(m.code, c.code, d.code), coalesce(m.name_zh, c.name_zh, d.name_zh), "
    "coalesce(m.name_en, c.name_en, d.name_en), above.code FROM search_entry e "
    "LEFT JOIN component m ON e.kind = 2 AND m.id = e.target LEFT JOIN category above ON above.id = m.category_id "
    "LEFT JOIN category c ON e.kind = 1 AND c.id = e.target LEFT JOIN discipline d ON e.kind = 0 AND d.id = e.target "
    "WHERE e.id = ?";

SearchHit::Kind KindOf(qint64 number)
{
    switch (number) {
    case 0:
        return SearchHit::Kind::Discipline;
    case 1:
        return SearchHit::Kind::Category;
    default:
        return SearchHit::Kind::Component;
    }
}

} // namespace

SearchReader::SearchReader(const Connection& connection)
    : m_byCode(connection, QStringLiteral("SELECT id FROM search_entry WHERE code = ? ORDER BY id LIMIT ?")),
      m_byWords(connection, QStringLiteral("SELECT rowid FROM search WHERE search MATCH ? ORDER BY rowid LIMIT ?")),
      m_count(connection, QStringLiteral("SELECT count(*) FROM search WHERE search MATCH ?")),
      m_entry(connection, QString::fromLatin1(EntrySql))
{
}

SearchResult SearchReader::Find(const QString& text, int most)
{
    const SearchQuery query(text);
    SearchResult result;
    if (query.IsEmpty()) {
        return result;
    }
    const std::vector<Found> found = FindEntries(query, most);
    std::transform(found.begin(), found.end(), std::back_inserter(result.hits),
        [this](const Found& entry) { return HitOf(entry); });
    // All of them are at hand when there are fewer than asked for.
    result.total = static_cast<qint64>(found.size());
    if (result.total >= most) {
        m_count.Run(query.Tiers().back().expression);
        result.total = m_count.Next() ? m_count.Number(0) : 0;
        m_count.Finish();
    }
    return result;
}

std::vector<SearchReader::Found> SearchReader::FindEntries(const SearchQuery& query, int most)
{
    const auto wanted = static_cast<std::size_t>(std::max(most, 0));
    std::vector<Found> found;
    m_byCode.Run(query.Code(), most);
    Collect(m_byCode, SearchMatch::Code, wanted, found);
    for (const SearchQuery::Tier& tier : query.Tiers()) {
        if (found.size() >= wanted) {
            break;
        }
        // What is known already may stand before what is new.
        m_byWords.Run(tier.expression, static_cast<qint64>(wanted));
        Collect(m_byWords, tier.match, wanted, found);
    }
    return found;
}

void SearchReader::Collect(Statement& rows, SearchMatch match, std::size_t most, std::vector<Found>& found)
{
    std::vector<qint64> known;
    std::transform(
        found.begin(), found.end(), std::back_inserter(known), [](const Found& entry) { return entry.entry; });
    std::sort(known.begin(), known.end());
    while (found.size() < most && rows.Next()) {
        const qint64 entry = rows.Number(0);
        if (!std::binary_search(known.begin(), known.end(), entry)) {
            found.push_back({entry, match});
        }
    }
    // A statement that stands in a row keeps writers out.
    rows.Finish();
}

SearchHit SearchReader::HitOf(const Found& found)
{
    m_entry.Run(found.entry);
    if (!m_entry.Next()) {
        throw SqlFault(11, QStringLiteral("the search tables name entry %1, which is not there").arg(found.entry));
    }
    const SearchHit hit{
        KindOf(m_entry.Number(0)), m_entry.Text(1), {m_entry.Text(2), m_entry.Text(3)}, m_entry.Text(4), found.match};
    m_entry.Finish();
    return hit;
}

} // namespace componentdatabase
