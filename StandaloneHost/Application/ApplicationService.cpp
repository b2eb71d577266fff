#include "Application/ApplicationService.h"

#include "Application/ProductVersion.h"

namespace standalone {

ApplicationService::ApplicationService(const QString& name, const QString& folder, tarnnuq::Major major)
    : m_name(name.toStdWString()), m_folder(folder.toStdWString()), m_major(major)
{
}

std::wstring ApplicationService::GeFormattedProductVersion(const std::wstring& format) const
{
    return FormatVersion(ProductVersion(), QString::fromStdWString(format)).toStdWString();
}

std::wstring ApplicationService::DoGetAppDir() const
{
    return m_folder;
}

std::wstring ApplicationService::DoGetAppName() const
{
    return m_name;
}

tarnnuq::Major ApplicationService::DoGetMajor() const
{
    return m_major;
}

} // namespace standalone
