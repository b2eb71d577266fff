#pragma once

#include "ResponseHandlers/ResultTypes.h"

class QJsonArray;
class QJsonObject;

namespace tarnnuq {

class ThumbnailUrl;
struct WarningSource;

/// Reads what every component reply has: id, version, name, category code, source. The replies differ in the rest.
void ReadCommonComponentMembers(const QJsonObject& object, IProjectComponent& component);

/// Reads the id of the public component and the thumbnail, which the detailed reply does not have.
void ReadCatalogueMembers(const QJsonObject& object, const ThumbnailUrl& thumbnailUrl, IProjectComponent& component);

/// Reads the components of a list or of a page and appends them.
/// @param source the handler on whose behalf a component that cannot be made is reported
void AppendComponents(const QJsonArray& array, const ThumbnailUrl& thumbnailUrl, const WarningSource& source,
    RecordList<IProjectComponent>& components);

} // namespace tarnnuq
