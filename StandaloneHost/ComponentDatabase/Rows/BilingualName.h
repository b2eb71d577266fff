#pragma once

#include <QString>

namespace componentdatabase {

/// A text in both languages of the database.
struct BilingualName
{
    QString chinese;
    QString english;

    const QString& In(bool isChinese) const { return isChinese ? chinese : english; }
};

} // namespace componentdatabase
