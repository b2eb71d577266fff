#include "ComponentDatabase/Writing/TypeValues.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <algorithm>
#include <set>

namespace componentdatabase {

namespace {

const QString* ValueIn(const FamilyTypeRow& type, qint64 property)
{
    const auto found = type.values.find(property);
    return found == type.values.end() ? nullptr : &found->second;
}

TypeValues ValuesOf(qint64 property, const std::vector<FamilyTypeRow>& types)
{
    const QString* const first = ValueIn(types.front(), property);
    const bool isCommon = first != nullptr && std::all_of(types.begin(), types.end(), [&](const FamilyTypeRow& type) {
        const QString* const value = ValueIn(type, property);
        return value != nullptr && *value == *first;
    });
    if (isCommon) {
        return {property, *first, {}};
    }
    QJsonArray each;
    for (const FamilyTypeRow& type : types) {
        const QString* const value = ValueIn(type, property);
        each += value == nullptr ? QJsonValue() : QJsonValue(*value);
    }
    return {property, {}, QString::fromUtf8(QJsonDocument(each).toJson(QJsonDocument::Compact))};
}

} // namespace

std::vector<TypeValues> ValuesByProperty(const std::vector<FamilyTypeRow>& types)
{
    std::set<qint64> properties;
    for (const FamilyTypeRow& type : types) {
        for (const auto& [property, value] : type.values) {
            properties.insert(property);
        }
    }
    std::vector<TypeValues> values;
    for (const qint64 property : properties) {
        values.push_back(ValuesOf(property, types));
    }
    return values;
}

} // namespace componentdatabase
