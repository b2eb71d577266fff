#pragma once

#include "ComponentDatabase/Search/Pinyin.h"
#include "ComponentDatabase/Sql/Statement.h"

#include <QSet>

namespace componentdatabase {

/// Fills the search tables from the others. Throws SqlFault.
class SearchIndexer
{
public:
    /// @param connection must live longer
    explicit SearchIndexer(const Connection& connection);

    /// Throws what the search tables hold away and fills them anew: disciplines, categories in the order of the tree,
    /// components in the catalogue's.
    void FillAll();

private:
    void AddRows(int kind, const QString& sql);
    void Add(int kind, qint64 target, const QString& code, const QString& chinese, const QString& english,
        const QString& content);
    QString ContentOf(qint64 componentId);
    void AddValue(QStringList& texts, qint64 property, const QString& value);
    void ReadChoices();
    const QString& FoldedValue(const QString& text);

    const Connection& m_connection;
    Pinyin m_pinyin;
    Statement m_addEntry;
    Statement m_addWords;
    qint64 m_last = 0;
    QHash<QPair<qint64, QString>, QStringList> m_choices; ///< Texts of values by property id and value.
    QHash<QString, QString> m_folded; ///< Values and their words: the same ones stand in many components.
};

} // namespace componentdatabase
