#include "Requests/ShapeCheck.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>

namespace componentlibrary {
namespace {

bool IsCount(const QJsonValue& value)
{
    if (value.isDouble())
        return value.toInt(-1) >= 0;
    bool isNumber = false;
    const int count = value.toString().toInt(&isNumber);
    return isNumber && count >= 0;
}

} // namespace

bool IsArray(const QJsonValue& data)
{
    return data.isArray();
}

bool IsRecord(const QJsonValue& data)
{
    return data.isObject() || data.isNull();
}

bool IsPage(const QJsonValue& data)
{
    const QJsonObject page = data.toObject();
    return IsCount(page.value(QLatin1String("totalCount"))) && page.value(QLatin1String("list")).isArray();
}

bool IsSpecificationList(const QJsonValue& data)
{
    const QJsonObject list = data.toObject();
    return list.value(QLatin1String("parameters")).isArray() && list.value(QLatin1String("familyTypes")).isArray();
}

bool IsSpecification(const QJsonValue& data)
{
    const QJsonObject specification = data.toObject();
    return IsRecord(data) && (specification.isEmpty() || specification.value(QLatin1String("familyType")).isObject());
}

} // namespace componentlibrary
