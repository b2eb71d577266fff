#pragma once

#include <QString>
#include <stdexcept>

namespace componentdatabase {

/// SQLite refused something.
class SqlFault : public std::runtime_error
{
public:
    /// @param code the engine's primary result code; 0 when the fault is not the engine's
    SqlFault(int code, const QString& text) : std::runtime_error(text.toStdString()), m_code(code) {}

    int Code() const { return m_code; }

private:
    int m_code;
};

} // namespace componentdatabase
