#include "ComponentDatabase/Search/FoldedWords.h"

namespace componentdatabase {

namespace {

/// From here on the scripts of East Asia begin, which write no blanks between words.
constexpr uint FirstUnspaced = 0x2E80;

QString Folded(const QString& text)
{
    return text.normalized(QString::NormalizationForm_KC).toCaseFolded().normalized(QString::NormalizationForm_KC);
}

/// Hangul is written with blanks.
bool StandsAlone(uint character)
{
    return character >= FirstUnspaced && !(character >= 0xAC00 && character <= 0xD7A3);
}

QStringList WordsOf(const QVector<uint>& characters)
{
    QStringList words;
    bool isOpen = false;
    for (const uint character : characters) {
        const bool isWord = QChar::isLetterOrNumber(character) || QChar::isMark(character);
        if (isWord && isOpen && !StandsAlone(character)) {
            words.last() += QString::fromUcs4(&character, 1);
        } else if (isWord) {
            words += QString::fromUcs4(&character, 1);
        }
        isOpen = isWord && !StandsAlone(character);
    }
    return words;
}

} // namespace

QStringList FoldedWords(const QString& text)
{
    return WordsOf(Folded(text).toUcs4());
}

QList<QStringList> FoldedTerms(const QString& text)
{
    QList<QStringList> terms;
    for (const QString& part : Folded(text).simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const QStringList words = WordsOf(part.toUcs4());
        if (!words.isEmpty()) {
            terms += words;
        }
    }
    return terms;
}

} // namespace componentdatabase
