#include "support/LogRecord.h"

namespace testsupport {

namespace {

const char* NameOf(LogRecord::Operation operation)
{
    switch (operation) {
    case LogRecord::Operation::Info:
        return "Info";
    case LogRecord::Operation::Error:
        return "Error";
    case LogRecord::Operation::Warn:
        return "Warn";
    case LogRecord::Operation::Debug:
        return "Debug";
    }
    return "?";
}

} // namespace

std::ostream& operator<<(std::ostream& stream, const LogRecord& record)
{
    stream << NameOf(record.operation) << "(";
    for (const QString& part : record.parts) {
        stream << "[" << part.toStdString() << "]";
    }
    return stream << ")";
}

} // namespace testsupport
