#pragma once

#include <QByteArray>
#include <QList>
#include <QPair>

namespace nuqcloud {

/// The head of a request or a reply: its first line and its headers, in order and as they were written.
class HttpHead
{
public:
    HttpHead() = default;

    /// @param bytes up to and with the empty line
    static HttpHead Parse(const QByteArray& bytes);

    /// Offset behind the empty line, or -1 when the head is not complete yet.
    static int EndOf(const QByteArray& bytes);

    const QByteArray& FirstLine() const { return m_firstLine; }
    void SetFirstLine(const QByteArray& line) { m_firstLine = line; }

    /// The n-th word of the first line, empty when there are fewer.
    QByteArray Word(int index) const;

    /// Names are compared without case. Empty when absent; the first when there are several.
    QByteArray Value(const char* name) const;
    bool Has(const char* name) const;
    void Remove(const char* name);
    void Add(const char* name, const QByteArray& value);

    /// The head as it goes over the wire, with the empty line.
    QByteArray ToBytes() const;

private:
    QByteArray m_firstLine;
    QList<QPair<QByteArray, QByteArray>> m_headers;
};

} // namespace nuqcloud
