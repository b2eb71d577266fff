#include "Language/Translations.h"

#include <QCoreApplication>

static void InitTranslationResources()
{
    // The macro needs a function outside every namespace.
    Q_INIT_RESOURCE(ComponentLibraryTranslations);
}

namespace componentlibrary {

Translations::Translations(const QString& language, const std::vector<QString>& resources)
{
    if (language != QLatin1String("zh"))
        return;
    InitTranslationResources();
    Install(QStringLiteral(":/translations/ComponentLibrary"));
    for (const QString& resource : resources)
        Install(resource);
}

Translations::~Translations()
{
    for (const auto& translator : m_translators)
        QCoreApplication::removeTranslator(translator.get());
}

void Translations::Install(const QString& resource)
{
    auto translator = std::make_unique<QTranslator>();
    if (translator->load(resource + QStringLiteral("_zh_CN.qm"))) {
        QCoreApplication::installTranslator(translator.get());
        m_translators.push_back(std::move(translator));
    }
}

QString Translations::LanguageOfEnvironment()
{
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const QByteArray value = qgetenv(name);
        if (!value.isEmpty())
            return value.startsWith("zh") ? QStringLiteral("zh") : QStringLiteral("en");
    }
    return QStringLiteral("en");
}

} // namespace componentlibrary
