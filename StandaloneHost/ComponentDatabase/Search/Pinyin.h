#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <memory>

namespace componentdatabase {

/// How Chinese names sound, by the most usual reading of each character. Not for use by several threads at once.
class Pinyin
{
public:
    Pinyin();
    ~Pinyin();
    Pinyin(const Pinyin&) = delete;
    Pinyin& operator=(const Pinyin&) = delete;

    /// The words under which a name is found by its sound: from each of its Chinese characters to the end of the run of
    /// such characters, the syllables ("shuibeng", "beng") and their initials ("sb", "b"). A text as typed is then the
    /// beginning of one of them, wherever in the name it starts.
    QStringList Words(const QString& name);

private:
    struct Engine;

    /// The syllable without its tone; empty for what is no Chinese character.
    QString Syllable(uint character);

    std::unique_ptr<Engine> m_engine;
    QHash<uint, QString> m_syllables;
};

} // namespace componentdatabase
