#include "Server/Responder.h"

#include "Api/Envelope.h"
#include "Faults/HttpFaults.h"
#include "Text/HttpDate.h"

namespace nuqcloud {

Responder::Responder(const ServerSettings& settings) : m_faultsAllowed(settings.faultsAllowed), m_clock(settings.clock)
{
    if (settings.replayFile.empty()) {
        m_service = std::make_unique<CloudService>(LibraryFolder(settings.library), settings.tokens);
    } else {
        m_replay = std::make_unique<SessionReplay>(settings.replayFile);
    }
    if (!settings.recordFile.empty()) {
        m_recorder = std::make_unique<SessionRecorder>(settings.recordFile);
    }
}

HttpReply Responder::Answer(const HttpRequest& request)
{
    // A recording holds the faulty replies already, so nothing is added to it.
    HttpReply reply = m_replay ? m_replay->Answer(request) : AnswerWithFaults(request);
    if (m_recorder) {
        m_recorder->Add(request, reply);
    }
    return reply;
}

HttpReply Responder::AnswerWithFaults(const HttpRequest& request) const
{
    std::vector<Fault> faults;
    try {
        faults = ParseFaults(m_faultsAllowed ? request.faults : std::string());
    } catch (const FaultSyntaxError& error) {
        return ErrorReply(400, "INVALID_FAULT", error.what());
    }
    HttpReply reply = Compose(faults, request);
    const Fault* const wrongDate = FindFault(faults, "wrong-date");
    reply.headers.emplace_back("Date", FormatHttpDate(Now() + (wrongDate == nullptr ? 0 : wrongDate->number)));
    return reply;
}

HttpReply Responder::Compose(const std::vector<Fault>& faults, const HttpRequest& request) const
{
    if (auto replacement = ReplacementFor(faults, request)) {
        return *replacement;
    }
    HttpReply reply = m_service->Answer(request, TweaksFor(faults));
    Spoil(faults, reply);
    return reply;
}

std::time_t Responder::Now() const
{
    return m_clock ? m_clock() : std::time(nullptr);
}

std::vector<std::string> Responder::Patterns() const
{
    return m_service ? m_service->Patterns() : std::vector<std::string>();
}

} // namespace nuqcloud
