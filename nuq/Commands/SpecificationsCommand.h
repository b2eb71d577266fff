#pragma once

#include "CommandLine/Command.h"

#include <QString>

namespace nuq {

/** Shows the family types of a component with their parameter values. */
class SpecificationsCommand final : public Command
{
public:
    const CommandSpec& Spec() const override;
    void Bind(OptionBinder& binder) override;
    ExitCode Run(Session& session) override;

private:
    struct Options
    {
        QString id;
        QString type;
        QString projectId;
    };

    Options m_options;
};

} // namespace nuq
