#pragma once

#include <QByteArray>

namespace familyfiles {

/// The binary form of a glTF file as one JSON document that has the data in it.
/// Throws GeometryFailure (exchange.failed) when it is no binary glTF.
QByteArray EmbeddedGltf(const QByteArray& binary);

} // namespace familyfiles
