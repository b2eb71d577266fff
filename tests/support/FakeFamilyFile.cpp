#include "support/FakeFamilyFile.h"

#include "support/FakeGeometry.h"

namespace testsupport {

namespace {

std::vector<FakeFamilyParameter> CopiesOf(const FakeFamilyModel::Parameters& parameters)
{
    std::vector<FakeFamilyParameter> copies;
    for (const auto& parameter : parameters) {
        copies.push_back(dynamic_cast<const FakeFamilyParameter&>(*parameter));
    }
    return copies;
}

zept::OwnerPtr<zept::IGeometry> GeometryWhen(bool there)
{
    return zept::OwnerPtr<zept::IGeometry>(there ? new FakeGeometry : nullptr);
}

} // namespace

zept::FamilyTypeInfo FakeFamilyFile::GetTypeInfo()
{
    return {m_model.types, m_model.hasDefinitions ? &m_model.definitions : nullptr};
}

zept::OwnerPtr<zept::IGeometry> FakeFamilyFile::RegenerateGeometry(
    const std::vector<zept::OwnerPtr<zept::IFamilyParameter>>& parameters)
{
    m_model.regenerations.push_back(CopiesOf(parameters));
    return GeometryWhen(!m_model.regenerates || m_model.regenerates(parameters));
}

zept::OwnerPtr<zept::IGeometry> FakeFamilyFile::GetCurrentGeometry()
{
    return GeometryWhen(m_model.hasCurrentGeometry);
}

bool FakeFamilyFile::ComputeDrivenParameters(const std::vector<zept::OwnerPtr<zept::IFamilyParameter>>& inputs,
    std::vector<zept::OwnerPtr<zept::IFamilyParameter>>& outputs)
{
    return !m_model.computesDriven || m_model.computesDriven(inputs, outputs);
}

} // namespace testsupport
