#pragma once

#include "TarnNuqServiceExport.h"
#include "zept/IFamilyFile.h"
#include "zept/OwnerPtr.h"

#include <memory>
#include <string>

namespace tarnnuq {

class ISpecification;

/// Brings a specification and a family file together: checks that the family's geometry builds with the values of the
/// specification, and lets the family compute the parameters that follow from them.
///
/// The file that a caller names is never opened: each service works on a copy of its own, which stays on disk when
/// the service goes. Values are matched by the ids of their definitions, exactly; parameters that only one side knows
/// are left alone. Nothing is thrown. One service is used by one thread at a time.
class TARNNUQSERVICE_EXPORT FamilyFileService
{
public:
    /// Copies a family file next to itself, under its own name, "_" and a new GUID in braces, and opens the copy by
    /// the host.
    /// @param path the family file; relative to the current folder unless absolute
    /// @return the service, owned by the caller; null when there is no such file, when it cannot be copied, or when
    /// the host throws. A copy that the host does not open gives a service whose operations fail.
    static std::shared_ptr<FamilyFileService> Create(const std::wstring& path);

    virtual ~FamilyFileService();
    FamilyFileService(const FamilyFileService&) = delete;
    FamilyFileService& operator=(const FamilyFileService&) = delete;

    /// Asks whether the values of a specification yield a geometry. Neither the file nor the specification is
    /// changed. Texts that are no numbers count as 0, texts that are no yes/no value as no. A null parameter in the
    /// family raises a debug warning and is skipped.
    /// @param spec the wanted values; null is a failure
    /// @return true when the geometry could be built anew, or when there was no value to set; false when it could
    /// not, and when the family has no geometry, no type, or is not open
    bool TryUpdateGeometry(std::shared_ptr<ISpecification> spec);

    /// Computes the family's driven parameters from the values of a specification and writes them into it: numbers in
    /// fixed notation with at most six decimals, yes/no values as IParameter::GetLogicStorageStr() has them. Values
    /// are read as by TryUpdateGeometry(). Whatever the family computed is written, even when it then gave up.
    /// @param spec read and written; null is nothing to do, successfully
    /// @param changed set to whether any value was written, be it the same one as before
    /// @return whether the family computed all of them; false also when it has no type or is not open
    bool UpdateDrivenParameters(std::shared_ptr<ISpecification> spec, bool& changed);

private:
    explicit FamilyFileService(const std::wstring& path);

    zept::OwnerPtr<zept::IFamilyFile> m_opFamilyFile;
};

} // namespace tarnnuq
