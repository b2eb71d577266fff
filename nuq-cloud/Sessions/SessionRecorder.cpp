#include "Sessions/SessionRecorder.h"

#include "Sessions/RecordedExchange.h"

#include <stdexcept>

namespace nuqcloud {
namespace {

constexpr std::size_t kLongestBody = 128U << 20U;

} // namespace

SessionRecorder::SessionRecorder(const std::string& file) : m_stream(file, std::ios::binary | std::ios::trunc)
{
    m_stream << SessionHeader() << '\n' << std::flush;
    if (!m_stream) {
        throw std::runtime_error("Cannot write the recording \"" + file + "\".");
    }
}

void SessionRecorder::Add(const HttpRequest& request, const HttpReply& reply)
{
    if (reply.generated && reply.generated->length > kLongestBody) {
        return;
    }
    const std::string line = FormatExchange(request, reply) + '\n';
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_stream << line << std::flush;
}

} // namespace nuqcloud
