#include "TarnNuqService/ResponseHandlers/JsonShapes.h"

#include <QJsonDocument>
#include <algorithm>

namespace testsupport {

std::vector<JsonShape> ShapesExcept(const std::vector<QJsonValue::Type>& accepted)
{
    // Each wrong value looks as much as possible like the right one.
    const std::vector<JsonShape> all{{"missing", QJsonValue(QJsonValue::Undefined)}, {"null", QJsonValue()},
        {"true", true}, {"number", 1}, {"text", QStringLiteral("text")}, {"number as text", QStringLiteral("1")},
        {"boolean as text", QStringLiteral("true")}, {"array", QJsonArray{1}},
        {"object", QJsonObject{{QStringLiteral("a"), QStringLiteral("1")}}}};
    std::vector<JsonShape> shapes;
    for (const JsonShape& shape : all) {
        if (std::find(accepted.begin(), accepted.end(), shape.value.type()) == accepted.end()) {
            shapes.push_back(shape);
        }
    }
    return shapes;
}

QByteArray JsonText(const QJsonValue& value)
{
    if (value.isUndefined()) {
        return "null";
    }
    const QByteArray wrapped = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return wrapped.mid(1, wrapped.size() - 2);
}

QJsonObject With(QJsonObject object, const char* key, const QJsonValue& value)
{
    object.insert(QLatin1String(key), value);
    return object;
}

} // namespace testsupport
