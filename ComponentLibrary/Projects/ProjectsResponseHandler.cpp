#include "Projects/ProjectsResponseHandler.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>

namespace componentlibrary {
namespace {

QString IdText(const QJsonValue& value)
{
    return value.isDouble() ? QString::number(value.toDouble(), 'f', 0) : value.toString();
}

} // namespace

void ProjectsResponseHandler::HandleData(const QJsonValue& data)
{
    m_result.clear();
    const QJsonArray projects = data.toArray();
    m_result.reserve(static_cast<std::size_t>(projects.size()));
    for (const QJsonValue& value : projects) {
        const QJsonObject object = value.toObject();
        auto project = std::make_shared<ProjectInfo>();
        project->Id = IdText(object.value(QLatin1String("id"))).toStdWString();
        project->Name = object.value(QLatin1String("name")).toString().toStdWString();
        m_result.push_back(std::move(project));
    }
}

} // namespace componentlibrary
