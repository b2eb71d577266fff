#pragma once

#include "support/FakeFamilyModel.h"
#include "zept/IFamilyFile.h"
#include "zept/IGeometry.h"

namespace testsupport {

/// A family file that behaves as its model says. The model belongs to the test and has to outlive the file.
class FakeFamilyFile final : public zept::IFamilyFile
{
public:
    explicit FakeFamilyFile(FakeFamilyModel& model) : m_model(model) {}

    zept::FamilyTypeInfo GetTypeInfo() override;
    zept::OwnerPtr<zept::IGeometry> RegenerateGeometry(
        const std::vector<zept::OwnerPtr<zept::IFamilyParameter>>& parameters) override;
    zept::OwnerPtr<zept::IGeometry> GetCurrentGeometry() override;
    bool ComputeDrivenParameters(const std::vector<zept::OwnerPtr<zept::IFamilyParameter>>& inputs,
        std::vector<zept::OwnerPtr<zept::IFamilyParameter>>& outputs) override;

private:
    FakeFamilyModel& m_model;
};

} // namespace testsupport
