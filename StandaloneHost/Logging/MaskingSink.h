#pragma once

#include <cstddef>
#include <memory>
#include <spdlog/sinks/sink.h>
#include <string>
#include <vector>

namespace standalone {

class LogMask;

/// The one way into the real sinks: takes the secrets out of each record, cuts it to a bearable length, makes
/// it one line, and hands it on. Whoever logs through the logger cannot go round it.
///
/// The sinks get each record in their order; one that fails (a full disk) keeps it from those behind it. They are
/// responsible for their own locking.
class MaskingSink final : public spdlog::sinks::sink
{
public:
    /// @param spMask what is secret, shared with those who learn of secrets
    /// @param recordSize the length in bytes behind which a record is cut
    /// @param sinks where the records go
    MaskingSink(std::shared_ptr<const LogMask> spMask, std::size_t recordSize, std::vector<spdlog::sink_ptr> sinks);

    /// @throws spdlog::spdlog_ex what a failing sink threw; the logger catches it
    void log(const spdlog::details::log_msg& record) override;
    void flush() override;
    void set_pattern(const std::string& pattern) override;
    void set_formatter(std::unique_ptr<spdlog::formatter> formatter) override;

private:
    std::string Harmless(spdlog::string_view_t payload) const;

    std::shared_ptr<const LogMask> m_spMask;
    std::size_t m_recordSize;
    std::vector<spdlog::sink_ptr> m_sinks;
};

} // namespace standalone
