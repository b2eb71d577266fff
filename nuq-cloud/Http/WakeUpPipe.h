#pragma once

namespace nuqcloud {

/// Wakes every thread that polls one descriptor, once and for good.
class WakeUpPipe
{
public:
    /// @throws std::system_error when the process has no descriptor left
    WakeUpPipe();
    ~WakeUpPipe();

    WakeUpPipe(const WakeUpPipe&) = delete;
    WakeUpPipe& operator=(const WakeUpPipe&) = delete;

    /// Readable from the first Wake() on.
    int Descriptor() const { return m_ends[0]; }

    /// May be called from a signal handler and more than once.
    void Wake() const;

private:
    int m_ends[2] = {-1, -1};
};

} // namespace nuqcloud
