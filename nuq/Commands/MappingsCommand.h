#pragma once

#include "CommandLine/Command.h"

namespace nuq {

/** Lists how the cloud's categories map onto the component editor's. */
class MappingsCommand final : public Command
{
public:
    const CommandSpec& Spec() const override;
    void Bind(OptionBinder& binder) override;
    ExitCode Run(Session& session) override;
};

} // namespace nuq
