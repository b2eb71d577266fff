#include "ComponentDatabase/Search/Pinyin.h"

#include <algorithm>
#include <unicode/translit.h>

namespace componentdatabase {

namespace {

QStringList WordsOfRun(const QStringList& syllables)
{
    QStringList words;
    QString sounds;
    QString initials;
    for (auto syllable = syllables.crbegin(); syllable != syllables.crend(); ++syllable) {
        sounds.prepend(*syllable);
        initials.prepend(syllable->front());
        words << sounds << initials;
    }
    return words;
}

bool IsPlain(const QString& syllable)
{
    return !syllable.isEmpty() && std::all_of(syllable.begin(), syllable.end(), [](QChar letter) {
        return letter >= QLatin1Char('a') && letter <= QLatin1Char('z');
    });
}

} // namespace

struct Pinyin::Engine
{
    std::unique_ptr<icu::Transliterator> transliterator;
};

Pinyin::Pinyin() : m_engine(std::make_unique<Engine>())
{
    UErrorCode status = U_ZERO_ERROR;
    m_engine->transliterator.reset(
        icu::Transliterator::createInstance("Han-Latin; Latin-ASCII; Lower", UTRANS_FORWARD, status));
}

Pinyin::~Pinyin() = default;

QString Pinyin::Syllable(uint character)
{
    const auto known = m_syllables.constFind(character);
    if (known != m_syllables.cend()) {
        return *known;
    }
    QString syllable;
    if (m_engine->transliterator != nullptr && QChar::script(character) == QChar::Script_Han) {
        icu::UnicodeString text(static_cast<UChar32>(character));
        m_engine->transliterator->transliterate(text);
        syllable = QString::fromUtf16(text.getBuffer(), text.length());
    }
    m_syllables.insert(character, IsPlain(syllable) ? syllable : QString());
    return m_syllables.value(character);
}

QStringList Pinyin::Words(const QString& name)
{
    QStringList words;
    QStringList run;
    for (const uint character : name.toUcs4()) {
        const QString syllable = Syllable(character);
        if (syllable.isEmpty()) {
            words += WordsOfRun(run);
            run.clear();
        } else {
            run += syllable;
        }
    }
    words += WordsOfRun(run);
    return words;
}

} // namespace componentdatabase
