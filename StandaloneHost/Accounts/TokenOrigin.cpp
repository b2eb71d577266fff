#include "Accounts/TokenOrigin.h"

namespace standalone {

namespace {

QString FileText(const TokenOrigin& origin)
{
    const QString text = QStringLiteral("file %1").arg(origin.place);
    return origin.reason.isEmpty() ? text : QStringLiteral("%1 (%2)").arg(text, origin.reason);
}

} // namespace

QString TokenOrigin::Text() const
{
    switch (kind) {
    case Kind::EnvironmentVariable:
        return QStringLiteral("environment variable %1").arg(place);
    case Kind::NamedFile:
    case Kind::StoredFile:
        return FileText(*this);
    case Kind::Refused:
        return QStringLiteral("refused: %1").arg(reason);
    case Kind::None:
        break;
    }
    return QStringLiteral("none");
}

} // namespace standalone
