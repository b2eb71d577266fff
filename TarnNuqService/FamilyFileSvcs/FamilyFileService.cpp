#include "FamilyFileSvcs/FamilyFileService.h"

#include "Common/DebugWarning.h"
#include "FamilyFileSvcs/DrivenValues_p.h"
#include "FamilyFileSvcs/WorkingParameters_p.h"
#include "zept/IGeometry.h"

#include <QFile>
#include <QFileInfo>
#include <QString>
#include <QUuid>
#include <optional>

namespace tarnnuq {

namespace {

constexpr WarningSource GeometrySource{
    "FamilyFileSvcs/FamilyFileService.cpp", __LINE__, "tarnnuq::FamilyFileService::TryUpdateGeometry"};
constexpr WarningSource DrivenSource{
    "FamilyFileSvcs/FamilyFileService.cpp", __LINE__, "tarnnuq::FamilyFileService::UpdateDrivenParameters"};

QString DottedSuffix(const QFileInfo& file)
{
    const QString suffix = file.suffix().trimmed();
    return suffix.isEmpty() || suffix.startsWith(QLatin1Char('.')) ? suffix : QLatin1Char('.') + suffix;
}

QString PathOfNewCopy(const QString& path)
{
    const QFileInfo file(path);
    const QString name =
        file.completeBaseName() + QLatin1Char('_') + QUuid::createUuid().toString() + DottedSuffix(file);
    return file.absolutePath() + QLatin1Char('/') + name;
}

/// @return the path of the copy, or none when the file could not be copied
std::optional<QString> CopyBeside(const QString& path)
{
    if (!QFile::exists(path)) {
        return std::nullopt;
    }
    const QString copy = PathOfNewCopy(path);
    if (!QFile::copy(path, copy) || !QFile::exists(copy)) {
        return std::nullopt;
    }
    return copy;
}

bool RegeneratesWith(zept::IFamilyFile& familyFile, const ISpecification& specification)
{
    if (!familyFile.GetCurrentGeometry()) {
        return false;
    }
    const std::optional<WorkingParameters> working = PrepareParameters(familyFile, specification, GeometrySource);
    if (!working) {
        return false;
    }
    return !working->anySet || familyFile.RegenerateGeometry(working->parameters);
}

bool ComputeDriven(zept::IFamilyFile& familyFile, ISpecification& specification, bool& changed)
{
    const std::optional<WorkingParameters> working = PrepareParameters(familyFile, specification, DrivenSource);
    if (!working) {
        return false;
    }
    FamilyParameters outputs;
    const bool computed = familyFile.ComputeDrivenParameters(working->parameters, outputs);
    WriteDrivenValues(outputs, working->definitions, specification, changed);
    return computed;
}

} // namespace

FamilyFileService::FamilyFileService(const std::wstring& path) : m_opFamilyFile(zept::IFamilyFile::Create(path)) {}

FamilyFileService::~FamilyFileService() = default;

std::shared_ptr<FamilyFileService> FamilyFileService::Create(const std::wstring& path)
{
    try {
        const std::optional<QString> copy = CopyBeside(QString::fromStdWString(path));
        return copy ? std::shared_ptr<FamilyFileService>(new FamilyFileService(copy->toStdWString())) : nullptr;
    } catch (...) {
        return nullptr;
    }
}

// NOLINTNEXTLINE(performance-unnecessary-value-param)
bool FamilyFileService::TryUpdateGeometry(std::shared_ptr<ISpecification> spec)
{
    try {
        return spec && m_opFamilyFile && RegeneratesWith(*m_opFamilyFile, *spec);
    } catch (...) {
        return false;
    }
}

// NOLINTNEXTLINE(performance-unnecessary-value-param)
bool FamilyFileService::UpdateDrivenParameters(std::shared_ptr<ISpecification> spec, bool& changed)
{
    changed = false;
    if (!spec) {
        return true;
    }
    try {
        return m_opFamilyFile && ComputeDriven(*m_opFamilyFile, *spec, changed);
    } catch (...) {
        return false;
    }
}

} // namespace tarnnuq
