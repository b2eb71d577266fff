#pragma once

#include "HostSdkExport.h"
#include "zept/FamilyTypeInfo.h"
#include "zept/OwnerPtr.h"

#include <string>
#include <vector>

namespace zept {

class IFamilyParameter;
class IGeometry;

/**
 * An opened family file: parameters, types and the geometry that follows from them.
 *
 * Implemented by the host, made by its IFamilyFileFactory. The order of the operations is part of the interface.
 */
class HOSTSDK_EXPORT IFamilyFile
{
public:
    virtual ~IFamilyFile();
    IFamilyFile(const IFamilyFile&) = delete;
    IFamilyFile& operator=(const IFamilyFile&) = delete;

    /**
     * Opens a family file by the installed factory.
     *
     * @param path the file's full path.
     * @return the opened file; null when the host cannot open it or has no family files.
     * @throws std::exception or a class derived from it, as the host's factory does.
     */
    static OwnerPtr<IFamilyFile> Create(const std::wstring& path);

    /// What the file holds. Valid while this object lives.
    virtual FamilyTypeInfo GetTypeInfo() = 0;

    /**
     * Builds the geometry that follows from the given values; the file itself is not changed.
     *
     * @param parameters values for the working type; no entry is null.
     * @return the geometry, or null when these values yield none.
     */
    virtual OwnerPtr<IGeometry> RegenerateGeometry(const std::vector<OwnerPtr<IFamilyParameter>>& parameters) = 0;

    /// The geometry in the file, or null when it has none.
    virtual OwnerPtr<IGeometry> GetCurrentGeometry() = 0;

    /**
     * Computes the parameters that follow from others.
     *
     * @param inputs values for the working type; no entry is null.
     * @param outputs filled with the driven parameters; entries may be null, and some may be there even on failure.
     * @return true on success.
     */
    virtual bool ComputeDrivenParameters(
        const std::vector<OwnerPtr<IFamilyParameter>>& inputs, std::vector<OwnerPtr<IFamilyParameter>>& outputs) = 0;

protected:
    IFamilyFile() = default;
};

} // namespace zept
