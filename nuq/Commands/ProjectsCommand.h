#pragma once

#include "CommandLine/Command.h"

namespace nuq {

/** Lists the collaboration projects. */
class ProjectsCommand final : public Command
{
public:
    const CommandSpec& Spec() const override;
    void Bind(OptionBinder& binder) override;
    ExitCode Run(Session& session) override;
};

} // namespace nuq
