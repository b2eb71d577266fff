#include "Application/MajorText.h"

#include <QStringList>

namespace standalone {

std::optional<tarnnuq::Major> MajorFromText(const QString& text)
{
    // In the order of the enumeration, which begins with -1.
    const QStringList names{
        QStringLiteral("none"), QStringLiteral("plumbing"), QStringLiteral("hvac"), QStringLiteral("electrical")};
    const int index = names.indexOf(text.trimmed().toLower());
    return index < 0 ? std::nullopt : std::optional<tarnnuq::Major>(static_cast<tarnnuq::Major>(index - 1));
}

} // namespace standalone
