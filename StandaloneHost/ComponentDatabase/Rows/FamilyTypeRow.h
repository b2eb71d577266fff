#pragma once

#include <QString>
#include <map>

namespace componentdatabase {

/// One family type of a component.
struct FamilyTypeRow
{
    QString name;
    std::map<qint64, QString> values; ///< By property id; a property without a value is left out.
};

} // namespace componentdatabase
