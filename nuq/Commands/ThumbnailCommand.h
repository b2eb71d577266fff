#pragma once

#include "CommandLine/Command.h"

#include <QString>

namespace componentlibrary {
struct Thumbnail;
}

namespace nuq {

/** Fetches the thumbnail of a component, or a picture by its address, into the cache and a file. */
class ThumbnailCommand final : public Command
{
public:
    const CommandSpec& Spec() const override;
    void Bind(OptionBinder& binder) override;
    void Check() const override;
    ExitCode Run(Session& session) override;

private:
    struct Options
    {
        QString what;
        QString projectId;
        QString output;
        int size = 0; ///< 0: as it comes
    };

    bool IsAddress() const;
    bool WritesToStandardOutput() const;
    bool FindAddress(Session& session, QString& address, ExitCode& code) const;
    ExitCode Deliver(Session& session, const componentlibrary::Thumbnail& thumbnail) const;

    Options m_options;
};

} // namespace nuq
