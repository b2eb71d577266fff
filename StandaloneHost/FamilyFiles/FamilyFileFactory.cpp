#include "FamilyFiles/FamilyFileFactory.h"

#include "FamilyFiles/FamilyFile.h"
#include "FamilyFiles/Utf8.h"

namespace familyfiles {

FamilyFileFactory::FamilyFileFactory() : m_spLastReason(std::make_shared<Reason>()) {}

FamilyFileFactory::~FamilyFileFactory() = default;

zept::OwnerPtr<zept::IFamilyFile> FamilyFileFactory::CreateFamilyFile(const std::wstring& path)
{
    *m_spLastReason = {};
    std::unique_ptr<FamilyFile> file = FamilyFile::Open(Utf8Text(path), *m_spLastReason,
        [spLastReason = m_spLastReason](const Reason& reason) { *spLastReason = reason; });
    return zept::OwnerPtr<zept::IFamilyFile>(file.release());
}

const Reason& FamilyFileFactory::LastReason() const
{
    return *m_spLastReason;
}

} // namespace familyfiles
