#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <initializer_list>
#include <ostream>
#include <vector>

namespace testsupport {

/// One way in which a value may come; undefined stands for not at all.
struct JsonShape
{
    const char* name;
    QJsonValue value;
};

/// Every way in which a value may come that is not of one of these types.
std::vector<JsonShape> ShapesExcept(const std::vector<QJsonValue::Type>& accepted);

/// A payload that is a JSON value of any kind, as text.
QByteArray JsonText(const QJsonValue& value);

/// An object with one member changed; an undefined value takes it away.
QJsonObject With(QJsonObject object, const char* key, const QJsonValue& value);

/// One member of a reply's objects: which types it may have, and what a record looks like without it.
template <typename Record>
struct MemberRow
{
    /// The member's key.
    const char* name;
    std::vector<QJsonValue::Type> accepted;
    /// Gives the record the member's default.
    void (*reset)(Record& record);
};

template <typename Record>
void PrintTo(const MemberRow<Record>& row, std::ostream* stream)
{
    *stream << row.name;
}

} // namespace testsupport
