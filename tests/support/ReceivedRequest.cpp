#include "support/ReceivedRequest.h"

#include <algorithm>

namespace testsupport {

namespace {

bool HasName(const std::pair<QByteArray, QByteArray>& header, const QByteArray& name)
{
    return header.first.compare(name, Qt::CaseInsensitive) == 0;
}

} // namespace

QByteArray ReceivedRequest::Path() const
{
    const int mark = target.indexOf('?');
    return mark >= 0 ? target.left(mark) : target;
}

QByteArray ReceivedRequest::Query() const
{
    const int mark = target.indexOf('?');
    return mark >= 0 ? target.mid(mark + 1) : QByteArray();
}

QByteArray ReceivedRequest::Header(const QByteArray& name) const
{
    const auto found =
        std::find_if(headers.begin(), headers.end(), [&name](const auto& header) { return HasName(header, name); });
    return found != headers.end() ? found->second : QByteArray();
}

int ReceivedRequest::HeaderCount(const QByteArray& name) const
{
    return static_cast<int>(
        std::count_if(headers.begin(), headers.end(), [&name](const auto& header) { return HasName(header, name); }));
}

} // namespace testsupport
