#pragma once

#include "ComponentDatabase/Search/SearchMatch.h"

#include <QString>
#include <QStringList>
#include <vector>

namespace componentdatabase {

/// A text as typed, turned into the queries that answer it. Whatever was typed, nothing of it reaches a query but
/// words, in quotation marks.
class SearchQuery
{
public:
    /// One query for the search table, and what a row that it finds was found by.
    struct Tier
    {
        SearchMatch match = SearchMatch::Value;
        QString expression;
    };

    explicit SearchQuery(const QString& text);

    /// Whether there is nothing to search for.
    bool IsEmpty() const { return m_terms.isEmpty(); }

    /// The words of the whole text as a code is stored.
    QString Code() const;

    /// The queries in order; each finds all that the ones before it find, and the last one everything there is.
    std::vector<Tier> Tiers() const;

private:
    QList<QStringList> m_terms;
};

} // namespace componentdatabase
