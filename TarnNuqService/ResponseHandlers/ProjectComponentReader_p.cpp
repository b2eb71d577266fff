#include "ResponseHandlers/ProjectComponentReader_p.h"

#include "Common/DebugWarning.h"
#include "Common/MakeRecord.h"
#include "Records/IProjectComponent.h"
#include "ResponseHandlers/JsonReading_p.h"
#include "ResponseHandlers/ThumbnailUrl_p.h"

#include <QJsonArray>

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
    components.reserve(components.size() + static_cast<std::size_t>(array.size()));
    for (const QJsonValue& element : array) {
        const auto spProjectComponent = MakeRecord<IProjectComponent>();
        if (!spProjectComponent) {
            WarnNull(source, L"spProjectComponent 为空");
            continue;
        }
        const QJsonObject object = element.toObject();
        ReadCommonComponentMembers(object, *spProjectComponent);
        ReadCatalogueMembers(object, thumbnailUrl, *spProjectComponent);
        spProjectComponent->CategoryId = IdText(object.value(QLatin1String("categoryId")));
        spProjectComponent->Status = TextMember(object, QLatin1String("status"));
        components.push_back(spProjectComponent);
    }
}

} // namespace tarnnuq
