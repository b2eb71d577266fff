#pragma once

#include "CommandLine/Command.h"

namespace nuq {

/** Shows the versions of the program and of what it runs on. */
class VersionCommand final : public Command
{
public:
    const CommandSpec& Spec() const override;
    void Bind(OptionBinder& binder) override;
    ExitCode Run(Session& session) override;
};

} // namespace nuq
