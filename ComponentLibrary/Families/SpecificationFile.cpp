#include "Families/SpecificationFile.h"

#include "Records/IParameter.h"
#include "Records/IParameterDefinition.h"
#include "Records/ISpecification.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>

namespace componentlibrary {
namespace {

using tarnnuq::IParameter;
using tarnnuq::ISpecification;

QString Tr(const char* text)
{
    return QCoreApplication::translate("Families", text);
}

/// Shortest text that reads back as the same number.
QString NumberText(double number)
{
    return QString::number(number, 'g', QLocale::FloatingPointShortest);
}

std::wstring ValueText(const QJsonValue& value)
{
    if (value.isBool())
        return IParameter::GetLogicStorageStr(value.toBool());
    return (value.isDouble() ? NumberText(value.toDouble()) : value.toString()).toStdWString();
}

void Add(ISpecification& specification, const QString& name, const QString& id, const QJsonValue& value)
{
    auto parameter = std::make_shared<IParameter>();
    parameter->Definition = std::make_shared<tarnnuq::IParameterDefinition>();
    parameter->Definition->Id = id.toStdWString();
    parameter->Definition->Name = name.toStdWString();
    parameter->Value = ValueText(value);
    parameter->SetIsValueSpecified(true);
    specification.Parameters[name.toStdWString()] = std::move(parameter);
}

void AddValues(ISpecification& specification, const QJsonObject& values, const SpecificationFile::IdLookup& idOf)
{
    for (auto at = values.begin(); at != values.end(); ++at) {
        // A name that the family does not know stands as it is: it may be the id itself.
        const QString id = idOf(at.key());
        Add(specification, at.key(), id.isEmpty() ? at.key() : id, at.value());
    }
}

void AddParameters(ISpecification& specification, const QJsonArray& parameters)
{
    for (const QJsonValue& element : parameters) {
        const QJsonObject parameter = element.toObject();
        const bool isGiven = parameter.value(QLatin1String("isValueSpecified")).toBool(true);
        const QString id = parameter.value(QLatin1String("id")).toString();
        const QString name = parameter.value(QLatin1String("name")).toString();
        if (isGiven && !id.isEmpty())
            Add(specification, name.isEmpty() ? id : name, id, parameter.value(QLatin1String("value")));
    }
}

std::shared_ptr<ISpecification> SpecificationOf(const QJsonValue& value, const SpecificationFile::IdLookup& idOf)
{
    const QJsonObject object = value.toObject();
    const QJsonValue values = object.value(QLatin1String("values"));
    const QJsonValue parameters = object.value(QLatin1String("parameters"));
    if (!values.isObject() && !parameters.isArray())
        return nullptr;
    auto specification = std::make_shared<ISpecification>();
    specification->Name = object.value(QLatin1String("name")).toString().toStdWString();
    AddParameters(*specification, parameters.toArray());
    AddValues(*specification, values.toObject(), idOf);
    return specification;
}

QJsonArray ElementsOf(const QJsonDocument& document)
{
    if (document.isArray())
        return document.array();
    const QJsonValue list = document.object().value(QLatin1String("specifications"));
    return list.isArray() ? list.toArray() : QJsonArray{document.object()};
}

SpecificationFile Faulty(const QString& fault)
{
    return {{}, fault};
}

} // namespace

SpecificationFile SpecificationFile::Parse(const QByteArray& json, const IdLookup& idOf)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError) {
        return Faulty(Tr(QT_TRANSLATE_NOOP("Families", "The specification is not JSON (byte %1: %2)."))
                          .arg(QString::number(error.offset), error.errorString()));
    }
    SpecificationFile file;
    const QJsonArray elements = ElementsOf(document);
    for (const QJsonValue& element : elements) {
        auto specification = SpecificationOf(element, idOf);
        if (!specification) {
            return Faulty(Tr(QT_TRANSLATE_NOOP("Families",
                "A specification needs the member \"values\" with values by name, or \"parameters\" with ids.")));
        }
        file.specifications.push_back(std::move(specification));
    }
    return elements.isEmpty() ? Faulty(Tr(QT_TRANSLATE_NOOP("Families", "There is no specification in the list.")))
                              : file;
}

SpecificationFile SpecificationFile::Read(const QString& path, const IdLookup& idOf)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return Faulty(Tr(QT_TRANSLATE_NOOP("Families", "The specification %1 cannot be read: %2."))
                          .arg(path, file.errorString()));
    }
    const QByteArray json = file.read(LargestSize + 1);
    if (json.size() > LargestSize)
        return Faulty(Tr(QT_TRANSLATE_NOOP("Families", "The specification %1 is larger than 16 MB.")).arg(path));
    return Parse(json, idOf);
}

} // namespace componentlibrary
