#include "Families/FamilyDescription.h"

#include "FamilyFiles/Manifest/ManifestReader.h"
#include "FamilyFiles/Manifest/StorageType.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUuid>

namespace nuq {

using familyfiles::FamilyManifest;
using familyfiles::StorageType;

namespace {

/// The catalogue's: the same code has the same id everywhere.
QString IdOfName(const QString& name)
{
    static const QUuid space(0x6f1d5c1e, 0x3c0b, 0x5a64, 0x9b, 0x0f, 0x2d, 0x6a, 0x51, 0x7e, 0xc8, 0x34);
    return QUuid::createUuidV5(space, name.toUtf8()).toString(QUuid::WithoutBraces);
}

void SetMissing(QJsonObject& object, const QString& member, const QJsonValue& value)
{
    if (!object.contains(member))
        object.insert(member, value);
}

void SpreadText(QJsonObject& object, const QString& member)
{
    const QJsonValue value = object.value(member);
    if (value.isString())
        object.insert(
            member, QJsonObject{{QStringLiteral("en"), value.toString()}, {QStringLiteral("zh"), value.toString()}});
}

StorageType StorageTypeOf(const QJsonValue& value)
{
    if (value.isBool())
        return StorageType::YesNo;
    return value.isString() ? StorageType::Text : StorageType::FloatingPoint;
}

QJsonObject CompleteParameter(QJsonObject parameter)
{
    SpreadText(parameter, QStringLiteral("label"));
    SetMissing(parameter, QStringLiteral("id"), IdOfName(parameter.value(QLatin1String("name")).toString()));
    SetMissing(parameter, QStringLiteral("storageType"),
        static_cast<int>(StorageTypeOf(parameter.value(QLatin1String("default")))));
    return parameter;
}

QJsonObject CompleteDescription(QJsonObject description)
{
    SpreadText(description, QStringLiteral("name"));
    SetMissing(description, QStringLiteral("format"), QLatin1String(FamilyManifest::FormatName.data()));
    SetMissing(description, QStringLiteral("version"), FamilyManifest::CurrentVersion);
    const QJsonValue parameters = description.value(QLatin1String("parameters"));
    if (!parameters.isArray())
        return description;
    QJsonArray completed;
    for (const QJsonValue& parameter : parameters.toArray())
        completed.append(parameter.isObject() ? CompleteParameter(parameter.toObject()) : parameter);
    description.insert(QStringLiteral("parameters"), completed);
    return description;
}

} // namespace

std::optional<FamilyManifest> ReadDescription(const QByteArray& json, familyfiles::Reason& reason)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    // What is no object is refused with the words that manifests are refused with.
    if (error.error != QJsonParseError::NoError || !document.isObject())
        return familyfiles::ReadManifest(json.toStdString(), reason);
    const QByteArray completed = QJsonDocument(CompleteDescription(document.object())).toJson();
    return familyfiles::ReadManifest(completed.toStdString(), reason);
}

} // namespace nuq
