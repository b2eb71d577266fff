#pragma once

#include "HostSdkExport.h"
#include "zept/IFamilyFile.h"
#include "zept/OwnerPtr.h"

#include <string>

namespace zept {

/**
 * Opens the host's family files.
 *
 * Implemented by the host and put into hostsdk::HostServices::familyFiles; the host owns it.
 */
class HOSTSDK_EXPORT IFamilyFileFactory
{
public:
    virtual ~IFamilyFileFactory();
    IFamilyFileFactory(const IFamilyFileFactory&) = delete;
    IFamilyFileFactory& operator=(const IFamilyFileFactory&) = delete;

    /**
     * Opens a family file.
     *
     * @param path the file's full path; its ending says nothing about its kind.
     * @return the opened file, owned by the caller, or null when it cannot be opened.
     * @throws std::exception or a class derived from it, and nothing else.
     */
    virtual OwnerPtr<IFamilyFile> CreateFamilyFile(const std::wstring& path) = 0;

protected:
    IFamilyFileFactory() = default;
};

} // namespace zept
