#include "Logging/MaskingSink.h"

#include "Logging/LogLine.h"
#include "Logging/LogMask.h"

#include <QString>
#include <utility>

namespace standalone {

namespace {

/// Where to cut so that no UTF-8 sequence is torn.
std::size_t CutPosition(spdlog::string_view_t text, std::size_t limit)
{
    while (limit > 0 && (static_cast<unsigned char>(text.data()[limit]) & 0xC0U) == 0x80U) {
        --limit;
    }
    return limit;
}

QString TextOf(spdlog::string_view_t text, std::size_t size)
{
    return QString::fromUtf8(text.data(), static_cast<int>(size));
}

} // namespace

MaskingSink::MaskingSink(
    std::shared_ptr<const LogMask> spMask, std::size_t recordSize, std::vector<spdlog::sink_ptr> sinks)
    : m_spMask(std::move(spMask)), m_recordSize(recordSize), m_sinks(std::move(sinks))
{
}

void MaskingSink::log(const spdlog::details::log_msg& record)
{
    const std::string text = Harmless(record.payload);
    spdlog::details::log_msg harmless(record);
    harmless.payload = text;
    for (const spdlog::sink_ptr& target : m_sinks) {
        if (target->should_log(record.level)) {
            target->log(harmless);
        }
    }
}

void MaskingSink::flush()
{
    for (const spdlog::sink_ptr& target : m_sinks) {
        target->flush();
    }
}

void MaskingSink::set_pattern(const std::string& pattern)
{
    for (const spdlog::sink_ptr& target : m_sinks) {
        target->set_pattern(pattern);
    }
}

void MaskingSink::set_formatter(std::unique_ptr<spdlog::formatter> formatter)
{
    for (const spdlog::sink_ptr& target : m_sinks) {
        target->set_formatter(formatter->clone());
    }
}

std::string MaskingSink::Harmless(spdlog::string_view_t payload) const
{
    if (payload.size() <= m_recordSize) {
        return LogLine(m_spMask->Apply(TextOf(payload, payload.size()))).toStdString();
    }
    const QString beginning = TextOf(payload, CutPosition(payload, m_recordSize));
    return LogLine(m_spMask->ApplyToBeginning(beginning) + QStringLiteral(" …")).toStdString();
}

} // namespace standalone
