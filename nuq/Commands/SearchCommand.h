#pragma once

#include "CommandLine/Command.h"

#include <QString>

namespace nuq {

/** Searches the library on this machine. */
class SearchCommand final : public Command
{
public:
    const CommandSpec& Spec() const override;
    void Bind(OptionBinder& binder) override;
    ExitCode Run(Session& session) override;

private:
    struct Options
    {
        QString text;
        int limit = 20;
    };

    Options m_options;
};

} // namespace nuq
