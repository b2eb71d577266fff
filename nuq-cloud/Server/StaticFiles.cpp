#include "Server/StaticFiles.h"

#include "Api/Envelope.h"
#include "Http/ByteRange.h"

#include <array>
#include <cstdio>
#include <fstream>
#include <optional>
#include <utility>

namespace nuqcloud {
namespace {

bool IsPlainName(const std::string& segment)
{
    return !segment.empty() && segment != "." && segment != ".." && segment.find('/') == std::string::npos;
}

std::optional<std::filesystem::path> FileFor(
    const std::filesystem::path& folder, const std::vector<std::string>& segments)
{
    std::filesystem::path path = folder;
    for (const std::string& segment : segments) {
        if (!IsPlainName(segment)) {
            return std::nullopt;
        }
        path /= segment;
    }
    std::error_code error;
    return std::filesystem::is_regular_file(path, error) ? std::optional(path) : std::nullopt;
}

std::string EntityTag(const std::filesystem::path& file)
{
    const auto size = static_cast<unsigned long long>(std::filesystem::file_size(file));
    const auto time =
        static_cast<unsigned long long>(std::filesystem::last_write_time(file).time_since_epoch().count());
    char text[48];
    std::snprintf(text, sizeof(text), "\"%llx-%llx\"", size, time);
    return text;
}

std::string ContentType(const std::filesystem::path& file)
{
    static constexpr std::array<std::pair<const char*, const char*>, 5> kTypes = {{{".png", "image/png"},
        {".svg", "image/svg+xml"}, {".jpg", "image/jpeg"}, {".json", "application/json"}, {".txt", "text/plain"}}};
    for (const auto& [extension, type] : kTypes) {
        if (file.extension() == extension) {
            return type;
        }
    }
    return "application/octet-stream";
}

std::string ReadPart(const std::filesystem::path& file, const ByteRange& range)
{
    std::ifstream stream(file, std::ios::binary);
    stream.seekg(static_cast<std::streamoff>(range.first));
    std::string bytes(range.length, '\0');
    stream.read(bytes.data(), static_cast<std::streamsize>(range.length));
    bytes.resize(static_cast<std::size_t>(std::max<std::streamsize>(stream.gcount(), 0)));
    return bytes;
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

HttpReply SendFile(const HttpRequest& request, const std::filesystem::path& file, const std::string& tag)
{
    const std::size_t size = std::filesystem::file_size(file);
    const bool rangeHolds = request.ifRange.empty() || request.ifRange == tag;
    const ByteRange range = ChooseRange(rangeHolds ? request.range : std::string(), size);
    if (range.kind == ByteRange::Kind::Unsatisfiable) {
        return UnsatisfiableRange(size);
    }
    HttpReply reply;
    reply.contentType = ContentType(file);
    reply.body = ReadPart(file, range);
    reply.headers = {{"ETag", tag}, {"Accept-Ranges", "bytes"}};
    reply.compressible = reply.contentType == "image/svg+xml" && range.kind == ByteRange::Kind::Whole;
    if (range.kind == ByteRange::Kind::Part) {
        reply.status = 206;
        reply.headers.emplace_back("Content-Range", "bytes " + std::to_string(range.first) + '-' +
                                                        std::to_string(range.first + range.length - 1) + '/' +
                                                        std::to_string(size));
    }
    return reply;
}

} // namespace

StaticFiles::StaticFiles(std::filesystem::path folder) : m_folder(std::move(folder)) {}

HttpReply StaticFiles::Get(const HttpRequest& request, const std::vector<std::string>& segments) const
{
    const auto file = FileFor(m_folder, segments);
    if (!file) {
        return MissingFile();
    }
    const std::string tag = EntityTag(*file);
    if (request.ifNoneMatch == tag || request.ifNoneMatch == "*") {
        return NotModified(tag);
    }
    return SendFile(request, *file, tag);
}

} // namespace nuqcloud
