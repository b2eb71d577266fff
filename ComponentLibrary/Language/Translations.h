#pragma once

#include <QString>
#include <QTranslator>

#include <memory>
#include <vector>

namespace componentlibrary {

/**
 * The texts of this library and of the program above it in one language, for as long as this object lives.
 *
 * English is the language of the sources and needs no file; a text without a translation shows in English.
 * REQUIRES: a QCoreApplication.
 */
class Translations
{
public:
    /**
     * Install the translators for a language.
     * @param language "zh" or "en"; anything else is taken as "en"
     * @param resources resource paths without language and extension, for example ":/translations/Nuq"; those of this
     *                  library are always installed
     */
    explicit Translations(const QString& language, const std::vector<QString>& resources = {});
    ~Translations();
    Translations(const Translations&) = delete;
    Translations& operator=(const Translations&) = delete;

    /** The language that the variables LC_ALL, LC_MESSAGES and LANG ask for: "zh" or "en". */
    static QString LanguageOfEnvironment();

private:
    void Install(const QString& resource);

    std::vector<std::unique_ptr<QTranslator>> m_translators;
};

} // namespace componentlibrary
