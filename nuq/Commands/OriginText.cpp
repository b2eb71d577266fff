#include "Commands/OriginText.h"

#include "Commands/Texts.h"

#include <QtGlobal>

namespace nuq {
namespace {

/// The places that the host knows; listed for the translators.
[[maybe_unused]] constexpr const char* kPlaces[] = {QT_TRANSLATE_NOOP("Messages", "option --app-dir"),
    QT_TRANSLATE_NOOP("Messages", "environment variable NUQ_APP_DIR"),
    QT_TRANSLATE_NOOP("Messages", "installed share folder"), QT_TRANSLATE_NOOP("Messages", "option --environment"),
    QT_TRANSLATE_NOOP("Messages", "environment variable NUQ_ENVIRONMENT"), QT_TRANSLATE_NOOP("Messages", "settings"),
    QT_TRANSLATE_NOOP("Messages", "default")};

QString VariableText(const QString& name)
{
    return Say(QT_TRANSLATE_NOOP("Messages", "environment variable %1")).arg(name);
}

QString FileText(const standalone::TokenOrigin& token)
{
    const QString text = Say(QT_TRANSLATE_NOOP("Messages", "file %1")).arg(token.place);
    return token.reason.isEmpty() ? text : QStringLiteral("%1 (%2)").arg(text, token.reason);
}

} // namespace

QString OriginText(const standalone::ResolvedSetting& setting)
{
    return Say(setting.originText.toUtf8().constData());
}

QString OriginText(const standalone::TokenOrigin& token)
{
    using Kind = standalone::TokenOrigin::Kind;
    switch (token.kind) {
    case Kind::EnvironmentVariable:
        return VariableText(token.place);
    case Kind::NamedFile:
    case Kind::StoredFile:
        return FileText(token);
    case Kind::Refused:
        return Say(QT_TRANSLATE_NOOP("Messages", "refused: %1")).arg(token.reason);
    case Kind::None:
        break;
    }
    return Say(QT_TRANSLATE_NOOP("Messages", "none"));
}

} // namespace nuq
