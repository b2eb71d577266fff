#include "ComponentDatabase/Search/SearchIndexer.h"

#include "ComponentDatabase/Search/FoldedWords.h"
#include "ComponentDatabase/Search/SearchHit.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace componentdatabase {

namespace {

QString Joined(const QStringList& words)
{
    return words.join(QLatin1Char(' '));
}

QString WordsOf(const QString& text)
{
    return Joined(FoldedWords(text));
}

} // namespace

SearchIndexer::SearchIndexer(const Connection& connection)
    : m_connection(connection),
      m_addEntry(connection, QStringLiteral("INSERT INTO search_entry (id, kind, target, code) VALUES (?, ?, ?, ?)")),
      m_addWords(connection, QStringLiteral("INSERT INTO search (rowid, code, name_zh, name_en, pinyin, content) "
                                            "VALUES (?, ?, ?, ?, ?, ?)"))
{
}

void SearchIndexer::FillAll()
{
    m_connection.Run(QStringLiteral("DELETE FROM search_entry"));
    m_connection.Run(QStringLiteral("INSERT INTO search (search) VALUES ('delete-all')"));
    ReadChoices();
    AddRows(static_cast<int>(SearchHit::Kind::Discipline),
        QStringLiteral("SELECT id, code, name_zh, name_en FROM discipline ORDER BY sort_index, id"));
    AddRows(static_cast<int>(SearchHit::Kind::Category),
        QStringLiteral("SELECT c.id, c.code, c.name_zh, c.name_en FROM category c "
                       "JOIN discipline d ON d.id = c.discipline_id LEFT JOIN category p ON p.id = c.parent_id "
                       "ORDER BY d.sort_index, d.id, coalesce(p.sort_index, c.sort_index), coalesce(p.id, c.id), "
                       "p.id IS NOT NULL, c.sort_index, c.id"));
    AddRows(static_cast<int>(SearchHit::Kind::Component),
        QStringLiteral("SELECT id, code, name_zh, name_en FROM component ORDER BY id"));
    // One segment instead of many: quicker to search and smaller.
    m_connection.Run(QStringLiteral("INSERT INTO search (search) VALUES ('optimize')"));
}

void SearchIndexer::AddRows(int kind, const QString& sql)
{
    const bool isComponent = kind == static_cast<int>(SearchHit::Kind::Component);
    Statement rows(m_connection, sql);
    rows.Run();
    while (rows.Next()) {
        const qint64 id = rows.Number(0);
        Add(kind, id, rows.Text(1), rows.Text(2), rows.Text(3), isComponent ? ContentOf(id) : QString());
    }
}

void SearchIndexer::Add(int kind, qint64 target, const QString& code, const QString& chinese, const QString& english,
    const QString& content)
{
    ++m_last;
    const QString codeWords = WordsOf(code);
    m_addEntry.Run(m_last, kind, target, codeWords);
    m_addWords.Run(m_last, codeWords, WordsOf(chinese), WordsOf(english), Joined(m_pinyin.Words(chinese)), content);
}

void SearchIndexer::ReadChoices()
{
    Statement rows(m_connection, QStringLiteral("SELECT property_id, value, text_zh, text_en FROM property_value"));
    rows.Run();
    while (rows.Next()) {
        m_choices.insert(qMakePair(rows.Number(0), rows.Text(1)), {rows.Text(2), rows.Text(3)});
    }
}

const QString& SearchIndexer::FoldedValue(const QString& text)
{
    constexpr int MostKept = 200000;
    if (m_folded.size() > MostKept) {
        m_folded.clear();
    }
    auto known = m_folded.find(text);
    if (known == m_folded.end()) {
        known = m_folded.insert(text, WordsOf(text));
    }
    return *known;
}

void SearchIndexer::AddValue(QStringList& texts, qint64 property, const QString& value)
{
    texts += value;
    texts += m_choices.value(qMakePair(property, value));
}

QString SearchIndexer::ContentOf(qint64 componentId)
{
    QStringList texts;
    Statement types(
        m_connection, QStringLiteral("SELECT name FROM family_type WHERE component_id = ? ORDER BY type_index"));
    types.Run(componentId);
    while (types.Next()) {
        texts += types.Text(0);
    }
    Statement values(m_connection,
        QStringLiteral("SELECT property_id, value, type_values FROM component_value WHERE component_id = ? "
                       "ORDER BY property_id"));
    values.Run(componentId);
    while (values.Next()) {
        if (!values.IsNull(1)) {
            AddValue(texts, values.Number(0), values.Text(1));
            continue;
        }
        for (const QJsonValue& value : QJsonDocument::fromJson(values.Text(2).toUtf8()).array()) {
            AddValue(texts, values.Number(0), value.toString());
        }
    }
    QStringList words;
    texts.removeDuplicates();
    for (const QString& text : qAsConst(texts)) {
        words += FoldedValue(text);
    }
    return Joined(words);
}

} // namespace componentdatabase
