#include "Http/Gzip.h"

#include "Text/Utf8.h"

#include <limits>
#include <zlib.h>

namespace nuqcloud {
namespace {

constexpr int kGzipWindow = 15 + 16;
constexpr int kMemoryLevel = 8;
constexpr int kFastLevel = 3; // JSON shrinks to a sixth already; higher levels cost more time than they save
constexpr std::size_t kNotWorthIt = 256;

std::string_view Trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

bool HasZeroWeight(std::string_view parameters)
{
    const std::size_t position = parameters.find("q=");
    return position != std::string_view::npos &&
           Trimmed(parameters.substr(position + 2)).find_first_not_of("0.") == std::string_view::npos;
}

bool NamesGzip(std::string_view item)
{
    const std::size_t semicolon = item.find(';');
    const std::string name = ToLower(Trimmed(item.substr(0, semicolon)));
    if (name != "gzip" && name != "x-gzip" && name != "*") {
        return false;
    }
    return semicolon == std::string_view::npos || !HasZeroWeight(item.substr(semicolon + 1));
}

/// Runs the whole text through one deflate step into a buffer that is large enough by its bound.
bool DeflateInto(z_stream& stream, std::string_view bytes, std::string& out)
{
    out.resize(deflateBound(&stream, static_cast<uLong>(bytes.size())));
    // zlib's interface is not const-correct; it never writes to its input.
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data()));
    stream.avail_in = static_cast<uInt>(bytes.size());
    stream.next_out = reinterpret_cast<Bytef*>(out.data());
    stream.avail_out = static_cast<uInt>(out.size());
    const bool done = deflate(&stream, Z_FINISH) == Z_STREAM_END;
    out.resize(done ? stream.total_out : 0);
    return done;
}

} // namespace

std::string GzipCompress(std::string_view bytes)
{
    z_stream stream{};
    std::string out;
    if (bytes.size() < kNotWorthIt || bytes.size() > std::numeric_limits<uInt>::max() / 2 ||
        deflateInit2(&stream, kFastLevel, Z_DEFLATED, kGzipWindow, kMemoryLevel, Z_DEFAULT_STRATEGY) != Z_OK) {
        return out;
    }
    DeflateInto(stream, bytes, out);
    deflateEnd(&stream);
    if (out.size() >= bytes.size()) {
        out.clear();
    }
    return out;
}

bool AcceptsGzip(std::string_view acceptEncoding)
{
    while (!acceptEncoding.empty()) {
        const std::size_t comma = acceptEncoding.find(',');
        if (NamesGzip(acceptEncoding.substr(0, comma))) {
            return true;
        }
        acceptEncoding = comma == std::string_view::npos ? std::string_view() : acceptEncoding.substr(comma + 1);
    }
    return false;
}

} // namespace nuqcloud
