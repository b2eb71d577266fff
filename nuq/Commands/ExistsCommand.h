#pragma once

#include "CommandLine/Command.h"

#include <QString>

namespace nuq {

/** Tells whether a public component exists in a project, or in which of all projects. */
class ExistsCommand final : public Command
{
public:
    const CommandSpec& Spec() const override;
    void Bind(OptionBinder& binder) override;
    ExitCode Run(Session& session) override;

private:
    struct Options
    {
        QString id;
        QString projectId;
    };
    struct Answer;

    bool Ask(Session& session, Answer& answer, ExitCode& code);

    Options m_options;
};

} // namespace nuq
