#include "ResponseHandlers/LegendReader_p.h"

#include "Records/ILegend.h"
#include "ResponseHandlers/JsonReading_p.h"
#include "ResponseHandlers/ThumbnailUrl_p.h"

namespace tarnnuq {

namespace {

ILegend::LegendType ViewOfNumber(int number)
{
    switch (number) {
    case 0:
        return ILegend::Plan;
    case 1:
        return ILegend::Elevation;
    case 2:
        return ILegend::Profile;
    default:
        return ILegend::Unknown;
    }
}

ILegend::LegendType ViewOfText(const QString& text)
{
    const QString name = text.trimmed().toUpper();
    if (name == QLatin1String("PLAN")) {
        return ILegend::Plan;
    }
    if (name == QLatin1String("ELEVATION")) {
        return ILegend::Elevation;
    }
    return name == QLatin1String("PROFILE") ? ILegend::Profile : ILegend::Unknown;
}

// Numbers count from zero on the wire and from one in the enumeration; one that is no whole 32-bit number reads as 0.
ILegend::LegendType View(const QJsonValue& value)
{
    if (value.isDouble()) {
        return ViewOfNumber(value.toInt(0));
    }
    return value.isString() ? ViewOfText(value.toString()) : ILegend::Unknown;
}

// By way of the fixed-point text, so that a fraction is rounded and a number beyond 64 bits reads as 0.
std::int64_t LegendId(const QJsonValue& value)
{
    return QString::number(value.toDouble(0.0), 'f', 0).toLongLong();
}

} // namespace

void ReadLegend(const QJsonObject& object, const ThumbnailUrl& thumbnailUrl, ILegend& legend)
{
    legend.Id = LegendId(object.value(QLatin1String("id")));
    legend.Name = TextMember(object, QLatin1String("name"));
    legend.Thumbnail = thumbnailUrl.Join(object.value(QLatin1String("thumbnail")));
    legend.Type = View(object.value(QLatin1String("placeholderType")));
}

} // namespace tarnnuq
