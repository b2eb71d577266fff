#include "zept/IFamilyFile.h"

#include "hostsdk/HostServices.h"
#include "zept/IFamilyFileFactory.h"
#include "zept/IFamilyParameter.h"
#include "zept/IGeometry.h"

namespace zept {

IFamilyFile::~IFamilyFile() = default;

OwnerPtr<IFamilyFile> IFamilyFile::Create(const std::wstring& path)
{
    IFamilyFileFactory* const installed = hostsdk::Installed().familyFiles;
    return installed != nullptr ? installed->CreateFamilyFile(path) : OwnerPtr<IFamilyFile>();
}

} // namespace zept
