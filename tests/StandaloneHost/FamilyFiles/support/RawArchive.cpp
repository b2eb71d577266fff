#include "support/RawArchive.h"

#include <zlib.h>

namespace {

void PutNumber(std::string& bytes, std::uint32_t number, int size)
{
    for (int i = 0; i < size; ++i) {
        bytes += static_cast<char>((number >> (8 * i)) & 0xFFU);
    }
}

std::string Deflated(const std::string& content)
{
    z_stream stream{};
    deflateInit2(&stream, 1, Z_DEFLATED, -15, 8, Z_DEFAULT_STRATEGY);
    std::string bytes(deflateBound(&stream, static_cast<uLong>(content.size())), '\0');
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(content.data()));
    stream.avail_in = static_cast<uInt>(content.size());
    stream.next_out = reinterpret_cast<Bytef*>(bytes.data());
    stream.avail_out = static_cast<uInt>(bytes.size());
    deflate(&stream, Z_FINISH);
    bytes.resize(stream.total_out);
    deflateEnd(&stream);
    return bytes;
}

/// What the local and the central header of an entry have in common.
std::string CommonHeader(const RawEntry& entry, const std::string& packed)
{
    const uLong checksum =
        crc32(0, reinterpret_cast<const Bytef*>(entry.content.data()), static_cast<uInt>(entry.content.size()));
    std::string bytes;
    PutNumber(bytes, 20, 2);
    PutNumber(bytes, entry.flags, 2);
    PutNumber(bytes, entry.method.value_or(entry.isDeflated ? 8 : 0), 2);
    PutNumber(bytes, 0x54410000U, 4);
    PutNumber(bytes, entry.declaredChecksum.value_or(static_cast<std::uint32_t>(checksum)), 4);
    PutNumber(bytes, static_cast<std::uint32_t>(packed.size()), 4);
    PutNumber(bytes, entry.declaredSize.value_or(static_cast<std::uint32_t>(entry.content.size())), 4);
    PutNumber(bytes, static_cast<std::uint32_t>(entry.name.size()), 2);
    PutNumber(bytes, 0, 2);
    return bytes;
}

} // namespace

std::string RawArchive(const std::vector<RawEntry>& entries)
{
    std::string bytes;
    std::string directory;
    for (const RawEntry& entry : entries) {
        const std::string packed = entry.isDeflated ? Deflated(entry.content) : entry.content;
        const auto offset = static_cast<std::uint32_t>(bytes.size());
        bytes += "PK\3\4" + CommonHeader(entry, packed) + entry.name + packed;
        directory += "PK\1\2";
        PutNumber(directory, 20, 2);
        directory += CommonHeader(entry, packed);
        PutNumber(directory, 0, 2);
        PutNumber(directory, 0, 4);
        PutNumber(directory, 0, 4);
        PutNumber(directory, offset, 4);
        directory += entry.name;
    }
    const auto directoryOffset = static_cast<std::uint32_t>(bytes.size());
    bytes += directory + "PK\5\6";
    PutNumber(bytes, 0, 4);
    PutNumber(bytes, static_cast<std::uint32_t>(entries.size()), 2);
    PutNumber(bytes, static_cast<std::uint32_t>(entries.size()), 2);
    PutNumber(bytes, static_cast<std::uint32_t>(directory.size()), 4);
    PutNumber(bytes, directoryOffset, 4);
    PutNumber(bytes, 0, 2);
    return bytes;
}
