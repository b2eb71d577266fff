#pragma once

#include "tarnnuq/AppService.h"

#include <QString>

namespace standalone {

/// What the library asks about the program that has loaded it. Immutable, usable from every thread.
class ApplicationService final : public tarnnuq::AppService
{
public:
    /// @param name the program's name, "nuq"
    /// @param folder the application folder, without a slash at its end
    /// @param major the trade whose catalogue is wanted
    ApplicationService(const QString& name, const QString& folder, tarnnuq::Major major);

    /// The product's version by FormatVersion: "0.0" gives "0.1" for version 0.1.0.
    std::wstring GeFormattedProductVersion(const std::wstring& format) const override;

protected:
    std::wstring DoGetAppDir() const override;
    std::wstring DoGetAppName() const override;
    tarnnuq::Major DoGetMajor() const override;

private:
    std::wstring m_name;
    std::wstring m_folder;
    tarnnuq::Major m_major;
};

} // namespace standalone
