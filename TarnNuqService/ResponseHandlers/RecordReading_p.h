#pragma once

#include "Common/DebugWarning.h"
#include "Common/MakeRecord.h"
#include "ResponseHandlers/ResultTypes.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <utility>

namespace tarnnuq {

/// What is said of a record that cannot be made.
struct RecordWarning
{
    const WarningSource& source;
    const wchar_t* message;
    const wchar_t* date = DefaultWarningDate;
};

/// Reads the elements of an array into records and appends them, in order. One that cannot be made is reported and
/// skipped; one that is no object reads as an empty one.
/// @param read called with the element as an object and the new record
template <typename Record, typename Read>
void AppendRecords(const QJsonArray& array, const RecordWarning& warning, RecordList<Record>& records, Read&& read)
{
    records.reserve(records.size() + static_cast<std::size_t>(array.size()));
    for (const QJsonValue& element : array) {
        auto record = MakeRecord<Record>();
        if (!record) {
            WarnNull(warning.source, warning.message, warning.date);
            continue;
        }
        read(element.toObject(), *record);
        records.push_back(std::move(record));
    }
}

/// Reads an object payload into a record.
/// @param read called with the object and the new record
/// @return the record; null for an empty payload, for one that is no object, and for a record that cannot be made,
/// which is reported
template <typename Record, typename Read>
RecordPtr<Record> ReadRecord(const QJsonValue& data, const WarningSource& source, Read&& read)
{
    const QJsonObject object = data.toObject();
    if (object.isEmpty()) {
        return nullptr;
    }
    auto record = MakeRecord<Record>();
    if (!record) {
        WarnNull(source, L"m_result 为空");
        return nullptr;
    }
    read(object, *record);
    return record;
}

} // namespace tarnnuq
