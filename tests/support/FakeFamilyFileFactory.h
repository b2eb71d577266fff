#pragma once

#include "support/FakeFamilyModel.h"
#include "zept/IFamilyFileFactory.h"

#include <functional>
#include <string>
#include <vector>

namespace testsupport {

/// Opens family files that all behave as one model says; keeps the paths.
class FakeFamilyFileFactory final : public zept::IFamilyFileFactory
{
public:
    zept::OwnerPtr<zept::IFamilyFile> CreateFamilyFile(const std::wstring& path) override;

    FakeFamilyModel model;
    /// False: no file opens.
    bool opens = true;
    /// Called first, for example to throw.
    std::function<void()> beforeOpening;
    std::vector<std::wstring> paths;
};

} // namespace testsupport
