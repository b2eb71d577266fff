#include "Families/FamilyChecker.h"

#include "Families/FamilyAccess.h"
#include "Families/FamilyWorkingCopy.h"
#include "Families/InterruptibleBuild.h"
#include "FamilyFileSvcs/FamilyFileService.h"
#include "FamilyFiles/FamilyFileFactory.h"
#include "Program/Session.h"

#include <algorithm>

namespace nuq {

using componentlibrary::FamilyWorkingCopy;
using familyfiles::FamilyModel;
using familyfiles::Reason;

namespace {

Reason NotCopied(const QString& fault)
{
    return {"file.not-copied", {}, fault.toStdString(), fault.toStdString()};
}

CheckedSpecification Try(
    Session& session, FamilyWorkingCopy& copy, const std::shared_ptr<tarnnuq::ISpecification>& specification)
{
    CheckedSpecification checked;
    checked.name = QString::fromStdWString(specification->Name).toStdString();
    checked.yieldsGeometry = copy.Service()->TryUpdateGeometry(specification);
    if (!checked.yieldsGeometry)
        checked.reason = session.Host().FamilyFiles().LastReason();
    return checked;
}

/// The types of the family as specifications; a type whose values cannot be worked out is a result by itself.
Specifications AllTypes(const FamilyModel& model, CheckedFamily& checked)
{
    Specifications specifications;
    for (std::size_t type = 0; type < model.Manifest().types.size(); ++type) {
        Reason reason;
        if (auto specification = SpecificationOfType(model, type, reason))
            specifications.push_back(std::move(specification));
        else
            checked.results.push_back({model.Manifest().types[type].name, false, reason, {}});
    }
    return specifications;
}

void TryAll(Session& session, const FamilyModel& model, const Specifications& specifications, CheckedFamily& checked)
{
    FamilyWorkingCopy copy(checked.file);
    if (copy.Service() == nullptr) {
        checked.reason = NotCopied(copy.Fault());
        return;
    }
    InterruptibleBuild progress(session, checked.name);
    double done = 0;
    for (const auto& specification : specifications) {
        if (!progress.Report(done / static_cast<double>(specifications.size())))
            return;
        CheckedSpecification& result = checked.results.emplace_back(Try(session, copy, specification));
        result.values = CompareValues(model, *specification);
        ++done;
    }
}

} // namespace

bool CheckedFamily::IsInOrder() const
{
    return !reason && std::all_of(results.begin(), results.end(),
                          [](const CheckedSpecification& result) { return result.yieldsGeometry; });
}

std::optional<CheckedFamily> CheckFamily(
    Session& session, const QString& file, const QString& specification, ExitCode& code)
{
    CheckedFamily checked;
    checked.file = file;
    const auto model = FamilyModel::Open(file.toStdString(), checked.reason);
    if (!model)
        return checked;
    checked.name = TextOf(session, model->Manifest().name);
    const Specifications wanted =
        specification.isEmpty() ? AllTypes(*model, checked) : NamedSpecifications(session, *model, specification, code);
    if (code != ExitCode::Done)
        return std::nullopt;
    TryAll(session, *model, wanted, checked);
    return checked;
}

} // namespace nuq
