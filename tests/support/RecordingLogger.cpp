#include "support/RecordingLogger.h"

#include "tarnnuq/NuqLogObject.h"

#include <algorithm>
#include <iterator>

namespace testsupport {

namespace {

QStringList TextsOfRecords(const std::vector<LogRecord>& records)
{
    QStringList texts;
    for (const LogRecord& record : records) {
        texts += record.Text();
    }
    return texts;
}

} // namespace

void RecordingLogger::Info(const tarnnuq::NuqLogObject& record)
{
    Keep(LogRecord::Operation::Info, record);
}

void RecordingLogger::Error(const tarnnuq::NuqLogObject& record)
{
    Keep(LogRecord::Operation::Error, record);
}

void RecordingLogger::Warn(const tarnnuq::NuqLogObject& record)
{
    Keep(LogRecord::Operation::Warn, record);
}

void RecordingLogger::Debug(const tarnnuq::NuqLogObject& record)
{
    Keep(LogRecord::Operation::Debug, record);
}

std::vector<LogRecord> RecordingLogger::RecordsOf(LogRecord::Operation operation) const
{
    std::vector<LogRecord> found;
    std::copy_if(m_records.begin(), m_records.end(), std::back_inserter(found),
        [operation](const LogRecord& record) { return record.operation == operation; });
    return found;
}

QStringList RecordingLogger::Texts() const
{
    return TextsOfRecords(m_records);
}

QStringList RecordingLogger::TextsOf(LogRecord::Operation operation) const
{
    return TextsOfRecords(RecordsOf(operation));
}

void RecordingLogger::Keep(LogRecord::Operation operation, const tarnnuq::NuqLogObject& record)
{
    m_records.push_back({operation, record.Parts()});
}

} // namespace testsupport
