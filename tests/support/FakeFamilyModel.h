#pragma once

#include "support/FakeFamilyParameter.h"
#include "support/FakeFamilyParameterDefinitions.h"
#include "zept/FamilyType.h"

#include <functional>
#include <vector>

namespace testsupport {

/**
 * What the family files of a FakeFamilyFileFactory hold and how they behave; set by the test and shared by all files
 * that are opened.
 */
struct FakeFamilyModel
{
    using Parameters = std::vector<zept::OwnerPtr<zept::IFamilyParameter>>;

    /// In order; a null entry stands for a type that is missing. Not owned.
    std::vector<const zept::FamilyType*> types;
    FakeFamilyParameterDefinitions definitions;
    /// False: the file offers no definitions at all.
    bool hasDefinitions = true;
    bool hasCurrentGeometry = true;
    /// Whether the given values yield a geometry; none set: always.
    std::function<bool(const Parameters&)> regenerates;
    /// Fills the driven parameters; none set: success without any.
    std::function<bool(const Parameters& inputs, Parameters& outputs)> computesDriven;
    /// Copies of the values of each regeneration that was asked for.
    std::vector<std::vector<FakeFamilyParameter>> regenerations;
};

} // namespace testsupport
