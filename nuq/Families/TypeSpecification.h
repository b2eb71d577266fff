#pragma once

#include "FamilyFiles/FamilyModel.h"
#include "Program/ExitCode.h"
#include "Records/ISpecification.h"

#include <QString>
#include <memory>
#include <optional>
#include <vector>

namespace nuq {

class Session;

using Specifications = std::vector<std::shared_ptr<tarnnuq::ISpecification>>;

/**
 * The specification that one of the family's own types is: all its parameters with their values, the driven ones
 * computed. @return nothing with a reason when they cannot be
 */
std::shared_ptr<tarnnuq::ISpecification> SpecificationOfType(
    const familyfiles::FamilyModel& model, std::size_t type, familyfiles::Reason& reason);

/** The specifications that an option names: a type of the family, else a file. @return nothing with @p code set */
Specifications NamedSpecifications(
    Session& session, const familyfiles::FamilyModel& model, const QString& nameOrFile, ExitCode& code);

} // namespace nuq
