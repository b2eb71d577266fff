#include "Server/AccessLog.h"

#include "Http/RequestTarget.h"
#include "Text/PercentEncoding.h"

#include <cerrno>
#include <cstring>
#include <ctime>
#include <stdexcept>

namespace nuqcloud {
namespace {

std::FILE* OpenTarget(const std::string& target)
{
    if (target == "-") {
        return stderr;
    }
    std::FILE* const file = std::fopen(target.c_str(), "ae");
    if (file == nullptr) {
        throw std::runtime_error("Cannot write the access log \"" + target + "\": " + std::strerror(errno) + '.');
    }
    return file;
}

std::string IsoTime(std::chrono::system_clock::time_point moment)
{
    const auto sinceEpoch = std::chrono::duration_cast<std::chrono::milliseconds>(moment.time_since_epoch()).count();
    const auto seconds = static_cast<std::time_t>(sinceEpoch / 1000);
    std::tm parts{};
    ::gmtime_r(&seconds, &parts);
    char day[32];
    std::strftime(day, sizeof(day), "%Y-%m-%dT%H:%M:%S", &parts);
    char text[48];
    std::snprintf(text, sizeof(text), "%s.%03dZ", day, static_cast<int>(sinceEpoch % 1000));
    return text;
}

std::string OrHyphen(const std::string& text)
{
    return text.empty() ? "-" : text;
}

std::string Faults(const HttpExchange& exchange)
{
    return exchange.faults.empty() ? "" : " fault=" + PercentEncode(exchange.faults, "=,-_./:");
}

} // namespace

AccessLog::AccessLog(const std::string& target) : m_file(OpenTarget(target)) {}

AccessLog::~AccessLog()
{
    if (m_file != stderr) {
        std::fclose(m_file);
    }
}

void AccessLog::Write(const HttpExchange& exchange)
{
    const std::string line = AccessLogLine(exchange, std::chrono::system_clock::now()) + '\n';
    const std::lock_guard<std::mutex> lock(m_mutex);
    std::fwrite(line.data(), 1, line.size(), m_file);
    std::fflush(m_file);
}

std::string AccessLogLine(const HttpExchange& exchange, std::chrono::system_clock::time_point end)
{
    char milliseconds[32];
    std::snprintf(milliseconds, sizeof(milliseconds), "%.2f", static_cast<double>(exchange.duration.count()) / 1000.0);
    return IsoTime(end) + ' ' + OrHyphen(exchange.id) + ' ' + OrHyphen(exchange.method) + ' ' +
           OrHyphen(RedactTarget(exchange.target)) + ' ' + std::to_string(exchange.status) + ' ' +
           std::to_string(exchange.bodyBytes) + ' ' + milliseconds + Faults(exchange);
}

} // namespace nuqcloud
