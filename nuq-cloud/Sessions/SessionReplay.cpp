#include "Sessions/SessionReplay.h"

#include "Api/Envelope.h"
#include "Sessions/RecordedExchange.h"

#include <fstream>
#include <stdexcept>

namespace nuqcloud {
namespace {

std::runtime_error NotARecording(const std::string& file, int line)
{
    return std::runtime_error("Line " + std::to_string(line) + " of \"" + file +
                              "\" is not what nuq-cloud --record writes; record the session again.");
}

} // namespace

SessionReplay::SessionReplay(const std::string& file)
{
    std::ifstream stream(file, std::ios::binary);
    if (!stream) {
        throw std::runtime_error("Cannot read the recording \"" + file + "\".");
    }
    std::string line;
    if (!std::getline(stream, line) || line != SessionHeader()) {
        throw NotARecording(file, 1);
    }
    for (int number = 2; std::getline(stream, line); ++number) {
        try {
            RecordedExchange exchange = ParseExchange(line);
            m_replies[exchange.key].list.push_back(std::move(exchange.reply));
        } catch (const std::exception&) {
            throw NotARecording(file, number);
        }
    }
}

HttpReply SessionReplay::Answer(const HttpRequest& request) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto it = m_replies.find(SessionKey(request));
    if (it == m_replies.end()) {
        return ErrorReply(404, "NOT_RECORDED", "This request was not made in the recorded session.");
    }
    Replies& replies = it->second;
    const HttpReply& reply = replies.list[replies.next];
    replies.next += replies.next + 1 < replies.list.size() ? 1 : 0;
    return reply;
}

} // namespace nuqcloud
