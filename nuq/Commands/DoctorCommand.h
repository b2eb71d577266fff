#pragma once

#include "CommandLine/Command.h"

namespace nuq {

/** Checks settings, addresses, network, sign-in and folders one by one and says what to mend. */
class DoctorCommand final : public Command
{
public:
    const CommandSpec& Spec() const override;
    void Bind(OptionBinder& binder) override;
    ExitCode Run(Session& session) override;
};

} // namespace nuq
