#include "FamilyFiles/Exchange/EmbeddedGltf.h"

#include "FamilyFiles/Geometry/GeometryFailure.h"

#include <QtEndian>
#include <nlohmann/json.hpp>

namespace familyfiles {

namespace {

/// Bytes before the first chunk, and before the content of each.
constexpr int kFileHead = 12;
constexpr int kChunkHead = 8;

/// The content of the chunk at @p offset; moves on behind it.
QByteArray TakeChunk(const QByteArray& binary, int& offset)
{
    if (binary.size() < offset + kChunkHead) {
        throw GeometryFailure("exchange.failed", "The glTF data is cut short", "glTF 数据不完整");
    }
    const auto length = static_cast<int>(qFromLittleEndian<quint32>(binary.constData() + offset));
    const QByteArray content = binary.mid(offset + kChunkHead, length);
    if (length < 0 || content.size() != length) {
        throw GeometryFailure("exchange.failed", "The glTF data is cut short", "glTF 数据不完整");
    }
    offset += kChunkHead + length;
    return content;
}

} // namespace

QByteArray EmbeddedGltf(const QByteArray& binary)
{
    int offset = kFileHead;
    const QByteArray json = TakeChunk(binary, offset);
    const QByteArray data = TakeChunk(binary, offset);
    auto document = nlohmann::ordered_json::parse(json.begin(), json.end(), nullptr, false);
    if (!document.is_object() || !document.contains("buffers") || document["buffers"].empty()) {
        throw GeometryFailure("exchange.failed", "The glTF data has no buffer", "glTF 数据没有缓冲区");
    }
    document["buffers"][0]["uri"] = "data:application/octet-stream;base64," + data.toBase64().toStdString();
    return QByteArray::fromStdString(document.dump(1) + '\n');
}

} // namespace familyfiles
