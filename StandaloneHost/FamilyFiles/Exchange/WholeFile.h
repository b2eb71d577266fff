#pragma once

#include <QByteArray>
#include <functional>
#include <string>

namespace familyfiles {

/// Lets @p write fill a file in a temporary folder and gives its content: the library writes only to paths, and what it
/// leaves behind when it fails must not lie where the user wanted a file.
/// @param suffix of the temporary file, with its full stop
/// Throws GeometryFailure (exchange.failed) when @p write says false or there is no room.
QByteArray WriteAside(const std::string& suffix, const std::function<bool(const std::string& path)>& write);

/// Puts @p content at @p path as a whole. Throws GeometryFailure (exchange.failed).
void WriteWhole(const std::string& path, const QByteArray& content);

} // namespace familyfiles
