#pragma once

#include "CommandLine/Command.h"

namespace nuq {

/** A short guided tour of the catalogue, made from what the other commands show. */
class TourCommand final : public Command
{
public:
    const CommandSpec& Spec() const override;
    void Bind(OptionBinder& binder) override;
    ExitCode Run(Session& session) override;
};

} // namespace nuq
