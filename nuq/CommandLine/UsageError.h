#pragma once

#include <QString>

#include <exception>

namespace nuq {

/** The command line is wrong; the message says how, in the user's language. Ends the program with exit code 2. */
class UsageError final : public std::exception
{
public:
    explicit UsageError(const QString& message) : m_message(message), m_utf8(message.toUtf8()) {}

    const QString& Message() const { return m_message; }
    const char* what() const noexcept override { return m_utf8.constData(); }

private:
    QString m_message;
    QByteArray m_utf8;
};

} // namespace nuq
