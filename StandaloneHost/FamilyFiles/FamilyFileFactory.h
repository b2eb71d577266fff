#pragma once

#include "FamilyFiles/Reason.h"
#include "zept/IFamilyFileFactory.h"

#include <memory>

namespace familyfiles {

/// Opens family files for the library and keeps why the last operation on any of them was refused, so that an
/// application can tell its user what the library's yes or no leaves out.
///
/// Files may outlive the factory. On one thread, the library's.
class FamilyFileFactory final : public zept::IFamilyFileFactory
{
public:
    FamilyFileFactory();
    ~FamilyFileFactory() override;

    /// @return null when the file is refused; LastReason says why
    zept::OwnerPtr<zept::IFamilyFile> CreateFamilyFile(const std::wstring& path) override;

    /// Why the last opening, regeneration or computation, of whichever file, failed; empty when it did not.
    const Reason& LastReason() const;

private:
    std::shared_ptr<Reason> m_spLastReason;
};

} // namespace familyfiles
