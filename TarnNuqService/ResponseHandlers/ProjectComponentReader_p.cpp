#include "ResponseHandlers/ProjectComponentReader_p.h"

#include "Records/IProjectComponent.h"
#include "ResponseHandlers/JsonReading_p.h"
#include "ResponseHandlers/RecordReading_p.h"
#include "ResponseHandlers/ThumbnailUrl_p.h"

namespace tarnnuq {

void ReadCommonComponentMembers(const QJsonObject& object, IProjectComponent& component)
{
    component.Id = IdText(object.value(QLatin1String("id")));
    component.Version = IntMember(object, QLatin1String("version"));
    component.Name = TextMember(object, QLatin1String("name"));
    component.CategoryCode = TextMember(object, QLatin1String("categoryCode"));
    component.Source = IntMember(object, QLatin1String("source"));
}

void ReadCatalogueMembers(const QJsonObject& object, const ThumbnailUrl& thumbnailUrl, IProjectComponent& component)
{
    component.Thumbnail = thumbnailUrl.Join(object.value(QLatin1String("thumbnail")));
    component.PublicComponentId = IdText(object.value(QLatin1String("publicComponentId")));
}

void AppendComponents(const QJsonArray& array, const ThumbnailUrl& thumbnailUrl, const WarningSource& source,
    RecordList<IProjectComponent>& components)
{
    AppendRecords(array, {source, L"spProjectComponent 为空"}, components,
        [&thumbnailUrl](const QJsonObject& object, IProjectComponent& component) {
            ReadCommonComponentMembers(object, component);
            ReadCatalogueMembers(object, thumbnailUrl, component);
            component.CategoryId = IdText(object.value(QLatin1String("categoryId")));
            component.Status = TextMember(object, QLatin1String("status"));
        });
}

} // namespace tarnnuq
