#include "Server/StaticFiles.h"

#include "Api/Envelope.h"
#include "Http/ByteRange.h"
#include "Http/EntityTags.h"
#include "Server/ServedFile.h"
#include "Sessions/Base64.h"

#include <array>
#include <memory>
#include <stdexcept>
#include <utility>

namespace nuqcloud {
namespace {

constexpr std::size_t kLargestInMemory = 1U << 20U;

bool IsPlainName(const std::string& segment)
{
    return !segment.empty() && segment != "." && segment != ".." && segment.find('/') == std::string::npos;
}

std::filesystem::path PathOf(const std::filesystem::path& folder, const std::vector<std::string>& segments)
{
    std::filesystem::path path = folder;
    for (const std::string& segment : segments) {
        if (!IsPlainName(segment)) {
            return {};
        }
        path /= segment;
    }
    return path;
}

std::string EntityTag(const std::string& digest)
{
    constexpr char kDigits[] = "0123456789abcdef";
    std::string tag = "\"";
    for (const char byte : digest) {
        const auto value = static_cast<unsigned char>(byte);
        tag += kDigits[value >> 4U];
        tag += kDigits[value & 15U];
    }
    return tag + '"';
}

std::string ContentType(const std::filesystem::path& file)
{
    static constexpr std::array<std::pair<const char*, const char*>, 6> kTypes = {
        {{".nuqfamily", "application/vnd.tarnnuq.family+zip"}, {".png", "image/png"}, {".svg", "image/svg+xml"},
            {".jpg", "image/jpeg"}, {".json", "application/json"}, {".txt", "text/plain"}}};
    for (const auto& [extension, type] : kTypes) {
        if (file.extension() == extension) {
            return type;
        }
    }
    return "application/octet-stream";
}

HttpReply MissingFile()
{
    return ErrorReply(404, "NOT_FOUND", "There is no such file.");
}

HttpReply UnsatisfiableRange(std::size_t size)
{
    HttpReply reply = ErrorReply(416, "INVALID_RANGE", "The range begins behind the end of the file.");
    reply.headers.emplace_back("Content-Range", "bytes */" + std::to_string(size));
    return reply;
}

HttpReply NotModified(const std::string& tag)
{
    HttpReply reply;
    reply.status = 304;
    reply.headers.emplace_back("ETag", tag);
    return reply;
}

/// A range is part of a reply to GET alone, and only of the file that the client has the beginning of.
ByteRange WantedRange(const HttpRequest& request, const std::string& tag, std::size_t size)
{
    const bool rangeHolds = request.method == "GET" && (request.ifRange.empty() || request.ifRange == tag);
    return ChooseRange(rangeHolds ? request.range : std::string(), size);
}

void SetBody(HttpReply& reply, std::shared_ptr<const ServedFile> file, const ByteRange& range)
{
    if (range.length <= kLargestInMemory) {
        reply.body = file->Read(range.first, range.length);
        if (reply.body.size() != range.length) {
            throw std::runtime_error("a file changed while it was read");
        }
        return;
    }
    reply.compressible = false;
    reply.generated = std::make_shared<const GeneratedBody>(
        GeneratedBody{range.length, [file = std::move(file), first = range.first](std::size_t offset,
                                        std::size_t count) { return file->Read(first + offset, count); }});
}

void AddContentRange(HttpReply& reply, const ByteRange& range, std::size_t size)
{
    reply.status = 206;
    reply.headers.emplace_back("Content-Range", "bytes " + std::to_string(range.first) + '-' +
                                                    std::to_string(range.first + range.length - 1) + '/' +
                                                    std::to_string(size));
}

HttpReply Send(std::shared_ptr<const ServedFile> file, const ByteRange& range, std::string type, const std::string& tag,
    const std::string& digest)
{
    const std::size_t size = file->Size();
    HttpReply reply;
    reply.contentType = std::move(type);
    reply.compressible = reply.contentType == "image/svg+xml" && range.kind == ByteRange::Kind::Whole;
    reply.headers = {
        {"ETag", tag}, {"Accept-Ranges", "bytes"}, {"Repr-Digest", "sha-256=:" + EncodeBase64(digest) + ':'}};
    if (reply.contentType == "image/svg+xml") {
        reply.headers.emplace_back("Vary", "Accept-Encoding");
    }
    SetBody(reply, std::move(file), range);
    if (range.kind == ByteRange::Kind::Part) {
        AddContentRange(reply, range, size);
    }
    return reply;
}

} // namespace

StaticFiles::StaticFiles(std::filesystem::path folder) : m_folder(std::move(folder)) {}

HttpReply StaticFiles::Get(const HttpRequest& request, const std::vector<std::string>& segments) const
{
    const std::filesystem::path path = PathOf(m_folder, segments);
    const std::shared_ptr<const ServedFile> file = path.empty() ? nullptr : ServedFile::Open(path);
    if (!file) {
        return MissingFile();
    }
    const std::string digest = m_digests.Of(path.native(), *file);
    const std::string tag = EntityTag(digest);
    if (const std::string known = KnownTag(request.ifNoneMatch, tag); !known.empty()) {
        return NotModified(known);
    }
    const ByteRange range = WantedRange(request, tag, file->Size());
    return range.kind == ByteRange::Kind::Unsatisfiable ? UnsatisfiableRange(file->Size())
                                                        : Send(file, range, ContentType(path), tag, digest);
}

} // namespace nuqcloud
