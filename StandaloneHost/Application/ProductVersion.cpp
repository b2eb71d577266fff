#include "Application/ProductVersion.h"

#include <QRegularExpression>
#include <QStringList>

namespace standalone {

QString ProductVersion()
{
    return QStringLiteral(TARNNUQ_VERSION);
}

QString FormatVersion(const QString& version, const QString& format)
{
    static const QRegularExpression digits(QStringLiteral("[0-9]+"));
    const QStringList fields = version.split(QLatin1Char('.'));
    QString text;
    int end = 0;
    int field = 0;
    for (auto runs = digits.globalMatch(format); runs.hasNext(); ++field) {
        const QRegularExpressionMatch run = runs.next();
        const QString number = field < fields.size() ? fields.at(field) : QStringLiteral("0");
        text += format.mid(end, run.capturedStart() - end);
        text += number.rightJustified(run.capturedLength(), QLatin1Char('0'));
        end = run.capturedEnd();
    }
    return field == 0 ? version : text + format.mid(end);
}

} // namespace standalone
