#pragma once

class QJsonObject;

namespace tarnnuq {

class ILegend;
class ThumbnailUrl;

/// Reads what both legend replies have: id, name, thumbnail, view.
void ReadLegend(const QJsonObject& object, const ThumbnailUrl& thumbnailUrl, ILegend& legend);

} // namespace tarnnuq
