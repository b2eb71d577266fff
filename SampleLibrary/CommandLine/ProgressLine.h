#pragma once

#include <chrono>
#include <cstddef>

namespace samplelibrary {

/// One line on standard error that tells how far a build is; only on a terminal, and not before half a second has gone
/// by.
class ProgressLine
{
public:
    /// @param isQuiet shows nothing at all
    explicit ProgressLine(bool isQuiet);

    /// Shows that @p done of @p total components are written, at most a few times a second.
    void Show(std::size_t done, std::size_t total);

    /// Takes the line away.
    void Clear();

private:
    using Clock = std::chrono::steady_clock;

    bool m_isShown = false;
    bool m_isWanted;
    Clock::time_point m_next;
};

} // namespace samplelibrary
