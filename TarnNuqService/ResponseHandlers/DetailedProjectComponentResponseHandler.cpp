#include "ResponseHandlers/DetailedProjectComponentResponseHandler.h"

#include "EnvSvcs/EnvService.h"
#include "Records/IDetailedProjectComponent.h"
#include "Records/IProjectComponent.h"
#include "ResponseHandlers/JsonReading_p.h"
#include "ResponseHandlers/ProjectComponentReader_p.h"
#include "ResponseHandlers/RecordReading_p.h"
#include "ResponseHandlers/ThumbnailUrl_p.h"

#include <QJsonArray>

namespace tarnnuq {

namespace {

constexpr WarningSource Source{"ResponseHandlers/DetailedProjectComponentResponseHandler.cpp", __LINE__,
    "tarnnuq::DetailedProjectComponentResponseHandler::HandleData"};

void ReadFamilyTypeNames(const QJsonArray& array, IDetailedProjectComponent& component)
{
    component.FamilyTypeNames.reserve(static_cast<std::size_t>(array.size()));
    for (const QJsonValue& name : array) {
        component.FamilyTypeNames.push_back(WideText(name.toString()));
    }
}

void ReadThumbnails(const QJsonArray& array, const ThumbnailUrl& thumbnailUrl, IDetailedProjectComponent& component)
{
    for (const QJsonValue& element : array) {
        const QJsonObject object = element.toObject();
        const QJsonArray paths = object.value(QLatin1String("thumbnails")).toArray();
        std::vector<std::wstring> urls;
        urls.reserve(static_cast<std::size_t>(paths.size()));
        for (const QJsonValue& path : paths) {
            urls.push_back(thumbnailUrl.Join(path));
        }
        // A size counts only when it is sent as text.
        const int size = object.value(QLatin1String("size")).toString().toInt();
        component.Thumbnails[std::to_wstring(size)] = std::move(urls);
    }
}

} // namespace

DetailedProjectComponentResponseHandler::DetailedProjectComponentResponseHandler()
    : m_staticEndPoint(QString::fromStdWString(EnvService::GetPyxStaticEndPoint()))
{
}

DetailedProjectComponentResponseHandler::~DetailedProjectComponentResponseHandler() = default;

DetailedProjectComponentResponseHandler::DetailedProjectComponentResponseHandler(
    const DetailedProjectComponentResponseHandler& other) = default;

DetailedProjectComponentResponseHandler& DetailedProjectComponentResponseHandler::operator=(
    const DetailedProjectComponentResponseHandler& other) = default;

void DetailedProjectComponentResponseHandler::HandleData(const QJsonValue& data)
{
    m_result = ReadRecord<IDetailedProjectComponent>(
        data, Source, [this](const QJsonObject& object, IDetailedProjectComponent& component) {
            ReadCommonComponentMembers(object, component);
            component.CategoryId = IdText(object.value(QLatin1String("categoryId")));
            component.Status = TextMember(object, QLatin1String("status"));
            ReadFamilyTypeNames(object.value(QLatin1String("familyTypeNames")).toArray(), component);
            ReadThumbnails(
                object.value(QLatin1String("thumbnailSizes")).toArray(), ThumbnailUrl(m_staticEndPoint), component);
        });
}

} // namespace tarnnuq
