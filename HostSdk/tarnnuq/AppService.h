#pragma once

#include "HostSdkExport.h"
#include "tarnnuq/Major.h"

#include <string>

namespace tarnnuq {

/**
 * The application that has loaded the library.
 *
 * Implemented by the host and put into hostsdk::HostServices::appService; the host owns it. The static operations
 * forward to the installed object's `Do...` operations.
 */
class HOSTSDK_EXPORT AppService
{
public:
    virtual ~AppService();
    AppService(const AppService&) = delete;
    AppService& operator=(const AppService&) = delete;

    /// The installed service, or one without folder, name, major and version when there is none. Never null.
    static AppService* Get();

    /// The folder under which the environment files lie, without a separator at its end.
    static std::wstring GetAppDir();
    /// The application's name, compared with case: "AppNuq" is the stand-alone component library.
    static std::wstring GetAppName();
    /// The trade the application is made for; tarnnuq::None when it is made for all or unknown.
    static Major GetMajor();

    /**
     * The product's version as text.
     *
     * @param format how many numbers are wanted, written as a version: "0.0" asks for two ("1.4").
     */
    virtual std::wstring GeFormattedProductVersion(const std::wstring& format) const = 0;

protected:
    AppService() = default;

    /// Answers GetAppDir().
    virtual std::wstring DoGetAppDir() const = 0;
    /// Answers GetAppName().
    virtual std::wstring DoGetAppName() const = 0;
    /// Answers GetMajor().
    virtual Major DoGetMajor() const = 0;
};

} // namespace tarnnuq
