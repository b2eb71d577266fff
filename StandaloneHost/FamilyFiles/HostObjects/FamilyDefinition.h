#pragma once

#include "FamilyFiles/Manifest/StorageType.h"
#include "zept/IFamilyParameterDefinition.h"

namespace familyfiles {

/// How a parameter is stored, as the library asks for it.
class FamilyDefinition final : public zept::IFamilyParameterDefinition
{
public:
    explicit FamilyDefinition(StorageType storageType) : m_storageType(storageType) {}

    int GetStorageType() const override { return static_cast<int>(m_storageType); }

private:
    StorageType m_storageType;
};

} // namespace familyfiles
