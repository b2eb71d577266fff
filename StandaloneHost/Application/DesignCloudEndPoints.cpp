#include "Application/DesignCloudEndPoints.h"

#include "Application/EnvironmentFiles.h"

namespace standalone {

DesignCloudEndPoints::DesignCloudEndPoints(const EnvironmentFiles& files, const QString& environment)
    : m_files(files), m_environment(environment)
{
}

std::wstring DesignCloudEndPoints::GetEndPoint(const std::wstring& name) const
{
    return m_files.EndPoint(m_environment, QString::fromStdWString(name)).toStdWString();
}

} // namespace standalone
