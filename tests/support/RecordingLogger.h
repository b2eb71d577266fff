#pragma once

#include "support/LogRecord.h"
#include "tarnnuq/INuqLogger.h"

#include <vector>

namespace testsupport {

/// A logger that keeps every record in the order of arrival.
class RecordingLogger final : public tarnnuq::INuqLogger
{
public:
    void Info(const tarnnuq::NuqLogObject& record) override;
    void Error(const tarnnuq::NuqLogObject& record) override;
    void Warn(const tarnnuq::NuqLogObject& record) override;
    void Debug(const tarnnuq::NuqLogObject& record) override;

    const std::vector<LogRecord>& Records() const { return m_records; }
    /// The records of one operation, in order.
    std::vector<LogRecord> RecordsOf(LogRecord::Operation operation) const;
    /// The texts of all records, in order.
    QStringList Texts() const;
    /// The texts of one operation's records, in order.
    QStringList TextsOf(LogRecord::Operation operation) const;
    void Clear() { m_records.clear(); }

private:
    void Keep(LogRecord::Operation operation, const tarnnuq::NuqLogObject& record);

    std::vector<LogRecord> m_records;
};

} // namespace testsupport
