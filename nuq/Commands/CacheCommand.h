#pragma once

#include "CommandLine/Command.h"

#include <QString>

namespace nuq {

/** Tells how large the thumbnail cache is, or empties it. */
class CacheCommand final : public Command
{
public:
    const CommandSpec& Spec() const override;
    void Bind(OptionBinder& binder) override;
    void Check() const override;
    ExitCode Run(Session& session) override;

private:
    QString m_action;
};

} // namespace nuq
