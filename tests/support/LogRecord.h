#pragma once

#include <QString>
#include <QStringList>
#include <ostream>

namespace testsupport {

/// One log record as the host got it: by which of the logger's operations, and with which parts.
struct LogRecord
{
    enum class Operation
    {
        Info,
        Error,
        Warn,
        Debug,
    };

    Operation operation = Operation::Info;
    QStringList parts;

    /// The parts joined without separator.
    QString Text() const { return parts.join(QString()); }
};

inline bool operator==(const LogRecord& left, const LogRecord& right)
{
    return left.operation == right.operation && left.parts == right.parts;
}

/// Makes GoogleTest show a record as a developer would read it.
std::ostream& operator<<(std::ostream& stream, const LogRecord& record);

} // namespace testsupport
