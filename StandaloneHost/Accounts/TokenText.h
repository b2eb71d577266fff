#pragma once

#include <QByteArray>
#include <QString>

namespace standalone {

/// A token from the bytes that hold it: UTF-8, a byte order mark and line ends behind it do not belong to it.
QString TokenFromBytes(QByteArray bytes);

/// What keeps a text from being a token: it is empty, too long for a request header, or holds line breaks or
/// other control characters, which would end the header early.
/// @return for a person, without the text itself; empty for a good token
QString TokenFault(const QString& token);

} // namespace standalone
