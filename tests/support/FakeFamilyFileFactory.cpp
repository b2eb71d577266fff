#include "support/FakeFamilyFileFactory.h"

#include "support/FakeFamilyFile.h"

namespace testsupport {

zept::OwnerPtr<zept::IFamilyFile> FakeFamilyFileFactory::CreateFamilyFile(const std::wstring& path)
{
    paths.push_back(path);
    if (beforeOpening) {
        beforeOpening();
    }
    return zept::OwnerPtr<zept::IFamilyFile>(opens ? new FakeFamilyFile(model) : nullptr);
}

} // namespace testsupport
