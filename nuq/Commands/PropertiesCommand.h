#pragma once

#include "CommandLine/Command.h"

#include <QString>

namespace nuq {

/** Shows the property definitions of a category, from the library on this machine or from the cloud. */
class PropertiesCommand final : public Command
{
public:
    const CommandSpec& Spec() const override;
    void Bind(OptionBinder& binder) override;
    ExitCode Run(Session& session) override;

private:
    ExitCode RunInCloud(Session& session);

    struct Options
    {
        QString code;
        bool cloud = false;
    };

    Options m_options;
};

} // namespace nuq
