#pragma once

#include "FaultRelay/Fault.h"
#include "Http/HttpReply.h"
#include "Http/HttpRequest.h"
#include "Server/CloudService.h"
#include "Server/ServerSettings.h"
#include "Sessions/SessionRecorder.h"
#include "Sessions/SessionReplay.h"

#include <ctime>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace nuqcloud {

/// Answers requests as the settings say: from the library or a recording, with the faults that are allowed, and
/// writing down what it answers. Safe for many threads.
class Responder
{
public:
    /// @throws std::runtime_error with a sentence for the user
    explicit Responder(const ServerSettings& settings);

    HttpReply Answer(const HttpRequest& request);

    /// Empty for a replay.
    std::vector<std::string> Patterns() const;

private:
    HttpReply AnswerWithFaults(const HttpRequest& request) const;
    HttpReply Compose(const std::vector<Fault>& faults, const HttpRequest& request) const;
    std::time_t Now() const;

    const bool m_faultsAllowed;
    const std::function<std::time_t()> m_clock;
    std::unique_ptr<const CloudService> m_service;
    std::unique_ptr<const SessionReplay> m_replay; ///< answers in the service's place when set
    std::unique_ptr<SessionRecorder> m_recorder;
};

} // namespace nuqcloud
