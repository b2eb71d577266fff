#pragma once

#include "CommandLine/Command.h"

namespace nuq {

/** Shows the environment in which the program works: addresses, folders and accounts. */
class EnvCommand final : public Command
{
public:
    const CommandSpec& Spec() const override;
    void Bind(OptionBinder& binder) override;
    ExitCode Run(Session& session) override;
};

} // namespace nuq
