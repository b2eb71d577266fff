#include "Families/TypeSpecification.h"

#include "Commands/Texts.h"
#include "Families/FamilyAccess.h"
#include "Families/SpecificationFile.h"
#include "Program/Session.h"
#include "Records/IParameter.h"
#include "Records/IParameterDefinition.h"

#include <QFileInfo>
#include <QLocale>

namespace nuq {

using componentlibrary::SpecificationFile;
using familyfiles::FamilyModel;
using familyfiles::ParameterDefinition;
using familyfiles::Value;

namespace {

std::wstring Wide(const std::string& utf8)
{
    return QString::fromStdString(utf8).toStdWString();
}

/// The value as specifications keep it; numbers with all their digits.
std::wstring StoredText(const Value& value)
{
    if (const bool* yesNo = std::get_if<bool>(&value))
        return tarnnuq::IParameter::GetLogicStorageStr(*yesNo);
    if (const int* integer = std::get_if<int>(&value))
        return std::to_wstring(*integer);
    if (const double* number = std::get_if<double>(&value))
        return QString::number(*number, 'g', QLocale::FloatingPointShortest).toStdWString();
    return Wide(std::get<std::string>(value));
}

std::shared_ptr<tarnnuq::IParameter> ParameterOf(const ParameterDefinition& definition, const Value& value)
{
    auto parameter = std::make_shared<tarnnuq::IParameter>();
    parameter->Definition = std::make_shared<tarnnuq::IParameterDefinition>();
    parameter->Definition->Id = Wide(definition.id);
    parameter->Definition->Name = Wide(definition.name);
    parameter->Definition->Unit = Wide(definition.unit);
    parameter->Value = StoredText(value);
    parameter->SetIsValueSpecified(true);
    return parameter;
}

QString IdOf(const FamilyModel& model, const QString& name)
{
    const auto index = model.Manifest().FindParameter(name.toStdString());
    return index ? QString::fromStdString(model.Manifest().parameters[*index].id) : QString();
}

} // namespace

std::shared_ptr<tarnnuq::ISpecification> SpecificationOfType(
    const FamilyModel& model, std::size_t type, familyfiles::Reason& reason)
{
    const auto values = model.TypeValues(type, reason);
    if (!values)
        return nullptr;
    auto specification = std::make_shared<tarnnuq::ISpecification>();
    specification->Name = Wide(model.Manifest().types[type].name);
    const auto& parameters = model.Manifest().parameters;
    for (std::size_t index = 0; index < parameters.size(); ++index)
        specification->Parameters[Wide(parameters[index].name)] = ParameterOf(parameters[index], (*values)[index]);
    return specification;
}

Specifications NamedSpecifications(
    Session& session, const FamilyModel& model, const QString& nameOrFile, ExitCode& code)
{
    if (const auto type = TypeIndex(model, nameOrFile)) {
        familyfiles::Reason reason;
        if (auto specification = SpecificationOfType(model, *type, reason))
            return {std::move(specification)};
        code = FailWith(session, reason);
        return {};
    }
    if (!QFileInfo::exists(nameOrFile)) {
        code = session.Fail(ExitCode::NotFound, "family.no-such-specification",
            Say(QT_TRANSLATE_NOOP("Messages", "The family has no type \"%1\", and there is no file of that name."))
                .arg(nameOrFile),
            Say(QT_TRANSLATE_NOOP("Messages", "\"nuq family show\" lists the types.")));
        return {};
    }
    SpecificationFile file =
        SpecificationFile::Read(nameOrFile, [&model](const QString& name) { return IdOf(model, name); });
    if (!file.fault.isEmpty())
        code = session.Fail(ExitCode::Failed, "family.bad-specification", file.fault);
    return std::move(file.specifications);
}

} // namespace nuq
