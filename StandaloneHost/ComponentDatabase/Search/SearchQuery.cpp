#include "ComponentDatabase/Search/SearchQuery.h"

#include "ComponentDatabase/Search/FoldedWords.h"

#include <algorithm>

namespace componentdatabase {

namespace {

/// More words than anybody types; a longer query only costs time and stack.
constexpr int MostTerms = 32;
constexpr int MostWords = 64;

/// A word that ends in a digit is whole: "DN5" must not stand for "DN50".
bool MayGoOn(const QStringList& words)
{
    const QChar last = words.last().back();
    return last.unicode() < 0x2E80 && !last.isDigit();
}

QString Phrase(const QStringList& words, bool goesOn)
{
    return QLatin1Char('"') + words.join(QLatin1Char(' ')) + (goesOn ? QLatin1String("\" *") : QLatin1String("\""));
}

QString InNames(const QStringList& words)
{
    return QStringLiteral("{name_zh name_en} : ") + Phrase(words, MayGoOn(words));
}

QString InNamesOrSounds(const QStringList& words)
{
    return words.size() == 1 && MayGoOn(words) ? QStringLiteral("{name_zh name_en pinyin} : ") + Phrase(words, true)
                                               : InNames(words);
}

/// A code is typed from its beginning, digits or not.
QString Anywhere(const QStringList& words)
{
    return MayGoOn(words) ? Phrase(words, true)
                          : QStringLiteral("(%1 OR {code} : %2)").arg(Phrase(words, false), Phrase(words, true));
}

QString AllOf(const QList<QStringList>& terms, QString (*expression)(const QStringList&))
{
    QStringList parts;
    std::transform(terms.begin(), terms.end(), std::back_inserter(parts), expression);
    return parts.join(QStringLiteral(" AND "));
}

QStringList AllWords(const QList<QStringList>& terms)
{
    QStringList words;
    for (const QStringList& term : terms) {
        words += term;
    }
    return words;
}

} // namespace

SearchQuery::SearchQuery(const QString& text) : m_terms(FoldedTerms(text).mid(0, MostTerms))
{
    for (QStringList& term : m_terms) {
        term = term.mid(0, MostWords);
    }
}

QString SearchQuery::Code() const
{
    return AllWords(m_terms).join(QLatin1Char(' '));
}

std::vector<SearchQuery::Tier> SearchQuery::Tiers() const
{
    const QStringList words = AllWords(m_terms);
    const QString whole = Phrase(words, MayGoOn(words));
    return {
        {SearchMatch::NamePrefix, QStringLiteral("name_zh : ^ %1 OR name_en : ^ %1").arg(whole)},
        {SearchMatch::Name, AllOf(m_terms, InNames)},
        {SearchMatch::Pinyin, AllOf(m_terms, InNamesOrSounds)},
        {SearchMatch::Value, AllOf(m_terms, Anywhere)},
    };
}

} // namespace componentdatabase
