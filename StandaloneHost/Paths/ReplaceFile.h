#pragma once

#include <QByteArray>
#include <QFileDevice>
#include <QString>
#include <optional>

namespace standalone {

/// Writes a file as a whole: a reader sees the old content or the new one, also when the disk is full or the
/// program dies on the way. Through a symbolic link the link's target is replaced.
/// @param path absolute; its folder must exist
/// @param permissions given to the new file before its first byte is written; without, an existing file keeps
///        its own
/// @return why it failed, for a person; empty on success. On failure the old file stands as it was.
QString ReplaceFile(const QString& path, const QByteArray& content,
    const std::optional<QFileDevice::Permissions>& permissions = std::nullopt);

} // namespace standalone
