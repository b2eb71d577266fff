#pragma once

namespace familyfiles {

/// Asked again and again while a body is built.
class BuildProgress
{
public:
    virtual ~BuildProgress();
    BuildProgress(const BuildProgress&) = delete;
    BuildProgress& operator=(const BuildProgress&) = delete;

    /// @param done from 0 to 1
    /// @return false to break off
    virtual bool Report(double done) = 0;

protected:
    BuildProgress() = default;
};

} // namespace familyfiles
