#include "FaultRelay/HttpHead.h"

#include <algorithm>

namespace nuqcloud {
namespace {

bool SameName(const QByteArray& left, const char* right)
{
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

} // namespace

HttpHead HttpHead::Parse(const QByteArray& bytes)
{
    HttpHead head;
    const QList<QByteArray> lines = bytes.split('\n');
    head.m_firstLine = lines.value(0).trimmed();
    for (int i = 1; i < lines.size(); ++i) {
        const int colon = lines[i].indexOf(':');
        if (colon > 0) {
            head.m_headers.append({lines[i].left(colon).trimmed(), lines[i].mid(colon + 1).trimmed()});
        }
    }
    return head;
}

int HttpHead::EndOf(const QByteArray& bytes)
{
    const int end = bytes.indexOf("\r\n\r\n");
    return end < 0 ? -1 : end + 4;
}

QByteArray HttpHead::Word(int index) const
{
    return m_firstLine.split(' ').value(index);
}

QByteArray HttpHead::Value(const char* name) const
{
    const auto it = std::find_if(m_headers.begin(), m_headers.end(),
        [name](const QPair<QByteArray, QByteArray>& header) { return SameName(header.first, name); });
    return it == m_headers.end() ? QByteArray() : it->second;
}

bool HttpHead::Has(const char* name) const
{
    return std::any_of(m_headers.begin(), m_headers.end(),
        [name](const QPair<QByteArray, QByteArray>& header) { return SameName(header.first, name); });
}

void HttpHead::Remove(const char* name)
{
    const auto isNamed = [name](const QPair<QByteArray, QByteArray>& header) { return SameName(header.first, name); };
    m_headers.erase(std::remove_if(m_headers.begin(), m_headers.end(), isNamed), m_headers.end());
}

void HttpHead::Add(const char* name, const QByteArray& value)
{
    m_headers.append({QByteArray(name), value});
}

QByteArray HttpHead::ToBytes() const
{
    QByteArray bytes = m_firstLine + "\r\n";
    for (const auto& [name, value] : m_headers) {
        bytes += name + ": " + value + "\r\n";
    }
    return bytes + "\r\n";
}

} // namespace nuqcloud
