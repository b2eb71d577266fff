#pragma once

#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <string>

namespace tarnnuq {

/// A text as the wide text of this platform: what QString::toStdWString() gives, in one pass over the text.
std::wstring WideText(const QString& text);

/// A text member; empty when it is missing or no text.
inline std::wstring TextMember(const QJsonObject& object, QLatin1String key)
{
    return WideText(object.value(key).toString());
}

/// A whole-number member; 0 when it is missing, no number, not whole or beyond 32 bits.
inline int IntMember(const QJsonObject& object, QLatin1String key)
{
    return object.value(key).toInt(0);
}

/// A yes/no member; false when it is missing or neither.
inline bool BoolMember(const QJsonObject& object, QLatin1String key)
{
    return object.value(key).toBool(false);
}

/// An id that may come as number or text: a number is written in fixed-point notation without decimals.
std::wstring IdText(const QJsonValue& value);

} // namespace tarnnuq
