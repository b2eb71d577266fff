#include "CommandLine/ProgressLine.h"

#include <cstdio>
#include <unistd.h>

namespace samplelibrary {

namespace {

constexpr std::chrono::milliseconds Patience{500};
constexpr std::chrono::milliseconds Interval{200};

} // namespace

ProgressLine::ProgressLine(bool isQuiet)
    : m_isWanted(!isQuiet && isatty(STDERR_FILENO) != 0), m_next(Clock::now() + Patience)
{
}

void ProgressLine::Show(std::size_t done, std::size_t total)
{
    if (!m_isWanted || Clock::now() < m_next) {
        return;
    }
    m_next = Clock::now() + Interval;
    m_isShown = true;
    std::fprintf(stderr, "\rcomponents: %zu of %zu", done, total);
    std::fflush(stderr);
}

void ProgressLine::Clear()
{
    if (m_isShown) {
        std::fputs("\r\033[K", stderr);
        m_isShown = false;
    }
}

} // namespace samplelibrary
