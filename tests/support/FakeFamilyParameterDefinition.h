#pragma once

#include "zept/IFamilyParameterDefinition.h"

namespace testsupport {

/// A definition with a storage type to set.
class FakeFamilyParameterDefinition final : public zept::IFamilyParameterDefinition
{
public:
    explicit FakeFamilyParameterDefinition(int itsStorageType) : storageType(itsStorageType) {}

    int GetStorageType() const override { return storageType; }

    int storageType;
};

} // namespace testsupport
